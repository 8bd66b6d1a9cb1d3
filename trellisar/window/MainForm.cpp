#include "trellisar/window/MainForm.h"
#include "trellisar/dialogs/Messages.h"
#include "trellisar/document/SystemNames.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "forms/Application.h"
#include "forms/Guard.h"
#include "forms/Paths.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "trellisar/compare/Compare.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/dialogs/ComparisonDialog.h"
#include "trellisar/dialogs/HelpTopics.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/window/AddIns.h"

namespace trellisar {
namespace {

constexpr const char* hostTitle = "Trellisar";

constexpr forms::Size firstSize{14400, 8100};
constexpr forms::Size smallestSize{11400, 7500};
constexpr forms::Twips margin = 150;
constexpr forms::Twips listsWidth = 5700;
constexpr forms::Twips addInListHeight = 1100;
constexpr forms::Twips leastHeight = 900;
constexpr forms::Size iconSize{480, 480};

bool isThere(const std::string& system) {
  std::error_code failure;
  return std::filesystem::exists(forms::toMachinePath(system), failure);
}

}  // namespace

MainForm::MainForm(Host& host, AddIns addIns)
    : Form("MainForm"), host_(host), addIns_(std::move(addIns)) {
  setCaption(hostTitle);
  setSizeable(true);
  setMinimumSize(smallestSize);
  setSize(firstSize);
  lvwAddIns.setColumns({"Add-in", "Group", "Makes new systems"});
  lvwRecent.setColumns({"System", "Folder"});
  connect();
  fillAddIns();
  fillRecent();
  host_.mainWindow()->setForm(this);
}

MainForm::~MainForm() { host_.mainWindow()->setForm(nullptr); }

void MainForm::connect() {
  resized.connect([this] { layOut(); });
  lvwAddIns.itemClick.connect([this] { showAddIn(); });
  lvwAddIns.doubleClick.connect([this] { startNew(); });
  cmdNew.setDefault(true);
  cmdNew.click.connect([this] { startNew(); });
  cmdPreview.click.connect([this] { selectedAddIn()->IAddInContract_ShowPreview(); });
  // Enter opens what is selected in the list where the focus is.
  lvwRecent.gotFocus.connect([this] {
    cmdNew.setDefault(false);
    cmdEdit.setDefault(true);
  });
  lvwRecent.lostFocus.connect([this] {
    cmdEdit.setDefault(false);
    cmdNew.setDefault(true);
  });
  lvwRecent.itemClick.connect([this] { showSystem(); });
  lvwRecent.doubleClick.connect([this] { editRecent(); });
  cmdEdit.click.connect([this] { editRecent(); });
  cmdCompare.click.connect([this] { compareRecent(); });
  cmdOpen.click.connect([this] { openOther(); });
  cmdPreferences.click.connect([this] { host_.mainWindow()->ShowPreferencesDialog(); });
  cmdNew.setShortcut(U'N');
  cmdOpen.setShortcut(U'O');
  setHelpContext(help::mainWindow);
  cmdHelp.click.connect([this] {
    forms::Application& application = forms::Application::current();
    application.desktop().showHelp(windowHandle(), application.helpFile(), helpContext());
  });
  cmdClose.setCancel(true);
  cmdClose.click.connect([this] { hide(); });
}

void MainForm::run(const std::string& system) {
  hostAgain();
  if (!system.empty() || host_.mainWindow()->keepsUnsaved()) {
    forms::Application::current().runLater([this, system] {
      while (host_.mainWindow()->offerUnsaved()) editOpenSystem();
      if (!system.empty()) open(system);
    });
  }
  showModal(nullptr);
  unload();
}

/// An add-in gives the application its own title and help.
void MainForm::hostAgain() {
  forms::Application& application = forms::Application::current();
  application.setTitle(hostTitle);
  application.setHelpFile(application.folder() + "\\Trellisar.chm");
}

forms::Pieces MainForm::addInPieces(forms::Twips recentHeight) {
  return {forms::names(lblAddIns, lvwAddIns),
          forms::rest(lvwAddIns, addInListHeight),
          forms::row({forms::item(imgAddIn, iconSize), forms::rest(lblDescription)}),
          forms::row({forms::spring(), forms::item(cmdPreview), forms::item(cmdNew)}),
          forms::gap(margin),
          forms::names(lblRecent, lvwRecent),
          forms::rest(lvwRecent, recentHeight),
          forms::row({forms::item(cmdCompare), forms::spring(), forms::item(cmdOpen),
                      forms::item(cmdEdit)})};
}

void MainForm::layOut() {
  const forms::Size inner = innerSize();
  const forms::Twips last = forms::naturalSize(cmdClose).height;
  const forms::Twips bottom = inner.height - margin - last;
  const forms::Rect lists{margin, margin, listsWidth, bottom - 2 * margin};
  const forms::Twips needed = forms::layOut(lists, addInPieces(leastHeight));
  forms::layOut(lists, addInPieces(leastHeight + std::max(0, lists.height - needed)));

  const forms::Twips left = lists.left + lists.width + 2 * margin;
  const forms::Rect system{left, margin, inner.width - left - margin, lists.height};
  const forms::Twips above = forms::layOut(
      system, {forms::names(lblSystem, txtSystem), forms::rest(txtSystem, leastHeight)});
  forms::layOut(system, {forms::names(lblSystem, txtSystem),
                         forms::rest(txtSystem, leastHeight + std::max(0, system.height - above))});
  forms::layOut({margin, bottom, inner.width - 2 * margin, last},
                {forms::row({forms::item(cmdHelp), forms::item(cmdPreferences), forms::spring(),
                             forms::item(cmdClose)})});
}

void MainForm::fillAddIns() {
  for (const auto& addIn : addIns_) {
    lvwAddIns.addRow({addIn->IAddInContract_Title(), addIn->IAddInContract_GroupName(),
                      addIn->IAddInContract_ShowOnNewSystem() ? "Yes" : "No"});
  }
  if (!addIns_.empty()) lvwAddIns.setSelectedRow(0);
  showAddIn();
}

void MainForm::showAddIn() {
  const host::IAddInContract* addIn = selectedAddIn();
  cmdNew.setEnabled(addIn && addIn->IAddInContract_ShowOnNewSystem());
  cmdPreview.setEnabled(addIn && addIn->IAddInContract_PreviewAvailable());
  lblDescription.setCaption(addIn ? addIn->IAddInContract_Description()
                                  : "There is no add-in, so systems can only be read.");
  const forms::ImageList& pictures = host_.smallPictures();
  const bool hasIcon =
      addIn && addIn->IAddInContract_Icon() > 0 && addIn->IAddInContract_Icon() <= pictures.count();
  imgAddIn.setPicture(hasIcon ? pictures.item(addIn->IAddInContract_Icon()) : forms::Picture());
  layOut();
}

void MainForm::fillRecent() {
  lvwRecent.clear();
  for (const std::string& system : host_.preferences().recentSystems()) {
    const std::filesystem::path file = forms::toMachinePath(system);
    lvwRecent.addRow({file.stem().string(), file.parent_path().string()});
  }
  if (lvwRecent.rowCount() > 0) lvwRecent.setSelectedRow(0);
  showSystem();
}

void MainForm::showSystem() {
  const std::string system = selectedSystem();
  if (system.empty() && (cmdEdit.hasFocus() || cmdCompare.hasFocus())) lvwRecent.setFocus();
  cmdEdit.setEnabled(!system.empty());
  cmdCompare.setEnabled(!system.empty());
  txtSystem.setText(system.empty()
                        ? "The devices and the program of the selected system stand here. Make a "
                          "new system with an add-in, or open one."
                        : systemText(system));
}

std::string MainForm::systemText(const std::string& system) const {
  if (!isThere(system)) return "The system \"" + shownPath(system) + "\" is no longer there.";
  try {
    return readableText(*readSystemFile(forms::toMachinePath(system), host_.library()));
  } catch (const host::Error& error) {
    return "The system can't be read.\n\n" + error.description();
  }
}

host::IAddInContract* MainForm::selectedAddIn() const {
  const std::int32_t row = lvwAddIns.selectedRow();
  return row < 0 ? nullptr : addIns_[static_cast<std::size_t>(row)].get();
}

host::IAddInContract* MainForm::addInOf(const std::string& application) const {
  for (const auto& addIn : addIns_) {
    if (forms::equalsIgnoringCase(addIn->IAddInContract_Title(), application)) return addIn.get();
  }
  return nullptr;
}

std::string MainForm::selectedSystem() const {
  const std::int32_t row = lvwRecent.selectedRow();
  return row < 0 ? "" : host_.preferences().recentSystems()[static_cast<std::size_t>(row)];
}

void MainForm::startNew() {
  host::IAddInContract* addIn = selectedAddIn();
  if (!addIn || !addIn->IAddInContract_ShowOnNewSystem()) return;
  const forms::AtEnd closed([this] { hostAgain(); });
  runOnNewSystem(*addIn, host_);
  fillRecent();
}

void MainForm::editRecent() {
  const std::string system = selectedSystem();
  if (system.empty()) return;
  if (!isThere(system)) return dropMissing(system);
  open(system);
}

void MainForm::open(const std::string& system) {
  if (host_.mainWindow()->FileOpen(system, /*bUseRecovery=*/true)) editOpenSystem();
}

void MainForm::openOther() {
  bool cancelled = false;
  if (host_.mainWindow()->FileOpen("", /*bUseRecovery=*/true, cancelled)) editOpenSystem();
}

void MainForm::compareRecent() {
  const std::string system = selectedSystem();
  if (!isThere(system)) return dropMissing(system);
  forms::FileDialog dialog;
  dialog.ownerHandle = windowHandle();
  dialog.title = "Compare With";
  dialog.filter = "Trellisar systems (*.tsy)|*.tsy";
  dialog.initialFolder = host_.mainWindow()->GetDefaultSystemsFolder();
  dialog.defaultExtension = "tsy";
  const std::string other = forms::Application::current().desktop().chooseFileToOpen(dialog);
  if (other.empty()) return;
  try {
    const std::filesystem::path before = forms::toMachinePath(system);
    const std::filesystem::path after = forms::toMachinePath(other);
    showComparison(before, after,
                   compare(*readSystemFile(before, nullptr), *readSystemFile(after, nullptr)));
  } catch (const host::Error& error) {
    showFailure("The systems can't be compared.\r\n\r\n" + error.description());
  }
}

void MainForm::editOpenSystem() {
  fillRecent();
  const std::string application = host_.document()->data().application;
  if (host::IAddInContract* addIn = addInOf(application)) {
    const forms::AtEnd closed([this] { hostAgain(); });
    runOnOpenSystem(*addIn, host_);
    fillRecent();
    return;
  }
  host_.mainWindow()->DestroyDoc();
  showFailure("The system was saved last by \"" + application +
              "\", which is none of the add-ins here. It can be read, but not edited.");
}

void MainForm::dropMissing(const std::string& system) {
  showFailure("The system \"" + shownPath(system) +
              "\" is no longer there. It is taken from the list; where it was moved, it can be "
              "opened with Open Other.");
  host_.preferences().forget(system);
  fillRecent();
}

}  // namespace trellisar
