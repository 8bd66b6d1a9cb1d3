#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "receiver/Address.h"
#include "receiver/Lookup.h"
#include "receiver/Messages.h"
#include "receiver/Network.h"
#include "receiver/Outcome.h"

namespace receiver {

/// One connection to a receiver, seen from the other side: a message, its answer, and so on. All
/// that it tells comes from its context, never from within a call.
class Conversation : public std::enable_shared_from_this<Conversation> {
 public:
  using Opened = std::function<void()>;
  using Answered = std::function<void(const Message&)>;
  /// Broken: it is not known what the receiver did with the last message.
  enum class Failure { broken, refused };
  using Failed = std::function<void(const std::string& text, Failure failure)>;

  /// The context must not be given up before `close`. `failed` is called once at most; the
  /// conversation is closed then. A refusal is a failure too.
  Conversation(const std::shared_ptr<asio::io_context>& context, Address address, TimeLimits limits,
               Failed failed);

  void open(Opened opened);
  /// One at a time, after `opened` or `answered`. `answered` gets Accepted or Holdings.
  void ask(const Message& message, Answered answered);
  /// Nothing is told any more.
  void close();

 private:
  void connect(const Endpoints& endpoints, const std::string& reason);
  void readHeader();
  void readPayload();
  void finishAnswer();
  void limit(std::chrono::milliseconds time, const std::string& whenOver);
  void brokeOff(const asio::error_code& error);
  void fail(const std::string& text, Failure failure = Failure::broken);
  std::string receiverAt() const { return "The receiver at " + address_.text(); }

  std::weak_ptr<asio::io_context> context_;
  asio::ip::tcp::socket socket_;
  asio::steady_timer timer_;
  Address address_;
  TimeLimits limits_;
  Opened opened_;
  Answered answered_;
  Failed failed_;
  std::string out_;
  std::array<char, Frame::headerSize> header_{};
  Frame frame_;
  bool writing_ = false;
  bool answerWaits_ = false;
  bool closed_ = false;
};

}  // namespace receiver
