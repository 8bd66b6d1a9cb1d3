#include "simulator/Influence.h"

#include <algorithm>

#include "simulator/Truths.h"

namespace simulator {
namespace {

using program::Role;
using runtime::Code;
using runtime::Reaction;
using runtime::SignalPlace;

bool movesTheRoom(Reaction reaction) {
  switch (reaction) {
    case Reaction::none:
    case Reaction::volumeUp:
    case Reaction::volumeDown:
    case Reaction::muteOn:
    case Reaction::muteOff:
      return false;
    case Reaction::powerOn:
    case Reaction::powerOff:
    case Reaction::selectRGB:
    case Reaction::selectComposite:
    case Reaction::lock:
    case Reaction::unlock:
    case Reaction::enable:
    case Reaction::closeRelay:
    case Reaction::openRelay:
    case Reaction::sensedOn:
    case Reaction::sensedOff:
      return true;
  }
  return true;
}

}  // namespace

Influence::Influence(const runtime::Wiring& wiring)
    : wiring_(wiring),
      presets_(wiring.program().presets.size(), true),
      signals_(wiring.signals().size(), false) {
  findPresets();
  const runtime::Wiring::ReceiverSignals& receiver = wiring.receiver();
  const SignalPlace contact = wiring.find(wiring.unitNamed(contactInput), runtime::contactOutput);
  for (const SignalPlace looked :
       {receiver.poweredOn, receiver.poweredOff, receiver.rgb, receiver.composite, contact}) {
    if (looked != program::none) signals_[static_cast<std::size_t>(looked)] = true;
  }
  for (std::size_t i = 0; i < presets_.size(); ++i) {
    if (presets_[i]) addTested(*wiring.preset(static_cast<Place>(i)).code);
  }
  while (findSignals()) {
  }
}

/// A preset does not matter when all that it does and calls does not. One that calls itself does.
void Influence::findPresets() {
  bool isFound = true;
  while (isFound) {
    isFound = false;
    for (std::size_t i = 0; i < presets_.size(); ++i) {
      if (!presets_[i] || matters(*wiring_.preset(static_cast<Place>(i)).code)) continue;
      presets_[i] = false;
      isFound = true;
    }
  }
}

/// One more round; false when it found none.
bool Influence::findSignals() {
  bool isFound = false;
  for (std::size_t i = 0; i < signals_.size(); ++i) {
    const runtime::Signal& signal = wiring_.signals()[i];
    const auto leads = [this](const runtime::EventCode* event) {
      return event && matters(*event->code);
    };
    const bool matters =
        signals_[i] || leads(signal.goesOn) || leads(signal.goesOff) ||
        std::any_of(signal.followers.begin(), signal.followers.end(),
                    [this](const runtime::Delivery* to) { return this->matters(*to); });
    if (!matters) continue;
    isFound = isFound || !signals_[i];
    signals_[i] = true;
    if (leads(signal.goesOn)) addTested(*signal.goesOn->code);
    if (leads(signal.goesOff)) addTested(*signal.goesOff->code);
  }
  return isFound;
}

void Influence::addTested(const Code& code) {
  for (const auto& step : code.steps) {
    const auto* branch = std::get_if<runtime::If>(&step);
    if (!branch || !matters(*branch->then)) continue;
    if (branch->signal != program::none) signals_[static_cast<std::size_t>(branch->signal)] = true;
    addTested(*branch->then);
  }
}

bool Influence::matters(const runtime::Delivery& command) const {
  if (movesTheRoom(command.reaction) || !command.lockouts.empty()) return true;
  if (command.unit == program::none) return false;
  switch (wiring_.role(command.unit)) {
    case Role::display:
    case Role::screen:
    case Role::lift:
      return true;
    case Role::monitoring:
      return Truths::tells(command.command);
    default:
      return false;
  }
}

bool Influence::matters(const Code& code) const {
  struct Matters {
    const Influence& influence;
    bool operator()(const runtime::Send& send) const { return influence.matters(*send.to); }
    bool operator()(const runtime::Pause& pause) const { return pause.time > 0; }
    bool operator()(const runtime::CallPreset& call) const {
      return influence.presets_[static_cast<std::size_t>(call.preset)] ||
             influence.wiring_.preset(call.preset).hasWait;
    }
    bool operator()(const runtime::If& branch) const { return influence.matters(*branch.then); }
  };
  return std::any_of(code.steps.begin(), code.steps.end(),
                     [this](const auto& step) { return std::visit(Matters{*this}, step); });
}

bool Influence::matters(SignalPlace signal) const {
  return signal != program::none && signals_[static_cast<std::size_t>(signal)];
}

bool Influence::matters(const Act& act) const {
  struct Matters {
    const Influence& influence;
    const runtime::Wiring& wiring;

    bool operator()(const PressReceiver& press) const {
      const runtime::Delivery* to = wiring.delivery(wiring.program().receiver, press.button);
      return to && influence.matters(*to);
    }
    bool operator()(const PressPage& press) const {
      const runtime::PanelButton* button = wiring.button(press.panel, press.object);
      return button && button->code && influence.matters(*button->code);
    }
    bool operator()(const PressPanel& press) const {
      return influence.matters(wiring.find(press.panel, press.button));
    }
    bool operator()(const MoveContact& contact) const {
      return influence.matters(wiring.find(contact.digitalInput, runtime::contactOutput));
    }
    bool operator()(const Motion&) const {
      return influence.matters(wiring.motionDetector().motion);
    }
    bool operator()(const HelpDesk& command) const {
      return influence.matters(wiring.find(wiring.unitOf(Role::monitoring), command.signal));
    }
  };
  return std::visit(Matters{*this, wiring_}, act);
}

}  // namespace simulator
