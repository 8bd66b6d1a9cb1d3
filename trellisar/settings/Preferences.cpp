#include "trellisar/settings/Preferences.h"
#include "base/MadeFolders.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>
#include <utility>

#include "base/FileIO.h"
#include "base/Json.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

constexpr const char* preferencesFormat = "trellisar-preferences";
constexpr int preferencesVersion = 1;
constexpr std::size_t maximumRecent = 10;
constexpr base::JsonLimits preferencesLimits{1U << 20U, 10, 100};

AddressBook readAddressBook(base::JsonReader reader) {
  AddressBook book;
  reader.at("receivers").each([&](base::JsonReader item) {
    book.receivers.push_back({item.at("name").text(), item.at("address").text()});
  });
  const auto count = static_cast<std::int64_t>(book.receivers.size());
  book.current = static_cast<std::size_t>(
      reader.at("current").integer(0, std::max<std::int64_t>(1, count) - 1));
  return book;
}

base::Json toJson(const AddressBook& book) {
  base::Json json;
  json["receivers"] = base::Json::array();
  for (const NamedAddress& receiver : book.receivers) {
    base::Json item;
    item["name"] = receiver.name;
    item["address"] = receiver.address;
    json["receivers"].push_back(item);
  }
  json["current"] = book.current;
  return json;
}

IPSettings readIPSettings(base::JsonReader reader) {
  return {reader.at("address").text(), reader.at("mask").text(), reader.at("gateway").text(),
          reader.at("host_name").text()};
}

base::Json toJson(const IPSettings& settings) {
  base::Json json;
  json["address"] = settings.address;
  json["mask"] = settings.mask;
  json["gateway"] = settings.gateway;
  json["host_name"] = settings.hostName;
  return json;
}

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

bool isThere(const fs::path& file) {
  std::error_code error;
  return fs::exists(fs::symlink_status(file, error));
}

bool contains(const AddressBook& book, const NamedAddress& receiver) {
  return std::find(book.receivers.begin(), book.receivers.end(), receiver) != book.receivers.end();
}

/// What one host made of `before`, done to what another one has made of it.
AddressBook merged(const AddressBook& before, const AddressBook& mine, AddressBook others) {
  if (others == before) return mine;
  const NamedAddress* wanted = mine.inUse();
  const bool isChosen = wanted && (!before.inUse() || *wanted != *before.inUse());
  const NamedAddress inUse = isChosen ? *wanted : others.inUse() ? *others.inUse() : NamedAddress();
  std::erase_if(others.receivers, [&](const NamedAddress& receiver) {
    return contains(before, receiver) && !contains(mine, receiver);
  });
  for (const NamedAddress& receiver : mine.receivers) {
    const bool isNew = !contains(before, receiver) && !contains(others, receiver);
    if (isNew) others.receivers.push_back(receiver);
  }
  const auto place = std::find(others.receivers.begin(), others.receivers.end(), inUse);
  const bool isLeft = place != others.receivers.end();
  others.current = isLeft ? static_cast<std::size_t>(place - others.receivers.begin()) : 0;
  return others;
}

}  // namespace

Preferences::Preferences(fs::path file, Tell tell)
    : file_(std::move(file)), tell_(std::move(tell)) {
  if (file_.empty()) return;
  change([](Kept&) {});
}

Preferences Preferences::lookedAt(const fs::path& file) {
  Preferences preferences;
  try {
    preferences.kept_ = read(file);
  } catch (const base::Error&) {
    // Who keeps them tells it.
  }
  return preferences;
}

Preferences::Kept Preferences::read(const fs::path& file) {
  Kept kept;
  if (!isThere(file)) return kept;
  const std::string shown = file.filename().string();
  const base::Json json = base::parseJson(base::readFile(file), shown, preferencesLimits);
  base::JsonReader reader(json, shown);
  const base::JsonReader format = reader.at("format");
  if (format.text() != preferencesFormat) format.fail("is another file's");
  const base::JsonReader version = reader.at("version");
  if (const auto number = version.integer(1, INT32_MAX); number != preferencesVersion) {
    version.fail("the file is of version " + std::to_string(number) +
                 "; this program reads version " + std::to_string(preferencesVersion));
  }
  kept.defaultFolder = reader.at("default_folder").text();
  // Files of before there were such questions lack it.
  reader.ifPresent("show_changes",
                   [&](const base::JsonReader& item) { kept.showsChanges = item.boolean(); });
  reader.at("recent_systems").each([&](const base::JsonReader& item) {
    if (kept.recentSystems.size() < maximumRecent) kept.recentSystems.push_back(item.text());
  });
  // Files of before there was a link to a receiver lack them.
  reader.ifPresent("address_book",
                   [&](const base::JsonReader& item) { kept.addressBook = readAddressBook(item); });
  reader.ifPresent("ip_settings",
                   [&](const base::JsonReader& item) { kept.ipSettings = readIPSettings(item); });
  return kept;
}

void Preferences::write(const fs::path& file, const Kept& kept) {
  base::Json json;
  json["format"] = preferencesFormat;
  json["version"] = preferencesVersion;
  json["default_folder"] = kept.defaultFolder;
  json["show_changes"] = kept.showsChanges;
  json["recent_systems"] = kept.recentSystems;
  json["address_book"] = toJson(kept.addressBook);
  json["ip_settings"] = toJson(kept.ipSettings);
  base::replaceFile(file, base::jsonText(json));
}

Preferences::Kept Preferences::readOrMoveAside() {
  try {
    return read(file_);
  } catch (const base::Error& error) {
    const fs::path aside = base::placeAside(file_);
    std::error_code failure;
    fs::rename(file_, aside, failure);
    if (failure) throw;
    tell("The preferences could not be read, and begin anew.\r\n\r\n" + std::string(error.what()) +
         "\r\n\r\nThe address book and all else that they held is kept in \"" + aside.string() +
         "\".");
  }
  return {};
}

void Preferences::change(const std::function<void(Kept&)>& edit) {
  if (file_.empty()) return edit(kept_);
  try {
    const base::FolderLock alone(file_.parent_path());
    Kept kept = readOrMoveAside();
    const Kept before = kept;
    edit(kept);
    if (kept != before) {
      base::MadeFolders folders(file_.parent_path());
      write(file_, kept);
      folders.keep();
    }
    kept_ = std::move(kept);
  } catch (const base::Error& error) {
    edit(kept_);
    tell("The preferences can't be kept: they last until the program ends.\r\n\r\n" +
         std::string(error.what()));
  }
}

void Preferences::tell(const std::string& problem) {
  if (tell_ && told_ != problem) tell_(problem);
  told_ = problem;
}

void Preferences::setDefaultFolder(const std::string& folder) {
  change([&](Kept& kept) { kept.defaultFolder = folder; });
}

void Preferences::setShowsChanges(bool shows) {
  change([&](Kept& kept) { kept.showsChanges = shows; });
}

void Preferences::forget(const std::string& system) {
  change([&](Kept& kept) { std::erase(kept.recentSystems, system); });
}

void Preferences::setAddressBook(const AddressBook& book) {
  const AddressBook before = kept_.addressBook;
  change([&](Kept& kept) { kept.addressBook = merged(before, book, kept.addressBook); });
}

void Preferences::setIPSettings(const IPSettings& settings) {
  change([&](Kept& kept) { kept.ipSettings = settings; });
}

void Preferences::remember(const std::string& system) {
  change([&](Kept& kept) {
    auto& systems = kept.recentSystems;
    std::erase(systems, system);
    systems.insert(systems.begin(), system);
    if (systems.size() > maximumRecent) systems.resize(maximumRecent);
  });
}

fs::path Preferences::usualFile() {
  std::string folder = environment("XDG_CONFIG_HOME");
  if (folder.empty()) folder = environment("HOME") + "/.config";
  return fs::path(folder) / "trellisar" / "preferences.json";
}

}  // namespace trellisar
