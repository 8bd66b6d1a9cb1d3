#include "addin/Cast.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "generator/Devices.h"
#include "generator/Events.h"
#include "generator/Generate.h"
#include "generator/Names.h"
#include "generator/Steps.h"
#include "host/Numbers.h"

namespace generator {
namespace {

std::string Constant(bool bValue) { return bValue ? "1d" : "0d"; }

//  Digital input 3 closes        Digital input 3 opens
//    Volume_Mute_On  receiver      Volume_Mute_Off  receiver
bool BuildMuteOnContact(Run& run) {
  const addin::IAddIn& settings = addin::gAddIn();
  const auto contact = FindOutput(settings.GetDigitalInputID(addin::iMuteInput), sContact);
  if (!contact) return false;
  EnableEvents(*contact);
  ClearEvents(*contact);
  const std::int16_t iReceiverID = settings.get_ReceiverID();
  return AddCommandToEvent(run, *contact, host::eventHigh,
                           Command(iReceiverID, "Volume_Mute_On")) &&
         AddCommandToEvent(run, *contact, host::eventLow, Command(iReceiverID, "Volume_Mute_Off"));
}

}  // namespace

// The receiver does the audio itself; two of its properties say how.
bool Generate::BuildAudioControl() {
  const addin::IAddIn& settings = addin::gAddIn();
  const auto receiver = addin::gDocument().get_Devices()->Item(settings.get_ReceiverID());
  if (!SetProperty(m_run, *receiver, "Volume Knob Control",
                   Constant(settings.get_VolumeKnobControl())) ||
      !SetProperty(m_run, *receiver, "Mic Mode Control", Constant(settings.get_MicModeControl()))) {
    return false;
  }
  return settings.get_bMuteOnDigInp3() == 0 || BuildMuteOnContact(m_run);
}

}  // namespace generator
