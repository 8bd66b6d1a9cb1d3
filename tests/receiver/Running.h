#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <thread>

#include "base/Digest.h"
#include "receiver/Client.h"
#include "receiver/Messages.h"
#include "receiver/Network.h"
#include "receiver/Server.h"
#include "receiver/Transfer.h"
#include "tests/support/Files.h"
#include "tests/support/Texts.h"

namespace tests {

using namespace std::chrono_literals;

/// Listens on a free port of the loopback.
inline receiver::Server::Options optionsFor(const TemporaryFolder& folder) {
  return {.listen = {"127.0.0.1", 0}, .folder = folder.path()};
}

/// A receiver in a thread of this process.
class Running {
 public:
  explicit Running(const receiver::Server::Options& options)
      : server_(std::in_place, options), thread_([this] { server_->run(); }) {}
  ~Running() { stop(); }
  /// Ends it, waits, and gives its folder free.
  void stop() {
    if (!thread_.joinable()) return;
    server_->stop();
    thread_.join();
    server_.reset();
  }
  receiver::Address address() const { return server_->address(); }
  const std::string& warning() const { return server_->warning(); }

 private:
  std::optional<receiver::Server> server_;
  std::thread thread_;
};

/// A connection that sends what it is told, byte for byte.
class Wire {
 public:
  explicit Wire(const receiver::Address& address) : socket_(context_) {
    socket_.connect({asio::ip::make_address(address.host), address.port});
  }

  void send(std::string_view bytes) {
    // The other side may have closed already; what it answered is still to be read.
    asio::error_code ignored;
    asio::write(socket_, asio::buffer(bytes), ignored);
  }
  void send(const receiver::Message& message) { send(receiver::writeMessage(message).encode()); }
  /// The other side sees the end of what is sent.
  void endSending() { socket_.shutdown(asio::ip::tcp::socket::shutdown_send); }
  /// The next answer; a connection that ends before it fails the test.
  receiver::Message answer() {
    std::string bytes(receiver::Frame::headerSize, '\0');
    asio::read(socket_, asio::buffer(bytes));
    const auto header = receiver::Frame::decodeHeader(bytes);
    receiver::Frame frame{header.type, std::string(header.length, '\0')};
    asio::read(socket_, asio::buffer(frame.payload));
    return receiver::readMessage(frame);
  }
  /// Sends and gives the answer.
  receiver::Message ask(const receiver::Message& message) {
    send(message);
    return answer();
  }
  /// Sends the first of them; each must be accepted.
  void askFirst(const std::vector<receiver::Message>& messages, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      EXPECT_EQ(ask(messages[i]), receiver::Message(receiver::Accepted()));
    }
  }
  /// The reason of the refusal that is answered; empty for another answer.
  std::string refusal() {
    const receiver::Message message = answer();
    const auto* refusal = std::get_if<receiver::Refusal>(&message);
    return refusal ? refusal->reason : "";
  }
  /// Whether the other side has closed, once it has.
  bool isClosed() {
    char byte = 0;
    asio::error_code error;
    asio::read(socket_, asio::buffer(&byte, 1), error);
    return static_cast<bool>(error);
  }
  void close() { socket_.close(); }

 private:
  asio::io_context context_;
  asio::ip::tcp::socket socket_;
};

/// Names and bytes that depend on the number.
inline receiver::Program givenProgram(int number, std::size_t size = 50000) {
  receiver::Program program{"Room " + std::to_string(number), "", {}};
  for (std::size_t i = 0; i < size; ++i) {
    program.bytes.push_back(static_cast<char>((i * 7 + static_cast<std::size_t>(number)) % 251));
  }
  program.properties = {{"Volume Knob Control", std::to_string(number) + "d"},
                        {"Mic Mode Control", "0d"}};
  return program;
}

inline receiver::AnnounceProgram announcementOf(const receiver::Program& program) {
  return {{program.name, program.bytes.size(), base::Digest::of(program.bytes)},
          program.properties};
}

/// What the receiver holds; fails the test when it does not answer.
inline receiver::Holdings holdingsOf(const receiver::Address& address) {
  receiver::Holdings holdings;
  const receiver::Outcome outcome = receiver::query(address, holdings);
  EXPECT_TRUE(outcome) << outcome.message;
  return holdings;
}

/// Whether it holds exactly this program.
inline bool holds(const receiver::Address& address, const receiver::Program& program) {
  const receiver::Holdings holdings = holdingsOf(address);
  const receiver::AnnounceProgram expected = announcementOf(program);
  return holdings.program == expected.program && holdings.properties == expected.properties;
}

/// Sends to the end.
inline receiver::Outcome sent(const receiver::Address& address, const receiver::Program& program,
                              receiver::TimeLimits limits = {}) {
  receiver::Outcome end{receiver::Outcome::Kind::failed, "The end was not told."};
  const auto note = [&](const receiver::Outcome& outcome) { end = outcome; };
  receiver::Transfer transfer(address, program, {.progress = {}, .ended = note}, limits);
  while (transfer.poll(50ms)) {
  }
  return end;
}

}  // namespace tests
