#include "trellisar/dialogs/RealTimeDialog.h"

#include "trellisar/dialogs/HelpTopics.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 6000;
constexpr forms::Twips listHeight = 1500;

/// An audio property of a receiver, and what its two values mean.
struct AudioSetting {
  const char* property;
  const char* name;
  const char* off;  // for "0d"
  const char* on;   // for "1d"
};

constexpr AudioSetting audioSettings[] = {
    {"Volume Knob Control", "Volume knob", "Program volume", "Master volume"},
    {"Mic Mode Control", "Microphone", "Only active when the system is on", "Always active"},
};

std::string meaning(const AudioSetting& setting, const std::string& value) {
  if (value == "0d") return setting.off;
  if (value == "1d") return setting.on;
  return value;
}

}  // namespace

RealTimeDialog::RealTimeDialog(const DeviceData& receiver)
    : HostForm("RealTimeDialog", "Audio Settings", help::audioSettings) {
  lblReceiver.setCaption("Audio of the receiver \"" + receiver.name + "\", " +
                         receiver.definition->model + ":");
  lvwSettings.nameBy(lblReceiver);
  lvwSettings.setColumns({"Setting", "Value"});
  for (const AudioSetting& setting : audioSettings) {
    for (const auto& [name, value] : receiver.properties) {
      if (name == setting.property) lvwSettings.addRow({setting.name, meaning(setting, value)});
    }
  }
  cmdClose.setCancel(true);
  cmdClose.setDefault(true);
  cmdClose.click.connect([this] { hide(); });
  layOutAbove({&cmdClose}, dialogWidth,
              {forms::rest(lblReceiver), forms::rest(lvwSettings, listHeight)});
}

void RealTimeDialog::run() {
  showModal(nullptr);
  unload();
}

}  // namespace trellisar
