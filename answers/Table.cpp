#include "answers/Table.h"

#include <algorithm>
#include <utility>

#include "answers/LocationActs.h"
#include "answers/TransmitterActs.h"
#include "forms/Text.h"

namespace answers {
namespace {

const LeftOut required(LeftOut::Kind::required);

LeftOut value(base::Json json) {
  LeftOut leftOut(LeftOut::Kind::value);
  leftOut.value = std::move(json);
  return leftOut;
}

// The categories of the library from which the host's dialogs offer devices.
constexpr const char* displays = "Video/Data Projector";
constexpr const char* screens = "Screen";
constexpr const char* lifts = "Projector Lift";

Shape seconds() { return integer(0, 999); }
Shape present() { return orNull(object({})); }

Shape transmitterLabel() {
  const auto isTrimmed = [](const std::string& label) { return forms::trimmed(label) == label; };
  return text(1, 8, {isTrimmed, " without blanks at its ends", "^[^ ](.*[^ ])?$"});
}

bool isControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }

/// A receiver takes no password with a control character, and says so only after the transfer.
Shape password() {
  const auto canBeSet = [](const std::string& password) {
    const bool hasControls = std::any_of(password.begin(), password.end(), isControl);
    return password.empty() || (!forms::trimmed(password).empty() && !hasControls);
  };
  return text(0, 20,
              {canBeSet, ", not of blanks alone and without control characters",
               R"(^$|^[^\u0000-\u001f\u007f]*[^\u0000-\u0020\u007f][^\u0000-\u001f\u007f]*$)"});
}

/// The screen's or the lift's part of the page: what its device is called in the system, and the
/// place of its controls in their arrays.
std::vector<Row> auxiliaryDevice(const std::string& key, const std::string& deviceName,
                                 const std::string& index, const char* category) {
  return {
      {key, present(), tick("chkInclude" + index), "no " + key, "the " + key + " is included"},
      {key + ".device", device(category), chooseDevice("cmdChoose" + index, deviceName), required,
       "the library device chosen for the " + key},
      {key + ".on", command(category), selectCommand("ctlPowerOn" + index), "the driver's own",
       "command when the system powers on; \"\" is unassigned"},
      {key + ".off", command(category), selectCommand("ctlPowerOff" + index), "the driver's own",
       "command when the system powers off; \"\" is unassigned"},
      {key + ".on_pulse", integer(0, 655), enter("txtPulseTimeOn" + index), value(0),
       "seconds for which the first command is held; only where the step asks for it", key + ".on"},
      {key + ".off_pulse", integer(0, 655), enter("txtPulseTimeOff" + index), value(0),
       "seconds for which the second command is held; only where the step asks for it"},
  };
}

std::vector<Row> screenAndLift() {
  std::vector<Row> rows = auxiliaryDevice("screen", "Screen", "(0)", screens);
  for (Row& row : auxiliaryDevice("lift", "Lift", "(1)", lifts)) rows.push_back(std::move(row));
  return rows;
}

std::vector<Step> makeTable() {
  return {
      {"Name and Location",
       {
           {"name", text(1, 50), enterName("txtSystemName"), "the wizard's fresh name",
            "system name"},
           {"folder", text(), chooseParentFolder("cmdBrowse", "txtLocation"),
            "the default systems folder", "the folder in which the system gets its own"},
       },
       refuseExistingSystem},
      {"Display Device",
       {
           {"display.device", device(displays), chooseDevice("cmdChoose", "Display Device"),
            "no display", "the library device chosen for the display"},
           {"display.rgb", command(displays), selectCommand("ctlCommands(0)"), "the driver's own",
            "command that selects the RGB input; \"\" is unassigned"},
           {"display.composite", command(displays), selectCommand("ctlCommands(1)"),
            "the driver's own", "command that selects the Composite input; \"\" is unassigned"},
           {"display.relay", present(), include("chkPowerRelay", "Power Relay"), "no relay",
            "the power triggered relay"},
           {"display.relay.on_delay", seconds(), enter("txtDelay(0)"), value(0),
            "seconds from the relay to Power On"},
           {"display.relay.off_delay", seconds(), enter("txtDelay(1)"), value(120),
            "seconds from Power Off to the relay"},
       }},
      {"Audio Control",
       {
           {"audio.volume_knob", word(),
            chooseOption({{"program", "optVolumeKnob(0)"}, {"master", "optVolumeKnob(1)"}}),
            value("program"), "what the volume knob changes"},
           {"audio.microphone", word(),
            chooseOption({{"when on", "optMicrophone(0)"}, {"always", "optMicrophone(1)"}}),
            value("when on"), "when the microphone is active"},
           {"audio.mute_on_input_3", boolean(), tick("chkMuteOnDigInp3"), value(false),
            "a contact at digital input 3 mutes the audio"},
       }},
      {"Power Control",
       {
           {"power.control", word(),
            chooseOption(
                {{"none", "optPower(0)"}, {"sensing", "optPower(1)"}, {"discrete", "optPower(2)"}}),
            "what the step chooses", "the power mode; the display decides which are offered"},
           {"power.on", command(displays), selectCommand("ctlCommands(1)"), "the driver's own",
            "command for Power On; \"\" is unassigned"},
           {"power.off", command(displays), selectCommand("ctlCommands(2)"), "the driver's own",
            "command for Power Off; \"\" is unassigned"},
           {"power.second_off", present(), tick("chkSecondOff"), "no second command",
            "a second Power Off command is sent"},
           {"power.second_off.command", command(displays, 1), selectCommand("ctlCommands(3)"),
            "the Power Off command", "the second command"},
           {"power.second_off.delay", seconds(), enter("txtSecondOff"), value(0),
            "seconds between the two; with 0 the second is stored and not sent"},
       }},
      {"Power On/Off Lockout",
       {
           {"lockout.on", seconds(), enter("txtPowerLockoutTime(1)"), value(30),
            "seconds of lockout after power on"},
           {"lockout.off", seconds(), enter("txtPowerLockoutTime(2)"), value(120),
            "seconds of lockout after power off"},
           {"lockout.contact", word(),
            chooseOptionBehind("unused", "chkContact",
                               {{"power off", "optContact(0)"}, {"continue", "optContact(1)"}}),
            value("unused"), "what the contact at digital input 2 does when it opens"},
       }},
      {"Display Options", screenAndLift()},
      {"Orlena Transmitters",
       {
           {"transmitters", array(3, object({})), deleteTransmitters(), "none",
            "the whole list, in the order of the ports"},
           {"transmitters[].type", slotDevice(), addTransmitters(), required,
            "the type's name in the library"},
           {"transmitters[].label", transmitterLabel(), renameTransmitters(), "the step's own",
            "the name on buttons and signals"},
           {"three_input_receiver", boolean(), tick("chkUse3OLReceiver"), value(false),
            "always use the three-input receiver"},
       }},
      {"Room Options",
       {
           {"room.kestrum", boolean(), include("chkInclude(0)", "Kestrum Interface"), value(false),
            "the monitoring interface"},
           {"room.fenlet", boolean(), include("chkInclude(1)", "Fenlet"), value(false),
            "the PC interface"},
           {"room.occupancy", boolean(), include("chkOccupancy", "Motion Detector"), value(false),
            "the motion detector"},
           {"room.fenlet_password", password(), enterBehind("chkEnablePwd", "txtFenletPassword"),
            value("mossgate"),
            "the PC interface's password; \"\" turns it off, blanks at the ends are cut",
            "room.fenlet"},
           {"room.power_off_after", integer(0, 546),
            enterBehind("chkPowerTimeout", "txtPowerOffTimeout"), value(0),
            "minutes without motion until the system powers off; with 0 it does not"},
       }},
  };
}

std::vector<Step> withWords(std::vector<Step> steps) {
  for (Step& step : steps) {
    for (Row& row : step.rows) row.type.words = row.act.words;
  }
  return steps;
}

}  // namespace

std::vector<const Row*> Step::onThePage() const {
  std::vector<const Row*> page;
  for (const Row& row : rows) {
    if (!row.act.perform) continue;
    auto place = page.end();
    if (!row.behind.empty()) {
      place = std::find_if(page.begin(), page.end(),
                           [&](const Row* above) { return above->key == row.behind; });
      if (place != page.end()) ++place;
    }
    page.insert(place, &row);
  }
  return page;
}

const std::vector<Step>& table() {
  static const std::vector<Step> steps = withWords(makeTable());
  return steps;
}

}  // namespace answers
