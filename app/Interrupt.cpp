#include "app/Interrupt.h"

#include <signal.h>

#include <atomic>

namespace app {
namespace {

std::atomic<bool> interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler writes it");

void note(int) { interrupted = true; }

void setHandler(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  sigaction(SIGINT, &action, nullptr);
  sigaction(SIGTERM, &action, nullptr);
}

}  // namespace

Interrupt::Interrupt() {
  interrupted = false;
  setHandler(note);
}

Interrupt::~Interrupt() { setHandler(SIG_DFL); }

bool Interrupt::requested() { return interrupted; }

}  // namespace app
