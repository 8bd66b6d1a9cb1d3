#include "base/Json.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace base {
namespace {

[[noreturn]] void refuse(const std::string& file, const std::string& what) {
  throw ContentError(file + ": " + what);
}

constexpr std::size_t usualKeys = 8;

/// Builds the value while the parser reads, since the library's own builder lets a key stand twice.
class Builder : public nlohmann::json_sax<Json> {
 public:
  Builder(const std::string& file, const JsonLimits& limits) : file_(file), limits_(limits) {}

  bool null() override { return add(nullptr); }
  bool boolean(bool value) override { return add(value); }
  bool number_integer(number_integer_t value) override { return add(value); }
  bool number_unsigned(number_unsigned_t value) override { return add(value); }
  bool number_float(number_float_t value, const string_t&) override { return add(value); }
  bool string(string_t& value) override { return add(std::move(value)); }
  bool binary(binary_t&) override { return false; }

  bool start_object(std::size_t) override { return open(emptyObject(usualKeys)); }
  bool end_object() override { return close(); }
  bool start_array(std::size_t) override { return open(Json::array()); }
  bool end_array() override { return close(); }

  bool key(string_t& name) override {
    if (open_.back()->contains(name)) refuse(file_, place() + name + ": the key stands twice");
    if (open_.back()->size() >= limits_.keysOfObject) {
      refuse(file_, place() + name + ": the object has more than " +
                        std::to_string(limits_.keysOfObject) + " keys");
    }
    keys_.back() = std::move(name);
    return true;
  }

  bool parse_error(std::size_t, const std::string&, const Json::exception& error) override {
    // The library's text is "[json.exception...] parse error at line 3, column 5: what is wrong".
    const std::string text = error.what();
    const auto start = text.find(" at ");
    refuse(file_, (start == std::string::npos ? text : text.substr(start + 4)) +
                      ". The file is damaged or incomplete.");
  }

  Json take() { return std::move(root_); }

 private:
  bool open(Json container) {
    if (std::cmp_greater_equal(open_.size(), limits_.depth)) {
      refuse(file_, place() + " is nested more than " + std::to_string(limits_.depth) + " deep");
    }
    open_.push_back(&insert(std::move(container)));
    keys_.emplace_back();
    return true;
  }

  bool close() {
    open_.pop_back();
    keys_.pop_back();
    return true;
  }

  bool add(Json value) {
    insert(std::move(value));
    return true;
  }

  Json& insert(Json value) {
    if (open_.empty()) return root_ = std::move(value);
    Json& parent = *open_.back();
    if (parent.is_array()) return parent.emplace_back(std::move(value));
    auto& members = parent.get_ref<Json::object_t&>();
    return members.Container::emplace_back(keys_.back(), std::move(value)).second;
  }

  using Container = Json::object_t::Container;

  std::string place() const {
    std::string text;
    for (std::size_t i = 0; i < open_.size(); ++i) {
      if (open_[i]->is_array()) {
        const std::string index =
            std::to_string(open_[i]->size() - (i + 1 < open_.size() ? 1U : 0U));
        text += "[" + index + "]";
      } else if (i + 1 < open_.size()) {
        text += (text.empty() ? "" : ".") + keys_[i];
      }
    }
    return text.empty() ? text : text + (open_.back()->is_object() ? "." : "");
  }

  const std::string& file_;
  const JsonLimits& limits_;
  Json root_;
  std::vector<Json*> open_;
  std::vector<std::string> keys_;
};

}  // namespace

Json parseJson(std::string_view text, const std::string& file, const JsonLimits& limits) {
  if (text.size() > limits.bytes) {
    refuse(file, "is larger than " + std::to_string(limits.bytes >> 20U) + " MB");
  }
  Builder builder(file, limits);
  Json::sax_parse(text, &builder);
  return builder.take();
}

Json emptyObject(std::size_t keys) {
  Json object = Json::object();
  object.get_ref<Json::object_t&>().reserve(keys);
  return object;
}

std::string jsonText(const Json& json) {
  return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

const Json::object_t& JsonReader::members() const {
  if (!value_.is_object()) fail("must be an object");
  return value_.get_ref<const Json::object_t&>();
}

const Json* JsonReader::find(const char* key) {
  const Json::object_t& all = members();
  asked_.resize(all.size());
  // Files are mostly read in the order in which they were written.
  for (std::size_t i = 0; i < all.size(); ++i) {
    const std::size_t place = (expected_ + i) % all.size();
    const auto& [name, value] = *(all.begin() + static_cast<std::ptrdiff_t>(place));
    if (name != key) continue;
    asked_[place] = true;
    expected_ = place + 1;
    return &value;
  }
  return nullptr;
}

JsonReader JsonReader::at(const char* key) {
  const Json* value = find(key);
  if (value) return {*value, *this, key, 0};
  JsonReader(value_, *this, key, 0).fail("is missing");
}

void JsonReader::finish() const {
  std::size_t place = 0;
  for (const auto& [key, value] : members()) {
    const bool wasAsked = place < asked_.size() && asked_[place];
    if (!wasAsked) JsonReader(value, *this, key.c_str(), 0).fail("is no key that is known here");
    ++place;
  }
}

std::string JsonReader::text() const {
  if (!value_.is_string()) fail("must be a text");
  return value_.get<std::string>();
}

bool JsonReader::boolean() const {
  if (!value_.is_boolean()) fail("must be true or false");
  return value_.get<bool>();
}

std::int64_t JsonReader::integer(std::int64_t minimum, std::int64_t maximum) const {
  const bool tooLarge = value_.is_number_unsigned() && value_.get<std::uint64_t>() > INT64_MAX;
  if (!value_.is_number_integer() || tooLarge || value_.get<std::int64_t>() < minimum ||
      value_.get<std::int64_t>() > maximum) {
    fail("must be a whole number from " + std::to_string(minimum) + " to " +
         std::to_string(maximum));
  }
  return value_.get<std::int64_t>();
}

std::int16_t JsonReader::int16(std::int16_t minimum, std::int16_t maximum) const {
  return static_cast<std::int16_t>(integer(minimum, maximum));
}

std::int32_t JsonReader::int32(std::int32_t minimum, std::int32_t maximum) const {
  return static_cast<std::int32_t>(integer(minimum, maximum));
}

std::string JsonReader::place() const {
  if (!parent_) return {};
  const std::string before = parent_->place();
  if (!key_) return before + "[" + std::to_string(index_) + "]";
  return before + (before.empty() ? "" : ".") + key_;
}

void JsonReader::fail(const std::string& what) const {
  const std::string where = place();
  refuse(*file_, where.empty() ? what : where + ": " + what);
}

}  // namespace base
