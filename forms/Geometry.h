#pragma once

#include <cstdint>
#include <string>

/// Places and sizes are in twips, 1440 to the inch, unless a name says pixels.
namespace forms {

using Twips = std::int32_t;

struct Size {
  Twips width = 0;
  Twips height = 0;
  bool operator==(const Size&) const = default;
};

struct Rect {
  Twips left = 0;
  Twips top = 0;
  Twips width = 0;
  Twips height = 0;
  Twips right() const { return left + width; }
  Twips bottom() const { return top + height; }
  bool operator==(const Rect&) const = default;
};

struct Font {
  std::string name = "Tahoma";
  double points = 8.25;
  bool bold = false;
  bool underline = false;
  bool operator==(const Font&) const = default;
};

/// 0x00BBGGRR, or with the highest bit the number of a system colour.
using Color = std::uint32_t;

namespace colors {
inline constexpr Color windowBackground = 0x80000005;
inline constexpr Color windowText = 0x80000008;
inline constexpr Color buttonFace = 0x8000000F;
inline constexpr Color buttonText = 0x80000012;
inline constexpr Color highlight = 0x8000000D;
inline constexpr Color highlightText = 0x8000000E;
inline constexpr Color hintBackground = 0x80000018;
inline constexpr Color white = 0x00FFFFFF;
}  // namespace colors

}  // namespace forms
