#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "receiver/Address.h"

namespace receiver {

/// A receiver: it listens, and keeps in its folder what it is sent. docs/receiver-protocol.md tells
/// what it answers. Its connections do not wait for each other.
class Server {
 public:
  struct Options {
    Address listen{"127.0.0.1", defaultPort};    // port 0: any that is free
    std::filesystem::path folder;                // made when it is not there
    std::chrono::milliseconds frameTime{30000};  // in which a frame must come, and an answer leave
    std::size_t connections = 64;                // at the same time; one more is refused
    bool stopOnSignals = false;                  // SIGTERM and SIGINT end `run`
    /// Told from within `run`, in a line, what has arrived and is stored; must not raise.
    std::function<void(const std::string& line)> arrived = {};
  };

  /// Listens when it returns. Raises Error when the address is taken or is none of this machine, or
  /// when the folder cannot be used (see Store).
  explicit Server(const Options& options);
  ~Server();

  /// Where it listens, with the port that was picked.
  const Address& address() const;
  std::uint16_t port() const { return address().port; }
  /// What was found damaged in the folder, a sentence; empty: nothing.
  const std::string& warning() const;

  /// Serves until it is stopped. What is being stored then is stored whole or not at all, and the
  /// connections are closed. Runs once.
  void run();
  /// From any thread, before or during `run`, but not from a signal handler.
  void stop();

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace receiver
