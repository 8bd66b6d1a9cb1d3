#pragma once

#include <cstdint>
#include <string>

#include "addin/Pictures.h"
#include "forms/Form.h"
#include "forms/ImageList.h"

namespace steps {

/// A white window of fixed size that shows one of its pictures; Escape closes it.
class PictureForm : public forms::Form, public addin::PictureWindow {
 public:
  void ShowModal() override { showModal(nullptr); }

 protected:
  explicit PictureForm(const std::string& strName);

  /// A picture of the program's own, from its pictures folder. A missing file leaves the list as it
  /// is.
  void AddPicture(const std::string& strFile);
  void ShowPicture(const std::string& strCaption, std::int16_t iImage);
  /// The window's size around a picture of this size in pixels.
  void SetSizeAround(std::int16_t iWidth, std::int16_t iHeight);

  forms::ImageList imgList;
};

}  // namespace steps
