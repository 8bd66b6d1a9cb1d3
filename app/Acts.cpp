#include "app/Acts.h"

#include <algorithm>

#include "app/DeviceChoice.h"
#include "app/Shape.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/OptionButton.h"
#include "forms/TextBox.h"
#include "host/DeviceCommands.h"

namespace app {
namespace {

std::string textOf(const Answer& answer) {
  return answer.value.is_string() ? answer.text() : answer.value.dump();
}

bool isTicked(const Answer& answer) { return answer.value.is_object() || answer.value.get<bool>(); }

/// The commands that the selector offers, without the entry for "nothing assigned".
std::vector<std::string> offeredBy(const forms::DropDownList& list) {
  std::vector<std::string> texts;
  for (std::int32_t place = 1; place < list.count(); ++place) texts.push_back(list.text(place));
  return texts;
}

std::int32_t placeOfCommand(const Page& page, const forms::DropDownList& list,
                            const Answer& answer) {
  if (answer.text().empty()) return 0;
  const std::vector<std::string> offered = offeredBy(list);
  const auto found = std::find(offered.begin(), offered.end(), answer.text());
  if (found == offered.end()) {
    page.refuse(answer, quoted(answer.text()) + " is none of \"\"" +
                            (offered.empty() ? "" : ", " + quoted(offered)));
  }
  return static_cast<std::int32_t>(found - offered.begin()) + 1;
}

}  // namespace

Act enter(std::string answer, std::string textBox) {
  return {std::move(answer),
          [textBox](const Page& page, const Answer& given) {
            page.user().replaceText(page.usable<forms::TextBox>(textBox, given), textOf(given));
          },
          [textBox](const Page& page, const Answer& given) {
            return page.control<forms::TextBox>(textBox).text() == textOf(given);
          }};
}

Act tick(std::string answer, std::string checkBox) {
  return {std::move(answer),
          [checkBox](const Page& page, const Answer& given) {
            auto& box = page.usable<forms::CheckBox>(checkBox, given);
            if (box.isChecked() != isTicked(given)) page.user().click(box);
          },
          [checkBox](const Page& page, const Answer& given) {
            return page.control<forms::CheckBox>(checkBox).isChecked() == isTicked(given);
          }};
}

Act chooseOption(std::string answer, std::vector<std::pair<std::string, std::string>> buttons) {
  const auto buttonFor = [buttons = std::move(buttons)](const Answer& given) {
    return std::find_if(buttons.begin(), buttons.end(),
                        [&](const auto& entry) { return entry.first == given.text(); })
        ->second;
  };
  return {std::move(answer),
          [buttonFor](const Page& page, const Answer& given) {
            page.user().click(page.usable<forms::OptionButton>(buttonFor(given), given));
          },
          [buttonFor](const Page& page, const Answer& given) {
            return page.control<forms::OptionButton>(buttonFor(given)).isChosen();
          }};
}

Act selectCommand(std::string answer, std::string selector) {
  return {std::move(answer),
          [selector](const Page& page, const Answer& given) {
            auto& commands = page.usable<host::DeviceCommands>(selector, given);
            auto& list = dynamic_cast<forms::DropDownList&>(commands.control("cboCommands"));
            page.user().select(list, placeOfCommand(page, list, given));
          },
          [selector](const Page& page, const Answer& given) {
            const auto& commands = page.control<host::DeviceCommands>(selector);
            return commands.get_SelectedCommand() == given.text();
          }};
}

Act chooseDevice(std::string answer, std::string button, std::string deviceName) {
  return {std::move(answer),
          [button](const Page& page, const Answer& given) {
            const DeviceChoice choice(page, given);
            page.user().click(page.usable<forms::CommandButton>(button, given));
          },
          [deviceName](const Page& page, const Answer&) {
            const host::Document& document = page.hands().document();
            const std::string receiver = document.get_ControlSystem()->get_Name();
            return document.get_Devices()->FindByName(deviceName, receiver) != nullptr;
          }};
}

}  // namespace app
