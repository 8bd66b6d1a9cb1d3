#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "forms/Geometry.h"
#include "forms/Picture.h"

namespace forms {

/// A list of pictures of one size. A picture's number is its place in the list, from 1.
class ImageList {
 public:
  void add(const Picture& picture);
  std::int16_t count() const { return static_cast<std::int16_t>(pictures_.size()); }

  /// Raises Error 9 for a number that is not in the list.
  const Picture& item(std::int32_t number) const;

  /// The colour that is drawn as see-through in all pictures of the list.
  void setMaskColor(Color color);

  /// The size of each picture in pixels.
  std::int16_t imageWidth() const { return imageWidth_; }
  std::int16_t imageHeight() const { return imageHeight_; }
  void setImageSize(std::int16_t width, std::int16_t height);

 private:
  std::vector<Picture> pictures_;
  std::optional<Color> maskColor_;
  std::int16_t imageWidth_ = 0;
  std::int16_t imageHeight_ = 0;
};

}  // namespace forms
