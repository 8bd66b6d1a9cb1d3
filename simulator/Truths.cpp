#include "simulator/Truths.h"

#include <algorithm>
#include <array>
#include <utility>

namespace simulator {
namespace {

using program::Role;
using runtime::Line;
using Told = HelpDeskView::Told;
using Power = Devices::Power;
using Position = Devices::Position;

Concern concernOf(std::string_view whyLost) {
  if (whyLost == lostWhileWarming) return Concern::warmUp;
  if (whyLost == lostWhileCooling) return Concern::coolDown;
  return whyLost == lostWithoutMains ? Concern::mains : Concern::displayPower;
}

Told toldOf(bool is) { return is ? Told::yes : Told::no; }

/// What the display's state is called when the help desk is told.
int stateNumber(Power power) {
  switch (power) {
    case Power::off:
      return 0;
    case Power::on:
      return 1;
    case Power::warming:
      return 2;
    case Power::cooling:
      return 3;
  }
  return -1;
}

struct Telling {
  std::string_view command;
  Told HelpDeskView::*told;
  bool isSo;
};

constexpr std::array tellings{Telling{"System_Powered_On", &HelpDeskView::isOn, true},
                              Telling{"System_Powered_Off", &HelpDeskView::isOn, false},
                              Telling{"System_Locked", &HelpDeskView::isLocked, true},
                              Telling{"System_Unlocked", &HelpDeskView::isLocked, false}};

constexpr std::string_view displayStateCommand = "Display_Power_State";

constexpr std::array<const char*, 4> stateNames{"off", "on", "warming up", "cooling down"};

}  // namespace

std::string inWords(Truth truth) {
  switch (truth) {
    case Truth::nothingIsLost:
      return "no command to the display is lost";
    case Truth::mainsStay:
      return "the display's mains never go while it is on or cooling";
    case Truth::contactFrees:
      return "with the contact closed and no lock by the help desk nothing is locked";
    case Truth::offIsOff:
      return "switched off, the display is off, its relay open, screen and lift are up";
    case Truth::onIsOn:
      return "switched on, the display shows the selected source, screen and lift are down";
    case Truth::contactForbids:
      return "a room whose contact forbids it can't be switched on by its buttons";
    case Truth::comesToRest:
      return "every act comes to rest within a day";
    case Truth::helpDeskIsToldRight:
      return "what the help desk was told agrees with the room";
  }
  return {};
}

Fault::Fault(Truth itsTruth, Concern itsConcern, std::string itsWords)
    : truth(itsTruth), concern(itsConcern), what(std::move(itsWords)) {}

Truths::Truths(const runtime::Machine& machine, const Room& room)
    : machine_(machine),
      room_(room),
      wiring_(machine.wiring()),
      monitoring_(wiring_.unitOf(Role::monitoring)),
      relay_(wiring_.unitOf(Role::powerRelay)),
      contact_(program::none),
      isContactUsed_(false) {
  const Place input = wiring_.unitNamed(contactInput);
  if (input == program::none) return;
  contact_ = wiring_.find(input, runtime::contactOutput);
  const runtime::Signal& signal = wiring_.signal(contact_);
  isContactUsed_ = signal.goesOn || signal.goesOff;
}

bool Truths::tells(std::string_view command) {
  return command == displayStateCommand ||
         std::any_of(tellings.begin(), tellings.end(),
                     [&](const Telling& telling) { return telling.command == command; });
}

void Truths::watch(const runtime::Trace& trace, std::size_t first, HelpDeskView& view) const {
  if (monitoring_ == program::none) return;
  for (std::size_t i = first; i < trace.size(); ++i) {
    const Line& line = trace[i];
    if (line.kind != Line::Kind::sent || line.unit != monitoring_) continue;
    for (const auto& [command, told, isSo] : tellings) {
      if (line.name == command) view.*told = toldOf(isSo);
    }
    if (line.name == displayStateCommand && !line.text.empty()) {
      view.displayState = line.text.front() - '0';
    }
  }
}

void Truths::watch(const Act& act, HelpDeskView& view) const {
  const auto* command = std::get_if<HelpDesk>(&act);
  if (!command || command->value == HelpDesk::Value::off) return;
  if (command->signal == "System_Lock") view.hasLocked = true;
  if (command->signal == "System_Unlock") view.hasLocked = false;
}

std::optional<Fault> Truths::faultOf(const Line& line) const {
  if (line.unit != room_.display()) return std::nullopt;
  if (line.kind == Line::Kind::lost) {
    return Fault{Truth::nothingIsLost, concernOf(line.text), inWords(line, wiring_.program())};
  }
  if (line.kind == Line::Kind::cut) {
    return Fault{Truth::mainsStay, Concern::coolDown, inWords(line, wiring_.program())};
  }
  return std::nullopt;
}

bool Truths::isForbidden() const { return isContactUsed_ && !isContactClosed(); }

std::vector<Fault> Truths::faultsAtRest(const HelpDeskView& view) const {
  std::vector<Fault> faults;
  checkLocks(view, faults);
  if (isSwitchedOn()) {
    checkOn(faults);
  } else {
    checkOff(faults);
  }
  checkHelpDesk(view, faults);
  return faults;
}

void Truths::checkLocks(const HelpDeskView& view, std::vector<Fault>& faults) const {
  if (view.hasLocked || (isContactUsed_ && !isContactClosed())) return;
  const auto& units = wiring_.program().units;
  if (machine_.isLocked()) {
    faults.emplace_back(Truth::contactFrees, Concern::lock, "the receiver stays locked");
  }
  for (std::size_t i = 0; i < units.size(); ++i) {
    if (units[i].kind != program::Unit::Kind::panel) continue;
    if (machine_.isEnabled(static_cast<Place>(i))) continue;
    faults.emplace_back(Truth::contactFrees, Concern::lock, units[i].name + " stays disabled");
  }
}

void Truths::checkOff(std::vector<Fault>& faults) const {
  const Devices& devices = room_.devices();
  const auto add = [&](Concern concern, std::string what) {
    faults.emplace_back(Truth::offIsOff, concern, std::move(what));
  };
  if (room_.display() != program::none && devices.power != Power::off) {
    add(Concern::displayPower, "the display stays " + std::string(nameOf(devices.power)));
  }
  if (relay_ != program::none && machine_.isClosed(relay_))
    add(Concern::relay, "the power relay stays closed");
  if (room_.screen() != program::none && devices.screen != Position::up) {
    add(Concern::screen, "the screen stays down");
  }
  if (room_.lift() != program::none && devices.lift != Position::up)
    add(Concern::lift, "the lift stays down");
}

void Truths::checkOn(std::vector<Fault>& faults) const {
  const Devices& devices = room_.devices();
  const auto add = [&](Concern concern, std::string what) {
    faults.emplace_back(Truth::onIsOn, concern, std::move(what));
  };
  if (room_.display() != program::none) {
    if (devices.power != Power::on) {
      add(Concern::displayPower, "the display stays " + std::string(nameOf(devices.power)));
    } else {
      checkSource(faults);
    }
  }
  if (room_.screen() != program::none && devices.screen != Position::down) {
    add(Concern::screen, "the screen stays up");
  }
  if (room_.lift() != program::none && devices.lift != Position::down)
    add(Concern::lift, "the lift stays up");
}

void Truths::checkSource(std::vector<Fault>& faults) const {
  const runtime::Wiring::ReceiverSignals& receiver = wiring_.receiver();
  const auto check = [&](runtime::SignalPlace selected, std::string_view input, Concern concern,
                         const std::string& source) {
    if (!machine_.level(selected) || room_.devices().input == input) return;
    faults.emplace_back(Truth::onIsOn, concern,
                        "the display does not show the " + source + " source that is selected");
  };
  check(receiver.rgb, room_.rgbCommand(), Concern::rgbSource, "RGB");
  check(receiver.composite, room_.compositeCommand(), Concern::compositeSource, "composite video");
}

void Truths::checkHelpDesk(const HelpDeskView& view, std::vector<Fault>& faults) const {
  const auto add = [&](std::string what) {
    faults.emplace_back(Truth::helpDeskIsToldRight, Concern::helpDesk,
                        "the help desk was told that " + what);
  };
  if (view.isOn != Told::nothing && view.isOn != toldOf(isSwitchedOn())) {
    add(view.isOn == Told::yes ? "the room is on, and it is off" : "the room is off, and it is on");
  }
  if (view.isLocked != Told::nothing && view.isLocked != toldOf(machine_.isLocked())) {
    add(view.isLocked == Told::yes ? "the room is locked, and it is not"
                                   : "the room is unlocked, and it is locked");
  }
  const int state = stateNumber(room_.devices().power);
  if (view.displayState >= 0 && view.displayState < 4 && view.displayState != state) {
    add(std::string("the display is ") + stateNames[static_cast<std::size_t>(view.displayState)] +
        ", and it is " + stateNames[static_cast<std::size_t>(state)]);
  }
}

}  // namespace simulator
