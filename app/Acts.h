#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/Page.h"

namespace app {

/// How an answer gets into the wizard, and how it is seen afterwards that the wizard took it.
struct Act {
  /// The answer's path in the answers file. An answer that was left out is passed over.
  std::string answer;
  /// Does on the page what a person would do. Raises RunEnded with status 2 for what can't be
  /// answered.
  std::function<void(const Page&, const Answer&)> perform;
  std::function<bool(const Page&, const Answer&)> isHeld;
};

/// The acts of one step, in the order of its page from top to bottom.
struct StepActs {
  std::string step;
  std::vector<Act> acts;
  /// What is looked at before the step is left; empty: nothing.
  std::function<void(const Page&)> beforeLeaving = {};
};

/// Puts a text, or a whole number, in the place of what a box holds.
Act enter(std::string answer, std::string textBox);

/// Ticks or clears a check box. An answer that is an object ticks it by being there.
Act tick(std::string answer, std::string checkBox);

/// Chooses the option button that stands beside the answer's word.
Act chooseOption(std::string answer, std::vector<std::pair<std::string, std::string>> buttons);

/// Chooses one of the commands that a selector of device commands offers; "" is "nothing assigned".
Act selectCommand(std::string answer, std::string selector);

/// Clicks the button and chooses the library device of this name in the host's device dialog;
/// `deviceName` is what the device is called in the system.
Act chooseDevice(std::string answer, std::string button, std::string deviceName);

}  // namespace app
