#include "trellisar/reports/Markup.h"

#include <cstdint>
#include <string_view>

namespace trellisar {
namespace {

std::string base64(std::string_view bytes) {
  constexpr std::string_view digits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (std::size_t start = 0; start < bytes.size(); start += 3) {
    const std::string_view group = bytes.substr(start, 3);
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < 3; ++i) {
      bits = bits << 8U | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0U);
    }
    for (std::size_t i = 0; i < 4; ++i) {
      text += i <= group.size() ? digits[bits >> (18U - 6U * i) & 63U] : '=';
    }
  }
  return text;
}

}  // namespace

std::string escapedMarkup(const std::string& text) {
  std::string result;
  for (const char c : text) {
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      case '"':
        result += "&quot;";
        break;
      case '\'':
        result += "&#39;";
        break;
      default:
        if (static_cast<unsigned char>(c) >= ' ' || c == '\t' || c == '\n') result += c;
    }
  }
  return result;
}

std::string svgAsSource(const std::string& svg) {
  return "data:image/svg+xml;base64," + base64(svg);
}

}  // namespace trellisar
