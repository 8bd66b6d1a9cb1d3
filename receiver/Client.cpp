#include "receiver/Client.h"

#include <optional>

#include "receiver/Conversation.h"
#include "receiver/Error.h"

namespace receiver {
namespace {

class Question {
 public:
  Question(const Address& address, TimeLimits limits)
      : conversation_(std::make_shared<Conversation>(
            context_, address, limits,
            [this](const std::string& text, Conversation::Failure) { fail(text); })) {}
  ~Question() { conversation_->close(); }
  Question(const Question&) = delete;
  Question& operator=(const Question&) = delete;

  /// Waits for the answer; `answer` gets it.
  Outcome ask(const Message& message, Message& answer) {
    conversation_->open([this, &message, &answer] {
      conversation_->ask(message, [this, &answer](const Message& given) {
        answer = given;
        outcome_.emplace();
      });
    });
    // Its time limit is among its work, so that it always has some.
    while (!outcome_) context_->run_one();
    return *outcome_;
  }

 private:
  void fail(const std::string& text) { outcome_ = Outcome{Outcome::Kind::failed, text}; }

  std::shared_ptr<asio::io_context> context_ = std::make_shared<asio::io_context>();
  std::optional<Outcome> outcome_;
  std::shared_ptr<Conversation> conversation_;
};

Outcome ask(const Address& address, const Message& message, Message& answer, TimeLimits limits) {
  try {
    static_cast<void>(writeMessage(message));
  } catch (const Error& error) {
    return {Outcome::Kind::failed,
            "Nothing was sent to the receiver at " + address.text() + ". " + error.what()};
  }
  return Question(address, limits).ask(message, answer);
}

Outcome order(const Address& address, const Message& message, TimeLimits limits) {
  Message answer;
  return ask(address, message, answer, limits);
}

}  // namespace

Outcome setPassword(const Address& address, const std::string& password, TimeLimits limits) {
  return order(address, SetPassword{std::string(userName), password}, limits);
}

Outcome checkPassword(const Address& address, const std::string& password, TimeLimits limits) {
  return order(address, CheckPassword{std::string(userName), password}, limits);
}

Outcome setProperties(const Address& address, const Properties& properties, TimeLimits limits) {
  return order(address, SetProperties{properties}, limits);
}

Outcome query(const Address& address, Holdings& holdings, TimeLimits limits) {
  Message answer;
  Outcome outcome = ask(address, Query(), answer, limits);
  if (!outcome) return outcome;
  const auto* held = std::get_if<Holdings>(&answer);
  if (held == nullptr) {
    return {Outcome::Kind::failed,
            "The receiver at " + address.text() + " did not tell what it holds."};
  }
  holdings = *held;
  return outcome;
}

}  // namespace receiver
