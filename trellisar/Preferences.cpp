#include "trellisar/Preferences.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>
#include <utility>

#include "host/Error.h"
#include "trellisar/FileIO.h"
#include "trellisar/Json.h"

namespace trellisar {
namespace {

constexpr const char* preferencesFormat = "trellisar-preferences";
constexpr std::size_t maximumRecent = 10;
constexpr JsonLimits preferencesLimits{1U << 20U, 10, 100};

AddressBook readAddressBook(JsonReader reader) {
  AddressBook book;
  reader.at("receivers").each([&](JsonReader item) {
    book.receivers.push_back({item.at("name").text(), item.at("address").text()});
  });
  const auto count = static_cast<std::int64_t>(book.receivers.size());
  book.current = static_cast<std::size_t>(
      reader.at("current").integer(0, std::max<std::int64_t>(1, count) - 1));
  return book;
}

Json toJson(const AddressBook& book) {
  Json json;
  json["receivers"] = Json::array();
  for (const NamedAddress& receiver : book.receivers) {
    Json item;
    item["name"] = receiver.name;
    item["address"] = receiver.address;
    json["receivers"].push_back(item);
  }
  json["current"] = book.current;
  return json;
}

IPSettings readIPSettings(JsonReader reader) {
  return {reader.at("address").text(), reader.at("mask").text(), reader.at("gateway").text(),
          reader.at("host_name").text()};
}

Json toJson(const IPSettings& settings) {
  Json json;
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

}  // namespace

Preferences::Preferences(std::filesystem::path file) : file_(std::move(file)) {
  if (file_.empty()) return;
  try {
    read();
  } catch (const host::Error&) {
    defaultFolder_.clear();
    recentSystems_.clear();
    addressBook_ = {};
    ipSettings_ = {};
  }
}

void Preferences::read() {
  const std::string shown = file_.filename().string();
  const Json json = parseJson(readFile(file_), shown, preferencesLimits);
  JsonReader reader(json, shown);
  if (reader.at("format").text() != preferencesFormat) reader.fail("is another file");
  reader.at("version").integer(1, 1);
  defaultFolder_ = reader.at("default_folder").text();
  reader.at("recent_systems").each([&](const JsonReader& item) {
    if (recentSystems_.size() < maximumRecent) recentSystems_.push_back(item.text());
  });
  // Files of before there was a link to a receiver lack them.
  reader.ifPresent("address_book",
                   [&](const JsonReader& item) { addressBook_ = readAddressBook(item); });
  reader.ifPresent("ip_settings",
                   [&](const JsonReader& item) { ipSettings_ = readIPSettings(item); });
}

void Preferences::write() const {
  if (file_.empty()) return;
  Json json;
  json["format"] = preferencesFormat;
  json["version"] = 1;
  json["default_folder"] = defaultFolder_;
  json["recent_systems"] = recentSystems_;
  json["address_book"] = toJson(addressBook_);
  json["ip_settings"] = toJson(ipSettings_);
  std::error_code error;
  std::filesystem::create_directories(file_.parent_path(), error);
  try {
    replaceFile(file_, jsonText(json));
  } catch (const host::Error&) {
    // Preferences that can't be kept are no reason to trouble the user in the middle of a save.
  }
}

void Preferences::setDefaultFolder(const std::string& folder) {
  if (defaultFolder_ == folder) return;
  defaultFolder_ = folder;
  write();
}

void Preferences::forget(const std::string& system) {
  if (std::erase(recentSystems_, system) > 0) write();
}

void Preferences::setAddressBook(const AddressBook& book) {
  if (addressBook_ == book) return;
  addressBook_ = book;
  write();
}

void Preferences::setIPSettings(const IPSettings& settings) {
  if (ipSettings_ == settings) return;
  ipSettings_ = settings;
  write();
}

void Preferences::remember(const std::string& system) {
  if (!recentSystems_.empty() && recentSystems_.front() == system) return;
  std::erase(recentSystems_, system);
  recentSystems_.insert(recentSystems_.begin(), system);
  if (recentSystems_.size() > maximumRecent) recentSystems_.resize(maximumRecent);
  write();
}

std::filesystem::path Preferences::usualFile() {
  std::string folder = environment("XDG_CONFIG_HOME");
  if (folder.empty()) folder = environment("HOME") + "/.config";
  return std::filesystem::path(folder) / "trellisar" / "preferences.json";
}

}  // namespace trellisar
