#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "trellisar/library/Definition.h"

namespace trellisar {

/// By which commands a program turns a device on and off, or moves it.
struct PowerControl {
  bool on = false;
  bool off = false;
  bool down = false;
  bool up = false;
  bool secondOff = false;

  bool operator==(const PowerControl&) const = default;
};

/// What a list shows of a definition of the library, and what it is found by. The texts live as
/// long as the library.
struct ListedDefinition {
  Definition::Form form = Definition::Form::device;
  std::string_view name;
  std::string_view maker;
  std::string_view category;
  std::int16_t controlEntry = 0;  // of a device
  std::int16_t modelId = 0;
  std::int16_t id = 0;  // of a module
  std::int16_t type = 0;
  std::int16_t kind = 0;
  std::int16_t slot = 0;
  std::int32_t part = 0;
  Definition::Connection connection = Definition::Connection::none;
  PowerControl power;
  std::size_t file = 0;   // of the library
  std::size_t place = 0;  // in the file
  std::int32_t rank =
      0;  // of its name among all, whatever their case; the same name: as they stand

  bool operator==(const ListedDefinition&) const = default;
};

/// Its texts are those of the definition.
ListedDefinition listingOf(const Definition& definition);

}  // namespace trellisar
