#pragma once

#include <cstdint>
#include <string>

#include "forms/ImageList.h"
#include "forms/Object.h"

namespace addin {

/// The two lists that the steps take their pictures from. Created as "AddInOrlena.frmImages", once
/// for a thread.
class PictureLists : public forms::Object {
 public:
  virtual forms::ImageList& get_ImageList() = 0;
  virtual forms::ImageList& get_ImageListLarge() = 0;
};

/// A window with one picture, as the previews and the test pattern are.
class PictureWindow : public forms::Object {
 public:
  /// The caption, and the number of the picture, from 1; another number shows none.
  virtual void Setup(const std::string& strCaption, std::int16_t iImage) = 0;
  /// Shows the window over the active form and returns when it has been closed.
  virtual void ShowModal() = 0;
};

inline constexpr const char* progIDPictureLists = "AddInOrlena.frmImages";
inline constexpr const char* progIDPreview = "AddInOrlena.frmPreview";
inline constexpr const char* progIDVideoTestPattern = "AddInOrlena.frmVideoTestPattern";

}  // namespace addin
