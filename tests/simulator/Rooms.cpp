#include "tests/simulator/Rooms.h"

#include <stdexcept>
#include <utility>

namespace tests {
namespace {

using program::Place;
using program::Unit;

std::string_view cut(std::string_view& text, std::string_view end) {
  const auto found = std::min(text.find(end), text.size());
  const std::string_view part = text.substr(0, found);
  text.remove_prefix(std::min(found + end.size(), text.size()));
  return part;
}

bool cutWord(std::string_view& text, std::string_view word) {
  if (!text.starts_with(word)) return false;
  text.remove_prefix(word.size());
  return true;
}

/// Up to the end of a step: a semicolon, or the blank before a closing brace.
std::string_view cutStep(std::string_view& text) {
  const auto end = std::min(text.find_first_of(";}"), text.size());
  std::string_view step = text.substr(0, end);
  text.remove_prefix(end);
  while (step.ends_with(' ')) step.remove_suffix(1);
  return step;
}

}  // namespace

RoomProgram::RoomProgram() {
  program_.name = "Test";
  program_.receiver = 0;
  addUnit("Receiver", Unit::Kind::receiver,
          {"Power_On", "Power_Off", "Select_RGB", "Select_Composite_Video", "Lock", "Unlock"},
          {"Powered_On", "Powered_Off", "RGB_Selected", "Composite_Video_Selected",
           "System_Ready_Pulse"});
}

Unit& RoomProgram::addUnit(const std::string& name, Unit::Kind kind,
                           std::vector<std::string> commands, std::vector<std::string> outputs) {
  Unit unit;
  unit.name = name;
  unit.kind = kind;
  unit.parent = kind == Unit::Kind::receiver ? program::none : 0;
  for (std::string& command : commands) unit.inputs.push_back({std::move(command)});
  unit.outputs = std::move(outputs);
  return program_.units.emplace_back(std::move(unit));
}

Unit& RoomProgram::addDisplay() {
  Unit& display = addUnit("Display Device", Unit::Kind::device, {"On", "Off", "RGB", "Video"});
  display.standardCommands = {{program::standardOn, "On"},
                              {program::standardOff, "Off"},
                              {program::standardRGB, "RGB"},
                              {program::standardComposite, "Video"}};
  return display;
}

void RoomProgram::addLockout(int warmUp, int coolDown) {
  Unit& module = addUnit("Display Device/PWRTIMEOUT", Unit::Kind::module);
  module.parent = place("Display Device");
  module.properties = {{"Warm Up Time", std::to_string(warmUp)},
                       {"Cool Down Time", std::to_string(coolDown)}};
  module.slots = {{"Power_On", module.parent, "On"}, {"Power_Off", module.parent, "Off"}};
}

void RoomProgram::addMotor(const std::string& name) {
  Unit& motor = addUnit(name, Unit::Kind::device, {"Up", "Down"});
  motor.standardCommands = {{program::standardUp, "Up"}, {program::standardDown, "Down"}};
}

Place RoomProgram::place(std::string_view unit) const {
  for (std::size_t i = 0; i < program_.units.size(); ++i) {
    if (program_.units[i].name == unit) return static_cast<Place>(i);
  }
  throw std::runtime_error("no unit " + std::string(unit));
}

Place RoomProgram::presetPlace(std::string_view name) const {
  for (std::size_t i = 0; i < program_.presets.size(); ++i) {
    if (program_.presets[i].name == name) return static_cast<Place>(i);
  }
  throw std::runtime_error("no preset " + std::string(name));
}

std::vector<Step> RoomProgram::steps(std::string_view& text) const {
  std::vector<Step> steps;
  while (true) {
    while (cutWord(text, " ") || cutWord(text, ";")) {
    }
    if (text.empty() || cutWord(text, "}")) return steps;
    steps.push_back(step(text));
  }
}

Step RoomProgram::step(std::string_view& text) const {
  if (cutWord(text, "wait ")) return {program::Wait{std::stoi(std::string(cutStep(text)))}};
  if (cutWord(text, "run ")) return {program::Call{presetPlace(cutStep(text))}};
  if (cutWord(text, "if ")) {
    program::Test test;
    test.value = cutWord(text, "not ") ? 0 : 1;
    test.signal = cut(text, " of ");
    test.unit = place(cut(text, " {"));
    return {program::Branch{test, steps(text)}};
  }
  std::string_view value = cutStep(text);
  const Place unit = place(cut(value, "."));
  const std::string_view signal = cut(value, "~");
  return {program::Command{program::Command::Type::digital, unit, std::string(signal),
                           std::string(value)}};
}

void RoomProgram::addPreset(const std::string& name, std::string_view text) {
  // First the name, so that a preset can call itself.
  program_.presets.push_back({name, {}});
  program_.presets.back().steps = steps(text);
}

void RoomProgram::addEvent(const std::string& unit, const std::string& signal, bool goesOn,
                           std::string_view text) {
  program_.events.push_back({place(unit), signal, goesOn, 7, steps(text)});
}

void RoomProgram::addSource(const std::string& unit, const std::string& input,
                            const std::string& from, const std::string& signal) {
  program_.sources.push_back({place(unit), input, {}, 1, place(from), signal});
}

std::string traceOf(const simulator::Trial& trial, simulator::Time from) {
  const auto shown = [&](runtime::LineNumber number) {
    const simulator::Act* act = trial.actOf(number);
    const program::Program& program = trial.wiring().program();
    return act ? simulator::inWords(*act, program)
               : simulator::inWords(trial.trace()[number - 1], program);
  };
  std::string text;
  for (const runtime::Line& line : trial.trace()) {
    if (line.at < from) continue;
    text += simulator::inSeconds(line.at) + " " + shown(line.number);
    if (line.because != runtime::noLine) text += " <- " + shown(line.because);
    text += "\n";
  }
  return text;
}

}  // namespace tests
