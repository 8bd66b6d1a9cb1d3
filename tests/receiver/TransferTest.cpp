#include <algorithm>

#include "receiver/Error.h"
#include "receiver/Store.h"
#include "tests/receiver/Running.h"

namespace tests {
namespace {

using receiver::Outcome;

class TransferTest : public testing::Test {
 protected:
  TemporaryFolder folder;
  receiver::Program program = givenProgram(1);
};

TEST_F(TransferTest, ProgramArrivesAndOutlivesTheReceiver) {
  {
    Running running(optionsFor(folder));
    EXPECT_EQ(holdingsOf(running.address()), receiver::Holdings());
    std::vector<std::uint64_t> steps;
    int ends = 0;
    const auto progress = [&](std::uint64_t sent, std::uint64_t total) {
      EXPECT_EQ(total, program.bytes.size());
      steps.push_back(sent);
    };
    const auto ended = [&](const Outcome& outcome) {
      EXPECT_TRUE(outcome) << outcome.message;
      ++ends;
    };
    receiver::Transfer transfer(running.address(), program, {.progress = progress, .ended = ended});
    EXPECT_EQ(ends, 0);
    while (transfer.poll(50ms)) {
    }
    EXPECT_FALSE(transfer.poll());
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(std::ranges::is_sorted(steps));
    ASSERT_FALSE(steps.empty());
    EXPECT_EQ(steps.back(), program.bytes.size());
    EXPECT_TRUE(holds(running.address(), program));
  }
  EXPECT_EQ(receiver::Store(folder.path()).program(), program.bytes);
  Running again(optionsFor(folder));
  EXPECT_TRUE(holds(again.address(), program));
}

TEST_F(TransferTest, CancelledOneLeavesTheOldProgram) {
  Running running(optionsFor(folder));
  ASSERT_TRUE(sent(running.address(), program));
  std::vector<Outcome> ends;
  std::unique_ptr<receiver::Transfer> transfer;
  const auto cancel = [&](auto, auto) { transfer->cancel(); };
  const auto ended = [&](const Outcome& outcome) {
    ends.push_back(outcome);
    transfer.reset();
  };
  transfer = std::make_unique<receiver::Transfer>(
      running.address(), givenProgram(2, 500000),
      receiver::Transfer::Handlers{.progress = cancel, .ended = ended});
  while (transfer && transfer->poll(50ms)) {
  }
  ASSERT_EQ(ends.size(), 1U);
  EXPECT_EQ(ends[0].kind, Outcome::Kind::cancelled);
  EXPECT_TRUE(holds(running.address(), program));
  EXPECT_TRUE(sent(running.address(), givenProgram(3)));
}

TEST_F(TransferTest, DestroyedOneTellsNothing) {
  Running running(optionsFor(folder));
  for (const int polls : {0, 1, 3, 6}) {
    receiver::Transfer transfer(running.address(), givenProgram(2, 500000),
                                {.progress = {}, .ended = [](auto&) { ADD_FAILURE(); }});
    for (int i = 0; i < polls; ++i) transfer.poll();
  }
  EXPECT_TRUE(sent(running.address(), program));
}

TEST_F(TransferTest, ProgramThatNoReceiverTakesIsRaisedAtOnce) {
  const receiver::Address nowhere{"127.0.0.1", 1};
  EXPECT_THROW(receiver::Transfer(nowhere, {"Room", "", {}}, {}), receiver::Error);
  EXPECT_THROW(receiver::Transfer(nowhere, {"", "x", {}}, {}), receiver::Error);
  EXPECT_THROW(receiver::Transfer(nowhere, {"\xff", "x", {}}, {}), receiver::Error);
}

TEST_F(TransferTest, FailureNamesTheAddress) {
  receiver::Address address;
  {
    Running running(optionsFor(folder));
    address = running.address();
  }
  receiver::Holdings holdings;
  for (const Outcome& outcome :
       {sent(address, program), receiver::setPassword(address, "x"), query(address, holdings),
        sent({"no-such-host.invalid", 80}, program, {.connect = 20s})}) {
    EXPECT_EQ(outcome.kind, Outcome::Kind::failed);
    const bool named = outcome.message.find(address.text()) != std::string::npos ||
                       outcome.message.find("no-such-host.invalid:80") != std::string::npos;
    EXPECT_TRUE(named) << outcome.message;
  }
}

/// Takes one connection and says what it is told, or nothing.
class Stranger {
 public:
  explicit Stranger(const std::string& words)
      : thread_([this, words] {
          acceptor_.accept(socket_);
          asio::write(socket_, asio::buffer(words));
        }) {}
  ~Stranger() { thread_.join(); }
  receiver::Address address() const { return {"127.0.0.1", acceptor_.local_endpoint().port()}; }

 private:
  asio::io_context context_;
  asio::ip::tcp::acceptor acceptor_{context_, {asio::ip::make_address("127.0.0.1"), 0}};
  asio::ip::tcp::socket socket_{context_};
  std::thread thread_;
};

TEST_F(TransferTest, OneThatDoesNotAnswerEndsTheWait) {
  Stranger silent("");
  const receiver::TimeLimits limits{.answer = 100ms};
  expectHas(sent(silent.address(), program, limits).message, "within 100 milliseconds");
}

TEST_F(TransferTest, OneThatIsNoReceiverIsToldApart) {
  std::string otherVersion = receiver::writeMessage(receiver::Accepted()).encode();
  otherVersion[4] = 2;
  using Case = std::pair<std::string, const char*>;
  for (const auto& [words, expected] :
       {Case{"HTTP/1.1 400 Bad Request\r\n", "not a receiver"}, Case{otherVersion, "version 2"},
        Case{receiver::writeMessage(receiver::Query()).encode(), "an answer that is none"},
        Case{receiver::Frame{receiver::FrameType::holdings, "{}"}.encode(), "not understood"}}) {
    Stranger stranger(words);
    const std::string message = sent(stranger.address(), program).message;
    expectHas(message, expected);
  }
}

}  // namespace
}  // namespace tests
