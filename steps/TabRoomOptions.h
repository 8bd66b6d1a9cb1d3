#pragma once

#include <memory>
#include <optional>
#include <string>

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/ControlArray.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/TextBox.h"
#include "host/ctlImage.h"
#include "steps/NumberBox.h"
#include "steps/WizardStep.h"

namespace steps {

/// The interfaces of the room: the monitoring interface (inclusion 0), the PC interface with its
/// password (inclusion 1), and occupancy sensing with its power off. A box adds or removes its
/// device at once; password and timeout are written when their boxes are validated.
class TabRoomOptions : public WizardStep {
 public:
  TabRoomOptions(forms::Container& container, std::string strName);

  bool SetData();
  /// Leaving is never refused.
  void BeforeTabChange(bool&) {}
  void OtherTabClicked();
  bool iTab_SaveData() override;
  bool iTab_VerifyData(bool) override { return true; }
  void iTab_TabClicked() override;

 private:
  void chkInclude_Click(std::int16_t Index);
  void chkEnablePwd_Click();
  void chkOccupancy_Click();
  void chkPowerTimeout_Click();
  void cmdAdvanced_Click();
  void lblKestrum_Click();
  void txtFenletPassword_Validate();

  void ConnectEvents();
  void SetTabStops(bool bValue);
  void SetKestrumData();
  void SetFenletData();
  void SetOccupancyData();
  void IncludeKestrum(bool bInclude);
  void IncludeFenlet(bool bInclude);
  void ShowWithoutSensor();
  void ShowSensorTakenAlong();
  void RestoreTimeout();
  void UntickMissingPassword();
  void ShowIPID();
  void ShowPort();
  void EnablePassword(bool bEnabled);
  void EnableTimeout(bool bEnabled);
  void EnableOccupancyOptions(bool bEnabled);
  UnsavedTexts GetUnsaved() const;
  void ResumeUnsaved(const UnsavedTexts& colTexts);
  void ValidateBoxes();
  static void ApplyTimeout();
  void LayOut();

  forms::Label lblBanner{*this, "lblBanner", " Room Options"};
  forms::Label Label2{*this, "Label2", "What Interface options do you want in your system?"};

  forms::Frame fraKestrum{*this, "fraKestrum", "Kestrum"};
  forms::Frame fraFenlet{*this, "fraFenlet", "Fenlet"};
  forms::ControlArray<host::ctlImage> ctlImage{"ctlImage", {{0, fraKestrum}, {1, fraFenlet}}};
  forms::ControlArray<forms::CheckBox> chkInclude{
      "chkInclude",
      {{0, fraKestrum, "Include Kestrum Interface"}, {1, fraFenlet, "Include Fenlet Interface"}}};
  forms::Label Label1{fraKestrum, "Label1",
                      "Provides help-desk capabilities and centralized room monitoring."};
  forms::Label lblIPID{fraKestrum, "lblIPID"};
  forms::Label lblKestrum{fraKestrum, "lblKestrum", "Kestrum Setup Help..."};
  forms::CommandButton cmdAdvanced{fraKestrum, "cmdAdvanced", "&Advanced..."};

  forms::Label Label3{fraFenlet, "Label3", "Provides remote administration capabilities."};
  forms::CheckBox chkEnablePwd{fraFenlet, "chkEnablePwd",
                               "Enable Fenlet Password   (username is \"user\")"};
  forms::Label Label4{fraFenlet, "Label4", "Protect Fenlet project with the following password:"};
  forms::TextBox txtFenletPassword{fraFenlet, "txtFenletPassword"};
  forms::Label Label5{fraFenlet, "Label5", "(20 char. max)"};

  forms::Frame fraOccupancySensing{*this, "fraOccupancySensing", "Occupancy Sensing"};
  forms::CheckBox chkOccupancy{fraOccupancySensing, "chkOccupancy", "Include occupancy sensing"};
  forms::Label lblPort{fraOccupancySensing, "lblPort"};
  forms::CheckBox chkPowerTimeout{fraOccupancySensing, "chkPowerTimeout",
                                  "Power system off if no motion detected in"};
  NumberBox txtPowerOffTimeout{fraOccupancySensing, "txtPowerOffTimeout"};
  forms::Label lblMinutes{fraOccupancySensing, "lblMinutes", "minutes."};

  bool m_bLoading = false;
  /// The minutes of the sensor that the monitoring interface took along in this visit of the page;
  /// empty without a power off.
  std::optional<std::string> m_strTakenTimeout;
};

}  // namespace steps
