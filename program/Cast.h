#pragma once

#include "program/Program.h"

/// What a room is made of. A unit plays the part that its name gives it; the standard commands are
/// those of its driver.
namespace program {

enum class Role {
  receiver,
  panel,
  powerRelay,
  contact,  // a digital input
  motionDetector,
  lockout,  // the module PWRTIMEOUT
  sensing,  // the module PWRSENSE
  monitoring,
  display,
  screen,
  lift,
  other,
};

Role roleOf(const Unit& unit);

/// The ids under which drivers name the commands that every display, screen or lift may have.
inline constexpr std::int32_t standardUp = 42;
inline constexpr std::int32_t standardDown = 43;
inline constexpr std::int32_t standardOff = 165;
inline constexpr std::int32_t standardOn = 166;
inline constexpr std::int32_t standardRGB = 187;
inline constexpr std::int32_t standardComposite = 239;

}  // namespace program
