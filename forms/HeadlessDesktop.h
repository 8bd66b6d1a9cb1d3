#pragma once

#include <chrono>
#include <deque>
#include <map>

#include "forms/Desktop.h"

namespace forms {

/// What a desktop is without a screen: fixed measures, no help viewer, a queue in the place of an
/// event loop, and a time that stands still until it is told to pass. What it takes to answer forms
/// and messages is up to the class that derives from it.
class HeadlessDesktop : public Desktop {
 public:
  std::int32_t showHelp(std::int32_t, const std::string&, std::int16_t) override { return 0; }
  void closeAllHelp() override {}
  void copyText(const std::string&) override {}
  void processEvents() override;
  void runLater(std::function<void()> task) override { tasks_.push_back(std::move(task)); }
  void runAfter(std::chrono::milliseconds wait, std::function<void()> task) override;
  /// Lets the time pass and runs what `runAfter` left for it, in the order in which it is due.
  void pass(std::chrono::milliseconds time);
  void setMousePointer(MousePointer) override {}
  Size textSize(const std::string& text, const Font& font, Twips width) const override;
  Twips twipsPerPixelX() const override { return 15; }
  Twips twipsPerPixelY() const override { return 15; }

 private:
  std::deque<std::function<void()>> tasks_;
  std::multimap<std::chrono::milliseconds, std::function<void()>> timed_;  // by when they are due
  std::chrono::milliseconds now_{};
};

}  // namespace forms
