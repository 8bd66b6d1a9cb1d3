#include "receiver/Frame.h"

#include "receiver/Error.h"

namespace receiver {
namespace {

constexpr std::size_t versionAt = 4;
constexpr std::size_t typeAt = 5;
constexpr std::size_t reservedAt = 6;
constexpr std::size_t lengthAt = 8;
constexpr unsigned bitsOfByte = 8;

std::uint8_t byteAt(std::string_view bytes, std::size_t place) {
  return static_cast<std::uint8_t>(bytes[place]);
}

std::uint32_t readLength(std::string_view bytes) {
  std::uint32_t length = 0;
  for (std::size_t i = lengthAt; i < Frame::headerSize; ++i) {
    length = (length << bitsOfByte) | byteAt(bytes, i);
  }
  return length;
}

void writeLength(std::string& bytes, std::uint32_t length) {
  for (const unsigned shift : {24U, 16U, 8U, 0U}) {
    bytes.push_back(static_cast<char>(static_cast<std::uint8_t>(length >> shift)));
  }
}

bool isKnown(std::uint8_t type) {
  switch (static_cast<FrameType>(type)) {
    case FrameType::announceProgram:
    case FrameType::chunk:
    case FrameType::commit:
    case FrameType::setPassword:
    case FrameType::checkPassword:
    case FrameType::query:
    case FrameType::setProperties:
    case FrameType::accepted:
    case FrameType::holdings:
    case FrameType::refusal:
      return true;
  }
  return false;
}

void checkLength(std::size_t length) {
  if (length > Frame::maxPayload) {
    throw Error("The frame is too long: " + std::to_string(length) + " bytes, at most " +
                std::to_string(Frame::maxPayload) + " are taken.");
  }
}

}  // namespace

Frame::Header Frame::decodeHeader(std::string_view bytes) {
  if (bytes.size() != headerSize) {
    throw Error("The frame is cut short: its header has " + std::to_string(bytes.size()) + " of " +
                std::to_string(headerSize) + " bytes.");
  }
  if (!bytes.starts_with(magic)) throw Error("These bytes are not a frame of this protocol.");
  if (const int other = byteAt(bytes, versionAt); other != version) {
    throw Error("The frame has version " + std::to_string(other) +
                " of the protocol, and only version " + std::to_string(version) +
                " is understood.");
  }
  const std::uint8_t type = byteAt(bytes, typeAt);
  if (!isKnown(type)) throw Error("The frame has the unknown type " + std::to_string(type) + ".");
  if (byteAt(bytes, reservedAt) != 0 || byteAt(bytes, reservedAt + 1) != 0) {
    throw Error("The frame is malformed: its reserved bytes must be 0.");
  }
  const std::uint32_t length = readLength(bytes);
  checkLength(length);
  return {static_cast<FrameType>(type), length};
}

Frame Frame::decode(std::string_view bytes) {
  const Header header = decodeHeader(bytes.substr(0, headerSize));
  const std::string_view payload = bytes.substr(headerSize);
  if (payload.size() != header.length) {
    throw Error("The frame is malformed: its payload has " + std::to_string(payload.size()) +
                " bytes instead of " + std::to_string(header.length) + ".");
  }
  return {header.type, std::string(payload)};
}

std::string Frame::encode() const {
  checkLength(payload.size());
  std::string bytes(magic);
  bytes.reserve(headerSize + payload.size());
  bytes.push_back(static_cast<char>(version));
  bytes.push_back(static_cast<char>(type));
  bytes.append(lengthAt - reservedAt, '\0');
  writeLength(bytes, static_cast<std::uint32_t>(payload.size()));
  return bytes + payload;
}

}  // namespace receiver
