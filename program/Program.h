#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

/// The compiled program of a room as values: what the host compiles, what a trial and a receiver
/// run.
namespace program {

/// A unit is named by its place among the units, a preset by its place among the presets, from 0.
using Place = std::int32_t;
inline constexpr Place none = -1;

struct Step;

/// Sends a command to a unit.
struct Command {
  enum class Type { digital, analog, serial };

  /// The values of a digital command that stays: on, and off.
  static constexpr const char* levelOn = "-1";
  static constexpr const char* levelOff = "-2";

  Type type = Type::digital;
  Place unit = none;
  std::string signal;
  /// Of a digital command "" for a momentary one, a hold time in hundredths of a second, or one of
  /// the two levels; of the others what is sent.
  std::string value;
};

/// Holds up the run in which it stands.
struct Wait {
  std::int32_t hundredths = 0;
};

/// Runs a preset.
struct Call {
  Place preset = none;
};

/// Asks for the level of a digital signal.
struct Test {
  Place unit = none;
  std::int32_t type = 0;
  std::string signal;
  std::string state;  // "Is Open" and "Is Closed" for the named states of a contact
  std::int32_t compare = 0;
  std::int32_t value = 0;  // 1: on, 0: off
};

/// Runs its steps when the test holds.
struct Branch {
  Test when;
  std::vector<Step> steps;
};

struct Step {
  std::variant<Command, Wait, Call, Branch> what;
};

struct Preset {
  std::string name;
  std::vector<Step> steps;
};

/// What runs when a digital output goes on or off.
struct Event {
  Place unit = none;
  std::string signal;
  bool goesOn = true;
  std::int32_t enabled = 0;  // the options of the event, as a number
  std::vector<Step> steps;
};

/// A signal that follows a signal of another unit.
struct Source {
  Place unit = none;
  std::string input;   // may be empty, and then the output stands for it
  std::string output;  // may be empty
  std::int32_t type = 0;
  Place from = none;
  std::string signal;
};

/// What a module sends: a command of a unit.
struct Slot {
  std::string name;
  Place unit = none;
  std::string command;
};

/// How long a display or a motor takes, in seconds; these are the values of a driver that does not
/// tell.
struct Timing {
  std::int32_t warmUp = 30;
  std::int32_t coolDown = 60;
  std::int32_t travel = 20;

  bool operator==(const Timing&) const = default;
};

/// The most seconds that something may take.
inline constexpr std::int32_t longestTiming = 24 * 60 * 60;

/// A command that a unit takes.
struct Input {
  std::string name;
  Command::Type type = Command::Type::digital;
  std::string send = {};  // what goes to the port, a byte for each code point; empty: not told
};

/// A button of a panel's page: it sends a command or runs a preset, or does nothing.
struct Button {
  std::int32_t id = 0;  // unique on the panel, from 1
  std::string text;     // lines end with CR LF
  Place unit = none;
  std::string command = {};
  Place preset = none;
};

struct Page {
  std::string name;
  std::vector<Button> buttons;
};

/// Where a power sensor is attached.
struct SensorPort {
  std::int32_t handle = 0;
  std::string format;
};

struct Unit {
  enum class Kind { receiver, device, module, panel };

  std::string name;  // "Display Device/PWRSENSE" for a module
  Kind kind = Kind::device;
  Place parent = none;
  std::int32_t handle = 0;           // under which the receiver addresses it; 0 for a module
  std::string driver;                // the name of its definition in the library
  std::string port;                  // "Relay 1", "IP-ID 03"; empty: none
  std::string address;               // of a unit on the network; empty: none is set
  std::optional<SensorPort> sensor;  // of a power sensing module
  std::vector<Input> inputs;
  std::vector<std::string> outputs;  // the digital ones
  std::vector<std::pair<std::string, std::string>> properties;
  std::vector<Slot> slots;                               // of a module
  std::map<std::int32_t, std::string> standardCommands;  // by the standard command's id
  Timing timing;
  std::int32_t staleAfter = 3;  // seconds after which a command is not worth sending any more
  std::vector<Page> pages;      // of a panel with a project
};

struct Program {
  std::string name;
  Place receiver = none;
  std::vector<Unit> units;  // each is followed by its modules
  std::vector<Preset> presets;
  std::vector<Event> events;
  std::vector<Source> sources;
};

}  // namespace program
