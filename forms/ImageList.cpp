#include "forms/ImageList.h"

#include <string>

#include "forms/Error.h"

namespace forms {

void ImageList::add(const Picture& picture) {
  pictures_.push_back(maskColor_ ? picture.withMask(*maskColor_) : picture);
}

void ImageList::setMaskColor(Color color) {
  maskColor_ = color;
  for (Picture& picture : pictures_) picture = picture.withMask(color);
}

const Picture& ImageList::item(std::int32_t number) const {
  if (number < 1 || number > count()) {
    throw Error(errors::indexOutOfRange,
                "There is no picture " + std::to_string(number) + " in the list.");
  }
  return pictures_[static_cast<std::size_t>(number - 1)];
}

void ImageList::setImageSize(std::int16_t width, std::int16_t height) {
  imageWidth_ = width;
  imageHeight_ = height;
}

}  // namespace forms
