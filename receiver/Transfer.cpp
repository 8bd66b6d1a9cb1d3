#include "receiver/Transfer.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/Digest.h"
#include "receiver/Conversation.h"
#include "receiver/Network.h"

namespace receiver {
namespace {

constexpr std::size_t chunkSize = 16U << 10U;

AnnounceProgram announcementOf(const Program& program) {
  AnnounceProgram message{{program.name, program.bytes.size(), base::Digest::of(program.bytes)},
                          program.properties};
  static_cast<void>(writeMessage(message));  // raises for what no receiver takes
  return message;
}

}  // namespace

struct Transfer::Impl {
  Impl(const Address& to, Program sentProgram, Handlers calls, TimeLimits limits)
      : address(to),
        program(std::move(sentProgram)),
        handlers(std::move(calls)),
        conversation(std::make_shared<Conversation>(
            context, to, limits, [this](const std::string& text, Conversation::Failure failure) {
              fail(text, failure);
            })) {}
  ~Impl() { conversation->close(); }
  Impl(const Impl&) = delete;
  Impl& operator=(const Impl&) = delete;

  void begin();
  void sendChunk();
  void commit();
  void fail(const std::string& text, Conversation::Failure failure);
  void work(std::chrono::milliseconds wait);
  bool tell();

  Address address;
  Program program;
  Handlers handlers;
  std::shared_ptr<asio::io_context> context = std::make_shared<asio::io_context>();
  std::shared_ptr<Conversation> conversation;
  std::size_t sent = 0;
  std::size_t told = 0;
  std::optional<Outcome> outcome;
  bool committing = false;
  bool polling = false;
  bool ended = false;
  bool destroyed = false;
};

void Transfer::Impl::begin() {
  conversation->open([this, announcement = announcementOf(program)] {
    conversation->ask(announcement, [this](const Message&) { sendChunk(); });
  });
}

void Transfer::Impl::sendChunk() {
  if (sent == program.bytes.size()) return commit();
  const std::size_t size = std::min(chunkSize, program.bytes.size() - sent);
  conversation->ask(Chunk{program.bytes.substr(sent, size)}, [this, size](const Message&) {
    sent += size;
    sendChunk();
  });
}

void Transfer::Impl::commit() {
  committing = true;
  conversation->ask(Commit(), [this](const Message&) {
    outcome = Outcome{Outcome::Kind::done, ""};
    conversation->close();
  });
}

void Transfer::Impl::fail(const std::string& text, Conversation::Failure failure) {
  const bool uncertain = committing && failure == Conversation::Failure::broken;
  outcome =
      Outcome{Outcome::Kind::failed,
              text + (uncertain ? " The receiver holds the new program or the old one." : "")};
}

void Transfer::Impl::work(std::chrono::milliseconds wait) {
  if (outcome) return;
  context->restart();
  if (wait.count() > 0) context->run_one_for(wait);
  // A fast receiver must not keep the caller here for the whole program.
  while (!outcome && sent == told && context->poll_one() > 0) {
  }
}

/// The handlers are called from here and not while the context works, so that they may do anything.
bool Transfer::Impl::tell() {
  if (sent != told) {
    told = sent;
    if (handlers.progress) handlers.progress(sent, program.bytes.size());
  }
  if (!outcome || ended || destroyed) return !ended && !destroyed;
  ended = true;
  if (handlers.ended) handlers.ended(*outcome);
  return false;
}

Transfer::Transfer(const Address& address, Program program, Handlers handlers, TimeLimits limits)
    : impl_(std::make_shared<Impl>(address, std::move(program), std::move(handlers), limits)) {
  impl_->begin();
}

Transfer::~Transfer() {
  impl_->destroyed = true;
  impl_->conversation->close();
}

bool Transfer::poll(std::chrono::milliseconds wait) {
  const std::shared_ptr<Impl> impl = impl_;
  if (impl->polling) return !impl->ended;
  // A handler may raise.
  const auto done = [](Impl* busy) { busy->polling = false; };
  const std::unique_ptr<Impl, decltype(done)> guard(impl.get(), done);
  impl->polling = true;
  impl->work(wait);
  return impl->tell();
}

void Transfer::cancel() {
  if (impl_->outcome || impl_->committing) return;
  impl_->outcome = Outcome{Outcome::Kind::cancelled, "The transfer to the receiver at " +
                                                         impl_->address.text() + " was cancelled."};
  impl_->conversation->close();
}

}  // namespace receiver
