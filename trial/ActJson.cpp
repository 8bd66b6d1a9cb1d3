#include "trial/ActJson.h"

namespace trial {
namespace {

using base::Json;

constexpr simulator::Time second = 100;

struct AddAct {
  const program::Program& program;
  Json& json;

  void operator()(const simulator::PressReceiver& press) const {
    json["press"] = {{"unit", unitJson(program.receiver, program)}, {"button", press.button}};
  }
  void operator()(const simulator::PressPage& press) const {
    json["press"] = {
        {"unit", unitJson(press.panel, program)}, {"page", press.page}, {"object", press.object}};
  }
  void operator()(const simulator::PressPanel& press) const {
    json["press"] = {{"unit", unitJson(press.panel, program)}, {"button", press.button}};
  }
  void operator()(const simulator::MoveContact& contact) const {
    json["contact"] = {{"unit", unitJson(contact.digitalInput, program)},
                       {"closed", contact.isClosed}};
  }
  void operator()(const simulator::Motion& motion) const { json["motion"] = motion.isMoving; }
  void operator()(const simulator::HelpDesk& command) const {
    using Value = simulator::HelpDesk::Value;
    const Json value =
        command.value == Value::pulse ? Json("pulse") : Json(command.value == Value::on);
    json["help_desk"] = {{"signal", command.signal}, {"value", value}};
  }
};

}  // namespace

Json unitJson(program::Place unit, const program::Program& program) {
  if (unit == program::none) return nullptr;
  return program.units[static_cast<std::size_t>(unit)].name;
}

Json secondsJson(simulator::Time time) {
  if (time % second == 0) return time / second;
  return static_cast<double>(time) / static_cast<double>(second);
}

void addAct(const simulator::Act& act, const program::Program& program, Json& json) {
  std::visit(AddAct{program, json}, act);
}

}  // namespace trial
