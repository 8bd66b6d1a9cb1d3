#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <variant>

#include "receiver/Frame.h"

namespace receiver {

/// The only user whose password a receiver keeps.
inline constexpr std::string_view userName = "user";

/// What a message may hold at most. Texts are UTF-8 without control characters, counted in bytes.
namespace limits {
inline constexpr std::uint64_t programSize = 64U << 20U;  // and at least one byte
inline constexpr std::size_t programName = 255;           // and at least one
inline constexpr std::size_t password = 128;
inline constexpr std::size_t properties = 32;
inline constexpr std::size_t propertyName = 100;  // and at least one
inline constexpr std::size_t propertyValue = 200;
}  // namespace limits

/// Named values that come with a program and can be changed while it runs, such as
/// "Volume Knob Control".
using Properties = std::map<std::string, std::string>;

struct ProgramInfo {
  std::string name;
  std::uint64_t size = 0;  // bytes
  std::string sha256;      // 64 lower case hexadecimal digits

  bool operator==(const ProgramInfo&) const = default;
};

/// What a receiver holds.
struct Holdings {
  std::optional<ProgramInfo> program;
  bool passwordSet = false;
  Properties properties;  // empty without a program

  bool operator==(const Holdings&) const = default;
};

// To the receiver. Each one is answered by Accepted, Holdings or Refusal.

struct AnnounceProgram {
  ProgramInfo program;
  Properties properties;
  bool operator==(const AnnounceProgram&) const = default;
};
/// The next bytes of the announced program, at least one.
struct Chunk {
  std::string bytes;
  bool operator==(const Chunk&) const = default;
};
/// All bytes were sent: the program takes the place of the one that the receiver holds.
struct Commit {
  bool operator==(const Commit&) const = default;
};
/// An empty password clears the one that is set.
struct SetPassword {
  std::string user;
  std::string password;
  bool operator==(const SetPassword&) const = default;
};
struct CheckPassword {
  std::string user;
  std::string password;
  bool operator==(const CheckPassword&) const = default;
};
struct Query {
  bool operator==(const Query&) const = default;
};
/// Changes these properties and leaves the others.
struct SetProperties {
  Properties properties;
  bool operator==(const SetProperties&) const = default;
};

// From the receiver.

struct Accepted {
  bool operator==(const Accepted&) const = default;
};
/// The receiver closes the connection behind it.
struct Refusal {
  std::string reason;  // a sentence
  bool operator==(const Refusal&) const = default;
};

using Message = std::variant<AnnounceProgram, Chunk, Commit, SetPassword, CheckPassword, Query,
                             SetProperties, Accepted, Holdings, Refusal>;

/// Raises Error, and nothing else, when the payload is not one of the frame's type or passes a
/// limit. Any payload may be given.
Message readMessage(const Frame& frame);

/// readMessage gives it back. Raises Error when a limit is passed or a text is not UTF-8.
Frame writeMessage(const Message& message);

}  // namespace receiver
