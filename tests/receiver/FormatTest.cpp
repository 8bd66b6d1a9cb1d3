#include "receiver/Error.h"
#include "tests/receiver/Running.h"

namespace tests {
namespace {

using receiver::Address;
using receiver::Frame;

TEST(AddressTest, IsReadAsPeopleWriteIt) {
  using Case = std::pair<const char*, std::string>;
  const std::string port = ":" + std::to_string(receiver::defaultPort);
  for (const auto& [text, expected] :
       {Case{"tcp 192.168.1.20", "192.168.1.20" + port},
        Case{"  TCP\t room-4.example:5000 ", "room-4.example:5000"},
        Case{"localhost:65535", "localhost:65535"}, Case{"tcp", "tcp" + port},
        Case{"[::1]", "[::1]" + port}, Case{"tcp [fe80::1]:80", "[fe80::1]:80"}}) {
    EXPECT_EQ(Address::parse(text).text(), expected);
    EXPECT_EQ(Address::parse(expected), Address::parse(text));
  }
  EXPECT_EQ(Address::parse("127.0.0.1:0", Address::Zero::allowed).port, 0);
}

TEST(AddressTest, BadOneIsNamedWithItsFault) {
  using Case = std::pair<const char*, const char*>;
  for (const auto& [text, fault] :
       {Case{"", "no host"}, Case{":80", "no host"}, Case{"10.0.0.300", "neither"},
        Case{"10.0.0", "neither"}, Case{"a b", "neither"}, Case{"udp 10.0.0.1", "neither"},
        Case{"10.0.0.1:", "port"}, Case{"10.0.0.1:0", "port"}, Case{"10.0.0.1:65536", "port"},
        Case{"10.0.0.1:80x", "port"}, Case{"10.0.0.1:-1", "port"}, Case{"fe80::1", "brackets"},
        Case{"[fe80::1", "bracket"}, Case{"[10.0.0.1]", "IPv6"}, Case{"[::1]80", "colon"}}) {
    try {
      Address::parse(text);
      ADD_FAILURE() << text;
    } catch (const receiver::Error& error) {
      expectHas(std::string(error.what()), fault);
    }
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
  using enum receiver::FrameType;
  const auto announcing = [](const std::string& size, const std::string& hash) {
    return R"({"program":{"name":"a","size":)" + size + R"(,"sha256":")" + hash +
           R"("},"properties":{}})";
  };
  const std::string hash(64, 'a');
  EXPECT_NO_THROW(receiver::readMessage({announceProgram, announcing("1", hash)}));
  const auto password = [](const std::string& text) {
    return R"({"user":"user","password":)" + text + "}";
  };
  EXPECT_NO_THROW(receiver::readMessage({setPassword, password("\"a\"")}));
  for (const receiver::Frame& frame : std::initializer_list<receiver::Frame>{
           {query, "x"},
           {chunk, ""},
           {setPassword, ""},
           {setPassword, "[]"},
           {setPassword, R"({"user":"user"})"},
           {setPassword, password("1")},
           {setPassword, password(R"("a","x":1)")},
           {setPassword, password(R"("a","password":"b")")},
           {setPassword, password("\"\xff\"")},
           {setPassword, password(R"("a\u0000b")")},
           {setPassword, password('"' + std::string(129, 'x') + '"')},
           {setProperties, std::string(60000, '[')},
           {setProperties, R"({"properties":{"a":{}}})"},
           {setProperties, R"({"properties":{"":"a"}})"},
           {announceProgram, R"({"properties":{}})"},
           {announceProgram, announcing("0", hash)},
           {announceProgram, announcing("-1", hash)},
           {announceProgram, announcing("67108865", hash)},
           {announceProgram, announcing("1", "aa")}}) {
    EXPECT_THROW(receiver::readMessage(frame), receiver::Error) << frame.payload;
  }
}

}  // namespace
}  // namespace tests
