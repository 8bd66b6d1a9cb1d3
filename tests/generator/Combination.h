#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/generator/Room.h"

namespace tests {

/// One way to answer what decides about power, lockout, contact and monitoring.
struct Combination {
  enum Sensor : std::int16_t { none, withoutTimeout, withTimeout };

  std::int16_t power;  // host::enumPowerControl
  bool relay, secondOff;
  std::int16_t lockoutOn, lockoutOff;  // seconds
  std::int16_t contact;                // addin::enumContactClosure
  bool kestrum;
  Sensor sensor;
  /// Which commands the display has of on, off, RGB and video: one bit each, in this order.
  unsigned commands;

  bool has(unsigned command) const { return (commands >> command & 1U) != 0; }
  bool hasLockout() const {
    return power != host::powerNone && (lockoutOn != 0 || lockoutOff != 0);
  }
  /// "discrete relay second on30 off120 continue kestrum timeout | rgb video :"
  std::string name() const;
};

std::vector<Combination> everyCombination();

/// Answers so, whatever the room was before.
void answer(Room& room, const Combination& combination);

}  // namespace tests
