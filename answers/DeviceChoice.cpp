#include "answers/DeviceChoice.h"

#include "answers/Shape.h"
#include "base/Nearest.h"
#include "forms/Form.h"
#include "forms/ListView.h"

namespace answers {
namespace {

constexpr const char* dialogName = "DeviceDialog";

std::string whyNot(const forms::ListView& list, const std::string& wanted) {
  std::vector<std::string> offered;
  for (std::int32_t row = 0; row < list.rowCount(); ++row) offered.push_back(list.text(row, 0));
  if (offered.empty()) return "the library offers no device for this place";
  return base::quoted(wanted) + " is none of " + base::among(wanted, offered);
}

void choose(forms::Form& dialog, const Page& page, const Answer& answer) {
  auto& list = dynamic_cast<forms::ListView&>(dialog.control("lvwDevices"));
  const std::string& wanted = answer.text();
  std::int32_t row = 0;
  while (row < list.rowCount() && list.text(row, 0) != wanted) ++row;
  if (row == list.rowCount()) page.refuse(answer, whyNot(list, wanted));
  page.user().select(list, row);
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
