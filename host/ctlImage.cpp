#include "host/ctlImage.h"

namespace host {

ctlImage::ctlImage(forms::Container& container, std::string strName)
    : UserControl(container, std::move(strName)) {
  setTabStop(false);
  resized.connect([this] { imgPicture.setBounds({0, 0, bounds().width, bounds().height}); });
}

void ctlImage::put_BackColor(forms::Color color) {
  setBackColor(color);
  imgPicture.setBackColor(color);
}

}  // namespace host
