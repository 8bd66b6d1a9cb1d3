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
  /// The size in pixels, the window's edges included.
  void SetSizeInPixels(std::int16_t iWidth, std::int16_t iHeight);

  forms::ImageList imgList;
};

/// What the wizard makes (picture 1), and how a room is wired (picture 2).
class frmPreview : public PictureForm {
 public:
  frmPreview();
  void Setup(const std::string& strCaption, std::int16_t iImage) override;
};

/// The picture with which a user adjusts a display.
class frmVideoTestPattern : public PictureForm {
 public:
  frmVideoTestPattern();
  void Setup(const std::string& strCaption, std::int16_t iImage) override;
};

}  // namespace steps
