#include "receiver/Messages.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "receiver/Error.h"

namespace receiver {
namespace {

using Json = nlohmann::ordered_json;

constexpr int maxDepth = 3;
constexpr std::size_t sha256Digits = 64;

[[noreturn]] void malformed(const std::string& why) {
  throw Error("The message is malformed: " + why + ".");
}

/// The library's parser lets a key stand twice and nests without end.
class ParseGuard {
 public:
  bool operator()(int depth, Json::parse_event_t event, Json& parsed) {
    using Event = Json::parse_event_t;
    if (event == Event::object_start || event == Event::array_start) {
      if (depth >= maxDepth) malformed("it is nested too deep");
      keys_.emplace_back();
    } else if (event == Event::object_end || event == Event::array_end) {
      keys_.pop_back();
    } else if (event == Event::key && !keys_.back().insert(parsed.get<std::string>()).second) {
      malformed("a key stands twice");
    }
    return true;
  }

 private:
  std::vector<std::set<std::string>> keys_;
};

Json parse(const std::string& text) {
  try {
    return Json::parse(
        text, [guard = ParseGuard()](int depth, Json::parse_event_t event, Json& parsed) mutable {
          return guard(depth, event, parsed);
        });
  } catch (const Json::exception&) {
    malformed("it is not JSON");
  }
}

/// An object whose keys are all asked for; one that is left over is refused by `finish`.
class Fields {
 public:
  explicit Fields(const Json& object) : object_(object) {
    if (!object.is_object()) malformed("an object is missing");
  }

  const Json& at(const char* key) {
    const auto found = object_.find(key);
    if (found == object_.end()) malformed("\"" + std::string(key) + "\" is missing");
    ++asked_;
    return *found;
  }
  std::string text(const char* key) {
    const Json& value = at(key);
    if (!value.is_string()) malformed("\"" + std::string(key) + "\" must be a text");
    return value.get<std::string>();
  }
  std::uint64_t number(const char* key) {
    const Json& value = at(key);
    if (!value.is_number_unsigned()) malformed("\"" + std::string(key) + "\" must be a number");
    return value.get<std::uint64_t>();
  }
  bool flag(const char* key) {
    const Json& value = at(key);
    if (!value.is_boolean()) malformed("\"" + std::string(key) + "\" must be true or false");
    return value.get<bool>();
  }
  void finish() const {
    if (asked_ != object_.size()) malformed("it has a key that is not known");
  }

 private:
  const Json& object_;
  std::size_t asked_ = 0;
};

bool hasControls(std::string_view text) {
  return std::ranges::any_of(text, [](char c) {
    constexpr unsigned char firstPrintable = 0x20;
    constexpr unsigned char del = 0x7f;
    const auto byte = static_cast<unsigned char>(c);
    return byte < firstPrintable || byte == del;
  });
}

void checkText(std::string_view text, const char* what, std::size_t least, std::size_t most) {
  if (text.size() < least) throw Error(std::string(what) + " is empty.");
  if (text.size() > most) {
    throw Error(std::string(what) + " is too long: at most " + std::to_string(most) +
                " bytes are taken.");
  }
  if (hasControls(text)) throw Error(std::string(what) + " has a control character in it.");
}

bool isDigest(std::string_view text) {
  return text.size() == sha256Digits &&
         text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

void check(const ProgramInfo& program) {
  checkText(program.name, "The program's name", 1, limits::programName);
  if (program.size == 0) throw Error("The program is empty.");
  if (program.size > limits::programSize) {
    throw Error("The program is too large: it has " + std::to_string(program.size) +
                " bytes, and at most " + std::to_string(limits::programSize) + " are taken.");
  }
  if (!isDigest(program.sha256)) malformed("\"sha256\" must be 64 hexadecimal digits");
}

void check(const Properties& properties) {
  if (properties.size() > limits::properties) {
    throw Error("There are too many properties: at most " + std::to_string(limits::properties) +
                " are taken.");
  }
  for (const auto& [name, value] : properties) {
    checkText(name, "The name of a property", 1, limits::propertyName);
    checkText(value, "The value of a property", 0, limits::propertyValue);
  }
}

ProgramInfo readProgram(const Json& json) {
  Fields fields(json);
  ProgramInfo program{fields.text("name"), fields.number("size"), fields.text("sha256")};
  fields.finish();
  check(program);
  return program;
}

Json programJson(const ProgramInfo& program) {
  check(program);
  return {{"name", program.name}, {"size", program.size}, {"sha256", program.sha256}};
}

Properties readProperties(const Json& json) {
  if (!json.is_object()) malformed("\"properties\" must be an object");
  Properties properties;
  for (const auto& [name, value] : json.items()) {
    if (!value.is_string()) malformed("the value of a property must be a text");
    properties[name] = value.get<std::string>();
  }
  check(properties);
  return properties;
}

Json propertiesJson(const Properties& properties) {
  check(properties);
  Json json = Json::object();
  for (const auto& [name, value] : properties) json[name] = value;
  return json;
}

AnnounceProgram readAnnouncement(const Json& json) {
  Fields fields(json);
  AnnounceProgram message{readProgram(fields.at("program")),
                          readProperties(fields.at("properties"))};
  fields.finish();
  return message;
}

template <typename Credentials>
Credentials readCredentials(const Json& json) {
  Fields fields(json);
  Credentials message{fields.text("user"), fields.text("password")};
  fields.finish();
  checkText(message.password, "The password", 0, limits::password);
  return message;
}

template <typename Credentials>
Json credentialsJson(const Credentials& message) {
  checkText(message.password, "The password", 0, limits::password);
  return {{"user", message.user}, {"password", message.password}};
}

SetProperties readSetProperties(const Json& json) {
  Fields fields(json);
  SetProperties message{readProperties(fields.at("properties"))};
  fields.finish();
  return message;
}

Holdings readHoldings(const Json& json) {
  Fields fields(json);
  Holdings holdings;
  if (const Json& program = fields.at("program"); !program.is_null()) {
    holdings.program = readProgram(program);
  }
  holdings.passwordSet = fields.flag("password_set");
  holdings.properties = readProperties(fields.at("properties"));
  fields.finish();
  return holdings;
}

Refusal readRefusal(const Json& json) {
  Fields fields(json);
  Refusal refusal{fields.text("reason")};
  fields.finish();
  return refusal;
}

template <typename Empty>
Empty readEmpty(const Frame& frame) {
  if (!frame.payload.empty()) malformed("it must be empty");
  return {};
}

Chunk readChunk(const Frame& frame) {
  if (frame.payload.empty()) malformed("it carries no bytes");
  return {frame.payload};
}

Frame jsonFrame(FrameType type, const Json& json) {
  try {
    return {type, json.dump()};
  } catch (const Json::exception&) {
    throw Error("A text is not valid UTF-8.");
  }
}

/// One overload for each message.
struct Writer {
  Frame operator()(const AnnounceProgram& message) const {
    return jsonFrame(FrameType::announceProgram,
                     {{"program", programJson(message.program)},
                      {"properties", propertiesJson(message.properties)}});
  }
  Frame operator()(const Chunk& message) const { return {FrameType::chunk, message.bytes}; }
  Frame operator()(const Commit&) const { return {FrameType::commit, {}}; }
  Frame operator()(const SetPassword& message) const {
    return jsonFrame(FrameType::setPassword, credentialsJson(message));
  }
  Frame operator()(const CheckPassword& message) const {
    return jsonFrame(FrameType::checkPassword, credentialsJson(message));
  }
  Frame operator()(const Query&) const { return {FrameType::query, {}}; }
  Frame operator()(const SetProperties& message) const {
    return jsonFrame(FrameType::setProperties,
                     {{"properties", propertiesJson(message.properties)}});
  }
  Frame operator()(const Accepted&) const { return {FrameType::accepted, {}}; }
  Frame operator()(const Holdings& message) const {
    return jsonFrame(FrameType::holdings,
                     {{"program", message.program ? programJson(*message.program) : Json()},
                      {"password_set", message.passwordSet},
                      {"properties", propertiesJson(message.properties)}});
  }
  Frame operator()(const Refusal& message) const {
    // A reason may name a file of the machine, whose name need not be UTF-8.
    const Json json = {{"reason", message.reason}};
    return {FrameType::refusal, json.dump(-1, ' ', false, Json::error_handler_t::replace)};
  }
};

}  // namespace

Message readMessage(const Frame& frame) {
  switch (frame.type) {
    case FrameType::announceProgram:
      return readAnnouncement(parse(frame.payload));
    case FrameType::chunk:
      return readChunk(frame);
    case FrameType::commit:
      return readEmpty<Commit>(frame);
    case FrameType::setPassword:
      return readCredentials<SetPassword>(parse(frame.payload));
    case FrameType::checkPassword:
      return readCredentials<CheckPassword>(parse(frame.payload));
    case FrameType::query:
      return readEmpty<Query>(frame);
    case FrameType::setProperties:
      return readSetProperties(parse(frame.payload));
    case FrameType::accepted:
      return readEmpty<Accepted>(frame);
    case FrameType::holdings:
      return readHoldings(parse(frame.payload));
    case FrameType::refusal:
      return readRefusal(parse(frame.payload));
  }
  malformed("its type is not known");
}

Frame writeMessage(const Message& message) { return std::visit(Writer(), message); }

}  // namespace receiver
