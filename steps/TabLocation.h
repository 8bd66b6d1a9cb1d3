#pragma once

#include <string>

#include "forms/CommandButton.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/TextBox.h"
#include "steps/WizardStep.h"

namespace steps {

/// The system's name, and the folder that it is saved in.
class TabLocation : public WizardStep {
 public:
  TabLocation(forms::Container& container, std::string strName);

  /// False: no system is open.
  bool SetData();
  /// Refuses while the host does not accept the name or the folder.
  void BeforeTabChange(bool& bCancel);
  void OtherTabClicked() { SetTabStops(false); }
  bool iTab_SaveData() override;
  bool iTab_VerifyData(bool) override { return true; }
  void iTab_TabClicked() override;

 private:
  void txtSystemName_Change();
  void txtSystemName_KeyPress(forms::KeyPress& key);
  void txtSystemName_LostFocus();
  void cmdBrowse_Click();

  void SetTabStops(bool bValue);
  bool CheckName();
  bool IsNameAccepted();
  void RestoreLastName();
  void UpdateFolderFromName();
  void PutParentFolder(const std::string& strFolder);
  void PutLocation(const std::string& strFolder, const std::string& strParent);
  void MoveRegistrationIfFolderChanged();
  std::string TrimmedName() const;
  std::string NameToSave() const;
  void LayOut();

  forms::Label lblBanner{*this, "lblBanner", " Name && Location"};
  forms::Frame frameNameLocation{*this, "frameNameLocation"};
  forms::Label Label1{frameNameLocation, "Label1", "What is the name for your System?"};
  forms::Label lblSystemName{frameNameLocation, "lblSystemName", "System Name:"};
  forms::TextBox txtSystemName{frameNameLocation, "txtSystemName"};
  forms::Label Label3{frameNameLocation, "Label3", "Where do you want to save your System?"};
  forms::Label lblLocation{frameNameLocation, "lblLocation", "System Location:"};
  forms::TextBox txtLocation{frameNameLocation, "txtLocation"};
  forms::CommandButton cmdBrowse{frameNameLocation, "cmdBrowse", "B&rowse..."};

  bool m_bLoading = false;
  bool m_bRestoring = false;
  bool m_bNameRefused = false;  // and the user has been told
  std::string m_strLastName;
  std::string m_strLocation;  // with backslashes; the box shows it as the machine writes it
  std::string m_strOldLocation;
  std::string m_strOldName;
};

}  // namespace steps
