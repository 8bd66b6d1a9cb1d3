#pragma once

#include "forms/DropDownList.h"
#include "qt/Adapter.h"
#include "qt/ListKeys.h"

class QComboBox;

namespace qt {

class DropDownListAdapter : public Adapter {
 public:
  DropDownListAdapter(forms::DropDownList& list, const Place& place);

 protected:
  void show() override;
  bool mousePressed(QWidget& part, QMouseEvent& event) override;
  /// Turning the wheel over a page must not change an answer.
  bool wheelTurned() override { return true; }
  KeyUse useOf(QKeyEvent& event) override;

 private:
  void showItems();
  void select(std::int32_t place);

  forms::DropDownList& list_;
  QComboBox* box_;
  ListKeys keys_;
};

}  // namespace qt
