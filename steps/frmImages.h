#pragma once

#include "addin/Pictures.h"
#include "forms/Form.h"

namespace steps {

/// The form that is never shown: it holds the two picture lists, which are empty until the host's
/// are copied into them.
class frmImages : public forms::Form, public addin::PictureLists {
 public:
  frmImages() : Form("frmImages") {}

  forms::ImageList& get_ImageList() override { return ImageList; }
  forms::ImageList& get_ImageListLarge() override { return ImageListLarge; }

 private:
  forms::ImageList ImageList;
  forms::ImageList ImageListLarge;
};

}  // namespace steps
