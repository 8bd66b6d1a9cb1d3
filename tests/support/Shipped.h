#pragma once

#include <filesystem>
#include <memory>

#include "trellisar/library/DeviceLibrary.h"

namespace tests {

/// What the host ships: the template system, the example and the device library.
inline std::filesystem::path dataFolder() {
  return std::filesystem::path(ORLENA_SOURCE_FOLDER) / "data";
}

/// The shipped device library, read once.
inline std::shared_ptr<const trellisar::DeviceLibrary> shippedLibrary() {
  static const auto library =
      std::make_shared<const trellisar::DeviceLibrary>(dataFolder() / "library");
  return library;
}

}  // namespace tests
