#include "generator/Names.h"

#include <algorithm>
#include <array>

#include "addin/Enumerations.h"
#include "host/Numbers.h"

namespace generator {
namespace {

struct PowerNames {
  const char* sSystemPreset;
  const char* sSystemComment;
  const char* sDisplayPreset;
  const char* sDisplayComment;
  const char* sModuleSlot;
  const char* sKestrumSignal;
  const char* sReceiverCommand;
  const char* sMissingCommand;
};

constexpr PowerNames powerOn{
    .sSystemPreset = sSystemPowerOnPreset,
    .sSystemComment = "Add additional steps here that will be executed when the system turns on.",
    .sDisplayPreset = sDisplayPowerOnPreset,
    .sDisplayComment =
        "Add additional steps here that should be executed when the display turns on.  For "
        "example, maybe a projector requires multiple commands to turn on, or perhaps you want to "
        "automatically dim the lights when the display turns on, etc.",
    .sModuleSlot = "Power_On",
    .sKestrumSignal = "System_Powered_On",
    .sReceiverCommand = "",
    .sMissingCommand = "Display device driver does not define the \"Power On\" command.",
};

constexpr PowerNames powerOff{
    .sSystemPreset = sSystemPowerOffPreset,
    .sSystemComment = "Add additional steps here that will be executed when the system turns off.",
    .sDisplayPreset = sDisplayPowerOffPreset,
    .sDisplayComment =
        "Add additional steps here that should be executed when the display turns off.  For "
        "example, maybe you want to automatically turn the lights back on, raise the screen, or "
        "raise a projector lift.",
    .sModuleSlot = "Power_Off",
    .sKestrumSignal = "System_Powered_Off",
    .sReceiverCommand = "Power_Off",
    .sMissingCommand = "Display device driver does not define the \"Power Off\" command.",
};

constexpr const PowerNames& Names(std::int16_t ePowerOnOrOff) {
  return ePowerOnOrOff == addin::pdOff ? powerOff : powerOn;
}

struct SourceNames {
  std::int16_t iStandardCommand;
  const char* sFeedbackSignal;
  const char* sLogText;
};

constexpr std::array sources{
    SourceNames{host::scRGB1, "RGB_Selected", "RGB Source Selected"},
    SourceNames{host::scVideo1, "Composite_Video_Selected", "Composite Video Source Selected"},
};

constexpr SourceNames noSource{host::scUnknown, "", ""};

constexpr const SourceNames& Source(std::int16_t iStandardCommand) {
  const auto source =
      std::find_if(sources.begin(), sources.end(), [iStandardCommand](const SourceNames& names) {
        return names.iStandardCommand == iStandardCommand;
      });
  return source == sources.end() ? noSource : *source;
}

}  // namespace

NamedPreset GetSystemPowerPreset(std::int16_t ePowerOnOrOff) {
  return {Names(ePowerOnOrOff).sSystemPreset, Names(ePowerOnOrOff).sSystemComment};
}

NamedPreset GetDisplayPowerPreset(std::int16_t ePowerOnOrOff) {
  return {Names(ePowerOnOrOff).sDisplayPreset, Names(ePowerOnOrOff).sDisplayComment};
}

std::string GetModulePowerSlot(std::int16_t ePowerOnOrOff) {
  return Names(ePowerOnOrOff).sModuleSlot;
}

std::string GetKestrumPowerSignal(std::int16_t ePowerOnOrOff) {
  return Names(ePowerOnOrOff).sKestrumSignal;
}

std::string GetReceiverPowerCommand(std::int16_t ePowerOnOrOff) {
  return Names(ePowerOnOrOff).sReceiverCommand;
}

std::string GetMissingPowerCommandWarning(std::int16_t ePowerOnOrOff) {
  return Names(ePowerOnOrOff).sMissingCommand;
}

std::string GetSourceFeedbackSignal(std::int16_t iStandardCommand) {
  return Source(iStandardCommand).sFeedbackSignal;
}

std::string GetSourceLogText(std::int16_t iStandardCommand) {
  return Source(iStandardCommand).sLogText;
}

}  // namespace generator
