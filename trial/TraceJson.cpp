#include "trial/ActJson.h"
#include "trial/Rest.h"
#include "trial/Trace.h"

namespace trial {
namespace {

using base::Json;
using runtime::Line;
using Kind = Line::Kind;

const char* nameOf(Kind kind) {
  switch (kind) {
    case Kind::input:
      return "input";
    case Kind::level:
      return "level";
    case Kind::run:
      return "run";
    case Kind::waiting:
      return "waiting";
    case Kind::joined:
      return "joined";
    case Kind::sent:
      return "sent";
    case Kind::released:
      return "released";
    case Kind::refused:
      return "refused";
    case Kind::lost:
      return "lost";
    case Kind::cut:
      return "cut";
    case Kind::state:
      return "state";
  }
  return "";
}

const char* nameOf(program::Command::Type type) {
  using Type = program::Command::Type;
  if (type == Type::analog) return "analog";
  return type == Type::serial ? "serial" : "digital";
}

/// Adds the keys of a line that its kind has.
class AddLine {
 public:
  AddLine(const simulator::Trial& trial, const Line& line, Json& json)
      : trial_(trial), program_(trial.wiring().program()), line_(line), json_(json) {}

  void add() {
    switch (line_.kind) {
      case Kind::input:
        if (const simulator::Act* act = trial_.actOf(line_.number)) addAct(*act, program_, json_);
        return;
      case Kind::level:
        addSignal();
        json_["value"] = line_.isOn;
        return;
      case Kind::run:
        return line_.preset == program::none ? addEvent() : addPreset();
      case Kind::waiting:
      case Kind::joined:
        return addPreset();
      case Kind::sent:
      case Kind::released:
        addSignal();
        json_["type"] = nameOf(line_.type);
        json_["value"] = line_.text;
        return;
      case Kind::refused:
        addUnit();
        json_["button"] = button();
        json_["why"] = line_.text;
        return;
      case Kind::lost:
      case Kind::cut:
        addSignal();
        json_["why"] = line_.text;
        return;
      case Kind::state:
        addUnit();
        json_["state"] = line_.name;
        return;
    }
  }

 private:
  void addUnit() { json_["unit"] = unitJson(line_.unit, program_); }

  void addSignal() {
    addUnit();
    json_["signal"] = line_.name;
  }

  void addEvent() {
    json_["event"] = {{"unit", unitJson(line_.unit, program_)},
                      {"signal", line_.name},
                      {"goes", line_.isOn ? "on" : "off"}};
  }

  void addPreset() {
    json_["preset"] = program_.presets[static_cast<std::size_t>(line_.preset)].name;
  }

  /// The number of an object of a page, or the name of another button.
  Json button() const {
    const simulator::Act* act = trial_.actOf(line_.because);
    const auto* press = act ? std::get_if<simulator::PressPage>(act) : nullptr;
    return press ? Json(press->object) : Json(line_.name);
  }

  const simulator::Trial& trial_;
  const program::Program& program_;
  const Line& line_;
  Json& json_;
};

Json lineJson(const simulator::Trial& trial, const Line& line) {
  Json json{{"n", line.number}, {"at", secondsJson(line.at)}, {"kind", nameOf(line.kind)}};
  json["because"] = line.because == runtime::noLine ? Json() : Json(line.because);
  AddLine(trial, line, json).add();
  return json;
}

}  // namespace

Json traceJson(const simulator::Trial& trial, bool isAtRest) {
  Json lines = Json::array();
  for (const Line& line : trial.trace()) lines.push_back(lineJson(trial, line));
  Json json{{"system", trial.wiring().program().name}, {"trace", std::move(lines)}};
  json["rest"] = restJson(trial);
  json["at_rest"] = isAtRest;
  return json;
}

}  // namespace trial
