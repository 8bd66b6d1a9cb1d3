#include "receiver/Conversation.h"

#include <string_view>
#include <utility>

#include "receiver/Error.h"

namespace receiver {
namespace {

std::string seconds(std::chrono::milliseconds time) {
  constexpr auto perSecond = 1000;
  if (time.count() % perSecond != 0) return std::to_string(time.count()) + " milliseconds";
  const auto count = time.count() / perSecond;
  return std::to_string(count) + (count == 1 ? " second" : " seconds");
}

}  // namespace

Conversation::Conversation(const std::shared_ptr<asio::io_context>& context, Address address,
                           TimeLimits limits, Failed failed)
    : context_(context),
      socket_(*context),
      timer_(*context),
      address_(std::move(address)),
      limits_(limits),
      failed_(std::move(failed)) {}

void Conversation::open(Opened opened) {
  opened_ = std::move(opened);
  limit(limits_.connect, receiverAt() + " did not take the connection within " +
                             seconds(limits_.connect) +
                             ". Check the address and that the receiver is switched on.");
  lookUp(context_.lock(), address_,
         [weak = weak_from_this()](const Endpoints& endpoints, const std::string& reason) {
           if (const auto self = weak.lock(); self && !self->closed_) {
             self->connect(endpoints, reason);
           }
         });
}

void Conversation::connect(const Endpoints& endpoints, const std::string& reason) {
  if (endpoints.empty()) {
    return fail("The receiver's address " + address_.text() + " is not known: " + reason +
                ". Check the address.");
  }
  asio::async_connect(
      socket_, endpoints,
      [self = shared_from_this()](const asio::error_code& error, const asio::ip::tcp::endpoint&) {
        if (self->closed_) return;
        if (error) {
          return self->fail("Cannot connect to the receiver at " + self->address_.text() + ": " +
                            error.message() +
                            ". Check the address and that the receiver is switched on.");
        }
        self->timer_.cancel();
        std::exchange(self->opened_, nullptr)();
      });
}

void Conversation::ask(const Message& message, Answered answered) {
  answered_ = std::move(answered);
  out_ = writeMessage(message).encode();
  limit(limits_.answer, receiverAt() + " did not answer within " + seconds(limits_.answer) +
                            ". Check the connection and try again.");
  // The answer is read at the same time: a receiver may refuse a frame of which it has seen the
  // beginning, and close before the rest has left.
  writing_ = true;
  asio::async_write(socket_, asio::buffer(out_),
                    [self = shared_from_this()](const asio::error_code&, std::size_t) {
                      self->writing_ = false;
                      if (self->answerWaits_ && !self->closed_) self->finishAnswer();
                    });
  readHeader();
}

void Conversation::readHeader() {
  asio::async_read(socket_, asio::buffer(header_),
                   [self = shared_from_this()](const asio::error_code& error, std::size_t) {
                     if (self->closed_) return;
                     error ? self->brokeOff(error) : self->readPayload();
                   });
}

void Conversation::readPayload() {
  try {
    const auto header = Frame::decodeHeader(std::string_view(header_.data(), header_.size()));
    frame_.type = header.type;
    frame_.payload.resize(header.length);
  } catch (const Error& error) {
    return fail("What answers at " + address_.text() +
                " is not a receiver, or one of another version. " + error.what());
  }
  asio::async_read(socket_, asio::buffer(frame_.payload),
                   [self = shared_from_this()](const asio::error_code& error, std::size_t) {
                     if (self->closed_) return;
                     error ? self->brokeOff(error) : self->finishAnswer();
                   });
}

void Conversation::finishAnswer() {
  Message message;
  try {
    message = readMessage(frame_);
  } catch (const Error& error) {
    return fail(receiverAt() + " gave an answer that is not understood. " + error.what());
  }
  if (const auto* refusal = std::get_if<Refusal>(&message)) {
    return fail(receiverAt() + " refused. " + refusal->reason, Failure::refused);
  }
  if (!std::holds_alternative<Accepted>(message) && !std::holds_alternative<Holdings>(message)) {
    return fail(receiverAt() + " gave an answer that is none.");
  }
  // What is still being written must not be touched by the next question.
  answerWaits_ = writing_;
  if (answerWaits_) return;
  timer_.cancel();
  // The next question is asked from within and sets the member anew.
  std::exchange(answered_, nullptr)(message);
}

void Conversation::limit(std::chrono::milliseconds time, const std::string& whenOver) {
  timer_.expires_after(time);
  timer_.async_wait([weak = weak_from_this(), whenOver](const asio::error_code& error) {
    const auto self = weak.lock();
    if (!self || error || self->closed_) return;
    if (self->timer_.expiry() <= asio::steady_timer::clock_type::now()) self->fail(whenOver);
  });
}

void Conversation::brokeOff(const asio::error_code& error) {
  fail("The connection to the receiver at " + address_.text() + " broke off: " + error.message() +
       ". Check the connection and try again.");
}

void Conversation::fail(const std::string& text, Failure failure) {
  const Failed failed = std::move(failed_);
  close();
  failed(text, failure);
}

void Conversation::close() {
  closed_ = true;
  opened_ = nullptr;
  answered_ = nullptr;
  failed_ = nullptr;
  timer_.cancel();
  asio::error_code ignored;
  socket_.close(ignored);
}

}  // namespace receiver
