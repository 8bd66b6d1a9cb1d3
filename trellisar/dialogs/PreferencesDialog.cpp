#include "trellisar/dialogs/PreferencesDialog.h"
#include "trellisar/dialogs/Messages.h"
#include "trellisar/document/SystemNames.h"

#include "forms/Application.h"
#include "forms/Paths.h"
#include "forms/Text.h"
#include "trellisar/dialogs/HelpTopics.h"
#include "trellisar/settings/SystemFolders.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 6600;

}  // namespace

PreferencesDialog::PreferencesDialog(Preferences& preferences)
    : Dialog("Preferences", "Preferences", help::preferences), preferences_(preferences) {
  txtFolder.setText(shownPath(preferences.defaultFolder()));
  lblUsual.setCaption("Without a folder of your own, new systems go to " +
                      shownPath(defaultSystemsFolder(Preferences())));
  cmdBrowse.click.connect([this] { browse(); });
  chkChanges.setChecked(preferences.showsChanges());
  layOutAbove(dialogWidth, {forms::names(lblFolder, txtFolder),
                            forms::row({forms::rest(txtFolder), forms::item(cmdBrowse)}),
                            forms::rest(lblUsual), forms::item(chkChanges)});
}

void PreferencesDialog::browse() {
  const std::string folder = forms::Application::current().desktop().chooseFolder(
      {windowHandle(), "Save new systems in this folder:", preferences_.defaultFolder()});
  if (!folder.empty()) txtFolder.setText(shownPath(folder));
}

bool PreferencesDialog::accept() {
  const std::string folder = forms::trimmed(txtFolder.text());
  if (!folder.empty() && !folder.starts_with('/')) {
    showFailure("\"" + folder +
                "\" is no whole path of a folder. Choose the folder with Browse, or leave the box "
                "empty for the usual one.");
    txtFolder.setFocus();
    return false;
  }
  preferences_.setDefaultFolder(folder.empty() ? folder : forms::fromMachinePath(folder));
  preferences_.setShowsChanges(chkChanges.isChecked());
  return true;
}

}  // namespace trellisar
