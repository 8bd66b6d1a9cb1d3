#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "program/Program.h"
#include "simulator/Trial.h"

/// Programs of small rooms, written as a reader would tell them.
namespace tests {

using program::Program;
using program::Step;

/// A program of a receiver alone, to which a test adds what it is about.
class RoomProgram {
 public:
  RoomProgram();

  program::Unit& addUnit(const std::string& name, program::Unit::Kind kind,
                         std::vector<std::string> commands = {},
                         std::vector<std::string> outputs = {});
  /// A display that is turned on and off by "On" and "Off" and switched by "RGB" and "Video".
  program::Unit& addDisplay();
  /// The module that locks the room while the display, commanded by "On" and "Off", warms and
  /// cools.
  void addLockout(int warmUp, int coolDown);
  void addRelay() { addUnit("Power Relay", program::Unit::Kind::device); }
  void addMotor(const std::string& name);

  /// Steps in words, divided by semicolons: `Display Device.On~10`, `wait 500`, `run Lights`,
  /// `if Powered_On of Receiver { Receiver.Lock }`, `if not ...`.
  void addPreset(const std::string& name, std::string_view steps);
  void addEvent(const std::string& unit, const std::string& signal, bool goesOn,
                std::string_view steps);
  void addSource(const std::string& unit, const std::string& input, const std::string& from,
                 const std::string& signal);

  program::Place place(std::string_view unit) const;
  Program& program() { return program_; }

 private:
  std::vector<Step> steps(std::string_view& text) const;
  Step step(std::string_view& text) const;
  program::Place presetPlace(std::string_view name) const;

  Program program_;
};

/// The trace from `from` on, a line each: `10.00 Display Device is warming <- Display Device: On`.
std::string traceOf(const simulator::Trial& trial, simulator::Time from = 0);

}  // namespace tests
