#include <atomic>

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
    const std::string reason = wire.refusal();
    wire.endSending();
    EXPECT_TRUE(wire.isClosed());
    return reason;
  }

  TemporaryFolder folder;
  Running running{optionsFor(folder)};
  receiver::Program program = givenProgram(1);
};

TEST_F(ServerTest, BadFrameIsRefusedWithItsReason) {
  ASSERT_TRUE(sent(running.address(), program));
  const std::string good = receiver::writeMessage(receiver::Query()).encode();
  using Case = std::tuple<const char*, std::size_t, char>;
  for (const auto& [expected, place, byte] :
       {Case{"not a frame", 0, 'X'}, Case{"version 2", 4, 2}, Case{"unknown type 99", 5, 99},
        Case{"comes from a receiver", 5, 64}, Case{"reserved", 6, 1}, Case{"too long", 9, 2}}) {
    std::string bytes = good;
    bytes[place] = byte;
    expectHas(refusalOf(bytes), expected);
  }
  // More than the receiver is going to read: the reason must arrive all the same.
  std::string flood = good;
  flood[8] = 127;
  expectHas(refusalOf(flood + std::string(1000000, 'x')), "too long");
  expectHas(refusalOf(receiver::Frame{receiver::FrameType::commit, "x"}.encode()), "malformed");
  EXPECT_TRUE(holds(running.address(), program));
}

TEST_F(ServerTest, TellsWhatHasArrivedAndNothingThatWasRefused) {
  const TemporaryFolder place;
  receiver::Server::Options options = optionsFor(place);
  std::vector<std::string> lines;
  options.arrived = [&](const std::string& line) { lines.push_back(line); };
  Running telling(options);
  EXPECT_FALSE(receiver::setProperties(telling.address(), {{"Unknown", "1"}}));
  EXPECT_TRUE(sent(telling.address(), program));
  EXPECT_TRUE(receiver::setPassword(telling.address(), "secret"));
  EXPECT_TRUE(receiver::setPassword(telling.address(), ""));
  telling.stop();
  EXPECT_EQ(lines, (std::vector<std::string>{"program \"" + program.name + "\" arrived",
                                             "password set", "password cleared"}));
}

TEST_F(ServerTest, FrameThatIsCutShortIsRefused) {
  const std::string bytes =
      receiver::writeMessage(receiver::SetPassword{"user", "secret"}).encode();
  for (const std::size_t length : {std::size_t{1}, receiver::Frame::headerSize, bytes.size() - 1}) {
    Wire wire(running.address());
    wire.send(std::string_view(bytes).substr(0, length));
    wire.endSending();
    expectHas(wire.refusal(), "middle of a frame");
  }
  EXPECT_FALSE(holdingsOf(running.address()).passwordSet);
}

TEST_F(ServerTest, WrongTransferIsRefused) {
  const receiver::AnnounceProgram announced = announcementOf(program);
  const receiver::Chunk whole{program.bytes};
  receiver::Chunk changed = whole;
  changed.bytes[777] = '!';
  using Case = std::pair<const char*, std::vector<Message>>;
  for (const auto& [expected, messages] :
       {Case{"before its description", {whole}},
        Case{"no program to be stored", {receiver::Commit()}},
        Case{"still being sent", {announced, announced}},
        Case{"More bytes", {announced, whole, receiver::Chunk{"x"}}},
        Case{"not complete", {announced, receiver::Commit()}},
        Case{"hash", {announced, changed, receiver::Commit()}}}) {
    Wire wire(running.address());
    wire.askFirst(messages, messages.size() - 1);
    wire.send(messages.back());
    expectHas(wire.refusal(), expected);
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
  EXPECT_EQ(hashing.answer(), Message(receiver::Accepted()));
  halfProgram.ask(receiver::Chunk{program.bytes});
  EXPECT_EQ(halfProgram.ask(receiver::Commit()), Message(receiver::Accepted()));
  EXPECT_TRUE(std::holds_alternative<receiver::Holdings>(idle.ask(receiver::Query())));
  EXPECT_EQ(holdingsOf(running.address()).program->name, program.name);
}

TEST_F(ServerTest, SilentConnectionIsClosedAndOneTooManyRefused) {
  TemporaryFolder other;
  auto options = optionsFor(other);
  options.frameTime = 200ms;
  options.connections = 2;
  Running impatient(options);
  Wire silent(impatient.address());
  Wire slow(impatient.address());
  slow.send("OL");
  Wire third(impatient.address());
  expectHas(third.refusal(), "too many");
  for (Wire* wire : {&silent, &slow}) {
    expectHas(wire->refusal(), "Nothing came");
    wire->close();
  }
}

TEST_F(ServerTest, PasswordIsSetCheckedAndCleared) {
  const receiver::Address address = running.address();
  EXPECT_TRUE(receiver::checkPassword(address, "anything"));
  EXPECT_TRUE(receiver::setPassword(address, "moss \u00e4"));
  EXPECT_TRUE(holdingsOf(address).passwordSet);
  EXPECT_TRUE(receiver::checkPassword(address, "moss \u00e4"));
  expectHas(receiver::checkPassword(address, "moss").message, "wrong");
  EXPECT_FALSE(receiver::setPassword(address, std::string(200, 'x')));
  EXPECT_FALSE(receiver::setPassword(address, "line\nfeed"));
  Wire wire(address);
  wire.send(receiver::SetPassword{"admin", "x"});
  expectHas(wire.refusal(), "user");

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
}

}  // namespace
}  // namespace tests
