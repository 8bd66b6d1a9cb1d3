#include "simulator/Room.h"

namespace simulator {
namespace {

using program::Role;
using runtime::Arrival;
using runtime::Line;
using runtime::LineNumber;
using runtime::Machine;
using Power = Devices::Power;
using Position = Devices::Position;

constexpr std::string_view toggleCommand = "POWER";
constexpr Time second = 100;

const program::Unit& unitAt(const runtime::Wiring& wiring, Place place) {
  return wiring.program().units[static_cast<std::size_t>(place)];
}

}  // namespace

std::string_view nameOf(Power power) {
  switch (power) {
    case Power::off:
      return "off";
    case Power::warming:
      return "warming";
    case Power::on:
      return "on";
    case Power::cooling:
      return "cooling";
  }
  return {};
}

std::string_view nameOf(Position position) {
  switch (position) {
    case Position::up:
      return "up";
    case Position::down:
      return "down";
    case Position::movingUp:
      return "moving up";
    case Position::movingDown:
      return "moving down";
  }
  return {};
}

Room::Room(const runtime::Wiring& wiring)
    : wiring_(wiring),
      relay_(wiring.unitOf(Role::powerRelay)),
      display_(wiring.unitOf(Role::display)),
      screen_(wiring.unitOf(Role::screen)),
      lift_(wiring.unitOf(Role::lift)) {
  devices_.hasMains = relay_ == program::none;
}

const program::Timing& Room::timing(Place unit) const { return unitAt(wiring_, unit).timing; }

bool Room::isStandard(Place unit, std::int32_t id, std::string_view command) const {
  const auto& commands = unitAt(wiring_, unit).standardCommands;
  const auto found = commands.find(id);
  return found != commands.end() && !command.empty() && found->second == command;
}

std::string_view Room::displayCommand(std::int32_t id) const {
  if (display_ == program::none) return {};
  const auto& commands = unitAt(wiring_, display_).standardCommands;
  const auto found = commands.find(id);
  return found == commands.end() ? std::string_view() : std::string_view(found->second);
}

void Room::arrived(Machine& machine, const Arrival& command) {
  if (!command.isPressed()) return;
  if (command.unit == relay_) return switchMains(machine, command);
  if (command.unit == display_) return commandDisplay(machine, command);
  if (command.unit == screen_ || command.unit == lift_) commandMotor(machine, command);
}

void Room::due(Machine& machine, Place unit, LineNumber because) {
  if (unit == display_) {
    return setPower(machine, devices_.power == Power::warming ? Power::on : Power::off, because);
  }
  const bool isDown = position(unit) == Position::movingDown;
  setPosition(machine, unit, isDown ? Position::down : Position::up, because);
}

void Room::switchMains(Machine& machine, const Arrival& command) {
  devices_.hasMains = machine.isClosed(relay_);
  if (devices_.hasMains || devices_.power == Power::off) return;
  machine.note({.kind = Line::Kind::cut,
                .because = command.line,
                .unit = display_,
                .name = command.command,
                .text = devices_.power == Power::cooling ? "its mains went while it cooled down"
                                                         : "its mains went while it was on"});
  machine.forgetDeadline(display_);
  setPower(machine, Power::off, command.line);
}

void Room::commandDisplay(Machine& machine, const Arrival& command) {
  if (!devices_.hasMains) return lose(machine, command, lostWithoutMains);
  if (devices_.power == Power::warming) return lose(machine, command, lostWhileWarming);
  if (devices_.power == Power::cooling) return lose(machine, command, lostWhileCooling);
  if (command.type != program::Command::Type::digital) return;
  const auto is = [&](std::int32_t id) { return isStandard(display_, id, command.command); };
  const bool isToggle =
      command.command == toggleCommand || (is(program::standardOn) && is(program::standardOff));
  if (isToggle) return turn(machine, devices_.power == Power::off, command.line);
  if (is(program::standardOn)) return turn(machine, true, command.line);
  if (is(program::standardOff)) return turn(machine, false, command.line);
  if (!is(program::standardRGB) && !is(program::standardComposite)) return;
  if (devices_.power == Power::off) return lose(machine, command, lostWhileOff);
  devices_.input = command.command;
}

void Room::turn(Machine& machine, bool isOn, LineNumber because) {
  if (isOn == (devices_.power == Power::on)) return;
  setPower(machine, isOn ? Power::warming : Power::cooling, because);
  const program::Timing& times = timing(display_);
  machine.setDeadline(display_, (isOn ? times.warmUp : times.coolDown) * second, because);
}

void Room::setPower(Machine& machine, Power power, LineNumber because) {
  devices_.power = power;
  machine.note(
      {.kind = Line::Kind::state, .because = because, .unit = display_, .name = nameOf(power)});
  machine.sense(display_, power == Power::warming || power == Power::on, because);
}

void Room::lose(Machine& machine, const Arrival& command, std::string_view why) const {
  machine.note({.kind = Line::Kind::lost,
                .because = command.line,
                .unit = display_,
                .name = command.command,
                .text = why});
}

void Room::commandMotor(Machine& machine, const Arrival& command) {
  const bool isDown = isStandard(command.unit, program::standardDown, command.command);
  if (!isDown && !isStandard(command.unit, program::standardUp, command.command)) return;
  const Position now = position(command.unit);
  const Position wanted = isDown ? Position::down : Position::up;
  const Position moving = isDown ? Position::movingDown : Position::movingUp;
  if (now == wanted || now == moving) return;
  setPosition(machine, command.unit, moving, command.line);
  machine.setDeadline(command.unit, timing(command.unit).travel * second, command.line);
}

void Room::setPosition(Machine& machine, Place motor, Position newPosition, LineNumber because) {
  position(motor) = newPosition;
  machine.note(
      {.kind = Line::Kind::state, .because = because, .unit = motor, .name = nameOf(newPosition)});
}

}  // namespace simulator
