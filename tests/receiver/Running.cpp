#include "tests/receiver/Running.h"

#include <stdlib.h>

#include "receiver/Digest.h"

namespace tests {

Folder::Folder() {
  std::string name = (std::filesystem::temp_directory_path() / "receiverXXXXXX").string();
  path = mkdtemp(name.data());
}

Folder::~Folder() {
  std::error_code ignored;
  std::filesystem::remove_all(path, ignored);
}

Running::Running(const receiver::Server::Options& options)
    : server_(std::in_place, options), thread_([this] { server_->run(); }) {}

Running::~Running() { stop(); }

void Running::stop() {
  if (!thread_.joinable()) return;
  server_->stop();
  thread_.join();
  server_.reset();
}

receiver::Server::Options optionsFor(const Folder& folder) {
  receiver::Server::Options options;
  options.listen.port = 0;
  options.folder = folder.path;
  return options;
}

Wire::Wire(const receiver::Address& address) : socket_(context_) {
  socket_.connect({asio::ip::make_address(address.host), address.port});
}

void Wire::send(std::string_view bytes) {
  // The other side may have closed already; what it answered is still to be read.
  asio::error_code ignored;
  asio::write(socket_, asio::buffer(bytes), ignored);
}

void Wire::send(const receiver::Message& message) {
  send(receiver::writeMessage(message).encode());
}

void Wire::endSending() { socket_.shutdown(asio::ip::tcp::socket::shutdown_send); }

receiver::Message Wire::answer() {
  std::string header(receiver::Frame::headerSize, '\0');
  asio::error_code error;
  asio::read(socket_, asio::buffer(header), error);
  EXPECT_FALSE(error) << error.message();
  if (error) return {};
  receiver::Frame frame{receiver::Frame::decodeHeader(header).type, ""};
  frame.payload.resize(receiver::Frame::decodeHeader(header).length);
  asio::read(socket_, asio::buffer(frame.payload), error);
  EXPECT_FALSE(error) << error.message();
  return receiver::readMessage(frame);
}

receiver::Message Wire::ask(const receiver::Message& message) {
  send(message);
  return answer();
}

bool Wire::isClosed() {
  char byte = 0;
  asio::error_code error;
  asio::read(socket_, asio::buffer(&byte, 1), error);
  return static_cast<bool>(error);
}

void Wire::close() { socket_.close(); }

receiver::Program givenProgram(int number, std::size_t size) {
  receiver::Program program;
  program.name = "Room " + std::to_string(number);
  for (std::size_t i = 0; i < size; ++i) {
    program.bytes.push_back(static_cast<char>((i * 7 + static_cast<std::size_t>(number)) % 251));
  }
  program.properties = {{"Volume Knob Control", std::to_string(number) + "d"},
                        {"Mic Mode Control", "0d"}};
  return program;
}

receiver::AnnounceProgram announcementOf(const receiver::Program& program) {
  return {{program.name, program.bytes.size(), receiver::Digest::of(program.bytes)},
          program.properties};
}

receiver::Holdings holdingsOf(const receiver::Address& address) {
  receiver::Holdings holdings;
  const receiver::Outcome outcome = receiver::query(address, holdings);
  EXPECT_TRUE(outcome) << outcome.message;
  return holdings;
}

bool holds(const receiver::Address& address, const receiver::Program& program) {
  const receiver::Holdings holdings = holdingsOf(address);
  const receiver::AnnounceProgram expected = announcementOf(program);
  return holdings.program == expected.program && holdings.properties == expected.properties;
}

receiver::Outcome sent(const receiver::Address& address, const receiver::Program& program,
                       receiver::TimeLimits limits) {
  receiver::Outcome end{receiver::Outcome::Kind::failed, "The end was not told."};
  receiver::Transfer transfer(
      address, program,
      {.progress = {}, .ended = [&](const receiver::Outcome& outcome) { end = outcome; }}, limits);
  while (transfer.poll(50ms)) {
  }
  return end;
}

std::string reasonOf(const receiver::Message& message) {
  const auto* refusal = std::get_if<receiver::Refusal>(&message);
  return refusal == nullptr ? "" : refusal->reason;
}

}  // namespace tests
