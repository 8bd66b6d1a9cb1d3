#include "runtime/Machine.h"

#include <algorithm>
#include <utility>

namespace runtime {
namespace {

using program::Command;

constexpr std::int32_t loudest = 100;
// Far beyond what any instant of a finished room needs.
constexpr std::size_t mostLinesOfInstant = 10000;
constexpr std::size_t suspiciousLines = mostLinesOfInstant - 1000;
constexpr std::size_t deepestCall = 1000;

/// Whether one of two deadlines takes the place of the other.
struct IsSame {
  bool operator()(const Release& a, const Release& b) const { return a.send->to == b.send->to; }
  bool operator()(const GoesOff& a, const GoesOff& b) const { return a.signal == b.signal; }
  bool operator()(const PortDue& a, const PortDue& b) const { return a.unit == b.unit; }
  bool operator()(const auto&, const auto&) const { return false; }
};

Line lineOf(const Send& send, Line::Kind kind, LineNumber because) {
  return {.kind = kind,
          .because = because,
          .unit = send.to->unit,
          .name = send.to->command,
          .text = send.value,
          .type = send.type};
}

}  // namespace

Machine::Machine(const Wiring& wiring, Ports& ports, Trace* trace)
    : wiring_(wiring), ports_(ports), trace_(trace) {
  state_.levels.assign(wiring.signals().size(), false);
  for (const program::Unit& unit : wiring.program().units) {
    state_.switches.push_back(unit.kind == program::Unit::Kind::panel);
  }
  const SignalPlace poweredOff = wiring.receiver().poweredOff;
  if (poweredOff != program::none) state_.levels[static_cast<std::size_t>(poweredOff)] = true;
}

LineNumber Machine::note(Line line) {
  watch(line);
  line.number = ++lines_;
  line.at = state_.now;
  if (trace_) trace_->push_back(line);
  return lines_;
}

/// Remembers what begins while an instant has become suspiciously long, and ends it at last.
void Machine::watch(const Line& line) {
  if (++linesOfInstant_ <= suspiciousLines) return;
  if (line.kind == Line::Kind::run) suspects_.insert(shownRun(line));
  if (linesOfInstant_ > mostLinesOfInstant) throw endlessLoop();
}

EndlessLoop Machine::endlessLoop() const {
  std::string names;
  for (const std::string& suspect : suspects_) names += (names.empty() ? "" : ", ") + suspect;
  return EndlessLoop("The program runs in an endless loop: " + names + ".");
}

std::string Machine::shownRun(const Line& line) const {
  const program::Program& program = wiring_.program();
  if (line.preset != program::none) {
    return "the preset \"" + program.presets[static_cast<std::size_t>(line.preset)].name + "\"";
  }
  return std::string(line.name) + " of " + program.units[static_cast<std::size_t>(line.unit)].name +
         (line.isOn ? " goes on" : " goes off");
}

void Machine::start() {
  inOneInstant([this] { pulse(wiring_.receiver().ready, noLine); });
}

// Time.

std::optional<Time> Machine::nextDeadline() const {
  if (state_.deadlines.empty()) return std::nullopt;
  return state_.deadlines.front().at;
}

std::optional<Time> Machine::nextEffect() const {
  for (const Deadline& deadline : state_.deadlines) {
    if (!std::holds_alternative<Release>(deadline.work.what)) return deadline.at;
  }
  return std::nullopt;
}

void Machine::advance(Time time) {
  auto& deadlines = state_.deadlines;
  while (!deadlines.empty() && deadlines.front().at <= time) {
    state_.now = deadlines.front().at;
    const auto later = std::find_if(deadlines.begin(), deadlines.end(),
                                    [&](const Deadline& next) { return next.at > state_.now; });
    for (auto due = deadlines.begin(); due != later; ++due) work_.push_back(std::move(due->work));
    deadlines.erase(deadlines.begin(), later);
    inOneInstant([] {});
  }
  state_.now = std::max(state_.now, time);
}

void Machine::setDeadline(Time fromNow, Work work) {
  forget(work);
  const Time at = state_.now + fromNow;
  auto& deadlines = state_.deadlines;
  const auto later = std::find_if(deadlines.begin(), deadlines.end(),
                                  [&](const Deadline& next) { return next.at > at; });
  deadlines.insert(later, {at, std::move(work)});
}

void Machine::forget(const Work& work) {
  std::erase_if(state_.deadlines, [&](const Deadline& old) {
    return std::visit(IsSame{}, old.work.what, work.what);
  });
}

void Machine::setDeadline(Place unit, Time fromNow, LineNumber because) {
  setDeadline(fromNow, {because, PortDue{unit}});
}

void Machine::forgetDeadline(Place unit) { forget({noLine, PortDue{unit}}); }

// One instant.

template <typename Act>
void Machine::inOneInstant(Act act) {
  try {
    act();
    do {
      while (nextWork_ < work_.size()) doWork(std::move(work_[nextWork_++]));
    } while (giveTurn());
  } catch (const EndlessLoop&) {
    state_.deadlines.clear();
    state_.line.clear();
    state_.turn = State::Turn::free;
    endInstant();
    throw;
  }
  endInstant();
}

void Machine::endInstant() {
  work_.clear();
  nextWork_ = 0;
  linesOfInstant_ = 0;
  depth_ = 0;
  suspects_.clear();
}

void Machine::doWork(Work work) {
  const LineNumber because = work.because;
  if (const auto* event = std::get_if<Begin>(&work.what)) return begin(*event->event, because);
  if (auto* run = std::get_if<Run>(&work.what)) return go(std::move(*run));
  if (const auto* held = std::get_if<Release>(&work.what)) return release(*held->send, because);
  if (const auto* level = std::get_if<GoesOff>(&work.what)) {
    return setLevel(level->signal, false, because);
  }
  ports_.due(*this, std::get<PortDue>(work.what).unit, because);
}

/// When the preset that had the turn has ended, the first in line gets it; false: nobody does.
bool Machine::giveTurn() {
  if (state_.turn == State::Turn::ended) state_.turn = State::Turn::free;
  if (state_.turn == State::Turn::taken || state_.line.empty()) return false;
  Waiting first = std::move(state_.line.front());
  state_.line.erase(state_.line.begin());
  enterTurn(first.run, first.preset);
  work_.push_back({noLine, std::move(first.run)});
  return true;
}

// Runs.

void Machine::begin(const EventCode& event, LineNumber because) {
  const Signal& signal = wiring_.signal(event.signal);
  const LineNumber line = note({.kind = Line::Kind::run,
                                .because = because,
                                .unit = signal.unit,
                                .name = signal.name,
                                .isOn = event.goesOn});
  go({{{event.code, 0, line}}});
}

void Machine::go(Run run) {
  while (!run.frames.empty()) {
    Run::Frame& frame = run.frames.back();
    if (frame.next == frame.code->steps.size()) {
      leave(run);
      continue;
    }
    const auto& step = frame.code->steps[frame.next++];
    if (!std::visit([&](const auto& kind) { return goesOn(run, kind); }, step)) return;
  }
}

bool Machine::goesOn(Run& run, const Send& step) {
  send(step, run.frames.back().line);
  return true;
}

bool Machine::goesOn(Run& run, const Pause& step) {
  if (step.time <= 0) return true;
  setDeadline(step.time, {run.frames.back().line, std::move(run)});
  return false;
}

bool Machine::goesOn(Run& run, const If& step) {
  if (level(step.signal) == step.isOn) {
    run.frames.push_back({step.then, 0, run.frames.back().line});
  }
  return true;
}

bool Machine::goesOn(Run& run, const CallPreset& step) {
  const Place preset = step.preset;
  if (!wiring_.preset(preset).hasWait || run.hasTurn) {
    enter(run, preset);
    return true;
  }
  if (state_.turn == State::Turn::free) {
    enterTurn(run, preset);
    return true;
  }
  const LineNumber because = run.frames.back().line;
  if (!state_.line.empty() && state_.line.back().preset == preset) {
    note({.kind = Line::Kind::joined, .because = because, .preset = preset});
    return true;
  }
  note({.kind = Line::Kind::waiting, .because = because, .preset = preset});
  state_.line.push_back({std::move(run), preset});
  return false;
}

void Machine::enter(Run& run, Place preset) {
  const Line begins{.kind = Line::Kind::run, .because = run.frames.back().line, .preset = preset};
  if (run.frames.size() > deepestCall) {
    suspects_.insert(shownRun(begins));
    throw endlessLoop();
  }
  const LineNumber line = note(begins);
  run.frames.push_back({wiring_.preset(preset).code, 0, line});
}

void Machine::enterTurn(Run& run, Place preset) {
  state_.turn = State::Turn::taken;
  run.hasTurn = true;
  enter(run, preset);
  run.frames.back().isTurn = true;
}

void Machine::leave(Run& run) {
  if (run.frames.back().isTurn) {
    run.hasTurn = false;
    state_.turn = State::Turn::ended;
  }
  run.frames.pop_back();
}

// Levels and commands.

void Machine::setLevel(SignalPlace place, bool isOn, LineNumber because) {
  if (place == program::none || level(place) == isOn) return;
  state_.levels[static_cast<std::size_t>(place)] = isOn;
  const Signal& signal = wiring_.signal(place);
  const LineNumber line = note({.kind = Line::Kind::level,
                                .because = because,
                                .unit = signal.unit,
                                .name = signal.name,
                                .isOn = isOn});
  for (const Delivery* follower : signal.followers) follow(*follower, isOn, line);
  const EventCode* event = isOn ? signal.goesOn : signal.goesOff;
  if (event) work_.push_back({line, Begin{event}});
}

void Machine::pulse(SignalPlace signal, LineNumber because) {
  setLevel(signal, true, because);
  setLevel(signal, false, because);
}

void Machine::holdLevel(SignalPlace signal, Time time, LineNumber because) {
  if (time <= 0) return;
  setLevel(signal, true, because);
  setDeadline(time, {because, GoesOff{signal}});
}

void Machine::follow(const Delivery& to, bool isOn, LineNumber because) {
  if (++depth_ > deepestCall) throw endlessLoop();
  deliver({&to, Command::Type::digital, isOn ? Command::levelOn : Command::levelOff}, because);
  --depth_;
}

void Machine::send(const Send& send, LineNumber because) {
  const LineNumber line = deliver(send, because);
  if (send.hold > 0) setDeadline(send.hold, {line, Release{&send}});
}

LineNumber Machine::deliver(const Send& send, LineNumber because) {
  const Delivery& to = *send.to;
  const LineNumber line = note(lineOf(send, Line::Kind::sent, because));
  arrive(to, {to.unit, to.command, send.type, send.value, line});
  return line;
}

void Machine::release(const Send& send, LineNumber because) {
  const Delivery& to = *send.to;
  const LineNumber line = note(lineOf(send, Line::Kind::released, because));
  if (to.isForPort) ports_.released(*this, {to.unit, to.command, send.type, send.value, line});
}

void Machine::arrive(const Delivery& to, const Arrival& command) {
  if (command.isPressed()) {
    for (const Lockout& lockout : to.lockouts) {
      holdLevel(lockout.signal, lockout.time, command.line);
    }
  }
  react(to, command);
  if (to.isForPort) ports_.arrived(*this, command);
}

void Machine::moveBetween(SignalPlace from, SignalPlace to, LineNumber because) {
  setLevel(from, false, because);
  setLevel(to, true, because);
}

void Machine::react(const Delivery& to, const Arrival& command) {
  if (to.reaction == Reaction::enable) return setSwitch(to.unit, command.isPressed());
  if (!command.isPressed()) return;
  const Wiring::ReceiverSignals& own = wiring_.receiver();
  switch (to.reaction) {
    case Reaction::powerOn:
      return moveBetween(own.poweredOff, own.poweredOn, command.line);
    case Reaction::powerOff:
      return moveBetween(own.poweredOn, own.poweredOff, command.line);
    case Reaction::selectRGB:
      return moveBetween(own.composite, own.rgb, command.line);
    case Reaction::selectComposite:
      return moveBetween(own.rgb, own.composite, command.line);
    case Reaction::lock:
    case Reaction::unlock:
      state_.isLocked = to.reaction == Reaction::lock;
      return;
    case Reaction::muteOn:
    case Reaction::muteOff:
      state_.isMuted = to.reaction == Reaction::muteOn;
      return;
    case Reaction::volumeUp:
      state_.volume = std::min(state_.volume + 1, loudest);
      return;
    case Reaction::volumeDown:
      state_.volume = std::max(state_.volume - 1, 0);
      return;
    case Reaction::closeRelay:
    case Reaction::openRelay:
      return setSwitch(to.unit, to.reaction == Reaction::closeRelay);
    case Reaction::sensedOn:
    case Reaction::sensedOff:
      return toggle(to.unit, to.reaction == Reaction::sensedOn, command.line);
    case Reaction::none:
    case Reaction::enable:
      return;
  }
}

/// A display without discrete commands, of which the sensor knows whether it is on.
void Machine::toggle(Place module, bool isOn, LineNumber because) {
  const Sensor& sensor = *wiring_.sensorBy(module);
  if (level(sensor.state) == isOn) return;
  for (const Send& each : sensor.toggles) send(each, because);
}

void Machine::sense(Place display, bool isOn, LineNumber because) {
  for (const Sensor& sensor : wiring_.sensors()) {
    if (sensor.display == display) setLevel(sensor.state, isOn, because);
  }
}

// What a person does.

void Machine::pressReceiver(std::string_view button) {
  inOneInstant([&] {
    const LineNumber input = noteInput();
    const Delivery* to = wiring_.delivery(wiring_.program().receiver, button);
    if (!to) return;
    if (state_.isLocked) return refuse(to->unit, to->command, "it is locked", input);
    arrive(*to, {to->unit, to->command, Command::Type::digital, {}, input});
  });
}

void Machine::pressPage(Place panel, std::int32_t object) {
  inOneInstant([&] {
    const LineNumber input = noteInput();
    const PanelButton* button = wiring_.button(panel, object);
    if (!button) return;
    if (!isEnabled(panel)) return refuse(panel, button->name, "it is disabled", input);
    if (button->code) go({{{button->code, 0, input}}});
  });
}

void Machine::pressPanel(Place panel, std::string_view button) {
  inOneInstant([&] {
    const LineNumber input = noteInput();
    const SignalPlace signal = wiring_.find(panel, button);
    if (signal == program::none) return;
    if (!isEnabled(panel)) {
      return refuse(panel, wiring_.signal(signal).name, "it is disabled", input);
    }
    pulse(signal, input);
  });
}

void Machine::refuse(Place unit, std::string_view button, std::string_view why, LineNumber input) {
  note({.kind = Line::Kind::refused, .because = input, .unit = unit, .name = button, .text = why});
}

void Machine::setContact(Place digitalInput, bool isClosed) {
  inOneInstant([&] { setLevel(wiring_.find(digitalInput, contactOutput), isClosed, noteInput()); });
}

void Machine::setMotion(bool isMoving) {
  inOneInstant([&] {
    const LineNumber input = noteInput();
    const Wiring::MotionDetector& detector = wiring_.motionDetector();
    if (detector.timeout <= 0) return setLevel(detector.motion, isMoving, input);
    if (isMoving) holdLevel(detector.motion, detector.timeout, input);
  });
}

void Machine::setHelpDesk(std::string_view signal, bool isOn) {
  inOneInstant([&] { setLevel(helpDeskSignal(signal), isOn, noteInput()); });
}

void Machine::pulseHelpDesk(std::string_view signal) {
  inOneInstant([&] { pulse(helpDeskSignal(signal), noteInput()); });
}

SignalPlace Machine::helpDeskSignal(std::string_view signal) const {
  const Place monitoring = wiring_.unitOf(program::Role::monitoring);
  return monitoring == program::none ? program::none : wiring_.find(monitoring, signal);
}

}  // namespace runtime
