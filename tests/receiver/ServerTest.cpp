#include <atomic>
#include <thread>
#include <vector>

#include "tests/receiver/Running.h"

namespace tests {
namespace {

using receiver::Message;

class ServerTest : public testing::Test {
 protected:
  /// What is answered to these bytes, which are the first of a connection.
  std::string refusalOf(std::string_view bytes) {
    Wire wire(running.address());
    wire.send(bytes);
    const std::string reason = reasonOf(wire.answer());
    wire.endSending();
    EXPECT_TRUE(wire.isClosed());
    return reason;
  }

  Folder folder;
  Running running{optionsFor(folder)};
  receiver::Program program = givenProgram(1);
};

TEST_F(ServerTest, BadFrameIsRefusedWithItsReason) {
  ASSERT_TRUE(sent(running.address(), program));
  const std::string good = receiver::writeMessage(receiver::Query()).encode();
  struct Case {
    const char* expected;
    std::size_t place;
    char byte;
  };
  for (const Case& c : {Case{"not a frame", 0, 'X'},
                        {"version 2", 4, 2},
                        {"unknown type 99", 5, 99},
                        {"comes from a receiver", 5, 64},
                        {"reserved", 6, 1},
                        {"too long", 9, 2}}) {
    std::string bytes = good;
    bytes[c.place] = c.byte;
    EXPECT_NE(refusalOf(bytes).find(c.expected), std::string::npos) << c.expected;
  }
  // More than the receiver is going to read: the reason must arrive all the same.
  std::string flood = good;
  flood[8] = 127;
  EXPECT_NE(refusalOf(flood + std::string(1000000, 'x')).find("too long"), std::string::npos);
  EXPECT_NE(refusalOf(receiver::Frame{receiver::FrameType::commit, "x"}.encode()).find("malformed"),
            std::string::npos);
  EXPECT_TRUE(holds(running.address(), program));
}

TEST_F(ServerTest, FrameThatIsCutShortIsRefused) {
  const std::string bytes =
      receiver::writeMessage(receiver::SetPassword{"user", "secret"}).encode();
  for (const std::size_t length : {std::size_t{1}, receiver::Frame::headerSize, bytes.size() - 1}) {
    Wire wire(running.address());
    wire.send(std::string_view(bytes).substr(0, length));
    wire.endSending();
    EXPECT_NE(reasonOf(wire.answer()).find("middle of a frame"), std::string::npos) << length;
  }
  EXPECT_FALSE(holdingsOf(running.address()).passwordSet);
}

TEST_F(ServerTest, WrongTransferIsRefused) {
  const receiver::AnnounceProgram announced = announcementOf(program);
  const receiver::Chunk whole{program.bytes};
  receiver::Chunk changed = whole;
  changed.bytes[777] = '!';
  struct Case {
    const char* expected;
    std::vector<Message> messages;
  };
  for (const Case& c : {Case{"before its description", {whole}},
                        {"no program to be stored", {receiver::Commit()}},
                        {"still being sent", {announced, announced}},
                        {"More bytes", {announced, whole, receiver::Chunk{"x"}}},
                        {"not complete", {announced, receiver::Commit()}},
                        {"hash", {announced, changed, receiver::Commit()}}}) {
    Wire wire(running.address());
    Message answer;
    for (const Message& message : c.messages) answer = wire.ask(message);
    EXPECT_NE(reasonOf(answer).find(c.expected), std::string::npos) << c.expected;
  }
  EXPECT_EQ(holdingsOf(running.address()), receiver::Holdings());
}

TEST_F(ServerTest, ConnectionsDoNotWaitForEachOther) {
  Wire idle(running.address());
  Wire halfFrame(running.address());
  halfFrame.send("OLR");
  Wire halfProgram(running.address());
  halfProgram.ask(announcementOf(program));
  Wire hashing(running.address());
  hashing.send(receiver::SetPassword{"user", "secret"});

  std::vector<std::thread> senders;
  std::atomic<int> arrived = 0;
  for (int i = 0; i < 4; ++i) {
    senders.emplace_back([&, i] {
      if (sent(running.address(), givenProgram(10 + i, 200000))) ++arrived;
    });
  }
  for (auto& sender : senders) sender.join();
  EXPECT_EQ(arrived, 4);
  bool one = false;
  for (int i = 0; i < 4; ++i) one |= holds(running.address(), givenProgram(10 + i, 200000));
  EXPECT_TRUE(one);

  EXPECT_EQ(hashing.answer(), Message(receiver::Accepted()));
  halfProgram.ask(receiver::Chunk{program.bytes});
  EXPECT_EQ(halfProgram.ask(receiver::Commit()), Message(receiver::Accepted()));
  EXPECT_TRUE(std::holds_alternative<receiver::Holdings>(idle.ask(receiver::Query())));
  EXPECT_EQ(holdingsOf(running.address()).program->name, program.name);
}

TEST_F(ServerTest, SilentConnectionIsClosedAndOneTooManyRefused) {
  Folder other;
  auto options = optionsFor(other);
  options.frameTime = 200ms;
  options.connections = 2;
  Running impatient(options);
  Wire silent(impatient.address());
  Wire slow(impatient.address());
  slow.send("OL");
  Wire third(impatient.address());
  EXPECT_NE(reasonOf(third.answer()).find("too many"), std::string::npos);
  for (Wire* wire : {&silent, &slow}) {
    EXPECT_NE(reasonOf(wire->answer()).find("Nothing came"), std::string::npos);
    wire->close();
  }
}

TEST_F(ServerTest, PasswordIsSetCheckedAndCleared) {
  const receiver::Address address = running.address();
  EXPECT_TRUE(receiver::checkPassword(address, "anything"));
  EXPECT_TRUE(receiver::setPassword(address, "moss \u00e4"));
  EXPECT_TRUE(holdingsOf(address).passwordSet);
  EXPECT_TRUE(receiver::checkPassword(address, "moss \u00e4"));
  EXPECT_NE(receiver::checkPassword(address, "moss").message.find("wrong"), std::string::npos);
  EXPECT_FALSE(receiver::setPassword(address, std::string(200, 'x')));
  EXPECT_FALSE(receiver::setPassword(address, "line\nfeed"));
  Wire wire(address);
  EXPECT_NE(reasonOf(wire.ask(receiver::SetPassword{"admin", "x"})).find("user"),
            std::string::npos);

  running.stop();
  Running again(optionsFor(folder));
  EXPECT_TRUE(receiver::checkPassword(again.address(), "moss \u00e4"));
  EXPECT_TRUE(receiver::setPassword(again.address(), ""));
  EXPECT_FALSE(holdingsOf(again.address()).passwordSet);
}

TEST_F(ServerTest, PropertiesOfTheProgramAreChanged) {
  const receiver::Address address = running.address();
  EXPECT_FALSE(receiver::setProperties(address, {{"Volume Knob Control", "5d"}}));
  ASSERT_TRUE(sent(address, program));
  EXPECT_TRUE(receiver::setProperties(address, {{"Volume Knob Control", "5d"}}));
  EXPECT_FALSE(receiver::setProperties(address, {{"Mic Mode Control", "1d"}, {"Bass", "1d"}}));
  program.properties["Volume Knob Control"] = "5d";
  EXPECT_TRUE(holds(address, program));
  running.stop();
  Running again(optionsFor(folder));
  EXPECT_TRUE(holds(again.address(), program));
}

}  // namespace
}  // namespace tests
