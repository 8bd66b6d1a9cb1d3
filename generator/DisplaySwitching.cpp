#include "generator/DisplaySwitching.h"

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "generator/Devices.h"
#include "generator/Events.h"
#include "generator/Generate.h"
#include "generator/Names.h"
#include "generator/Presets.h"
#include "generator/Steps.h"
#include "host/Numbers.h"

namespace generator {
namespace {

bool HasTest(const host::Step& step, const host::StepCondition& test) {
  const auto conditions = step.get_Conditions();
  return conditions && conditions->Items().size() == 1 && *conditions->Items().front() == test;
}

bool IsCommandTo(const host::Step& step, std::int16_t iDeviceID) {
  return step.get_Kind() == host::stepDigital && step.get_TargetType() == host::targetDevice &&
         step.get_TargetID() == iDeviceID;
}

/// The branch of an earlier run, with the same test and nothing in it but a command to the device;
/// nothing when there is none. A branch with anything else in it is a user's own.
std::shared_ptr<host::Preset> FindEarlierBranch(const host::Preset& preset,
                                                const host::StepCondition& test,
                                                std::int16_t iDeviceID) {
  for (const auto& step : preset.get_Steps()) {
    if (step->get_Kind() != host::stepConditional || !HasTest(*step, test)) continue;
    auto branch = addin::gDocument().get_Presets()->ItemByID(step->get_SubPresetID());
    if (!branch) continue;
    const auto steps = branch->get_Steps();
    if (steps.empty() || (steps.size() == 1 && IsCommandTo(*steps.front(), iDeviceID))) {
      return branch;
    }
  }
  return nullptr;
}

//  The receiver's feedback signal goes high
//    Send_Log_Item            Kestrum
//    source command           display   0.1 s
bool BuildDisplayDeviceSwitchingCommand(Run& run, std::int16_t iStandardCommand) {
  const addin::IAddIn& settings = addin::gAddIn();
  const auto signal =
      FindOutput(settings.get_ReceiverID(), GetSourceFeedbackSignal(iStandardCommand));
  if (!signal) return false;
  const std::string sCommand = GetSourceCommandName(iStandardCommand);
  const auto preset = EventPreset(*signal, host::eventHigh);
  preset->ClearSteps();
  if (!sCommand.empty() &&
      !AddCommandToEvent(run, *signal, host::eventHigh,
                         Pulse(settings.get_DisplayDeviceID(), sCommand, sDisplayPulse))) {
    return false;
  }
  const std::int16_t iKestrumID = settings.get_KestrumID();
  if (!IsInSystem(iKestrumID)) return true;
  return AddStep(*preset, 1,
                 Serial(iKestrumID, "Send_Log_Item", GetSourceLogText(iStandardCommand)));
}

//  if (receiver's feedback signal is 1)
//    source command           display   0.1 s
bool BuildPowerOnSwitchingCommand(const PresetPtr& preset, const std::string& sCommand,
                                  const std::string& sFeedbackSignal) {
  if (sCommand.empty()) return true;
  if (!preset) return false;
  const std::int16_t iDisplayID = addin::gAddIn().get_DisplayDeviceID();
  const auto isSelected = SignalIs(addin::gAddIn().get_ReceiverID(), sFeedbackSignal, 1);
  const auto writeBranch = [&](const PresetPtr& branch) {
    return AddStep(*branch, 1, Pulse(iDisplayID, sCommand, sDisplayPulse));
  };
  // Where nothing empties the preset between two runs, the second writes over the branch of the
  // first.
  if (const auto branch = FindEarlierBranch(*preset, isSelected, iDisplayID)) {
    branch->ClearSteps();
    return writeBranch(branch);
  }
  return AppendBranch(*preset, isSelected, writeBranch);
}

}  // namespace

bool Generate::BuildDisplayDeviceSwitching() {
  // A source that can't be written is left without its steps; the run goes on.
  static_cast<void>(BuildDisplayDeviceSwitchingCommand(m_run, host::scVideo1));
  static_cast<void>(BuildDisplayDeviceSwitchingCommand(m_run, host::scRGB1));
  return true;
}

//    if (RGB_Selected)               RGB command      display   0.1 s
//    if (Composite_Video_Selected)   video command    display   0.1 s
bool BuildPowerOnSwitching(const PresetPtr& preset) {
  const auto build = [&preset](std::int16_t iStandardCommand) {
    return BuildPowerOnSwitchingCommand(preset, GetSourceCommandName(iStandardCommand),
                                        GetSourceFeedbackSignal(iStandardCommand));
  };
  return build(host::scRGB1) && build(host::scVideo1);
}

}  // namespace generator
