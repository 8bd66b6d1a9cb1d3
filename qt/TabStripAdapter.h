#pragma once

#include <vector>

#include "forms/TabStrip.h"
#include "qt/Adapter.h"

class QTabBar;

namespace qt {

class TabStripAdapter : public Adapter {
 public:
  TabStripAdapter(forms::TabStrip& strip, const Place& place);

  /// Turns to the next or previous page, round the end. False when the headers are out of sight:
  /// then pages are turned by other means alone.
  bool turnPage(bool forward);

  QWidget* focusWidget() const override;

 protected:
  void show() override;
  bool mousePressed(QWidget& part, QMouseEvent& event) override;
  bool mouseReleased(QWidget&, QMouseEvent&) override { return true; }
  bool wheelTurned() override { return true; }

 private:
  void showHeaders();
  void select(std::int16_t page);

  forms::TabStrip& strip_;
  QTabBar* bar_;
  std::vector<std::int16_t> pages_;  // by the place of their header
  std::int16_t shownPage_ = -1;
};

}  // namespace qt
