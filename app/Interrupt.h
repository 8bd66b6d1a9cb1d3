#pragma once

namespace app {

/// Notes SIGINT and SIGTERM in the place of their own effect, until it ends. One at a time.
class Interrupt {
 public:
  Interrupt();
  ~Interrupt();
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;

  /// Whether one of them has come, on any thread.
  static bool requested();
};

}  // namespace app
