#include "answers/Interrupt.h"

#include <atomic>

#include "answers/RunEnded.h"

namespace answers {
namespace {

std::atomic<int> noted = 0;  // the signal that came first; 0: none
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler writes it");

void note(int signal) {
  int none = 0;
  noted.compare_exchange_strong(none, signal);
}

}  // namespace

Interrupt::Interrupt() : noted_{{{SIGINT, {}}, {SIGTERM, {}}, {SIGPIPE, {}}}} {
  noted = 0;
  struct sigaction action {};
  action.sa_handler = note;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  for (Noted& each : noted_) sigaction(each.signal, &action, &each.before);
}

Interrupt::~Interrupt() {
  for (const Noted& each : noted_) sigaction(each.signal, &each.before, nullptr);
  if (noted == SIGPIPE) raise(SIGPIPE);
}

bool Interrupt::requested() { return noted != 0; }

void Interrupt::endRunIfRequested() {
  if (requested()) throw RunEnded(RunEnded::refused, noted == SIGPIPE ? "" : "interrupted");
}

}  // namespace answers
