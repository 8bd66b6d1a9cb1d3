#pragma once

#include <string>
#include <variant>

#include "runtime/Machine.h"

namespace simulator {

using program::Place;

// What a person does in a room. Units and names are those of the program.

/// A button of the receiver, named as its command.
struct PressReceiver {
  std::string button;
  bool operator==(const PressReceiver&) const = default;
};
/// An object of the pages of a panel that has pages.
struct PressPage {
  Place panel = program::none;
  std::string page;
  std::int32_t object = 0;
  bool operator==(const PressPage&) const = default;
};
/// A button of a panel without pages, named as its output.
struct PressPanel {
  Place panel = program::none;
  std::string button;
  bool operator==(const PressPanel&) const = default;
};
struct MoveContact {
  Place digitalInput = program::none;
  bool isClosed = false;
  bool operator==(const MoveContact&) const = default;
};
struct Motion {
  bool isMoving = false;
  bool operator==(const Motion&) const = default;
};
/// A command of the help desk.
struct HelpDesk {
  enum class Value { off, on, pulse };
  std::string signal;
  Value value = Value::pulse;
  bool operator==(const HelpDesk&) const = default;
};

using Act = std::variant<PressReceiver, PressPage, PressPanel, MoveContact, Motion, HelpDesk>;

/// Does it now. Raises what the machine raises.
void perform(runtime::Machine& machine, const Act& act);

/// `press Power_On of Receiver`
std::string inWords(const Act& act, const program::Program& program);

}  // namespace simulator
