#pragma once

#include <filesystem>
#include <optional>
#include <utility>

#include "forms/Geometry.h"

namespace forms {

/// A picture that lies in a file and is read only when it is drawn. A default one is no picture.
class Picture {
 public:
  Picture() = default;
  explicit Picture(std::filesystem::path machineFile) : file_(std::move(machineFile)) {}

  /// Its pixels of this colour are see-through.
  Picture withMask(Color color) const;
  std::optional<Color> mask() const { return mask_; }

  bool isEmpty() const { return file_.empty(); }
  const std::filesystem::path& file() const { return file_; }
  bool operator==(const Picture&) const = default;

 private:
  std::filesystem::path file_;
  std::optional<Color> mask_;
};

inline Picture Picture::withMask(Color color) const {
  Picture masked = *this;
  masked.mask_ = color;
  return masked;
}

}  // namespace forms
