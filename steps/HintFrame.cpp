#include "steps/HintFrame.h"

#include "addin/modGlobals.h"
#include "host/Numbers.h"
#include "steps/WizardStep.h"

namespace steps {

std::string HintToAddDisplay(const std::string& strSubject) {
  return "Before configuring " + strSubject +
         " add a Display Device on the \"Display Device\" step.";
}

std::string HintToChoose(const std::string& strDevice) {
  return "Click \"Choose...\" to select the " + strDevice + " for your system.";
}

HintFrame::HintFrame(forms::Container& container, const std::string& strText,
                     const HintNames& names)
    : frameInfo(container, "frameInfo" + names.strIndex),
      ctlImage(frameInfo, names.strSign + names.strIndex),
      lblInfo(frameInfo, "lblInfo" + names.strIndex),
      lblBorder(frameInfo, "lblBorder" + names.strIndex) {
  frameInfo.setBorder(false);
  lblBorder.setBorder(true);
  ctlImage.put_Picture(addin::frmImages().get_ImageListLarge().item(host::pictureInformation));
  ctlImage.put_BackColor(lblInfo.backColor());
  SetText(strText);
}

forms::Piece HintFrame::Place() {
  using namespace forms;
  constexpr Twips lMargin = 30;
  return box(frameInfo,
             {
                 gap(lMargin),
                 row({gap(lMargin), item(ctlImage, sizeOfPicture), rest(lblInfo), gap(lMargin)}),
                 gap(lMargin),
             });
}

void HintFrame::PlaceBorder() {
  lblBorder.setBounds({0, 0, frameInfo.bounds().width, frameInfo.bounds().height});
}

}  // namespace steps
