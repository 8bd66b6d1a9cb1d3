#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "runtime/Trace.h"
#include "runtime/Wiring.h"

namespace runtime {

class Machine;

/// A command as a unit gets it.
struct Arrival {
  Place unit = program::none;
  std::string_view command;
  program::Command::Type type = program::Command::Type::digital;
  std::string_view value;
  LineNumber line = noLine;  // what brought it

  /// Whether it is more than the end of a level.
  bool isPressed() const { return value != program::Command::levelOff; }
};

/// What hangs at the receiver's ports: a virtual room, or real devices. Its calls come from within
/// a call of the machine.
class Ports {
 public:
  virtual ~Ports() = default;
  virtual void arrived(Machine& machine, const Arrival& command) = 0;
  virtual void released(Machine& machine, const Arrival& command) = 0;
  /// The deadline that was set for a unit.
  virtual void due(Machine& machine, Place unit, LineNumber because) = 0;
};

/// The work of one instant does not end.
class EndlessLoop : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Steps that are being run, and those that will go on when they have ended.
struct Run {
  struct Frame {
    const Code* code = nullptr;
    std::size_t next = 0;
    LineNumber line = noLine;  // of the run in which the steps stand
    bool isTurn = false;       // its preset has waits and the run got its turn
  };
  std::vector<Frame> frames;
  bool hasTurn = false;
};

/// What is to be done: the steps of an event begin, a run goes on, a held command is released, a
/// level ends, or what a port waits for is due.
struct Begin {
  const EventCode* event = nullptr;
};
struct Release {
  const Send* send = nullptr;
};
struct GoesOff {
  SignalPlace signal = program::none;
};
struct PortDue {
  Place unit = program::none;
};
struct Work {
  LineNumber because = noLine;
  std::variant<Begin, Run, Release, GoesOff, PortDue> what;
};

struct Deadline {
  Time at = 0;
  Work work;
};

/// A run that waits until the presets before it have ended.
struct Waiting {
  Run run;
  Place preset = program::none;
};

/// All that a machine remembers between two acts; a copy of it goes on from there.
struct State {
  enum class Turn { free, taken, ended };

  Time now = 0;
  std::vector<char> levels;    // by signal
  std::vector<char> switches;  // by unit: a panel is enabled, a relay is closed
  bool isLocked = false;
  bool isMuted = false;
  std::int32_t volume = 50;         // 0 to 100
  std::vector<Deadline> deadlines;  // by time, of one time in the order in which they were set
  std::vector<Waiting> line;
  Turn turn = Turn::free;

  /// The same for states that go on alike, whenever they were reached, for whom only some signals
  /// matter, and the end of a held command does not.
  std::size_t hash(const std::vector<char>& signalsThatMatter) const;
};

/// Runs a program. It has no clock, no thread, no input and no output: what happens is told to it,
/// time passes when it is told so, and the same calls give the same trace.
///
/// An act is one call; when it returns, the work of its instant is done. Every act and `advance`
/// may raise EndlessLoop; the machine has then forgotten all runs and deadlines.
class Machine {
 public:
  /// All of them outlive the machine; without a trace nothing is written down.
  Machine(const Wiring& wiring, Ports& ports, Trace* trace = nullptr);

  /// The program starts.
  void start();
  /// Lets time pass up to `time`, with all that is due then.
  void advance(Time time);
  std::optional<Time> nextDeadline() const;
  /// As above, leaving out when commands are released.
  std::optional<Time> nextEffect() const;
  bool isAtRest() const { return state_.deadlines.empty(); }

  // What a person does, now. Names and numbers are those of the program.
  void pressReceiver(std::string_view button);
  void pressPage(Place panel, std::int32_t object);
  void pressPanel(Place panel, std::string_view button);
  void setContact(Place digitalInput, bool isClosed);
  void setMotion(bool isMoving);
  void setHelpDesk(std::string_view signal, bool isOn);
  void pulseHelpDesk(std::string_view signal);

  // For the ports.
  void sense(Place display, bool isOn, LineNumber because);
  LineNumber note(Line line);
  /// Takes the place of the unit's earlier deadline.
  void setDeadline(Place unit, Time fromNow, LineNumber because);
  void forgetDeadline(Place unit);

  const Wiring& wiring() const { return wiring_; }
  Time now() const { return state_.now; }
  bool level(SignalPlace signal) const {
    return signal != program::none && state_.levels[static_cast<std::size_t>(signal)] != 0;
  }
  bool isLocked() const { return state_.isLocked; }
  bool isEnabled(Place panel) const { return isSwitched(panel); }
  bool isClosed(Place relay) const { return isSwitched(relay); }

  const State& state() const { return state_; }
  void setState(const State& state) { state_ = state; }

 private:
  // One instant.
  template <typename Act>
  void inOneInstant(Act act);
  void endInstant();
  void doWork(Work work);
  bool giveTurn();
  void watch(const Line& line);
  EndlessLoop endlessLoop() const;
  std::string shownRun(const Line& line) const;

  // Runs. A step that does not go on has taken the run with it.
  void begin(const EventCode& event, LineNumber because);
  void go(Run run);
  bool goesOn(Run& run, const Send& step);
  bool goesOn(Run& run, const Pause& step);
  bool goesOn(Run& run, const CallPreset& step);
  bool goesOn(Run& run, const If& step);
  void enter(Run& run, Place preset);
  void enterTurn(Run& run, Place preset);
  void leave(Run& run);

  // Levels and commands.
  void setLevel(SignalPlace signal, bool isOn, LineNumber because);
  void holdLevel(SignalPlace signal, Time time, LineNumber because);
  void pulse(SignalPlace signal, LineNumber because);
  void follow(const Delivery& to, bool isOn, LineNumber because);
  void send(const Send& send, LineNumber because);
  LineNumber deliver(const Send& send, LineNumber because);
  void release(const Send& send, LineNumber because);
  void arrive(const Delivery& to, const Arrival& command);
  void react(const Delivery& to, const Arrival& command);
  void moveBetween(SignalPlace from, SignalPlace to, LineNumber because);
  void toggle(Place module, bool isOn, LineNumber because);
  bool isSwitched(Place unit) const { return state_.switches[static_cast<std::size_t>(unit)] != 0; }
  void setSwitch(Place unit, bool isOn) { state_.switches[static_cast<std::size_t>(unit)] = isOn; }

  void setDeadline(Time fromNow, Work work);
  void forget(const Work& work);

  LineNumber noteInput() { return note({.kind = Line::Kind::input}); }
  void refuse(Place unit, std::string_view button, std::string_view why, LineNumber input);
  SignalPlace helpDeskSignal(std::string_view signal) const;

  const Wiring& wiring_;
  Ports& ports_;
  Trace* trace_;
  State state_;
  std::vector<Work> work_;  // of this instant, in order
  std::size_t nextWork_ = 0;
  LineNumber lines_ = 0;
  std::size_t linesOfInstant_ = 0;
  std::size_t depth_ = 0;           // of levels that follow each other
  std::set<std::string> suspects_;  // what runs while the instant does not end
};

}  // namespace runtime
