#include "steps/frmVideoTestPattern.h"

#include "host/Numbers.h"

namespace steps {

frmVideoTestPattern::frmVideoTestPattern() : PictureForm("frmVideoTestPattern") {
  imgList.setImageSize(640, 480);
  AddPicture("test-pattern.svg");
  SetSizeAround(imgList.imageWidth(), imgList.imageHeight());
  setHelpContext(host::helpVideoTestPattern);
}

void frmVideoTestPattern::Setup(const std::string& strCaption, std::int16_t iImage) {
  ShowPicture(strCaption, iImage);
}

}  // namespace steps
