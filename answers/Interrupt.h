#pragma once

#include <signal.h>

#include <array>

namespace answers {

/// Notes SIGINT, SIGTERM and SIGPIPE in the place of their own effect, until it ends. A SIGPIPE,
/// which says that the reader of the output has gone, then takes its effect after all: what was
/// under way has been tidied up by then. One at a time.
class Interrupt {
 public:
  Interrupt();
  ~Interrupt();
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;

  /// Whether one of them has come, on any thread.
  static bool requested();
  /// Raises RunEnded, as refused, when one of them has come; there is nothing to tell to a reader
  /// who has gone.
  static void endRunIfRequested();

 private:
  struct Noted {
    int signal;
    struct sigaction before;
  };
  std::array<Noted, 3> noted_;
};

}  // namespace answers
