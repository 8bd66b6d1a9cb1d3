#include <algorithm>
#include <memory>
#include <thread>
#include <vector>

#include "receiver/Error.h"
#include "receiver/Store.h"
#include "tests/receiver/Running.h"

namespace tests {
namespace {

using receiver::Outcome;

class TransferTest : public testing::Test {
 protected:
  Folder folder;
  receiver::Program program = givenProgram(1);
};

TEST_F(TransferTest, ProgramArrivesAndOutlivesTheReceiver) {
  {
    Running running(optionsFor(folder));
    EXPECT_EQ(holdingsOf(running.address()), receiver::Holdings());
    std::vector<std::uint64_t> steps;
    int ends = 0;
    receiver::Transfer transfer(running.address(), program,
                                {.progress =
                                     [&](std::uint64_t sent, std::uint64_t total) {
                                       EXPECT_EQ(total, program.bytes.size());
                                       steps.push_back(sent);
                                     },
                                 .ended =
                                     [&](const Outcome& outcome) {
                                       EXPECT_TRUE(outcome) << outcome.message;
                                       ++ends;
                                     }});
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
  EXPECT_EQ(receiver::Store(folder.path).program(), program.bytes);
  Running again(optionsFor(folder));
  EXPECT_TRUE(holds(again.address(), program));
  const receiver::Program next = givenProgram(2, 1);
  EXPECT_TRUE(sent(again.address(), next));
  EXPECT_TRUE(holds(again.address(), next));
}

TEST_F(TransferTest, CancelledOneLeavesTheOldProgram) {
  Running running(optionsFor(folder));
  ASSERT_TRUE(sent(running.address(), program));
  std::vector<Outcome> ends;
  std::unique_ptr<receiver::Transfer> transfer;
  transfer = std::make_unique<receiver::Transfer>(
      running.address(), givenProgram(2, 500000),
      receiver::Transfer::Handlers{.progress = [&](auto, auto) { transfer->cancel(); },
                                   .ended =
                                       [&](const Outcome& outcome) {
                                         ends.push_back(outcome);
                                         transfer.reset();
                                       }});
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

/// Takes connections and says what it is told, or nothing.
class Stranger {
 public:
  explicit Stranger(std::string words)
      : acceptor_(context_, {asio::ip::make_address("127.0.0.1"), 0}), words_(std::move(words)) {
    accept();
    thread_ = std::thread([this] { context_.run(); });
  }
  ~Stranger() {
    context_.stop();
    thread_.join();
  }
  receiver::Address address() const { return {"127.0.0.1", acceptor_.local_endpoint().port()}; }

 private:
  void accept() {
    acceptor_.async_accept([this](asio::error_code error, asio::ip::tcp::socket socket) {
      if (error) return;
      asio::write(socket, asio::buffer(words_), error);
      sockets_.push_back(std::move(socket));
      accept();
    });
  }

  asio::io_context context_;
  asio::ip::tcp::acceptor acceptor_;
  std::string words_;
  std::vector<asio::ip::tcp::socket> sockets_;
  std::thread thread_;
};

TEST_F(TransferTest, OneThatDoesNotAnswerEndsTheWait) {
  Stranger silent("");
  const receiver::TimeLimits limits{.answer = 100ms};
  EXPECT_NE(sent(silent.address(), program, limits).message.find("within 100 milliseconds"),
            std::string::npos);
  EXPECT_NE(receiver::setPassword(silent.address(), "", limits).message.find("did not answer"),
            std::string::npos);
}

TEST_F(TransferTest, OneThatIsNoReceiverIsToldApart) {
  std::string otherVersion = receiver::writeMessage(receiver::Accepted()).encode();
  otherVersion[4] = 2;
  const std::string accepted = receiver::writeMessage(receiver::Accepted()).encode();
  struct Case {
    std::string words;
    const char* expected;
  };
  for (const Case& c :
       {Case{"HTTP/1.1 400 Bad Request\r\n", "not a receiver"},
        {otherVersion, "version 2"},
        {receiver::writeMessage(receiver::Query()).encode(), "an answer that is none"},
        {receiver::Frame{receiver::FrameType::holdings, "{}"}.encode(), "not understood"}}) {
    Stranger stranger(c.words);
    const std::string message = sent(stranger.address(), program).message;
    EXPECT_NE(message.find(c.expected), std::string::npos) << message;
  }
  Stranger agreeable(accepted);
  receiver::Holdings holdings;
  EXPECT_FALSE(query(agreeable.address(), holdings));
}

}  // namespace
}  // namespace tests
