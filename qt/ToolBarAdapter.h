#pragma once

#include <QtWidgets/QMenu>

#include "forms/ToolBar.h"
#include "qt/MarkedAdapters.h"

class QToolButton;

namespace qt {

class ToolBarAdapter : public ClickedAdapter {
 public:
  ToolBarAdapter(forms::ToolBar& toolBar, const Place& place);

 protected:
  void show() override;
  KeyUse useOf(QKeyEvent& event) override;

 private:
  void showMenu();

  forms::ToolBar& toolBar_;
  QToolButton* button_;
  QMenu menu_;
  forms::Menu shown_;
};

}  // namespace qt
