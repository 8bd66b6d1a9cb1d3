#include "receiver/Client.h"

#include <optional>
#include <utility>

#include "receiver/Conversation.h"
#include "receiver/Error.h"

namespace receiver {

struct Request::Impl {
  Impl(const Address& to, Message sentMessage, TimeLimits limits)
      : address(to),
        message(std::move(sentMessage)),
        conversation(std::make_shared<Conversation>(
            context, to, limits,
            [this](const std::string& text, Conversation::Failure) { fail(text); })) {}
  ~Impl() { conversation->close(); }
  Impl(const Impl&) = delete;
  Impl& operator=(const Impl&) = delete;

  void begin();
  void fail(const std::string& text) { outcome = Outcome{Outcome::Kind::failed, text}; }

  Address address;
  Message message;
  Message answer;
  std::shared_ptr<asio::io_context> context = std::make_shared<asio::io_context>();
  std::optional<Outcome> outcome;
  std::shared_ptr<Conversation> conversation;
};

void Request::Impl::begin() {
  try {
    static_cast<void>(writeMessage(message));
  } catch (const Error& error) {
    return fail("Nothing was sent to the receiver at " + address.text() + ". " + error.what());
  }
  conversation->open([this] {
    conversation->ask(message, [this](const Message& given) {
      answer = given;
      outcome.emplace();
    });
  });
}

Request::Request(const Address& address, const Message& message, TimeLimits limits)
    : impl_(std::make_unique<Impl>(address, message, limits)) {
  impl_->begin();
}

Request::~Request() = default;

bool Request::poll(std::chrono::milliseconds wait) {
  if (!impl_->outcome) {
    impl_->context->restart();
    impl_->context->run_one_for(wait);
  }
  return !impl_->outcome;
}

void Request::cancel() {
  if (impl_->outcome) return;
  impl_->outcome = Outcome{Outcome::Kind::cancelled, "The question to the receiver at " +
                                                         impl_->address.text() + " was cancelled."};
  impl_->conversation->close();
}

Outcome Request::wait() {
  constexpr std::chrono::milliseconds anyTime{1000};
  while (poll(anyTime)) {
  }
  return *impl_->outcome;
}

const Message& Request::answer() const { return impl_->answer; }

Request passwordRequest(const Address& address, const std::string& password, TimeLimits limits) {
  return Request(address, SetPassword{std::string(userName), password}, limits);
}

Outcome setPassword(const Address& address, const std::string& password, TimeLimits limits) {
  return passwordRequest(address, password, limits).wait();
}

Outcome checkPassword(const Address& address, const std::string& password, TimeLimits limits) {
  return Request(address, CheckPassword{std::string(userName), password}, limits).wait();
}

Outcome setProperties(const Address& address, const Properties& properties, TimeLimits limits) {
  return Request(address, SetProperties{properties}, limits).wait();
}

Outcome query(const Address& address, Holdings& holdings, TimeLimits limits) {
  Request request(address, Query(), limits);
  Outcome outcome = request.wait();
  if (!outcome) return outcome;
  const auto* held = std::get_if<Holdings>(&request.answer());
  if (held == nullptr) {
    return {Outcome::Kind::failed,
            "The receiver at " + address.text() + " did not tell what it holds."};
  }
  holdings = *held;
  return outcome;
}

}  // namespace receiver
