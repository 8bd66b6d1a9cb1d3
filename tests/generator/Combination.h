#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "host/Numbers.h"
#include "tests/generator/Room.h"

namespace tests {

/// One way to answer what the program depends on.
struct Combination {
  enum Relay : unsigned { noRelay, relayAtOnce, relayWithDelays };
  enum Sensor : unsigned { noSensor, withoutTimeout, withTimeout };
  enum Movement : unsigned { notThere, downAndUp, downAlone, upAlone };
  enum Panels : unsigned { noPanel, plainPanel, projectPanel, projectPanelFirst };

  std::int16_t power = host::powerNone;  // host::enumPowerControl
  unsigned relay = noRelay;
  bool secondOff = false;
  std::int16_t lockoutOn = 0, lockoutOff = 0;   // seconds
  std::int16_t contact = addin::contactUnused;  // addin::enumContactClosure
  bool kestrum = false;
  unsigned sensor = noSensor;
  std::size_t display = 0;  // of several that differ in their commands and their lamp hours
  /// Which commands the display has of on, off, RGB and video: one bit each, in this order.
  unsigned commands = 0;
  unsigned screen = notThere, lift = notThere;
  bool mute = false;
  unsigned panels = noPanel;
  bool threeInputs = false;
  bool masterVolume = false, micAlways = false;

  bool has(unsigned command) const { return (commands >> command & 1U) != 0; }
  bool hasLockout() const {
    return power != host::powerNone && (lockoutOn != 0 || lockoutOff != 0);
  }
  /// "discrete relay second on30 off120 continue kestrum timeout P1400 | rgb video | lift mute :"
  std::string name() const;
};

/// Any three answers are met together.
std::vector<Combination> variedCombinations();

/// One of all there are.
Combination anyCombination(std::minstd_rand& random);

/// Answers so, whatever the room was before. What an answer takes away goes with all that the
/// program had of it, as it does in the wizard; nothing is built.
void answer(Room& room, const Combination& combination);

}  // namespace tests
