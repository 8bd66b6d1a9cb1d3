#pragma once

#include <gtest/gtest.h>

#include <source_location>
#include <string>
#include <string_view>

namespace tests {

/// Fails, at the line that asks, when the text does not hold the part.
inline void expectHas(const std::string& text, std::string_view part,
                      const std::source_location& place = std::source_location::current()) {
  if (text.find(part) != std::string::npos) return;
  ADD_FAILURE_AT(place.file_name(), static_cast<int>(place.line()))
      << "\"" << part << "\" does not stand in\n"
      << text;
}

}  // namespace tests
