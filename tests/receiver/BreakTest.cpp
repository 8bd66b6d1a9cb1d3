#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "receiver/Error.h"
#include "receiver/Store.h"
#include "tests/receiver/Running.h"

namespace tests {
namespace {

std::vector<receiver::Message> transferOf(const receiver::Program& program, std::size_t chunk) {
  std::vector<receiver::Message> messages{announcementOf(program)};
  for (std::size_t i = 0; i < program.bytes.size(); i += chunk) {
    messages.push_back(receiver::Chunk{program.bytes.substr(i, chunk)});
  }
  messages.push_back(receiver::Commit());
  return messages;
}

class BreakTest : public testing::Test {
 protected:
  TemporaryFolder folder;
  receiver::Program before = givenProgram(1);
  receiver::Program after = givenProgram(2);
  std::vector<receiver::Message> messages = transferOf(after, 10000);
};

TEST_F(BreakTest, AnywhereLeavesTheOldProgram) {
  after = givenProgram(2, 300);
  std::string bytes;
  for (const auto& message : transferOf(after, 100)) {
    bytes += receiver::writeMessage(message).encode();
  }
  Running running(optionsFor(folder));
  ASSERT_TRUE(sent(running.address(), before));
  for (std::size_t length = 0; length < bytes.size(); length += 7) {
    Wire wire(running.address());
    wire.send(std::string_view(bytes).substr(0, length));
    if (length % 2 == 0) {
      wire.endSending();
      while (!wire.isClosed()) {
      }
    }
    wire.close();
  }
  EXPECT_TRUE(holds(running.address(), before));
  EXPECT_TRUE(sent(running.address(), after));
  running.stop();
  EXPECT_EQ(receiver::Store(folder.path()).program(), after.bytes);
  // Every broken transfer has taken away what it had written.
  for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
    EXPECT_NE(entry.path().extension(), ".saving") << entry.path();
  }
}

/// A receiver in a process of its own, which can be killed.
class Child {
 public:
  explicit Child(const TemporaryFolder& folder) {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    process_ = fork();
    if (process_ == 0) serve(folder, ends[1]);
    close(ends[1]);
    address_.host = "127.0.0.1";
    EXPECT_GT(read(ends[0], &address_.port, sizeof address_.port), 0);
    close(ends[0]);
  }
  ~Child() { end(SIGKILL); }

  /// The status with which it ended.
  int end(int signal) {
    int status = 0;
    if (process_ <= 0) return status;
    kill(process_, signal);
    waitpid(std::exchange(process_, -1), &status, 0);
    return status;
  }
  const receiver::Address& address() const { return address_; }

 private:
  [[noreturn]] static void serve(const TemporaryFolder& folder, int out) {
    try {
      auto options = optionsFor(folder);
      options.stopOnSignals = true;
      receiver::Server server(options);
      const std::uint16_t port = server.port();
      if (write(out, &port, sizeof port) == sizeof port) server.run();
      _exit(0);
    } catch (...) {
      _exit(1);
    }
  }

  pid_t process_ = -1;
  receiver::Address address_;
};

TEST_F(BreakTest, ReceiverKilledWhileItStoresHasOneOfThemWhole) {
  for (int round = 0; round < 12; ++round) {
    Child child(folder);
    ASSERT_TRUE(sent(child.address(), before));
    Wire wire(child.address());
    wire.askFirst(messages, messages.size() - 1);
    wire.send(messages.back());
    std::this_thread::sleep_for(round * 300us);
    child.end(SIGKILL);
    receiver::Store store(folder.path());
    EXPECT_EQ(store.warning(), "");
    const std::string bytes = store.program();
    EXPECT_TRUE(bytes == before.bytes || bytes == after.bytes);
  }
}

TEST_F(BreakTest, TransferToAReceiverThatIsKilledIsToldAndTheNextWorks) {
  Child child(folder);
  std::vector<receiver::Outcome> ends;
  receiver::Transfer transfer(
      child.address(), givenProgram(2, 4000000),
      {.progress = [&](std::uint64_t, std::uint64_t) { child.end(SIGKILL); },
       .ended = [&](const receiver::Outcome& outcome) { ends.push_back(outcome); }});
  while (transfer.poll(10ms)) {
  }
  ASSERT_EQ(ends.size(), 1U);
  EXPECT_EQ(ends[0].kind, receiver::Outcome::Kind::failed);
  expectHas(ends[0].message, "broke off");
  Child next(folder);
  Wire idle(next.address());
  EXPECT_TRUE(sent(next.address(), after));
  EXPECT_EQ(next.end(SIGTERM), 0) << "a signal ends it cleanly";
}

TEST_F(BreakTest, DamagedFilesAreToldAndMended) {
  {
    Running running(optionsFor(folder));
    ASSERT_TRUE(sent(running.address(), before));
    ASSERT_TRUE(receiver::setPassword(running.address(), "secret"));
  }
  std::filesystem::resize_file(folder / "program", 20000);
  folder.write("password", "nonsense");
  folder.write(".program-7.saving", "left behind");
  Running running(optionsFor(folder));
  expectHas(running.warning(), "program is damaged");
  expectHas(running.warning(), "password is damaged");
  EXPECT_FALSE(std::filesystem::exists(folder / ".program-7.saving"));
  EXPECT_EQ(holdingsOf(running.address()), (receiver::Holdings{{}, true, {}}));
  EXPECT_FALSE(receiver::checkPassword(running.address(), "nonsense"));
  EXPECT_TRUE(receiver::setPassword(running.address(), ""));
  EXPECT_TRUE(sent(running.address(), before));
  EXPECT_TRUE(holds(running.address(), before));
}

TEST_F(BreakTest, FolderBelongsToOneReceiver) {
  Running running(optionsFor(folder));
  EXPECT_THROW(receiver::Server server(optionsFor(folder)), receiver::Error);
  TemporaryFolder other;
  auto taken = optionsFor(other);
  taken.listen = running.address();
  EXPECT_THROW(receiver::Server server(taken), receiver::Error);
  taken.folder = "/proc/nowhere";
  EXPECT_THROW(receiver::Server server(taken), receiver::Error);
}

}  // namespace
}  // namespace tests
