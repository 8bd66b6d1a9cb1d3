#include "answers/StepTable.h"

namespace answers {

StepActs audioActs() {
  return {"Audio Control",
          {
              chooseOption("audio.volume_knob",
                           {{"master", "optVolumeKnob(1)"}, {"program", "optVolumeKnob(0)"}}),
              chooseOption("audio.microphone",
                           {{"always", "optMicrophone(1)"}, {"when on", "optMicrophone(0)"}}),
              tick("audio.mute_on_input_3", "chkMuteOnDigInp3"),
          }};
}

}  // namespace answers
