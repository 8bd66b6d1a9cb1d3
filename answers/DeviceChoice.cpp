#include "answers/DeviceChoice.h"

#include <algorithm>

#include "answers/Nearest.h"
#include "answers/Shape.h"
#include "forms/Form.h"
#include "forms/ListView.h"

namespace answers {
namespace {

constexpr const char* dialogName = "DeviceDialog";

void choose(forms::Form& dialog, const Page& page, const Answer& answer) {
  auto& list = dynamic_cast<forms::ListView&>(dialog.control("lvwDevices"));
  std::vector<std::string> offered;
  for (std::int32_t row = 0; row < list.rowCount(); ++row) offered.push_back(list.text(row, 0));
  const auto found = std::find(offered.begin(), offered.end(), answer.text());
  if (found == offered.end()) {
    page.refuse(answer, offered.empty() ? "the library offers no device for this place"
                                        : quoted(answer.text()) + " is none of " +
                                              among(answer.text(), offered));
  }
  page.user().select(list, static_cast<std::int32_t>(found - offered.begin()));
  page.user().click(dialog.control("cmdOK"));
}

}  // namespace

DeviceChoice::DeviceChoice(const Page& page, const Answer& answer)
    : desktop_(page.hands().desktop) {
  desktop_.answerForms(dialogName,
                       [page, answer](forms::Form& dialog) { choose(dialog, page, answer); });
}

DeviceChoice::~DeviceChoice() { desktop_.answerForms(dialogName, nullptr); }

}  // namespace answers
