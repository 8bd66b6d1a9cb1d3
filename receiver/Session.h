#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "receiver/Frame.h"
#include "receiver/Messages.h"
#include "receiver/Network.h"
#include "receiver/Store.h"

namespace receiver {

/// One connection on the receiver's side: reads a frame, does what it says, answers, and so on. It
/// lives by its own pending work and ends with the connection.
class Session : public std::enable_shared_from_this<Session> {
 public:
  struct Manner {
    std::chrono::milliseconds frameTime;              // in which a frame must come
    std::function<void(const std::string&)> arrived;  // hears of what is stored; nothing: nobody
  };

  /// `workers` does what takes time (flushing to the disk, hashing a password). It and the store
  /// must live until the socket's context has run out of work.
  Session(asio::ip::tcp::socket socket, Store& store, asio::thread_pool& workers, Manner manner);

  void start() { readHeader(); }
  /// Says why and ends.
  void refuse(const std::string& reason);
  /// Ends at once. What the workers have begun is still done.
  void close();

 private:
  void readHeader();
  void readPayload();
  void handle();
  void answer(const Message& message);
  void drain();

  /// Whether a read brought what it was to bring; otherwise the session ends.
  bool arrived(const asio::error_code& error, std::size_t bytes);
  void limit(std::chrono::milliseconds time);
  void timeIsUp();
  /// Runs `work` on a worker, and answers with Accepted or with the Error that it raised. When it
  /// raised none, `arrival` is told first; empty: nothing is.
  void doApart(std::function<void()> work, const std::string& arrival = {});

  void take(const AnnounceProgram& message);
  void take(const Chunk& message);
  void take(const Commit&);
  void take(const SetPassword& message);
  void take(const CheckPassword& message);
  void take(const Query&);
  void take(const SetProperties& message);
  template <typename Answer>
  void take(const Answer&);

  asio::ip::tcp::socket socket_;
  asio::steady_timer timer_;
  Store& store_;
  asio::thread_pool& workers_;
  Manner manner_;
  std::array<char, Frame::headerSize> header_{};
  Frame frame_;
  std::string out_;
  std::unique_ptr<Store::Upload> upload_;
  std::string announced_;  // the name of the program that is being sent
  bool ending_ = false;
};

}  // namespace receiver
