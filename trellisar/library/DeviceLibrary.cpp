#include "trellisar/library/DeviceLibrary.h"

#include <algorithm>
#include <set>
#include <utility>

#include "base/FileIO.h"
#include "trellisar/library/DefinitionJson.h"
#include "trellisar/library/HostErrors.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;
using Form = Definition::Form;

constexpr base::JsonLimits libraryLimits{8U << 20U, 20, 1000};

std::string shownName(const fs::path& folder, const std::string& file) {
  return (folder.filename() / file).string();
}

/// Parses a file of the folder and reads "format" and "version". `json` and `shown` are kept by the
/// caller, since the reader refers to them.
base::JsonReader openFile(const base::Json& json, const std::string& shown, const char* format) {
  base::JsonReader reader(json, shown);
  const base::JsonReader kind = reader.at("format");
  if (kind.text() != format) kind.fail("must be \"" + std::string(format) + "\"");
  reader.at("version").integer(1, 1);
  return reader;
}

std::vector<DefinitionPtr> readLibraryFile(const fs::path& folder, const std::string& name) {
  return raisingHostErrors([&] {
    const std::string shown = shownName(folder, name);
    const base::Json json = base::parseJson(base::readFile(folder / name), shown, libraryLimits);
    base::JsonReader reader = openFile(json, shown, "trellisar-devices");
    const std::string maker = reader.at("maker").text();
    std::vector<DefinitionPtr> definitions;
    constexpr std::pair<const char*, Form> lists[] = {{"devices", Form::device},
                                                      {"modules", Form::module},
                                                      {"interfaces", Form::interface},
                                                      {"receivers", Form::receiver}};
    for (const auto& [key, form] : lists) {
      reader.ifPresent(key, [&, listed = form](const base::JsonReader& list) {
        list.each([&](const base::JsonReader& item) {
          definitions.push_back(
              std::make_shared<const Definition>(readDefinition(item, listed, maker)));
        });
      });
    }
    reader.finish();
    return definitions;
  });
}

std::vector<std::string> indexedFiles(const fs::path& folder) {
  const std::string shown = shownName(folder, "index.json");
  const base::Json json =
      base::parseJson(base::readFile(folder / "index.json"), shown, libraryLimits);
  base::JsonReader reader = openFile(json, shown, "trellisar-device-library");
  std::vector<std::string> names;
  reader.at("files").each([&](const base::JsonReader& item) {
    const std::string name = item.text();
    if (name.empty() || name.find('/') != std::string::npos) item.fail("must be a file's name");
    if (std::find(names.begin(), names.end(), name) != names.end()) {
      item.fail("the file stands twice");
    }
    if (!fs::is_regular_file(folder / name)) item.fail("\"" + name + "\" is not in the folder");
    names.push_back(name);
  });
  reader.finish();
  return names;
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

DeviceLibrary::DeviceLibrary(fs::path folder) : folder_(std::move(folder)) {
  if (!folder_.has_filename()) folder_ = folder_.parent_path();
  for (std::string& name : raisingHostErrors([this] { return indexedFiles(folder_); })) {
    files_.push_back({std::move(name), false, {}});
  }
}

const DeviceLibrary::File& DeviceLibrary::read(std::size_t index) const {
  const std::lock_guard lock(mutex_);
  File& file = files_[index];
  if (!file.isRead) {
    file.definitions = readLibraryFile(folder_, file.name);
    file.isRead = true;
  }
  return file;
}

DefinitionPtr DeviceLibrary::find(const Test& test) const {
  for (std::size_t i = 0; i < files_.size(); ++i) {
    for (const DefinitionPtr& definition : read(i).definitions) {
      if (test(*definition)) return definition;
    }
  }
  return nullptr;
}

DefinitionPtr DeviceLibrary::findDevice(std::string_view name) const {
  return find([name](const Definition& d) { return d.form == Form::device && d.name == name; });
}

DefinitionPtr DeviceLibrary::findEntry(std::int16_t controlEntry) const {
  return find([controlEntry](const Definition& d) {
    return d.form == Form::device && d.controlEntry == controlEntry;
  });
}

DefinitionPtr DeviceLibrary::findModule(std::int16_t id) const {
  return find([id](const Definition& d) { return d.form == Form::module && d.id == id; });
}

DefinitionPtr DeviceLibrary::findInterface(std::int16_t modelId) const {
  return find(
      [modelId](const Definition& d) { return d.form == Form::interface && d.modelId == modelId; });
}

DefinitionPtr DeviceLibrary::findReceiver(std::int16_t modelId) const {
  return find(
      [modelId](const Definition& d) { return d.form == Form::receiver && d.modelId == modelId; });
}

DefinitionPtr DeviceLibrary::findModel(std::int16_t modelId) const {
  return find(
      [modelId](const Definition& d) { return d.form != Form::module && d.modelId == modelId; });
}

std::vector<DefinitionPtr> DeviceLibrary::all(Form form) const {
  std::vector<DefinitionPtr> result;
  for (std::size_t i = 0; i < files_.size(); ++i) {
    for (const DefinitionPtr& definition : read(i).definitions) {
      if (definition->form == form) result.push_back(definition);
    }
  }
  return result;
}

void DeviceLibrary::check() const {
  Unique names("device");
  Unique entries("entry");
  Unique modules("module");
  Unique models("model id");
  std::set<std::string> known = {"index.json"};
  for (std::size_t i = 0; i < files_.size(); ++i) {
    const File& file = read(i);
    known.insert(file.name);
    const std::string shown = shownName(folder_, file.name);
    for (const DefinitionPtr& definition : file.definitions) {
      if (definition->form == Form::device) {
        names.take("\"" + definition->name + "\"", shown);
        entries.take(std::to_string(definition->controlEntry), shown);
      } else if (definition->form == Form::module) {
        modules.take("\"" + definition->shortName + "\"", shown);
      } else {
        models.take(std::to_string(definition->modelId), shown);
      }
    }
  }
  for (const auto& entry : fs::directory_iterator(folder_)) {
    const std::string name = entry.path().filename().string();
    if (entry.path().extension() == ".json" && !known.contains(name)) {
      throw host::Error(host::errBadFile,
                        shownName(folder_, name) + ": the index does not name it");
    }
  }
}

}  // namespace trellisar
