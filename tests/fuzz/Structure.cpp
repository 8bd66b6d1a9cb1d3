#include "tests/fuzz/Structure.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "tests/support/Zip.h"

namespace tests {
namespace {

using base::Json;

/// Where a value stands: in an array or an object, and at which place of it.
struct Place {
  Json* parent;
  std::size_t index;

  Json& value() const { return parent->is_array() ? (*parent)[index] : member()->second; }
  Json::object_t::iterator member() const {
    return members().begin() + static_cast<std::ptrdiff_t>(index);
  }
  Json::object_t& members() const { return parent->get_ref<Json::object_t&>(); }
};

void addPlaces(Json& json, std::vector<Place>& places) {
  if (!json.is_structured()) return;
  for (std::size_t i = 0; i < json.size(); ++i) {
    const Place place{&json, i};
    places.push_back(place);
    addPlaces(place.value(), places);
  }
}

void takeAway(const Place& place) {
  if (place.parent->is_array()) {
    place.parent->erase(place.index);
  } else {
    place.members().erase(place.member());
  }
}

/// What a reader that expects another type must refuse.
const std::array<Json, 8>& ofEveryType() {
  static const auto values = [](auto... value) {
    return std::array{Json(value)...};
  }(nullptr, true, 0, -1.5, "other", Json::array(), Json::object(), Json::array({Json::object()}));
  return values;
}

/// An element stands in its array twice, a key in its object.
void doubleIt(const Place& place) {
  if (place.parent->is_array()) {
    place.parent->push_back(Json(place.value()));
  } else {
    // The object's own ways to add a key let none stand twice.
    const auto twice = *place.member();
    place.members().Json::object_t::Container::push_back(twice);
  }
}

Json nested(int depth) {
  Json json = Json::array();
  while (--depth > 0) json = Json::array({std::move(json)});
  return json;
}

void makeHuge(Json& value, Decisions& decisions) {
  constexpr std::size_t many = 1100;  // one more than any limit on entries and keys
  if (value.is_number()) {
    const std::array<Json, 5> numbers = {UINT64_MAX, INT64_MIN, INT64_MAX, 32768, 1e300};
    value = numbers[decisions.below(numbers.size())];
  } else if (value.is_string()) {
    value = std::string(100'000, 'x');
  } else if (value.is_array() && !value.empty()) {
    const Json first = value.front();
    value.get_ref<Json::array_t&>().resize(many, first);
  } else if (value.is_object()) {
    for (std::size_t i = 0; i < many; ++i) value["key " + std::to_string(i)] = i;
  } else {
    value = nested(200);
  }
}

void empty(Json& value) { value = Json(value.type()); }

/// What the zip writer takes: its own memory ends a name of 64 KB.
constexpr std::size_t longestName = 1000;

std::string textOr(const Json& entry, const char* key, const std::string& other) {
  if (!entry.is_object() || !entry.contains(key)) return other;
  const Json& value = entry[key];
  return value.is_string() ? value.get<std::string>() : value.dump();
}

}  // namespace

std::size_t Decisions::byte() {
  return next_ < bytes_.size() ? static_cast<unsigned char>(bytes_[next_++]) : 0U;
}

std::size_t Decisions::below(std::size_t count) {
  const std::size_t number = count > 256 ? byte() * 256 + byte() : byte();
  return count == 0 ? 0 : number % count;
}

void changeStructure(Json& json, Decisions& decisions) {
  std::vector<Place> places;
  addPlaces(json, places);
  if (places.empty()) return;
  const Place& place = places[decisions.below(places.size())];
  const auto& others = ofEveryType();
  switch (const std::size_t change = decisions.below(others.size() + 4)) {
    case 0:
      return takeAway(place);
    case 1:
      return doubleIt(place);
    case 2:
      return makeHuge(place.value(), decisions);
    case 3:
      return empty(place.value());
    default:
      place.value() = others[change - 4];
  }
}

Json archiveStructure(const std::filesystem::path& file) {
  const trellisar::ArchiveHandle zip(archive_read_new());
  archive_read_support_format_zip_seekable(zip.get());
  archive_read_open_filename(zip.get(), file.c_str(), 64 * 1024);
  Json entries = Json::array();
  struct archive_entry* entry = nullptr;
  while (archive_read_next_header(zip.get(), &entry) == ARCHIVE_OK) {
    const std::string name = archive_entry_pathname_utf8(entry);
    std::string content(static_cast<std::size_t>(archive_entry_size(entry)), '\0');
    archive_read_data(zip.get(), content.data(), content.size());
    entries.push_back({{"name", name}, {"content", content}});
    if (name.ends_with(".tsy")) entries.back()["content"] = Json::parse(content);
  }
  return entries;
}

std::string archiveBytes(const Json& entries) {
  std::vector<ZipEntry> zipped;
  for (const Json& item : entries) {
    zipped.push_back({.name = textOr(item, "name", "none").substr(0, longestName),
                      .content = textOr(item, "content", ""),
                      .isFolder = !item.is_object()});
  }
  return zipOf(zipped);
}

}  // namespace tests
