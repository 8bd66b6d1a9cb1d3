#include "receiver/Messages.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Json.h"
#include "receiver/Error.h"

namespace receiver {
namespace {

using base::Json;
using base::JsonReader;

constexpr base::JsonLimits messageLimits{Frame::maxPayload, 3, limits::properties};
constexpr std::size_t sha256Digits = 64;
/// What the reader of a message puts in front of what is wrong.
const std::string malformedMessage = "The message is malformed";

[[noreturn]] void malformed(const std::string& why) {
  throw Error(malformedMessage + ": " + why + ".");
}

Json parse(const std::string& text) {
  try {
    return base::parseJson(text, malformedMessage, messageLimits);
  } catch (const base::ContentError&) {
    malformed("it is not JSON as messages are written");
  }
}

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

ProgramInfo readProgram(JsonReader reader) {
  ProgramInfo program{reader.at("name").text(),
                      static_cast<std::uint64_t>(reader.at("size").integer(0, INT64_MAX)),
                      reader.at("sha256").text()};
  reader.finish();
  check(program);
  return program;
}

Json programJson(const ProgramInfo& program) {
  check(program);
  return {{"name", program.name}, {"size", program.size}, {"sha256", program.sha256}};
}

Properties readProperties(const JsonReader& reader) {
  Properties properties;
  reader.eachKey([&properties](const std::string& name, const JsonReader& value) {
    properties[name] = value.text();
  });
  check(properties);
  return properties;
}

Json propertiesJson(const Properties& properties) {
  check(properties);
  Json json = Json::object();
  for (const auto& [name, value] : properties) json[name] = value;
  return json;
}

AnnounceProgram readAnnouncement(JsonReader reader) {
  AnnounceProgram message{readProgram(reader.at("program")),
                          readProperties(reader.at("properties"))};
  reader.finish();
  return message;
}

template <typename Credentials>
Credentials readCredentials(JsonReader reader) {
  Credentials message{reader.at("user").text(), reader.at("password").text()};
  reader.finish();
  checkText(message.password, "The password", 0, limits::password);
  return message;
}

template <typename Credentials>
Json credentialsJson(const Credentials& message) {
  checkText(message.password, "The password", 0, limits::password);
  return {{"user", message.user}, {"password", message.password}};
}

SetProperties readSetProperties(JsonReader reader) {
  SetProperties message{readProperties(reader.at("properties"))};
  reader.finish();
  return message;
}

Holdings readHoldings(JsonReader reader) {
  Holdings holdings;
  const JsonReader program = reader.at("program");
  if (!program.isNull()) holdings.program = readProgram(program);
  holdings.passwordSet = reader.at("password_set").boolean();
  holdings.properties = readProperties(reader.at("properties"));
  reader.finish();
  return holdings;
}

Refusal readRefusal(JsonReader reader) {
  Refusal refusal{reader.at("reason").text()};
  reader.finish();
  return refusal;
}

template <typename Read>
auto fromJson(const Frame& frame, Read read) {
  const Json json = parse(frame.payload);
  return read(JsonReader(json, malformedMessage));
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
      return fromJson(frame, readAnnouncement);
    case FrameType::chunk:
      return readChunk(frame);
    case FrameType::commit:
      return readEmpty<Commit>(frame);
    case FrameType::setPassword:
      return fromJson(frame, readCredentials<SetPassword>);
    case FrameType::checkPassword:
      return fromJson(frame, readCredentials<CheckPassword>);
    case FrameType::query:
      return readEmpty<Query>(frame);
    case FrameType::setProperties:
      return fromJson(frame, readSetProperties);
    case FrameType::accepted:
      return readEmpty<Accepted>(frame);
    case FrameType::holdings:
      return fromJson(frame, readHoldings);
    case FrameType::refusal:
      return fromJson(frame, readRefusal);
  }
  malformed("its type is not known");
}

Frame writeMessage(const Message& message) { return std::visit(Writer(), message); }

}  // namespace receiver
