#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

#include "base/Json.h"
#include "base/JsonText.h"
#include "base/Nearest.h"
#include "program/Cast.h"
#include "trial/Script.h"

namespace trial {
namespace {

using base::Json;
using program::Place;
using program::Role;
using program::Unit;
using simulator::Act;

constexpr base::JsonLimits limits{.bytes = mostBytesOfScript, .depth = 10};
constexpr std::int64_t latest = 1'000'000'000;  // seconds

using Names = std::vector<std::string>;

std::string below(const std::string& path, const std::string& key) {
  const std::string name = base::nameInPath(key);
  return path.empty() ? name : path + "." + name;
}

/// Hundredths of a second; nothing when the number is no time, or has more than two decimals.
std::optional<simulator::Time> timeOf(const Json& value) {
  if (!value.is_number()) return std::nullopt;
  const auto seconds = value.get<double>();
  if (!(seconds >= 0 && seconds <= static_cast<double>(latest))) return std::nullopt;
  const std::int64_t hundredths = std::llround(seconds * 100);
  // Read from the same decimals, both are the same number.
  if (static_cast<double>(hundredths) / 100 != seconds) return std::nullopt;
  return hundredths;
}

/// The digital commands that a unit takes.
Names commandsOf(const Unit& unit) {
  Names names;
  for (const program::Input& input : unit.inputs) {
    if (input.type == program::Command::Type::digital) names.push_back(input.name);
  }
  return names;
}

/// Compares a script with the form that it must have and with the room, from its first key to the
/// last. What is wrong is told and passed over.
class Reader {
 public:
  Reader(const program::Program& program, ReadScript& result)
      : program_(program), script_(result.script), faults_(result.faults) {}

  void read(const Json& json) {
    if (json.is_array()) return readActs(json, {});
    if (!json.is_object()) {
      return tell({},
                  "must be an array of acts, or an object with the keys \"script\", \"timing\"");
    }
    checkKeys(json, {}, {"script", "timing"});
    if (const Json* acts = require(json, {}, "script", "an array", &Json::is_array)) {
      readActs(*acts, "script");
    }
    if (json.contains("timing")) readTiming(json["timing"], "timing");
  }

 private:
  void tell(const std::string& path, std::string what) {
    faults_.push_back({std::move(what), path});
  }

  void checkKeys(const Json& object, const std::string& path, const Names& known) {
    for (const auto& [key, value] : object.items()) {
      if (std::find(known.begin(), known.end(), key) != known.end()) continue;
      tell(below(path, key), "is no key; known here are " + base::among(key, known));
    }
  }

  /// The value of a key that must be there and of its type; nothing, which is told, when it is not.
  const Json* require(const Json& object, const std::string& path, const char* key,
                      const char* described, bool (Json::*isOfType)() const noexcept) {
    const auto found = object.find(key);
    if (found == object.end()) {
      tell(below(path, key), std::string("is missing; it must be ") + described);
    } else if (((*found).*isOfType)()) {
      return &*found;
    } else {
      tell(below(path, key), std::string("must be ") + described);
    }
    return nullptr;
  }

  std::optional<std::string> requireText(const Json& object, const std::string& path,
                                         const char* key) {
    const Json* value = require(object, path, key, "a text", &Json::is_string);
    return value ? std::optional(value->get<std::string>()) : std::nullopt;
  }

  std::optional<bool> requireFlag(const Json& object, const std::string& path, const char* key) {
    const Json* value = require(object, path, key, "true or false", &Json::is_boolean);
    return value ? std::optional(value->get<bool>()) : std::nullopt;
  }

  /// Whether a text is one of those that are known, which is told when it is not.
  bool isAmong(const std::string& text, const Names& known, const std::string& path,
               const std::string& ofWhat) {
    if (std::find(known.begin(), known.end(), text) != known.end()) return true;
    tell(path,
         known.empty() ? ofWhat : base::quoted(text) + " is none of " + base::among(text, known));
    return false;
  }

  const Unit& unit(Place place) const { return program_.units[static_cast<std::size_t>(place)]; }

  /// The unit that a key names, which plays one of the parts.
  std::optional<Place> placeOf(const std::string& name, const std::string& path,
                               const std::vector<Role>& parts, const std::string& ofWhat) {
    Names names;
    for (std::size_t i = 0; i < program_.units.size(); ++i) {
      const Unit& candidate = program_.units[i];
      if (std::find(parts.begin(), parts.end(), program::roleOf(candidate)) == parts.end())
        continue;
      if (candidate.name == name) return static_cast<Place>(i);
      names.push_back(candidate.name);
    }
    isAmong(name, names, path, ofWhat);
    return std::nullopt;
  }

  std::optional<Place> requirePlace(const Json& object, const std::string& path,
                                    const std::vector<Role>& parts, const std::string& ofWhat) {
    const std::optional<std::string> name = requireText(object, path, "unit");
    return name ? placeOf(*name, below(path, "unit"), parts, ofWhat) : std::nullopt;
  }

  void readActs(const Json& acts, const std::string& path) {
    for (std::size_t i = 0; i < acts.size(); ++i) {
      readLine(acts[i], path + "[" + std::to_string(i) + "]");
    }
  }

  void readLine(const Json& json, const std::string& path) {
    if (!json.is_object()) return tell(path, "must be an object");
    checkKeys(json, path, {"at", "press", "contact", "motion", "help_desk"});
    const std::optional<simulator::Time> at = readTime(json, path);
    const std::optional<Act> act = readAct(json, path);
    if (at && act) script_.acts.push_back({*at, *act});
  }

  std::optional<simulator::Time> readTime(const Json& json, const std::string& path) {
    const Json* value = require(json, path, "at", "a number of seconds", &Json::is_number);
    if (!value) return std::nullopt;
    const std::optional<simulator::Time> at = timeOf(*value);
    if (!at) {
      tell(below(path, "at"), "must be a number of seconds from 0 to " + std::to_string(latest) +
                                  " with at most two decimals");
    } else if (*at < before_) {
      tell(below(path, "at"),
           "runs backward: " + value->dump() + " s after " + simulator::inSeconds(before_) + " s");
    }
    before_ = std::max(before_, at.value_or(0));
    return at;
  }

  std::optional<Act> readAct(const Json& json, const std::string& path) {
    struct Kind {
      const char* key;
      std::optional<Act> (Reader::*read)(const Json& json, const std::string& path);
    };
    static constexpr std::array kinds{
        Kind{"press", &Reader::readPress}, Kind{"contact", &Reader::readContact},
        Kind{"motion", &Reader::readMotion}, Kind{"help_desk", &Reader::readHelpDesk}};
    std::optional<Act> act;
    int count = 0;
    for (const Kind& kind : kinds) {
      const auto found = json.find(kind.key);
      if (found == json.end()) continue;
      ++count;
      act = (this->*kind.read)(*found, below(path, kind.key));
    }
    if (count == 1) return act;
    tell(path, std::string(count == 0 ? "says nothing that is done" : "says several things") +
                   "; it must have one of the keys \"press\", \"contact\", \"motion\", "
                   "\"help_desk\"");
    return std::nullopt;
  }

  std::optional<Act> readPress(const Json& json, const std::string& path) {
    if (!json.is_object()) return notAnObject(path);
    checkKeys(json, path, {"unit", "button", "page", "object"});
    const std::optional<Place> place =
        requirePlace(json, path, {Role::receiver, Role::panel}, "the room has nothing to press");
    if (!place) return std::nullopt;
    const bool isOnPage = json.contains("page") || json.contains("object");
    if (isOnPage && json.contains("button")) {
      tell(path, "must name a \"button\", or a \"page\" and its \"object\", and not both");
      return std::nullopt;
    }
    if (isOnPage || (!json.contains("button") && !unit(*place).pages.empty())) {
      return readPressOnPage(json, path, *place);
    }
    return readPressOfButton(json, path, *place);
  }

  std::optional<Act> readPressOfButton(const Json& json, const std::string& path, Place place) {
    const std::optional<std::string> button = requireText(json, path, "button");
    const bool isReceiver = place == program_.receiver;
    const Names buttons = isReceiver ? commandsOf(unit(place)) : unit(place).outputs;
    if (!button || !isAmong(*button, buttons, below(path, "button"),
                            base::quoted(unit(place).name) + " has no such buttons")) {
      return std::nullopt;
    }
    if (isReceiver) return simulator::PressReceiver{*button};
    return simulator::PressPanel{place, *button};
  }

  std::optional<Act> readPressOnPage(const Json& json, const std::string& path, Place panel) {
    const std::optional<std::string> name = requireText(json, path, "page");
    const Json* object = require(json, path, "object", "a whole number", &Json::is_number_integer);
    if (!name) return std::nullopt;
    Names names;
    for (const program::Page& page : unit(panel).pages) names.push_back(page.name);
    if (!isAmong(*name, names, below(path, "page"),
                 base::quoted(unit(panel).name) + " has no pages") ||
        !object) {
      return std::nullopt;
    }
    const program::Page& page =
        *std::find_if(unit(panel).pages.begin(), unit(panel).pages.end(),
                      [&](const program::Page& each) { return each.name == *name; });
    Names ids;
    for (const program::Button& button : page.buttons) {
      if (*object == button.id) return simulator::PressPage{panel, *name, button.id};
      ids.push_back(std::to_string(button.id));
    }
    tell(below(path, "object"),
         "is no button of the page; it has " + base::among(object->dump(), ids));
    return std::nullopt;
  }

  std::optional<Act> readContact(const Json& json, const std::string& path) {
    if (!json.is_object()) return notAnObject(path);
    checkKeys(json, path, {"unit", "closed"});
    const std::optional<Place> input =
        requirePlace(json, path, {Role::contact}, "the room has no contact");
    const std::optional<bool> isClosed = requireFlag(json, path, "closed");
    if (!input || !isClosed) return std::nullopt;
    return simulator::MoveContact{*input, *isClosed};
  }

  std::optional<Act> readMotion(const Json& json, const std::string& path) {
    if (json.is_boolean()) return simulator::Motion{json.get<bool>()};
    tell(path, "must be true or false");
    return std::nullopt;
  }

  std::optional<Act> readHelpDesk(const Json& json, const std::string& path) {
    if (!json.is_object()) return notAnObject(path);
    checkKeys(json, path, {"signal", "value"});
    Names signals;
    for (const Unit& each : program_.units) {
      if (program::roleOf(each) == Role::monitoring) signals = each.outputs;
    }
    const std::optional<std::string> signal = requireText(json, path, "signal");
    const std::optional<simulator::HelpDesk::Value> value = readHelpDeskValue(json, path);
    if (!signal || !isAmong(*signal, signals, below(path, "signal"), "the room has no help desk") ||
        !value) {
      return std::nullopt;
    }
    return simulator::HelpDesk{*signal, *value};
  }

  std::optional<simulator::HelpDesk::Value> readHelpDeskValue(const Json& json,
                                                              const std::string& path) {
    using Value = simulator::HelpDesk::Value;
    const auto found = json.find("value");
    if (found != json.end() && found->is_boolean())
      return found->get<bool>() ? Value::on : Value::off;
    if (found != json.end() && *found == "pulse") return Value::pulse;
    tell(below(path, "value"), std::string(found == json.end() ? "is missing; it " : "") +
                                   "must be true, false or \"pulse\"");
    return std::nullopt;
  }

  std::optional<Act> notAnObject(const std::string& path) {
    tell(path, "must be an object");
    return std::nullopt;
  }

  void readTiming(const Json& json, const std::string& path) {
    if (!json.is_object()) return tell(path, "must be an object");
    for (const auto& [name, times] : json.items()) {
      const std::string place = below(path, name);
      OwnTiming own;
      const std::optional<Place> named =
          placeOf(name, place, {Role::display, Role::screen, Role::lift},
                  "the room has no display, screen or lift that takes a time");
      readTimes(times, place, own);
      if (!named) continue;
      own.unit = *named;
      script_.timing.push_back(own);
    }
  }

  void readTimes(const Json& json, const std::string& path, OwnTiming& own) {
    if (!json.is_object()) return tell(path, "must be an object");
    checkKeys(json, path, {"warm_up", "cool_down", "travel"});
    for (const auto& [key, time] : {std::pair{"warm_up", &own.warmUp},
                                    {"cool_down", &own.coolDown},
                                    {"travel", &own.travel}}) {
      if (json.contains(key)) *time = readWholeSeconds(json[key], below(path, key));
    }
  }

  std::optional<std::int32_t> readWholeSeconds(const Json& json, const std::string& path) {
    if (json.is_number_integer() && json >= 0 && json <= program::longestTiming)
      return json.get<std::int32_t>();
    tell(path,
         "must be a whole number of seconds from 0 to " + std::to_string(program::longestTiming));
    return std::nullopt;
  }

  const program::Program& program_;
  Script& script_;
  std::vector<base::Fault>& faults_;
  simulator::Time before_ = 0;  // of the act before
};

}  // namespace

ReadScript readScript(std::string text, const program::Program& program) {
  const base::JsonText json(std::move(text), limits);
  ReadScript result{{}, json.faults};
  if (!json.value.is_discarded()) Reader(program, result).read(json.value);
  for (base::Fault& fault : result.faults) {
    if (fault.line == 0) fault.line = json.lineOf(fault.path);
  }
  std::stable_sort(
      result.faults.begin(), result.faults.end(),
      [](const base::Fault& one, const base::Fault& other) { return one.line < other.line; });
  return result;
}

}  // namespace trial
