#include "answers/TransmitterActs.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "answers/Shape.h"
#include "base/Nearest.h"
#include "forms/CommandButton.h"
#include "forms/ListBox.h"
#include "forms/ListView.h"

namespace answers {
namespace {

enum Column : std::int32_t { labelColumn, typeColumn, portColumn };

forms::ListView& rowsOf(const Page& page) {
  return page.control<forms::ListView>("lvwTransmitters");
}

/// A key of the transmitter in the row; nothing when it was left out.
std::optional<Answer> answerAt(const Answer& transmitters, std::size_t row,
                               const std::string& key) {
  const base::Json& transmitter = transmitters.value[row];
  const auto member = transmitter.find(key);
  if (member == transmitter.end()) return std::nullopt;
  return Answer{transmitters.path + "[" + std::to_string(row) + "]." + key, *member};
}

/// Calls `visit` with the row and the answer of each transmitter that has the key.
template <typename Visit>
void eachAnswer(const Answer& transmitters, const std::string& key, Visit visit) {
  for (std::size_t row = 0; row < transmitters.value.size(); ++row) {
    if (const auto answer = answerAt(transmitters, row, key)) {
      visit(static_cast<std::int32_t>(row), *answer);
    }
  }
}

bool showsAnswers(const Page& page, const Answer& transmitters, const std::string& key,
                  Column column) {
  const forms::ListView& rows = rowsOf(page);
  if (std::cmp_not_equal(rows.rowCount(), transmitters.value.size())) return false;
  bool shows = true;
  eachAnswer(transmitters, key, [&](std::int32_t row, const Answer& answer) {
    shows = shows && rows.text(row, column) == answer.text();
  });
  return shows;
}

void add(const Page& page, const Answer& type) {
  auto& types = page.usable<forms::ListBox>("listDevices", type);
  std::vector<std::string> offered;
  for (std::int32_t place = 0; place < types.count(); ++place) offered.push_back(types.text(place));
  const auto found = std::find(offered.begin(), offered.end(), type.text());
  if (found == offered.end()) {
    page.refuse(type, offered.empty() ? "the library offers no transmitter"
                                      : base::quoted(type.text()) + " is none of " +
                                            base::among(type.text(), offered));
  }
  page.user().select(types, static_cast<std::int32_t>(found - offered.begin()));
  page.user().click(page.usable<forms::CommandButton>("cmdAdd", type));
}

void rename(const Page& page, std::int32_t row, const Answer& label) {
  forms::ListView& rows = rowsOf(page);
  page.user().select(rows, row);
  page.user().click(page.usable<forms::CommandButton>("cmdRename", label));
  page.user().labelText(rows, label.text());
  page.user().endLabelEdit(rows, /*accept=*/true);
}

std::optional<base::Json> readRows(const Page& page) {
  const forms::ListView& rows = rowsOf(page);
  base::Json transmitters = base::Json::array();
  for (std::int32_t row = 0; row < rows.rowCount(); ++row) {
    transmitters.push_back(
        {{"type", rows.text(row, typeColumn)}, {"label", rows.text(row, labelColumn)}});
  }
  return transmitters;
}

/// The list is a working copy: its devices come to the system when the step is left.
bool areInSystem(const Page& page, const Answer& transmitters) {
  const host::Document& document = page.hands().document();
  const std::string receiver = document.get_ControlSystem()->get_Name();
  const forms::ListView& rows = rowsOf(page);
  bool are = true;
  eachAnswer(transmitters, "type", [&](std::int32_t row, const Answer& type) {
    const std::string name = type.text() + " " + rows.text(row, portColumn);
    const auto device = document.get_Devices()->FindByName(name, receiver);
    are = are && device && device->get_Label() == rows.text(row, labelColumn);
  });
  return are;
}

}  // namespace

Act deleteTransmitters() {
  return {.perform =
              [](const Page& page, const Answer& given) {
                forms::ListView& rows = rowsOf(page);
                while (rows.rowCount() > 0) {
                  page.user().select(rows, rows.rowCount() - 1);
                  page.user().click(page.usable<forms::CommandButton>("cmdDelete", given));
                }
              },
          .read = readRows};
}

Act addTransmitters() {
  return {
      .perform =
          [](const Page& page, const Answer& given) {
            eachAnswer(given, "type", [&](std::int32_t, const Answer& type) { add(page, type); });
          },
      .isHeld = [](const Page& page,
                   const Answer& given) { return showsAnswers(page, given, "type", typeColumn); },
      .isInSystem = areInSystem};
}

Act renameTransmitters() {
  return {[](const Page& page, const Answer& given) {
            eachAnswer(given, "label",
                       [&](std::int32_t row, const Answer& label) { rename(page, row, label); });
          },
          [](const Page& page, const Answer& given) {
            return showsAnswers(page, given, "label", labelColumn);
          }};
}

}  // namespace answers
