#pragma once

#include "forms/ListBox.h"
#include "qt/Adapter.h"
#include "qt/ListKeys.h"

class QListWidget;

namespace qt {

class ListBoxAdapter : public Adapter {
 public:
  ListBoxAdapter(forms::ListBox& list, const Place& place);

 protected:
  void show() override;
  bool mousePressed(QWidget& part, QMouseEvent& event) override;
  bool mouseReleased(QWidget&, QMouseEvent&) override { return true; }
  bool doubleClicked(QWidget& part, QMouseEvent& event) override;
  KeyUse useOf(QKeyEvent& event) override;

 private:
  void showItems();
  std::int32_t placeAt(const QMouseEvent& event) const;

  forms::ListBox& list_;
  QListWidget* widget_;
  ListKeys keys_;
};

}  // namespace qt
