#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "trellisar/library/Definition.h"

namespace trellisar {

/// The device library: a folder of JSON files. The index is read when the library is made, a file
/// when something of it is asked for. Errors of either are host::Error errBadFile with the file and
/// the place; a file that has one is tried again the next time.
///
/// One library may be shared by several threads.
class DeviceLibrary {
 public:
  explicit DeviceLibrary(std::filesystem::path folder);

  const std::filesystem::path& folder() const { return folder_; }

  /// Nothing when the library does not have it. Names are compared exactly.
  DefinitionPtr findDevice(std::string_view name) const;
  DefinitionPtr findEntry(std::int16_t controlEntry) const;
  DefinitionPtr findModule(std::int16_t id) const;
  DefinitionPtr findInterface(std::int16_t modelId) const;
  DefinitionPtr findReceiver(std::int16_t modelId) const;
  /// Of any form with a model: a receiver, an interface or a device.
  DefinitionPtr findModel(std::int16_t modelId) const;

  /// All of a form, in the library's order.
  std::vector<DefinitionPtr> all(Definition::Form form) const;

  /// Reads every file, and looks for names, entries, models and modules that stand twice and for
  /// files of the folder that the index does not name. Raises the first error.
  void check() const;

 private:
  using Test = std::function<bool(const Definition&)>;
  struct File {
    std::string name;
    bool isRead = false;
    std::vector<DefinitionPtr> definitions;
  };

  const File& read(std::size_t index) const;
  DefinitionPtr find(const Test& test) const;

  std::filesystem::path folder_;
  mutable std::mutex mutex_;
  mutable std::vector<File> files_;
};

}  // namespace trellisar
