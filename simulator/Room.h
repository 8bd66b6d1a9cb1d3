#pragma once

#include <map>
#include <string_view>
#include <vector>

#include "runtime/Machine.h"

/// The world of a virtual room: what hangs at the receiver's ports behaves like the real thing.
namespace simulator {

using program::Place;
using runtime::Time;

// Why a display does not take a command.
inline constexpr std::string_view lostWithoutMains = "it has no mains";
inline constexpr std::string_view lostWhileWarming = "it warms up";
inline constexpr std::string_view lostWhileCooling = "it cools down";
inline constexpr std::string_view lostWhileOff = "it is off";

/// What the devices of a room remember; a copy of it goes on from there.
struct Devices {
  enum class Power { off, warming, on, cooling };
  enum class Position { up, down, movingUp, movingDown };

  Power power = Power::off;
  bool hasMains = true;
  std::string_view input;  // the display's command that chose it; empty: none did yet
  Position screen = Position::up;
  Position lift = Position::up;

  bool operator==(const Devices&) const = default;
};

/// Display, screen and lift at the ports of a machine.
class Room : public runtime::Ports {
 public:
  /// The wiring outlives the room.
  explicit Room(const runtime::Wiring& wiring);

  void arrived(runtime::Machine& machine, const runtime::Arrival& command) override;
  void released(runtime::Machine&, const runtime::Arrival&) override {}
  void due(runtime::Machine& machine, Place unit, runtime::LineNumber because) override;

  const Devices& devices() const { return devices_; }
  void setDevices(const Devices& devices) { devices_ = devices; }

  Place display() const { return display_; }
  Place screen() const { return screen_; }
  Place lift() const { return lift_; }
  /// The commands that choose the display's inputs; empty: it has none.
  std::string_view rgbCommand() const { return displayCommand(program::standardRGB); }
  std::string_view compositeCommand() const { return displayCommand(program::standardComposite); }

 private:
  void switchMains(runtime::Machine& machine, const runtime::Arrival& command);
  void commandDisplay(runtime::Machine& machine, const runtime::Arrival& command);
  void turn(runtime::Machine& machine, bool isOn, runtime::LineNumber because);
  void setPower(runtime::Machine& machine, Devices::Power power, runtime::LineNumber because);
  void lose(runtime::Machine& machine, const runtime::Arrival& command, std::string_view why) const;
  void commandMotor(runtime::Machine& machine, const runtime::Arrival& command);
  void setPosition(runtime::Machine& machine, Place motor, Devices::Position position,
                   runtime::LineNumber because);
  Devices::Position& position(Place motor) {
    return motor == screen_ ? devices_.screen : devices_.lift;
  }
  bool isStandard(Place unit, std::int32_t id, std::string_view command) const;
  std::string_view displayCommand(std::int32_t id) const;
  const program::Timing& timing(Place unit) const;

  const runtime::Wiring& wiring_;
  Place relay_;
  Place display_;
  Place screen_;
  Place lift_;
  Devices devices_;
};

std::string_view nameOf(Devices::Power power);
std::string_view nameOf(Devices::Position position);

}  // namespace simulator
