#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "answers/Page.h"

namespace answers {

/// How an answer gets into the wizard, and how it is seen afterwards that the wizard took it.
struct Act {
  /// Does on the page what a person would do; empty: nothing is to be done. Raises RunEnded, as
  /// wrong input, for what can't be answered.
  std::function<void(const Page&, const Answer&)> perform;
  /// Whether the page shows the answer; empty: that is not to be seen.
  std::function<bool(const Page&, const Answer&)> isHeld = {};
  /// The answer that the control holds now, a text as it is shown, a check box true or false;
  /// nothing where none can be given. Empty: another act reads it.
  std::function<std::optional<base::Json>(const Page&)> read = {};
  /// What the system must hold besides once the step has been left; empty: nothing.
  std::function<bool(const Page&, const Answer&)> isInSystem = {};
  /// Those that the answer may be, where it is one of some words.
  std::vector<std::string> words = {};
};

/// Puts a text, or a whole number, in the place of what a box holds.
Act enter(std::string textBox);

/// Ticks or clears a check box. An answer that is an object ticks it by being there, null clears
/// it.
Act tick(std::string checkBox);

/// As `tick`, of a box that adds a device, or a touch panel, of this name to the system.
Act include(std::string checkBox, std::string deviceName);

/// As `enter`, of a box that a check box makes usable: an empty text or the number 0 clears the
/// check box, anything else ticks it and is entered. The page may cut blanks at the ends.
Act enterBehind(std::string checkBox, std::string textBox);

/// A word of an answer, and the option button that stands for it.
using OptionWord = std::pair<std::string, std::string>;

/// Chooses the option button that stands beside the answer's word. The page has the buttons the
/// other way round.
Act chooseOption(std::vector<OptionWord> buttons);

/// As `chooseOption`, of buttons that a check box makes usable: the word `off` clears the check
/// box, any other ticks it.
Act chooseOptionBehind(std::string off, std::string checkBox, std::vector<OptionWord> buttons);

/// Chooses one of the commands that a selector of device commands offers; "" is "nothing assigned".
Act selectCommand(std::string selector);

/// Clicks the button and chooses the library device of this name in the host's device dialog;
/// `deviceName` is what the device is called in the system.
Act chooseDevice(std::string button, std::string deviceName);

}  // namespace answers
