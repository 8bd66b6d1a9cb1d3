#include "answers/LocationActs.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "answers/Shape.h"
#include "base/FileIO.h"
#include "forms/CommandButton.h"
#include "forms/Paths.h"
#include "forms/Text.h"
#include "forms/TextBox.h"

namespace answers {
namespace {

namespace fs = std::filesystem;

fs::path machineFolder(const Answer& answer) {
  return (fs::current_path() / answer.text()).lexically_normal();
}

std::string folderFrom(const Page& page, const Answer& answer) {
  try {
    return forms::fromMachinePath(machineFolder(answer));
  } catch (const forms::Error& error) {
    page.refuse(answer, error.description());
  }
}

/// The parent folder of the system: the location box without its last name.
fs::path parentOf(std::string location) {
  location.pop_back();
  return location.substr(0, location.find_last_of('/') + 1);
}

/// Where the wizard is about to save.
fs::path systemFile(const Page& page) {
  const fs::path folder = page.control<forms::TextBox>("txtLocation").text();
  const std::string typed = forms::trimmed(page.control<forms::TextBox>("txtSystemName").text());
  const std::string current = page.hands().document().get_Name();
  // A name that differs from the document's in case alone leaves the document's as it is.
  const std::string& name = forms::equalsIgnoringCase(typed, current) ? current : typed;
  return folder / (name + ".tsy");
}

}  // namespace

Act enterName(std::string textBox) {
  Act act = enter(std::move(textBox));
  act.isHeld = [isShown = std::move(act.isHeld)](const Page& page, const Answer& given) {
    return isShown(page, given) && !forms::trimmed(given.text()).empty();
  };
  // A system's name and folder are where it lies: a copy of its answers builds another one.
  act.read = nullptr;
  return act;
}

Act chooseParentFolder(std::string button, std::string location) {
  return {[button](const Page& page, const Answer& given) {
            page.hands().desktop.answerFolders(folderFrom(page, given));
            page.user().click(page.usable<forms::CommandButton>(button, given));
            page.hands().desktop.answerFolders({});
          },
          [location](const Page& page, const Answer& given) {
            return parentOf(page.control<forms::TextBox>(location).text()) ==
                   machineFolder(given) / "";
          }};
}

void refuseExistingSystem(const Page& page) {
  const fs::path file = systemFile(page);
  page.hands().made.expect(file.parent_path());
  std::error_code failure;
  const bool isOwn = base::isSameFile(file, page.hands().onto);
  if (!isOwn && !page.hands().mayReplace && fs::exists(file, failure)) {
    throw RunEnded(RunEnded::refused,
                   "there is a system already: " + file.string() + "; --replace replaces it");
  }
}

}  // namespace answers
