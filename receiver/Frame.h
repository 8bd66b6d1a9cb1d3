#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace receiver {

/// What a frame carries. Numbers below 64 go to the receiver, the others come from it.
enum class FrameType : std::uint8_t {
  announceProgram = 1,
  chunk = 2,
  commit = 3,
  setPassword = 4,
  checkPassword = 5,
  query = 6,
  setProperties = 7,
  accepted = 64,
  holdings = 65,
  refusal = 66,
};

/// The unit of the conversation: a header of fixed size and a payload. docs/receiver-protocol.md
/// tells the bytes.
struct Frame {
  static constexpr std::string_view magic = "OLRP";
  static constexpr std::uint8_t version = 1;
  static constexpr std::size_t headerSize = 12;
  static constexpr std::size_t maxPayload = 64U << 10U;

  struct Header {
    FrameType type;
    std::uint32_t length;  // of the payload, in bytes
  };

  FrameType type = FrameType::query;
  std::string payload;

  /// Reads a header. Raises Error when there are not exactly `headerSize` bytes, for another magic
  /// or version, an unknown type, a reserved byte that is set, and a length above `maxPayload`.
  static Header decodeHeader(std::string_view bytes);

  /// Reads exactly one frame; the payload is not looked into. Raises Error, and nothing else, for
  /// what decodeHeader refuses and for bytes that are missing or left over. Any bytes may be given.
  static Frame decode(std::string_view bytes);

  /// decode gives it back. Raises Error when the payload is above `maxPayload`.
  std::string encode() const;

  bool operator==(const Frame&) const = default;
};

}  // namespace receiver
