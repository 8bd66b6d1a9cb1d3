#include "simulator/Act.h"

namespace simulator {
namespace {

const std::string& nameOf(Place unit, const program::Program& program) {
  return program.units[static_cast<std::size_t>(unit)].name;
}

struct Perform {
  runtime::Machine& machine;

  void operator()(const PressReceiver& press) const { machine.pressReceiver(press.button); }
  void operator()(const PressPage& press) const { machine.pressPage(press.panel, press.object); }
  void operator()(const PressPanel& press) const { machine.pressPanel(press.panel, press.button); }
  void operator()(const MoveContact& contact) const {
    machine.setContact(contact.digitalInput, contact.isClosed);
  }
  void operator()(const Motion& motion) const { machine.setMotion(motion.isMoving); }
  void operator()(const HelpDesk& command) const {
    if (command.value == HelpDesk::Value::pulse) return machine.pulseHelpDesk(command.signal);
    machine.setHelpDesk(command.signal, command.value == HelpDesk::Value::on);
  }
};

struct InWords {
  const program::Program& program;

  std::string operator()(const PressReceiver& press) const {
    return "press " + press.button + " of " + nameOf(program.receiver, program);
  }
  std::string operator()(const PressPage& press) const {
    return "press button " + std::to_string(press.object) + " on the page \"" + press.page +
           "\" of " + nameOf(press.panel, program);
  }
  std::string operator()(const PressPanel& press) const {
    return "press " + press.button + " of " + nameOf(press.panel, program);
  }
  std::string operator()(const MoveContact& contact) const {
    return (contact.isClosed ? "close " : "open ") + nameOf(contact.digitalInput, program);
  }
  std::string operator()(const Motion& motion) const {
    return motion.isMoving ? "move" : "stop moving";
  }
  std::string operator()(const HelpDesk& command) const {
    return "the help desk gives " + command.signal +
           (command.value == HelpDesk::Value::pulse ? ""
            : command.value == HelpDesk::Value::on  ? " (on)"
                                                    : " (off)");
  }
};

}  // namespace

void perform(runtime::Machine& machine, const Act& act) { std::visit(Perform{machine}, act); }

std::string inWords(const Act& act, const program::Program& program) {
  return std::visit(InWords{program}, act);
}

}  // namespace simulator
