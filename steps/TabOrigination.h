#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/Frame.h"
#include "forms/Image.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/ListView.h"
#include "host/Library.h"
#include "steps/HintFrame.h"
#include "steps/WizardStep.h"

namespace steps {

/// The transmitters at the receiver's ports and their labels. The list on the page is the working
/// copy, a row for each port from the first on; the system follows it when the step is left and at
/// each save.
class TabOrigination : public WizardStep {
 public:
  TabOrigination(forms::Container& container, std::string strName);

  bool SetData();
  void OtherTabClicked();
  bool iTab_SaveData() override;
  bool iTab_VerifyData(bool) override { return true; }
  void iTab_TabClicked() override { SetTabStops(true); }

  /// Brings the devices, the bill of materials and the receiver into line with the list. The user
  /// is told of what fails, and nothing of it ends the run.
  void SaveOriginationPoints();

 private:
  void listDevices_Click();
  void cmdAdd_Click();
  void cmdRename_Click();
  void cmdDelete_Click();
  void cmdMove_Click(std::int32_t lOffset);
  void lvwTransmitters_BeforeLabelEdit();
  void lvwTransmitters_AfterLabelEdit(std::string& strLabel) const;
  void chkUse3OLReceiver_Click();

  void ConnectEvents();
  void SetTabStops(bool bValue);
  void LoadTransmitters();
  void LoadTypes();
  void SelectFirstRow();
  void UpdateButtons();
  void UpdateReceiverText();
  bool NeedsThreeInputs() const;
  bool IsDefaultLabel(std::int32_t lRow) const;
  void AddRow(const std::string& strLabel, const std::string& strType);
  void RenumberRow(std::int32_t lRow);
  void SavePort(std::int16_t iPort) const;
  void SaveReceiver() const;
  UnsavedTexts GetUnsaved() const;
  void ResumeUnsaved(const UnsavedTexts& colTexts);
  void ShowPictureOf(const std::string& strType);
  /// The transmitter type of this name, whatever its case; nothing when the library has none.
  std::shared_ptr<host::LibraryDevice> FindType(const std::string& strName) const;
  void LayOut();

  forms::Label lblBanner{*this, "lblBanner", " OL Transmitters"};
  forms::Label lblOLTransmitter{*this, "lblOLTransmitter",
                                "What types of Orlena transmitters do you want for your system?"};
  forms::ListBox listDevices{*this, "listDevices"};
  forms::CommandButton cmdAdd{*this, "cmdAdd", "Add to System"};
  forms::Frame frmDescription{*this, "frmDescription", "Description"};
  forms::Image img{frmDescription, "img"};
  forms::Label lblDescription{frmDescription, "lblDescription"};
  forms::ListView lvwTransmitters{*this, "lvwTransmitters"};
  forms::CommandButton cmdRename{*this, "cmdRename", "Rename"};
  forms::CommandButton cmdDelete{*this, "cmdDelete", "Delete"};
  forms::CommandButton cmdUp{*this, "cmdUp", "\u25B2"};
  forms::CommandButton cmdDown{*this, "cmdDown", "\u25BC"};
  forms::CheckBox chkUse3OLReceiver{*this, "chkUse3OLReceiver",
                                    "Always use the 3 OL input Orlena receiver"};
  HintFrame frameInfo{*this, {}, {.strSign = "ctlInfoImage"}};

  std::vector<std::shared_ptr<host::LibraryDevice>> m_colTypes;  // those that are offered
  bool m_bLoading = false;
  std::string m_strOldLabel;
};

}  // namespace steps
