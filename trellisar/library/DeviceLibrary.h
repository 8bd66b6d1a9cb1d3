#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "trellisar/library/Definition.h"
#include "trellisar/library/LibraryFile.h"
#include "trellisar/library/ListedDefinition.h"
#include "trellisar/library/NameList.h"

namespace trellisar {

/// The device library: a folder of JSON files. The index is read when the library is made. What
/// stands in a file is known from the list of names, as far as that is of the file as it is, and
/// otherwise the file is read when something is looked for; a definition is read when it is asked
/// for. Errors are host::Error errBadFile with the file and the place; a file that has one is tried
/// again the next time.
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
  std::vector<const ListedDefinition*> listed(Definition::Form form) const;
  std::vector<DefinitionPtr> all(Definition::Form form) const;

  /// What was listed.
  DefinitionPtr definition(const ListedDefinition& listing) const;

  /// Reads every file, and looks for names, entries, models and modules that stand twice and for
  /// files of the folder that the index does not name. Raises the first error.
  void check() const;

 private:
  struct File {
    IndexedFile indexed;
    bool isKnown = false;
    std::span<ListedDefinition> listings = {};  // of the list of names, or its own
    std::span<const Span> spans = {};           // of a file that is listed
    std::vector<DefinitionPtr> definitions =
        {};  // of a file that is listed, null before it is read
    std::vector<ListedDefinition> ownListings = {};
  };

  // With the lock.
  File& known(std::size_t index) const;
  const NameList::File* listOf(const File& file) const;
  void rankIfNew() const;
  DefinitionPtr read(const ListedDefinition& listing) const;
  template <typename Test>
  DefinitionPtr find(const Test& test) const;

  std::string shown(const File& file) const { return shownName(folder_, file.indexed.name); }
  std::string contentOf(const File& file) const;
  DefinitionPtr readListed(const File& file, const ListedDefinition& listing) const;

  std::filesystem::path folder_;
  mutable std::mutex mutex_;
  mutable std::vector<File> files_;
  mutable NameList names_;
  mutable bool isRanked_ =
      true;  // by the list of names, until a file is read that it does not have
};

}  // namespace trellisar
