#include "runtime/Wiring.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <utility>

namespace runtime {
namespace {

using program::Role;
using program::Unit;

constexpr Time second = 100;

struct Known {
  Role role;
  std::string_view command;
  Reaction reaction;
};

constexpr std::array knownCommands{
    Known{Role::receiver, "Power_On", Reaction::powerOn},
    Known{Role::receiver, "Power_Off", Reaction::powerOff},
    Known{Role::receiver, "Select_RGB", Reaction::selectRGB},
    Known{Role::receiver, "Select_Composite_Video", Reaction::selectComposite},
    Known{Role::receiver, "Lock", Reaction::lock},
    Known{Role::receiver, "Unlock", Reaction::unlock},
    Known{Role::receiver, "Volume_Up", Reaction::volumeUp},
    Known{Role::receiver, "Volume_Down", Reaction::volumeDown},
    Known{Role::receiver, "Volume_Mute_On", Reaction::muteOn},
    Known{Role::receiver, "Volume_Mute_Off", Reaction::muteOff},
    Known{Role::panel, "Enabled", Reaction::enable},
    Known{Role::powerRelay, "Relay_Close", Reaction::closeRelay},
    Known{Role::powerRelay, "Relay_Open", Reaction::openRelay},
    Known{Role::sensing, "Power_On", Reaction::sensedOn},
    Known{Role::sensing, "Power_Off", Reaction::sensedOff}};

Reaction reactionOf(Role role, std::string_view command) {
  for (const Known& known : knownCommands) {
    if (known.role == role && known.command == command) return known.reaction;
  }
  return Reaction::none;
}

/// The number that a text begins with; 0 without one.
std::int32_t leadingNumber(std::string_view text) {
  std::int32_t number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

Time secondsOf(const Unit& unit, std::string_view property) {
  for (const auto& [name, value] : unit.properties) {
    if (name == property) return leadingNumber(value) * second;
  }
  return 0;
}

/// Goes through the steps and those of all branches.
template <typename See>
void eachStep(const Code& code, const See& see) {
  for (const auto& step : code.steps) {
    see(step);
    if (const auto* branch = std::get_if<If>(&step)) eachStep(*branch->then, see);
  }
}

/// A digital value above 0 is a hold time.
Time holdOf(const program::Command& command) {
  if (command.type != program::Command::Type::digital) return 0;
  return std::max(leadingNumber(command.value), 0);
}

}  // namespace

Wiring::Wiring(const program::Program& program) : program_(program) {
  for (const Unit& unit : program.units) roles_.push_back(program::roleOf(unit));
  for (std::size_t i = 0; i < program.units.size(); ++i) wireUnit(static_cast<Place>(i));
  wirePresets();
  wireEvents();
  wireSources();
}

Place Wiring::unitOf(Role role) const {
  const auto found = std::find(roles_.begin(), roles_.end(), role);
  return found == roles_.end() ? program::none : static_cast<Place>(found - roles_.begin());
}

Place Wiring::unitNamed(std::string_view name) const {
  const auto& units = program_.units;
  const auto found =
      std::find_if(units.begin(), units.end(), [&](const Unit& unit) { return unit.name == name; });
  return found == units.end() ? program::none : static_cast<Place>(found - units.begin());
}

SignalPlace Wiring::find(Place unit, std::string_view output) const {
  const auto found = signalPlaces_.find({unit, output});
  return found == signalPlaces_.end() ? program::none : found->second;
}

SignalPlace Wiring::intern(Place unit, std::string_view output) {
  const auto [found, isNew] =
      signalPlaces_.try_emplace({unit, output}, static_cast<SignalPlace>(signals_.size()));
  if (isNew) signals_.push_back({unit, output, {}, nullptr, nullptr});
  return found->second;
}

const Delivery* Wiring::delivery(Place unit, std::string_view command) const {
  const auto found = deliveryPlaces_.find({unit, command});
  return found == deliveryPlaces_.end() ? nullptr : found->second;
}

Delivery& Wiring::deliveryTo(Place unit, std::string_view command) {
  Delivery*& delivery = deliveryPlaces_[{unit, command}];
  if (delivery) return *delivery;
  delivery = &deliveries_.emplace_back();
  delivery->unit = unit;
  delivery->command = command;
  if (unit == program::none) return *delivery;
  delivery->reaction = reactionOf(role(unit), command);
  const Unit& receiving = program_.units[static_cast<std::size_t>(unit)];
  delivery->isForPort = receiving.kind == Unit::Kind::device;
  return *delivery;
}

void Wiring::wireUnit(Place place) {
  const Unit& unit = program_.units[static_cast<std::size_t>(place)];
  for (const std::string& output : unit.outputs) intern(place, output);
  for (const program::Input& input : unit.inputs) deliveryTo(place, input.name);
  switch (role(place)) {
    case Role::receiver:
      receiver_ = {intern(place, "Powered_On"), intern(place, "Powered_Off"),
                   intern(place, "RGB_Selected"), intern(place, "Composite_Video_Selected"),
                   intern(place, "System_Ready_Pulse")};
      break;
    case Role::contact:
      intern(place, contactOutput);
      break;
    case Role::motionDetector:
      motionDetector_ = {intern(place, "Motion_Detected"), secondsOf(unit, "Timeout")};
      break;
    case Role::lockout:
      wireLockout(unit, place);
      break;
    case Role::sensing:
      wireSensor(unit, place);
      break;
    case Role::panel:
      wirePages(unit, place);
      break;
    default:
      break;
  }
}

void Wiring::wireLockout(const Unit& module, Place place) {
  const auto wire = [&](std::string_view slotName, std::string_view output, const char* property) {
    const Lockout lockout{intern(place, output), secondsOf(module, property)};
    for (const program::Slot& slot : module.slots) {
      if (slot.name == slotName) deliveryTo(slot.unit, slot.command).lockouts.push_back(lockout);
    }
  };
  wire("Power_On", "Warming_Up", "Warm Up Time");
  wire("Power_Off", "Cooling_Down", "Cool Down Time");
}

void Wiring::wireSensor(const Unit& module, Place place) {
  constexpr Time heldFor = 10;
  Sensor sensor{module.parent, intern(place, "Power_State"), {}};
  for (const program::Slot& slot : module.slots) {
    sensor.toggles.push_back(
        {&deliveryTo(slot.unit, slot.command), program::Command::Type::digital, "10", heldFor});
  }
  sensorPlaces_.emplace(place, sensors_.size());
  sensors_.push_back(std::move(sensor));
}

const Sensor* Wiring::sensorBy(Place module) const {
  const auto found = sensorPlaces_.find(module);
  return found == sensorPlaces_.end() ? nullptr : &sensors_[found->second];
}

void Wiring::wirePages(const Unit& panel, Place place) {
  for (const program::Page& page : panel.pages) {
    for (const program::Button& button : page.buttons) {
      PanelButton wired{nullptr, buttonNames_.emplace_back(std::to_string(button.id))};
      Code code;
      if (button.preset != program::none) {
        code.steps.emplace_back(CallPreset{button.preset});
      } else if (button.unit != program::none) {
        code.steps.emplace_back(
            send({program::Command::Type::digital, button.unit, button.command, {}}));
      }
      if (!code.steps.empty()) wired.code = &codes_.emplace_back(std::move(code));
      buttons_.emplace(std::pair(place, button.id), wired);
    }
  }
}

const PanelButton* Wiring::button(Place panel, std::int32_t id) const {
  const auto found = buttons_.find({panel, id});
  return found == buttons_.end() ? nullptr : &found->second;
}

Send Wiring::send(const program::Command& command) {
  return {&deliveryTo(command.unit, command.signal), command.type, command.value, holdOf(command)};
}

const Code* Wiring::codeOf(const std::vector<program::Step>& steps) {
  Code code;
  struct Prepare {
    Wiring& wiring;
    Code& code;
    void operator()(const program::Command& command) const {
      code.steps.emplace_back(wiring.send(command));
    }
    void operator()(const program::Wait& wait) const {
      code.steps.emplace_back(Pause{wait.hundredths});
    }
    void operator()(const program::Call& call) const {
      code.steps.emplace_back(CallPreset{call.preset});
    }
    void operator()(const program::Branch& branch) const {
      const program::Test& when = branch.when;
      code.steps.emplace_back(
          If{wiring.find(when.unit, when.signal), when.value == 1, wiring.codeOf(branch.steps)});
    }
  };
  for (const program::Step& step : steps) std::visit(Prepare{*this, code}, step.what);
  return &codes_.emplace_back(std::move(code));
}

void Wiring::wirePresets() {
  for (const program::Preset& preset : program_.presets) presets_.push_back({codeOf(preset.steps)});
  std::vector<std::vector<Place>> callers(presets_.size());
  std::vector<Place> waiting;
  for (std::size_t i = 0; i < presets_.size(); ++i) {
    const auto place = static_cast<Place>(i);
    eachStep(*presets_[i].code, [&](const auto& step) {
      if (std::holds_alternative<Pause>(step)) waiting.push_back(place);
      if (const auto* call = std::get_if<CallPreset>(&step)) {
        callers[static_cast<std::size_t>(call->preset)].push_back(place);
      }
    });
  }
  // A preset waits when one that it calls does, however far that is.
  while (!waiting.empty()) {
    const auto place = static_cast<std::size_t>(waiting.back());
    waiting.pop_back();
    if (std::exchange(presets_[place].hasWait, true)) continue;
    waiting.insert(waiting.end(), callers[place].begin(), callers[place].end());
  }
}

void Wiring::wireEvents() {
  for (const program::Event& event : program_.events) {
    if (event.steps.empty()) continue;
    const SignalPlace place = intern(event.unit, event.signal);
    const EventCode& code =
        events_.emplace_back(EventCode{codeOf(event.steps), place, event.goesOn});
    Signal& signal = signals_[static_cast<std::size_t>(place)];
    (event.goesOn ? signal.goesOn : signal.goesOff) = &code;
  }
}

void Wiring::wireSources() {
  constexpr std::int32_t digital = 1;
  for (const program::Source& source : program_.sources) {
    if (source.type != digital) continue;
    const SignalPlace place = intern(source.from, source.signal);
    const Delivery& to =
        deliveryTo(source.unit, source.input.empty() ? source.output : source.input);
    signals_[static_cast<std::size_t>(place)].followers.push_back(&to);
  }
}

}  // namespace runtime
