#include "answers/Acts.h"

#include <algorithm>

#include "answers/DeviceChoice.h"
#include "answers/Shape.h"
#include "base/Nearest.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/OptionButton.h"
#include "forms/Text.h"
#include "forms/TextBox.h"
#include "host/DeviceCommands.h"
#include "trellisar/compile/Listing.h"

namespace answers {
namespace {

std::string textOf(const Answer& answer) {
  return answer.value.is_string() ? answer.text() : answer.value.dump();
}

/// 0 minutes and no password turn off what stands behind a check box; the password "0" does not.
bool isWanted(const Answer& answer) {
  return answer.value.is_string() ? !answer.text().empty() : answer.value != 0;
}

bool isTicked(const Answer& answer) {
  return answer.value.is_boolean() ? answer.value.get<bool>() : answer.value.is_object();
}

void setTicked(const Page& page, const std::string& checkBox, const Answer& answer, bool ticked) {
  auto& box = page.usable<forms::CheckBox>(checkBox, answer);
  if (box.isChecked() != ticked) page.user().click(box);
}

std::optional<base::Json> textIn(const Page& page, const std::string& textBox) {
  const auto& box = page.control<forms::TextBox>(textBox);
  if (!box.isUsable()) return std::nullopt;
  return box.text();
}

/// The device of this name that hangs on the receiver; null: none.
trellisar::DevicePtr deviceOf(const Page& page, const std::string& name) {
  const auto& document = page.hands().host.document()->data();
  const auto receiver = document.find(document.controlSystem);
  return document.findByName(trellisar::DeviceData::Kind::device, name, receiver->name);
}

/// Whether a device or a touch panel of this name hangs on the receiver.
bool isInSystem(const Page& page, const std::string& name) {
  const host::Document& document = page.hands().document();
  const std::string receiver = document.get_ControlSystem()->get_Name();
  return document.get_Devices()->FindByName(name, receiver) ||
         document.get_Touchpanels()->FindByName(name, receiver);
}

/// The commands that the selector offers; "" is nothing assigned.
std::vector<std::string> offeredBy(const forms::DropDownList& list) {
  std::vector<std::string> texts{""};
  for (std::int32_t place = 1; place < list.count(); ++place) texts.push_back(list.text(place));
  return texts;
}

std::int32_t placeOfCommand(const Page& page, const forms::DropDownList& list,
                            const Answer& answer) {
  const std::vector<std::string> offered = offeredBy(list);
  const auto found = std::find(offered.begin(), offered.end(), answer.text());
  if (found == offered.end()) {
    page.refuse(answer,
                base::quoted(answer.text()) + " is none of " + base::among(answer.text(), offered));
  }
  return static_cast<std::int32_t>(found - offered.begin());
}

const std::string& buttonFor(const std::vector<OptionWord>& buttons, const Answer& answer) {
  const auto isMeant = [&](const OptionWord& entry) { return entry.first == answer.text(); };
  return std::find_if(buttons.begin(), buttons.end(), isMeant)->second;
}

std::vector<std::string> wordsBeside(const std::vector<OptionWord>& buttons) {
  std::vector<std::string> words;
  for (const auto& [word, button] : buttons) words.push_back(word);
  return words;
}

/// The button for the answer's word. One that can't be chosen is refused with those that can.
forms::OptionButton& offeredButton(const Page& page, const std::vector<OptionWord>& buttons,
                                   const Answer& answer) {
  std::vector<std::string> offered;
  for (auto each = buttons.rbegin(); each != buttons.rend(); ++each) {
    const auto& [word, button] = *each;
    if (page.control<forms::OptionButton>(button).isUsable()) offered.push_back(word);
  }
  const std::string word = answer.text();
  if (!offered.empty() && std::find(offered.begin(), offered.end(), word) == offered.end()) {
    page.refuse(answer, base::quoted(word) +
                            " is not offered in this room; this is: " + base::quoted(offered));
  }
  return page.usable<forms::OptionButton>(buttonFor(buttons, answer), answer);
}

}  // namespace

Act enter(std::string textBox) {
  return {[textBox](const Page& page, const Answer& given) {
            page.user().replaceText(page.usable<forms::TextBox>(textBox, given), textOf(given));
          },
          [textBox](const Page& page, const Answer& given) {
            return page.control<forms::TextBox>(textBox).text() == textOf(given);
          },
          [textBox](const Page& page) { return textIn(page, textBox); }};
}

Act tick(std::string checkBox) {
  return {[checkBox](const Page& page, const Answer& given) {
            setTicked(page, checkBox, given, isTicked(given));
          },
          [checkBox](const Page& page, const Answer& given) {
            return page.control<forms::CheckBox>(checkBox).isChecked() == isTicked(given);
          },
          [checkBox](const Page& page) -> std::optional<base::Json> {
            const auto& box = page.control<forms::CheckBox>(checkBox);
            if (!box.isUsable()) return std::nullopt;
            return box.isChecked();
          }};
}

Act include(std::string checkBox, std::string deviceName) {
  Act act = tick(std::move(checkBox));
  act.isHeld = [isShown = std::move(act.isHeld), deviceName](const Page& page,
                                                             const Answer& given) {
    return isShown(page, given) && isInSystem(page, deviceName) == isTicked(given);
  };
  return act;
}

Act enterBehind(std::string checkBox, std::string textBox) {
  return {[checkBox, textBox](const Page& page, const Answer& given) {
            setTicked(page, checkBox, given, isWanted(given));
            if (!isWanted(given)) return;
            page.user().replaceText(page.usable<forms::TextBox>(textBox, given), textOf(given));
          },
          [checkBox, textBox](const Page& page, const Answer& given) {
            if (page.control<forms::CheckBox>(checkBox).isChecked() != isWanted(given)) {
              return false;
            }
            const std::string& shown = page.control<forms::TextBox>(textBox).text();
            return !isWanted(given) || forms::trimmed(shown) == forms::trimmed(textOf(given));
          },
          [checkBox, textBox](const Page& page) -> std::optional<base::Json> {
            const auto& box = page.control<forms::CheckBox>(checkBox);
            if (!box.isUsable()) return std::nullopt;
            if (!box.isChecked()) return "";
            return textIn(page, textBox);
          }};
}

Act chooseOption(std::vector<OptionWord> buttons) {
  Act act{[buttons](const Page& page, const Answer& given) {
            page.user().click(offeredButton(page, buttons, given));
          },
          [buttons](const Page& page, const Answer& given) {
            return page.control<forms::OptionButton>(buttonFor(buttons, given)).isChosen();
          },
          [buttons](const Page& page) -> std::optional<base::Json> {
            for (const auto& [word, button] : buttons) {
              const auto& option = page.control<forms::OptionButton>(button);
              if (option.isUsable() && option.isChosen()) return word;
            }
            return std::nullopt;
          }};
  act.words = wordsBeside(buttons);
  return act;
}

Act chooseOptionBehind(std::string off, std::string checkBox, std::vector<OptionWord> buttons) {
  const Act choice = chooseOption(std::move(buttons));
  const auto isWanted = [off](const Answer& given) { return given.text() != off; };
  Act act{[=, perform = choice.perform](const Page& page, const Answer& given) {
            setTicked(page, checkBox, given, isWanted(given));
            if (isWanted(given)) perform(page, given);
          },
          [=, isHeld = choice.isHeld](const Page& page, const Answer& given) {
            if (page.control<forms::CheckBox>(checkBox).isChecked() != isWanted(given)) {
              return false;
            }
            return !isWanted(given) || isHeld(page, given);
          },
          [=, read = choice.read](const Page& page) -> std::optional<base::Json> {
            const auto& box = page.control<forms::CheckBox>(checkBox);
            if (!box.isUsable()) return std::nullopt;
            if (!box.isChecked()) return off;
            return read(page);
          }};
  act.words = choice.words;
  act.words.insert(act.words.begin(), std::move(off));
  return act;
}

Act selectCommand(std::string selector) {
  return {[selector](const Page& page, const Answer& given) {
            auto& commands = page.usable<host::DeviceCommands>(selector, given);
            auto& list = dynamic_cast<forms::DropDownList&>(commands.control("cboCommands"));
            page.user().select(list, placeOfCommand(page, list, given));
          },
          [selector](const Page& page, const Answer& given) {
            const auto& commands = page.control<host::DeviceCommands>(selector);
            return commands.get_SelectedCommand() == given.text();
          },
          [selector](const Page& page) -> std::optional<base::Json> {
            const auto& commands = page.control<host::DeviceCommands>(selector);
            if (!commands.isUsable()) return std::nullopt;
            return commands.get_SelectedCommand();
          }};
}

Act chooseDevice(std::string button, std::string deviceName) {
  return {[button](const Page& page, const Answer& given) {
            const DeviceChoice choice(page, given);
            page.user().click(page.usable<forms::CommandButton>(button, given));
          },
          [deviceName](const Page& page, const Answer&) { return isInSystem(page, deviceName); },
          [button, deviceName](const Page& page) -> std::optional<base::Json> {
            const auto device = deviceOf(page, deviceName);
            if (!device || !page.control<forms::CommandButton>(button).isUsable()) {
              return std::nullopt;
            }
            return trellisar::chosenType(*device);
          }};
}

}  // namespace answers
