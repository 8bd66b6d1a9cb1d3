#pragma once

#include "forms/Image.h"
#include "forms/UserControl.h"

namespace host {

/// Shows one picture.
class ctlImage : public forms::UserControl {
 public:
  ctlImage(forms::Container& container, std::string strName);

  void put_Picture(const forms::Picture& picture) { imgPicture.setPicture(picture); }
  void put_BackColor(forms::Color color);

 private:
  forms::Image imgPicture{*this, "imgPicture"};
};

}  // namespace host
