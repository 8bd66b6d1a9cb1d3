#include <random>
#include <vector>

#include "receiver/Error.h"
#include "tests/receiver/Running.h"

namespace tests {
namespace {

using receiver::Address;
using receiver::Frame;

template <typename Call>
std::string errorOf(Call&& call) {
  try {
    call();
  } catch (const receiver::Error& error) {
    return error.what();
  }
  return "";
}

TEST(AddressTest, IsReadAsPeopleWriteIt) {
  struct Case {
    const char* text;
    const char* expected;
  };
  const std::string port = ":" + std::to_string(receiver::defaultPort);
  for (const Case& c : {Case{"192.168.1.20", "192.168.1.20"},
                        {"tcp 192.168.1.20", "192.168.1.20"},
                        {"  TCP\t room-4.example:5000 ", "room-4.example:5000"},
                        {"localhost:65535", "localhost:65535"},
                        {"tcp", "tcp"},
                        {"[::1]", "[::1]"},
                        {"tcp [fe80::1]:80", "[fe80::1]:80"}}) {
    const Address address = Address::parse(c.text);
    const std::string expected = c.expected;
    const bool hasPort = address.port != receiver::defaultPort;
    EXPECT_EQ(address.text(), hasPort ? expected : expected + port) << c.text;
    EXPECT_EQ(Address::parse(address.text()), address);
  }
  EXPECT_EQ(Address::parse("127.0.0.1:0", Address::Zero::allowed).port, 0);
}

TEST(AddressTest, BadOneIsNamedWithItsFault) {
  struct Case {
    const char* text;
    const char* fault;
  };
  for (const Case& c : {Case{"", "no host"},
                        {":80", "no host"},
                        {"10.0.0.300", "neither"},
                        {"10.0.0", "neither"},
                        {"a b", "neither"},
                        {"udp 10.0.0.1", "neither"},
                        {"10.0.0.1:", "port"},
                        {"10.0.0.1:0", "port"},
                        {"10.0.0.1:65536", "port"},
                        {"10.0.0.1:80x", "port"},
                        {"10.0.0.1:-1", "port"},
                        {"fe80::1", "brackets"},
                        {"[fe80::1", "bracket"},
                        {"[10.0.0.1]", "IPv6"},
                        {"[::1]80", "colon"}}) {
    const std::string error = errorOf([&] { Address::parse(c.text); });
    EXPECT_NE(error.find(c.fault), std::string::npos) << c.text << ": " << error;
  }
}

std::vector<receiver::Message> everyMessage() {
  const auto announced = announcementOf(givenProgram(3));
  return {announced,
          receiver::Chunk{std::string("\0\xff bytes", 8)},
          receiver::Commit{},
          receiver::SetPassword{"user", "\u00e4 \"quoted\" \\"},
          receiver::CheckPassword{"user", ""},
          receiver::Query{},
          receiver::SetProperties{announced.properties},
          receiver::Accepted{},
          receiver::Holdings{},
          receiver::Holdings{announced.program, true, announced.properties},
          receiver::Refusal{"Why."}};
}

TEST(FrameTest, MessageComesBackFromItsBytes) {
  for (const auto& message : everyMessage()) {
    const std::string bytes = receiver::writeMessage(message).encode();
    EXPECT_EQ(receiver::readMessage(Frame::decode(bytes)), message) << bytes;
  }
}

/// The largest holdings must fit into a frame, or a receiver could not tell what it holds.
TEST(FrameTest, LargestMessagesFit) {
  receiver::AnnounceProgram largest{{std::string(receiver::limits::programName, '"'),
                                     receiver::limits::programSize, std::string(64, 'a')},
                                    {}};
  for (std::size_t i = 0; i < receiver::limits::properties; ++i) {
    std::string name = std::to_string(i);
    name.resize(receiver::limits::propertyName, '\\');
    largest.properties[name] = std::string(receiver::limits::propertyValue, '"');
  }
  const receiver::Holdings holdings{largest.program, true, largest.properties};
  EXPECT_EQ(receiver::readMessage(Frame::decode(receiver::writeMessage(holdings).encode())),
            receiver::Message(holdings));
  largest.properties["one more"] = "";
  EXPECT_THROW(receiver::writeMessage(largest), receiver::Error);
}

TEST(FrameTest, FaultInABodyIsRefused) {
  const std::string hash(64, 'a');
  const std::string program = R"({"name":"a","size":1,"sha256":")" + hash + "\"}";
  struct Case {
    receiver::FrameType type;
    std::string payload;
  };
  for (const Case& c : {
           Case{receiver::FrameType::query, "x"},
           {receiver::FrameType::chunk, ""},
           {receiver::FrameType::setPassword, ""},
           {receiver::FrameType::setPassword, "[]"},
           {receiver::FrameType::setPassword, R"({"user":"user"})"},
           {receiver::FrameType::setPassword, R"({"user":"user","password":1})"},
           {receiver::FrameType::setPassword, R"({"user":"user","password":"a","x":1})"},
           {receiver::FrameType::setPassword, R"({"user":"user","password":"a","password":"b"})"},
           {receiver::FrameType::setPassword, "{\"user\":\"user\",\"password\":\"\xff\"}"},
           {receiver::FrameType::setPassword, R"({"user":"user","password":"a\u0000b"})"},
           {receiver::FrameType::setPassword,
            R"({"user":"user","password":")" + std::string(129, 'x') + "\"}"},
           {receiver::FrameType::setProperties, std::string(60000, '[')},
           {receiver::FrameType::setProperties, R"({"properties":{"a":{}}})"},
           {receiver::FrameType::setProperties, R"({"properties":{"":"a"}})"},
           {receiver::FrameType::announceProgram, "{\"program\":" + program + "}"},
           {receiver::FrameType::announceProgram,
            R"({"program":{"name":"a","size":0,"sha256":")" + hash + R"("},"properties":{}})"},
           {receiver::FrameType::announceProgram,
            R"({"program":{"name":"a","size":-1,"sha256":")" + hash + R"("},"properties":{}})"},
           {receiver::FrameType::announceProgram,
            R"({"program":{"name":"a","size":67108865,"sha256":")" + hash +
                R"("},"properties":{}})"},
           {receiver::FrameType::announceProgram,
            R"({"program":{"name":"a","size":1,"sha256":"aa"},"properties":{}})"},
       }) {
    EXPECT_THROW(receiver::readMessage({c.type, c.payload}), receiver::Error) << c.payload;
  }
}

/// Whatever comes, reading gives a message or an Error.
TEST(FrameTest, AnyBytesAreReadOrRefused) {
  std::mt19937 random(1);
  int refused = 0;
  int read = 0;
  for (int round = 0; round < 400; ++round) {
    for (const auto& message : everyMessage()) {
      std::string bytes = receiver::writeMessage(message).encode();
      const auto place = std::uniform_int_distribution<std::size_t>(0, bytes.size() - 1)(random);
      if (round % 3 == 0) {
        bytes.resize(place);
      } else {
        bytes[place] = static_cast<char>(random());
      }
      try {
        const auto again = receiver::readMessage(Frame::decode(bytes));
        EXPECT_EQ(receiver::readMessage(receiver::writeMessage(again)), again);
        ++read;
      } catch (const receiver::Error&) {
        ++refused;
      }
    }
  }
  EXPECT_GT(refused, 0);
  EXPECT_GT(read, 0);
}

}  // namespace
}  // namespace tests
