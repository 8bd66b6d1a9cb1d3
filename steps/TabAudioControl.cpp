#include "steps/TabAudioControl.h"

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Guard.h"
#include "forms/Rows.h"
#include "host/Numbers.h"

namespace steps {
namespace {

using addin::gAddIn;
using addin::gDocument;

constexpr std::int16_t iMasterVolume = 1;  // the buttons that stand for True
constexpr std::int16_t iAlwaysActive = 1;

}  // namespace

TabAudioControl::TabAudioControl(forms::Container& container, std::string strName)
    : WizardStep(container, std::move(strName), "Audio Control", host::helpAudioControlTab) {
  MakeBanner(lblBanner);
  ConnectEvents();
  LayOut();
}

void TabAudioControl::ConnectEvents() {
  optVolumeKnob.each([this](std::int16_t Index, forms::OptionButton& option) {
    option.click.connect([this, Index] { optVolumeKnob_Click(Index); });
  });
  optMicrophone.each([this](std::int16_t Index, forms::OptionButton& option) {
    option.click.connect([this, Index] { optMicrophone_Click(Index); });
  });
  chkMuteOnDigInp3.click.connect([this] { chkMuteOnDigInp3_Click(); });
  offer("SetData", [this] { SetData(); });
  offer<bool&>("BeforeTabChange", [this](bool& bCancel) { BeforeTabChange(bCancel); });
  offer("OtherTabClicked", [this] { OtherTabClicked(); });
}

bool TabAudioControl::SetData() {
  if (!addin::IsDocumentSet()) return false;
  ctlImage(0).put_Picture(LargePicture(host::pictureVolumeKnob));
  ctlImage(1).put_Picture(LargePicture(host::pictureMicrophone));
  const forms::Guard loading(m_bLoading);
  optVolumeKnob(gAddIn().get_VolumeKnobControl() ? 1 : 0).setChosen(true);
  optMicrophone(gAddIn().get_MicModeControl() ? 1 : 0).setChosen(true);
  chkMuteOnDigInp3.setValue(gAddIn().get_bMuteOnDigInp3());
  return true;
}

void TabAudioControl::optVolumeKnob_Click(std::int16_t Index) {
  if (m_bLoading) return;
  gAddIn().put_VolumeKnobControl(Index == iMasterVolume);
  gDocument().MarkChanged();
}

void TabAudioControl::optMicrophone_Click(std::int16_t Index) {
  if (m_bLoading) return;
  gAddIn().put_MicModeControl(Index == iAlwaysActive);
  gDocument().MarkChanged();
}

void TabAudioControl::chkMuteOnDigInp3_Click() {
  if (m_bLoading) return;
  gAddIn().put_bMuteOnDigInp3(chkMuteOnDigInp3.value());
  gDocument().MarkChanged();
}

void TabAudioControl::LayOut() {
  using namespace forms;
  const auto Choice = [this](Frame& frame, std::int16_t Index,
                             const ControlArray<OptionButton>& options) {
    return box(frame, {
                          row({item(ctlImage(Index), sizeOfPicture),
                               column({item(options(1)), item(options(0))})}),
                          rest(lblSelection(Index)),
                      });
  };
  layOut(pageArea, {
                       rest(lblBanner),
                       gap(60),
                       Choice(fraVolume, 0, optVolumeKnob),
                       gap(60),
                       Choice(fraMic, 1, optMicrophone),
                       gap(60),
                       rest(chkMuteOnDigInp3),
                   });
}

}  // namespace steps
