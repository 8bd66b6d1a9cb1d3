#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "program/Cast.h"
#include "program/Program.h"
#include "runtime/Trace.h"

namespace runtime {

using program::Place;

/// What every digital input calls its contact.
inline constexpr std::string_view contactOutput = "dig_input_1";

/// The place of a digital output among those of the whole room.
using SignalPlace = std::int32_t;

/// What a command makes a unit do that every room has.
enum class Reaction : std::uint8_t {
  none,
  powerOn,
  powerOff,
  selectRGB,
  selectComposite,
  lock,
  unlock,
  volumeUp,
  volumeDown,
  muteOn,
  muteOff,
  enable,
  closeRelay,
  openRelay,
  sensedOn,
  sensedOff,
};

/// A lockout that begins when a command goes to a unit.
struct Lockout {
  SignalPlace signal = program::none;  // on while it lasts
  Time time = 0;
};

/// Where a command goes.
struct Delivery {
  Place unit = program::none;
  std::string_view command;
  Reaction reaction = Reaction::none;
  bool isForPort = false;         // a device hangs there
  std::vector<Lockout> lockouts;  // in the document's order
};

struct Send {
  const Delivery* to = nullptr;
  program::Command::Type type = program::Command::Type::digital;
  std::string_view value;
  Time hold = 0;  // above 0: it is released after that time
};

struct Pause {
  Time time = 0;
};

struct CallPreset {
  Place preset = program::none;
};

struct Code;

struct If {
  SignalPlace signal = program::none;  // none: there is no such signal
  bool isOn = false;
  const Code* then = nullptr;
};

/// Steps, ready to be run.
struct Code {
  std::vector<std::variant<Send, Pause, CallPreset, If>> steps;
};

struct PresetCode {
  const Code* code = nullptr;
  bool hasWait = false;  // in itself or in what it calls
};

struct EventCode {
  const Code* code = nullptr;
  SignalPlace signal = program::none;
  bool goesOn = true;
};

struct Signal {
  Place unit = program::none;
  std::string_view name;
  std::vector<const Delivery*> followers;  // in the program's order
  const EventCode* goesOn = nullptr;       // nothing: no steps
  const EventCode* goesOff = nullptr;
};

/// What the button of a panel does: a run of one step, or nothing.
struct PanelButton {
  const Code* code = nullptr;
  std::string_view name;
};

/// The power of a display, seen by its sensor.
struct Sensor {
  Place display = program::none;
  SignalPlace state = program::none;
  std::vector<Send> toggles;  // what the module sends to turn the display on or off
};

/// A program with all names looked up once, so that a machine only follows pointers. It refers to
/// the program, which outlives it, and any number of machines share it.
class Wiring {
 public:
  explicit Wiring(const program::Program& program);
  Wiring(const Wiring&) = delete;
  Wiring& operator=(const Wiring&) = delete;

  const program::Program& program() const { return program_; }
  program::Role role(Place unit) const { return roles_[static_cast<std::size_t>(unit)]; }
  /// The unit that plays a part that a room has once; none without it.
  Place unitOf(program::Role role) const;
  Place unitNamed(std::string_view name) const;

  const std::vector<Signal>& signals() const { return signals_; }
  const Signal& signal(SignalPlace place) const {
    return signals_[static_cast<std::size_t>(place)];
  }
  /// none when the unit has no such output.
  SignalPlace find(Place unit, std::string_view output) const;
  const PresetCode& preset(Place place) const { return presets_[static_cast<std::size_t>(place)]; }
  /// The command of a unit; nothing when it has none such and nobody sends it one.
  const Delivery* delivery(Place unit, std::string_view command) const;
  /// The button of a panel's pages; nothing without it.
  const PanelButton* button(Place panel, std::int32_t id) const;
  const Sensor* sensorBy(Place module) const;
  const std::vector<Sensor>& sensors() const { return sensors_; }

  // The outputs that the machine itself moves; none without the unit.
  struct ReceiverSignals {
    SignalPlace poweredOn = program::none;
    SignalPlace poweredOff = program::none;
    SignalPlace rgb = program::none;
    SignalPlace composite = program::none;
    SignalPlace ready = program::none;
  };
  const ReceiverSignals& receiver() const { return receiver_; }
  struct MotionDetector {
    SignalPlace motion = program::none;
    Time timeout = 0;
  };
  const MotionDetector& motionDetector() const { return motionDetector_; }

 private:
  using Key = std::pair<Place, std::string_view>;

  SignalPlace intern(Place unit, std::string_view output);
  Delivery& deliveryTo(Place unit, std::string_view command);
  void wireUnit(Place place);
  void wireLockout(const program::Unit& module, Place place);
  void wireSensor(const program::Unit& module, Place place);
  void wirePages(const program::Unit& panel, Place place);
  void wirePresets();
  void wireEvents();
  void wireSources();
  const Code* codeOf(const std::vector<program::Step>& steps);

  Send send(const program::Command& command);

  const program::Program& program_;
  std::vector<program::Role> roles_;
  std::vector<Signal> signals_;
  std::map<Key, SignalPlace> signalPlaces_;
  std::deque<Delivery> deliveries_;
  std::map<Key, Delivery*> deliveryPlaces_;
  std::deque<Code> codes_;
  std::vector<PresetCode> presets_;
  std::deque<EventCode> events_;
  std::map<std::pair<Place, std::int32_t>, PanelButton> buttons_;
  std::deque<std::string> buttonNames_;
  std::vector<Sensor> sensors_;
  std::map<Place, std::size_t> sensorPlaces_;
  ReceiverSignals receiver_;
  MotionDetector motionDetector_;
};

}  // namespace runtime
