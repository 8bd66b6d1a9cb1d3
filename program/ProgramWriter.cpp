#include "base/Json.h"
#include "program/ProgramFields.h"
#include "program/ProgramHead.h"
#include "program/ProgramText.h"

namespace program {
namespace {

using base::Json;
using form::Places;

template <typename Value, typename Put>
Json listOf(const std::vector<Value>& values, Put put) {
  Json list = Json::array();
  for (const Value& value : values) list.push_back(put(value));
  return list;
}

Json inputJson(const Input& input) {
  Json json = base::emptyObject(3);
  base::FieldWriter fields(json);
  form::inputFields(fields, input);
  return json;
}

Json slotJson(const Slot& slot) {
  Json json = base::emptyObject(3);
  base::FieldWriter fields(json);
  form::slotFields(fields, slot, {});
  return json;
}

Json pageJson(const Page& page) {
  Json buttons = listOf(page.buttons, [](const Button& button) {
    Json json = base::emptyObject(4);
    base::FieldWriter fields(json);
    form::buttonFields(fields, button, {});
    return json;
  });
  return {{"name", page.name}, {"buttons", std::move(buttons)}};
}

Json unitJson(const Unit& unit) {
  Json json = base::emptyObject(16);
  base::FieldWriter fields(json);
  form::unitFields(fields, unit, {});
  if (unit.sensor) {
    base::FieldWriter sensor(json["sensor"]);
    form::sensorFields(sensor, *unit.sensor);
  }
  json["inputs"] = listOf(unit.inputs, inputJson);
  json["outputs"] = unit.outputs;
  json["properties"] = Json::object();
  for (const auto& [name, value] : unit.properties) json["properties"][name] = value;
  json["slots"] = listOf(unit.slots, slotJson);
  json["standard_commands"] = Json::object();
  for (const auto& [id, command] : unit.standardCommands) {
    json["standard_commands"][std::to_string(id)] = command;
  }
  json["timing"] = Json::object();
  base::FieldWriter timing(json["timing"]);
  form::timingFields(timing, unit.timing);
  fields("stale_after", unit.staleAfter);
  json["pages"] = listOf(unit.pages, pageJson);
  return json;
}

Json stepList(const std::vector<Step>& steps);

Json stepJson(const Command& command) {
  Json json = base::emptyObject(4);
  base::FieldWriter fields(json);
  form::commandFields(fields, command, {});
  return json;
}

Json stepJson(const Wait& wait) { return {{"do", "wait"}, {"hundredths", wait.hundredths}}; }

Json stepJson(const Call& call) { return {{"do", "call"}, {"preset", call.preset}}; }

Json stepJson(const Branch& branch) {
  Json when = base::emptyObject(6);
  base::FieldWriter fields(when);
  form::testFields(fields, branch.when, {});
  return {{"do", "if"}, {"when", std::move(when)}, {"steps", stepList(branch.steps)}};
}

Json stepList(const std::vector<Step>& steps) {
  return listOf(steps, [](const Step& step) {
    return std::visit([](const auto& what) { return stepJson(what); }, step.what);
  });
}

Json eventJson(const Event& event) {
  Json json = base::emptyObject(5);
  base::FieldWriter fields(json);
  form::eventFields(fields, event, {});
  json["steps"] = stepList(event.steps);
  return json;
}

Json sourceJson(const Source& source) {
  Json json = base::emptyObject(6);
  base::FieldWriter fields(json);
  form::sourceFields(fields, source, {});
  return json;
}

}  // namespace

std::string programText(const Program& program) {
  Json json;
  json["name"] = program.name;
  json["receiver"] = program.receiver;
  json["units"] = listOf(program.units, unitJson);
  json["presets"] = listOf(program.presets, [](const Preset& preset) {
    return Json{{"name", preset.name}, {"steps", stepList(preset.steps)}};
  });
  json["events"] = listOf(program.events, eventJson);
  json["sources"] = listOf(program.sources, sourceJson);
  return withHead(base::jsonText(json));
}

}  // namespace program
