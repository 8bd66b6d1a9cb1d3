#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/Image.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "forms/Rows.h"
#include "forms/TextView.h"
#include "host/IAddInContract.h"
#include "trellisar/window/Host.h"

namespace trellisar {

/// The host's main window: its add-ins as they describe themselves, the systems that were opened or
/// saved last, and what is in the one of them that is selected. An add-in that is started here runs
/// over the window, which then shows what it saved.
class MainForm : public forms::Form {
 public:
  using AddIns = std::vector<std::shared_ptr<host::IAddInContract>>;

  /// The host outlives the window, which is its main window for as long as it lives.
  MainForm(Host& host, AddIns addIns);
  ~MainForm() override;

  /// Shows the window until the user closes it. A system that is named, or the one in an archive,
  /// is opened there first, and its add-in runs on it.
  void run(const std::string& system = {});

  forms::Label lblAddIns{*this, "lblAddIns", "&Add-ins:"};
  forms::ListView lvwAddIns{*this, "lvwAddIns"};
  forms::Image imgAddIn{*this, "imgAddIn"};
  forms::Label lblDescription{*this, "lblDescription"};
  forms::CommandButton cmdNew{*this, "cmdNew", "&New System..."};
  forms::CommandButton cmdPreview{*this, "cmdPreview", "Pre&view..."};
  forms::Label lblRecent{*this, "lblRecent", "&Recent systems:"};
  forms::ListView lvwRecent{*this, "lvwRecent"};
  forms::CommandButton cmdCompare{*this, "cmdCompare", "&Compare With..."};
  forms::CommandButton cmdEdit{*this, "cmdEdit", "&Edit System..."};
  forms::CommandButton cmdOpen{*this, "cmdOpen", "&Open Other..."};
  forms::Label lblSystem{*this, "lblSystem", "&Devices and program:"};
  forms::TextView txtSystem{*this, "txtSystem"};
  forms::CommandButton cmdPreferences{*this, "cmdPreferences", "&Preferences..."};
  forms::CommandButton cmdHelp{*this, "cmdHelp", "&Help"};
  forms::CommandButton cmdClose{*this, "cmdClose", "Close"};

 private:
  void connect();
  void layOut();
  forms::Pieces addInPieces(forms::Twips recentHeight);

  void fillAddIns();
  void fillRecent();
  void showAddIn();
  void showSystem();
  std::string systemText(const std::string& system) const;

  void startNew();
  void editRecent();
  void openOther();
  /// Shows in what another system differs from the selected one.
  void compareRecent();
  void open(const std::string& system);
  /// Runs the add-in that the open system belongs to; a system of none can only be read.
  void editOpenSystem();
  void dropMissing(const std::string& system);
  void hostAgain();

  host::IAddInContract* selectedAddIn() const;
  host::IAddInContract* addInOf(const std::string& application) const;
  /// The path of the selected recent system; empty: none is selected.
  std::string selectedSystem() const;

  Host& host_;
  AddIns addIns_;
};

}  // namespace trellisar
