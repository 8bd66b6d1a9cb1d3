#pragma once

#include <array>
#include <string>

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/ControlArray.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "host/DeviceCommands.h"
#include "host/ctlImage.h"
#include "steps/HintFrame.h"
#include "steps/NumberBox.h"
#include "steps/WizardStep.h"

namespace steps {

/// The screen and the lift that move with the display: the devices, the commands they get when the
/// system powers on and off, and how long a command is held that needs it. Devices, commands and
/// times land when the user makes them.
///
/// Screen and lift are two pages side by side, built from the same controls; an index is that of
/// the page.
class TabDisplayOptions : public WizardStep {
 public:
  TabDisplayOptions(forms::Container& container, std::string strName);

  bool SetData();
  /// Leaving is never refused.
  void BeforeTabChange(bool&) {}
  void OtherTabClicked();
  bool iTab_SaveData() override;
  bool iTab_VerifyData(bool) override { return false; }
  void iTab_TabClicked() override { SetTabStops(true); }

 private:
  /// What a page asks about one way of the system's power. The controls' names end in "On" or
  /// "Off".
  struct PowerRow {
    PowerRow(const forms::ControlArray<forms::Frame>& frames, bool bIsOn);

    bool bOn;
    forms::ControlArray<forms::Label> lblPower;
    forms::ControlArray<forms::Label> lblCommand;
    forms::ControlArray<host::DeviceCommands> ctlPower;
    forms::ControlArray<forms::Label> lblFor;
    forms::ControlArray<NumberBox> txtPulseTime;
    forms::ControlArray<forms::Label> lblSeconds;
  };

  void chkInclude_Click(std::int16_t Index);
  void cmdChoose_Click(std::int16_t Index);
  void CommandChanged(const PowerRow& powerRow, std::int16_t Index);

  void ConnectEvents();
  void ConnectRow(const PowerRow& powerRow, std::int16_t Index);
  void SetTabStops(bool bValue);
  void SetPageData(std::int16_t Index);
  void ShowDeviceFields(std::int16_t Index, bool bShow);
  void ShowDeviceLabels(std::int16_t Index, std::int16_t iDeviceID);
  static void ShowPulseTime(const PowerRow& powerRow, std::int16_t Index, bool bShow);
  void LoadDeviceCommands(std::int16_t Index);
  std::int16_t AskForDevice(std::int16_t Index) const;
  void RemoveAuxiliaryDevice(std::int16_t Index);
  std::int16_t get_DeviceID(std::int16_t Index) const;
  void put_DeviceID(std::int16_t Index, std::int16_t iDeviceID);
  float get_PulseTime(const PowerRow& powerRow, std::int16_t Index) const;
  /// The box shows the setting.
  void put_PulseTime(const PowerRow& powerRow, std::int16_t Index, float sngSeconds);
  void GiveUpHiddenPulseTimes();
  void LayOut();
  forms::Piece PlacePage(std::int16_t Index);
  static forms::Piece PlaceRow(const PowerRow& powerRow, std::int16_t Index);

  forms::Label lblBanner{*this, "lblBanner", " Display Options"};
  forms::ControlArray<forms::Frame> frameDevice{"frameDevice",
                                                {{0, *this, "Screen"}, {1, *this, "Lift"}}};
  forms::ControlArray<host::ctlImage> ctlImage{"ctlImage",
                                               {{0, frameDevice(0)}, {1, frameDevice(1)}}};
  forms::ControlArray<forms::CheckBox> chkInclude{
      "chkInclude",
      {{0, frameDevice(0), "Include Screen control"}, {1, frameDevice(1), "Include Lift control"}}};
  forms::ControlArray<forms::CommandButton> cmdChoose{
      "cmdChoose", {{0, frameDevice(0), "Choose..."}, {1, frameDevice(1), "Choose..."}}};
  forms::ControlArray<forms::Label> lblDescriptionTag{
      "lblDescriptionTag",
      {{0, frameDevice(0), "Description: "}, {1, frameDevice(1), "Description: "}}};
  forms::ControlArray<forms::Label> lblDescription{"lblDescription",
                                                   {{0, frameDevice(0)}, {1, frameDevice(1)}}};
  forms::ControlArray<forms::Label> lblIOAssignmentTag{
      "lblIOAssignmentTag",
      {{0, frameDevice(0), "IO Assignment: "}, {1, frameDevice(1), "IO Assignment: "}}};
  forms::ControlArray<forms::Label> lblIOAssignment{"lblIOAssignment",
                                                    {{0, frameDevice(0)}, {1, frameDevice(1)}}};
  PowerRow rowOn{frameDevice, true};
  PowerRow rowOff{frameDevice, false};
  std::array<HintFrame, 2> frameInfo{HintFrame(frameDevice(0), HintToChoose("Screen"),
                                               {.strSign = "ctlInfoImage", .strIndex = "(0)"}),
                                     HintFrame(frameDevice(1), HintToChoose("Lift"),
                                               {.strSign = "ctlInfoImage", .strIndex = "(1)"})};
};

}  // namespace steps
