#include "base/JsonText.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <utility>

#include "base/JsonSlips.h"

namespace base {
namespace {

/// Goes through a text and leaves word of how far it has come: the parser does not tell where it
/// is.
class Watched {
 public:
  using value_type = char;
  using reference = const char&;
  using pointer = const char*;
  using difference_type = std::ptrdiff_t;
  using iterator_category = std::input_iterator_tag;

  Watched(const char* at, const char*& furthest) : at_(at), furthest_(&furthest) {}

  reference operator*() const { return *at_; }
  Watched& operator++() {
    *furthest_ = ++at_;
    return *this;
  }
  bool operator==(const Watched& other) const { return at_ == other.at_; }
  bool operator!=(const Watched& other) const { return at_ != other.at_; }

 private:
  const char* at_;
  const char** furthest_;
};

/// Hears the parser read a text, and notes the line of every value and what is wrong.
class Places : public nlohmann::json_sax<Json> {
 public:
  Places(std::string_view text, const JsonLimits& limits, std::map<std::string, std::size_t>& lines,
         std::vector<Fault>& faults)
      : text_(text), limits_(limits), lines_(lines), faults_(faults) {}

  /// False: the text can't be read, or passes a limit; the last fault says why.
  bool read() {
    const char* end = text_.data() + text_.size();
    return Json::sax_parse(Watched(text_.data(), furthest_), Watched(end, furthest_), this);
  }

  bool null() override { return value(); }
  bool boolean(bool) override { return value(); }
  bool number_integer(number_integer_t) override { return value(); }
  bool number_unsigned(number_unsigned_t) override { return value(); }
  bool number_float(number_float_t, const string_t&) override { return value(); }
  bool string(string_t&) override { return value(); }
  bool binary(binary_t&) override { return value(); }

  bool start_object(std::size_t) override { return open({.isArray = false}); }
  bool start_array(std::size_t) override { return open({.isArray = true}); }
  bool end_object() override { return close(); }
  bool end_array() override { return close(); }

  bool key(string_t& name) override {
    Container& object = open_.back();
    object.member = object.path + (object.path.empty() ? "" : ".") + nameInPath(name);
    if (!lines_.insert_or_assign(object.member, line()).second) {
      return tell("the key stands twice", object.member);
    }
    if (++object.size <= limits_.keysOfObject) return true;
    tell("the object has more than " + std::to_string(limits_.keysOfObject) + " keys", object.path);
    return false;
  }

  bool parse_error(std::size_t, const std::string&, const Json::exception& error) override {
    tell(inPlainWords(error.what()), {});
    return false;
  }

 private:
  /// An object or array that is not closed yet.
  struct Container {
    bool isArray = false;
    std::string path = {};
    std::string member = {};  // of an object, the path of the value that comes next
    std::size_t size = 0;     // how many keys or elements have come
  };

  std::string pathOfNext() {
    if (open_.empty()) return {};
    Container& around = open_.back();
    return around.isArray ? around.path + "[" + std::to_string(around.size++) + "]" : around.member;
  }

  bool value() {
    lines_.try_emplace(pathOfNext(), line());
    return true;
  }

  bool open(Container container) {
    container.path = pathOfNext();
    lines_.try_emplace(container.path, line());
    open_.push_back(std::move(container));
    if (std::cmp_less_equal(open_.size(), limits_.depth)) return true;
    tell("is nested more than " + std::to_string(limits_.depth) + " deep", open_.back().path);
    return false;
  }

  bool close() {
    open_.pop_back();
    return true;
  }

  /// The line of what was read last: behind a number that is the byte which ends it.
  std::size_t line() {
    for (; counted_ + 1 < furthest_; ++counted_) line_ += *counted_ == '\n' ? 1 : 0;
    return line_;
  }

  bool tell(const std::string& what, const std::string& path) {
    faults_.push_back({.what = what, .path = path, .line = line()});
    return true;
  }

  std::string_view text_;
  const JsonLimits& limits_;
  std::map<std::string, std::size_t>& lines_;
  std::vector<Fault>& faults_;
  const char* furthest_ = text_.data();
  const char* counted_ = text_.data();
  std::size_t line_ = 1;
  std::vector<Container> open_;
};

/// 5.0 and 5e0 are the whole number 5, as a schema has it too.
void keepWhole(Json& value) {
  constexpr double mostExact = 9007199254740992.0;
  for (Json& part : value) {
    if (part.is_structured()) keepWhole(part);
    if (!part.is_number_float()) continue;
    const auto number = part.get<double>();
    if (std::trunc(number) == number && std::abs(number) <= mostExact) {
      part = static_cast<std::int64_t>(number);
    }
  }
}

}  // namespace

std::string nameInPath(const std::string& key) { return key.empty() ? "\"\"" : key; }

JsonText::JsonText(std::string text, const JsonLimits& limits) : value(Json::value_t::discarded) {
  if (text.size() > limits.bytes) {
    faults.push_back({.what = "is larger than " + std::to_string(limits.bytes >> 20U) + " MB"});
    return;
  }
  blankSlips(text, faults);
  if (!Places(text, limits, lines_, faults).read()) return;
  // Not in a callback of the parser, whose time would grow with the square of a list's length.
  value = Json::parse(text);
  keepWhole(value);
}

std::size_t JsonText::lineOf(std::string path) const {
  while (true) {
    const auto line = lines_.find(path);
    if (line != lines_.end()) return line->second;
    if (path.empty()) return 0;
    const std::size_t end = path.find_last_of(".[");
    path.resize(end == std::string::npos ? 0 : end);
  }
}

}  // namespace base
