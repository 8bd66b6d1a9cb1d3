#include "steps/HintFrame.h"

#include "addin/modGlobals.h"
#include "host/Numbers.h"

namespace steps {

HintFrame::HintFrame(forms::Container& container, const std::string& strText)
    : frameInfo(container, "frameInfo") {
  frameInfo.setBorder(false);
  lblBorder.setBorder(true);
  ctlImage.put_Picture(addin::frmImages().get_ImageListLarge().item(host::pictureInformation));
  ctlImage.put_BackColor(lblInfo.backColor());
  SetText(strText);
}

forms::Piece HintFrame::Place() {
  using namespace forms;
  constexpr Size sizeOfSign{480, 480};
  constexpr Twips lMargin = 30;
  return box(frameInfo,
             {
                 gap(lMargin),
                 row({gap(lMargin), item(ctlImage, sizeOfSign), rest(lblInfo), gap(lMargin)}),
                 gap(lMargin),
             });
}

void HintFrame::PlaceBorder() {
  lblBorder.setBounds({0, 0, frameInfo.bounds().width, frameInfo.bounds().height});
}

}  // namespace steps
