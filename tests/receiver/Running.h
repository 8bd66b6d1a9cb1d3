#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include "receiver/Address.h"
#include "receiver/Client.h"
#include "receiver/Messages.h"
#include "receiver/Network.h"
#include "receiver/Server.h"
#include "receiver/Transfer.h"

namespace tests {

using namespace std::chrono_literals;

/// A folder that goes with the object.
class Folder {
 public:
  Folder();
  ~Folder();
  std::filesystem::path path;
};

/// A receiver in a thread of this process.
class Running {
 public:
  explicit Running(const receiver::Server::Options& options);
  ~Running();
  /// Ends it, waits, and gives its folder free.
  void stop();

  receiver::Address address() const { return server_->address(); }
  const std::string& warning() const { return server_->warning(); }

 private:
  std::optional<receiver::Server> server_;
  std::thread thread_;
};

/// Listens on a free port of the loopback.
receiver::Server::Options optionsFor(const Folder& folder);

/// A connection that sends what it is told, byte for byte.
class Wire {
 public:
  explicit Wire(const receiver::Address& address);

  void send(std::string_view bytes);
  void send(const receiver::Message& message);
  /// The other side sees the end of what is sent.
  void endSending();
  /// The next answer; fails the test without one.
  receiver::Message answer();
  /// Sends and gives the answer.
  receiver::Message ask(const receiver::Message& message);
  /// Whether the other side has closed, once it has.
  bool isClosed();
  void close();

 private:
  asio::io_context context_;
  asio::ip::tcp::socket socket_;
};

/// Names and bytes that depend on the number.
receiver::Program givenProgram(int number, std::size_t size = 50000);
receiver::AnnounceProgram announcementOf(const receiver::Program& program);

/// What the receiver holds; fails the test when it does not answer.
receiver::Holdings holdingsOf(const receiver::Address& address);
/// Whether it holds exactly this program.
bool holds(const receiver::Address& address, const receiver::Program& program);

/// Sends to the end.
receiver::Outcome sent(const receiver::Address& address, const receiver::Program& program,
                       receiver::TimeLimits limits = {});

/// The reason of a refusal; empty for another answer.
std::string reasonOf(const receiver::Message& message);

}  // namespace tests
