#include "trellisar/library/DeviceLibrary.h"

#include <fstream>
#include <set>
#include <utility>

#include "base/Digest.h"
#include "base/FileIO.h"
#include "host/Error.h"
#include "trellisar/library/HostErrors.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;
using Form = Definition::Form;

/// Whether they are of the same thing, whatever else is said of it.
bool isSame(const ListedDefinition& one, const ListedDefinition& other) {
  return one.form == other.form && one.name == other.name &&
         one.controlEntry == other.controlEntry && one.modelId == other.modelId &&
         one.id == other.id;
}

/// Refuses a second use of a key.
class Unique {
 public:
  explicit Unique(const char* what) : what_(what) {}
  void take(const std::string& key, const std::string& file) {
    if (keys_.insert(key).second) return;
    throw host::Error(host::errBadFile,
                      file + ": the " + what_ + " " + key + " stands in the library a second time");
  }

 private:
  const char* what_;
  std::set<std::string> keys_;
};

}  // namespace

DeviceLibrary::DeviceLibrary(fs::path folder)
    : folder_(folder.has_filename() ? std::move(folder) : folder.parent_path()), names_(folder_) {
  for (IndexedFile& file : indexedFiles(folder_)) files_.push_back({.indexed = std::move(file)});
}

std::string DeviceLibrary::contentOf(const File& file) const {
  return raisingHostErrors([&] { return base::readFile(folder_ / file.indexed.name); });
}

/// What the list of names says of the file as it is; null when that is nothing. Where the times
/// differ the file may have been copied or unpacked, and its content tells.
const NameList::File* DeviceLibrary::listOf(const File& file) const {
  const NameList::File* listed = names_.find(file.indexed.name);
  if (!listed || listed->stamp.size != file.indexed.stamp.size) return nullptr;
  if (listed->stamp == file.indexed.stamp) return listed;
  return base::checksum(contentOf(file)) == listed->checksum ? listed : nullptr;
}

DeviceLibrary::File& DeviceLibrary::known(std::size_t index) const {
  File& file = files_[index];
  if (file.isKnown) return file;
  if (const NameList::File* listed = listOf(file)) {
    file.listings = names_.listings(*listed);
    file.spans = names_.spans(*listed);
    file.definitions.resize(file.listings.size());
  } else {
    file.definitions = readLibraryFile(contentOf(file), shown(file));
    for (const auto& each : file.definitions) file.ownListings.push_back(listingOf(*each));
    file.listings = file.ownListings;
    isRanked_ = false;
  }
  for (std::size_t place = 0; place < file.listings.size(); ++place) {
    file.listings[place].file = index;
    file.listings[place].place = place;
  }
  file.isKnown = true;
  return file;
}

DefinitionPtr DeviceLibrary::read(const ListedDefinition& listing) const {
  File& file = files_[listing.file];
  DefinitionPtr& definition = file.definitions[listing.place];
  if (!definition) definition = readListed(file, listing);
  return definition;
}

/// The place in the file is right as long as the file is what the list was compared with.
DefinitionPtr DeviceLibrary::readListed(const File& file, const ListedDefinition& listing) const {
  const std::string path = folder_.native() + "/" + file.indexed.name;
  const Span& span = file.spans[listing.place];
  std::string text(span.length, '\0');
  std::ifstream stream(path, std::ios::binary);
  stream.seekg(static_cast<std::streamoff>(span.begin));
  stream.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (stream && stampOf(path) == file.indexed.stamp) {
    return readDefinitionAlone(text, shown(file), listing.form, std::string(listing.maker));
  }
  for (DefinitionPtr& each : readLibraryFile(contentOf(file), shown(file))) {
    if (isSame(listingOf(*each), listing)) return std::move(each);
  }
  const std::string name(listing.name);
  throw host::Error(host::errBadFile, shown(file) + ": \"" + name + "\" is not there any more");
}

template <typename Test>
DefinitionPtr DeviceLibrary::find(const Test& test) const {
  const std::lock_guard lock(mutex_);
  for (std::size_t i = 0; i < files_.size(); ++i) {
    for (const ListedDefinition& listing : known(i).listings) {
      if (test(listing)) return read(listing);
    }
  }
  return nullptr;
}

DefinitionPtr DeviceLibrary::findDevice(std::string_view name) const {
  return find(
      [name](const ListedDefinition& d) { return d.form == Form::device && d.name == name; });
}

DefinitionPtr DeviceLibrary::findEntry(std::int16_t controlEntry) const {
  return find([controlEntry](const ListedDefinition& d) {
    return d.form == Form::device && d.controlEntry == controlEntry;
  });
}

DefinitionPtr DeviceLibrary::findModule(std::int16_t id) const {
  return find([id](const ListedDefinition& d) { return d.form == Form::module && d.id == id; });
}

DefinitionPtr DeviceLibrary::findInterface(std::int16_t modelId) const {
  return find([modelId](const ListedDefinition& d) {
    return d.form == Form::interface && d.modelId == modelId;
  });
}

DefinitionPtr DeviceLibrary::findReceiver(std::int16_t modelId) const {
  return find([modelId](const ListedDefinition& d) {
    return d.form == Form::receiver && d.modelId == modelId;
  });
}

DefinitionPtr DeviceLibrary::findModel(std::int16_t modelId) const {
  return find([modelId](const ListedDefinition& d) {
    return d.form != Form::module && d.modelId == modelId;
  });
}

std::vector<const ListedDefinition*> DeviceLibrary::listed(Form form) const {
  const std::lock_guard lock(mutex_);
  std::vector<const ListedDefinition*> result;
  std::size_t most = 0;
  for (std::size_t i = 0; i < files_.size(); ++i) most += known(i).listings.size();
  result.reserve(most);
  for (const File& file : files_) {
    for (const ListedDefinition& listing : file.listings) {
      if (listing.form == form) result.push_back(&listing);
    }
  }
  rankIfNew();
  return result;
}

void DeviceLibrary::rankIfNew() const {
  if (std::exchange(isRanked_, true)) return;
  std::vector<ListedDefinition*> all;
  for (File& file : files_) {
    for (ListedDefinition& listing : file.listings) all.push_back(&listing);
  }
  rankByName(std::move(all));
}

std::vector<DefinitionPtr> DeviceLibrary::all(Form form) const {
  std::vector<DefinitionPtr> result;
  for (const ListedDefinition* listing : listed(form)) result.push_back(definition(*listing));
  return result;
}

DefinitionPtr DeviceLibrary::definition(const ListedDefinition& listing) const {
  const std::lock_guard lock(mutex_);
  return read(listing);
}

void DeviceLibrary::check() const {
  Unique names("device");
  Unique entries("entry");
  Unique modules("module");
  Unique models("model id");
  std::set<std::string> named = {"index.json"};
  for (const File& file : files_) {
    named.insert(file.indexed.name);
    for (const DefinitionPtr& each : readLibraryFile(contentOf(file), shown(file))) {
      if (each->form == Form::device) {
        names.take("\"" + each->name + "\"", shown(file));
        entries.take(std::to_string(each->controlEntry), shown(file));
      } else if (each->form == Form::module) {
        modules.take("\"" + each->shortName + "\"", shown(file));
      } else {
        models.take(std::to_string(each->modelId), shown(file));
      }
    }
  }
  for (const auto& entry : fs::directory_iterator(folder_)) {
    const std::string name = entry.path().filename().string();
    if (entry.path().extension() == ".json" && !named.contains(name)) {
      throw host::Error(host::errBadFile,
                        shownName(folder_, name) + ": the index does not name it");
    }
  }
}

}  // namespace trellisar
