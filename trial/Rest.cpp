#include "trial/Rest.h"

#include "program/Cast.h"

namespace trial {
namespace {

using base::Json;
using program::Place;
using program::Role;

void addLevels(const simulator::Trial& trial, Place place, const program::Unit& unit, Json& json) {
  for (const std::string& output : unit.outputs) {
    json["levels"][output] = trial.machine().level(trial.wiring().find(place, output));
  }
}

void addState(const simulator::Room& room, Place place, Json& json) {
  const simulator::Devices& devices = room.devices();
  if (place == room.display()) json["state"] = simulator::nameOf(devices.power);
  if (place == room.screen()) json["state"] = simulator::nameOf(devices.screen);
  if (place == room.lift()) json["state"] = simulator::nameOf(devices.lift);
}

Json unitRest(const simulator::Trial& trial, Place place, const program::Unit& unit) {
  const runtime::Machine& machine = trial.machine();
  const simulator::Room& room = trial.room();
  Json json = Json::object();
  addLevels(trial, place, unit, json);
  addState(room, place, json);
  const Role role = trial.wiring().role(place);
  if (role == Role::receiver) json["locked"] = machine.isLocked();
  if (role == Role::panel) json["enabled"] = machine.isEnabled(place);
  if (role == Role::powerRelay) json["closed"] = machine.isClosed(place);
  if (place == room.display()) {
    const std::string_view input = room.devices().input;
    json["input"] = input.empty() ? Json() : Json(input);
  }
  return json;
}

}  // namespace

Json restJson(const simulator::Trial& trial) {
  const auto& units = trial.wiring().program().units;
  Json rest = base::emptyObject(units.size());
  for (std::size_t i = 0; i < units.size(); ++i) {
    Json unit = unitRest(trial, static_cast<Place>(i), units[i]);
    if (!unit.empty()) rest[units[i].name] = std::move(unit);
  }
  return rest;
}

}  // namespace trial
