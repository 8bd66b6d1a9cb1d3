#pragma once

#include <exception>
#include <map>
#include <string>
#include <vector>

#include "simulator/Act.h"
#include "simulator/Room.h"

namespace simulator {

/// A program that is tried: its machine, its virtual room, and what happened so far. The program
/// outlives it.
///
///     Trial trial(program);
///     trial.act(1000, PressReceiver{"Power_On"});
///     trial.runToRest();
class Trial {
 public:
  /// The program starts at once. An endless loop in that is raised by what is called next.
  explicit Trial(const program::Program& program);

  /// Lets time pass up to `at`, which is not before now, and does the act then. Raises
  /// runtime::EndlessLoop, as the other two do.
  void act(Time at, Act act);
  void advance(Time to);
  /// Goes on until nothing is due any more, at most a day. False when the day was over first.
  bool runToRest();

  const runtime::Machine& machine() const { return machine_; }
  const runtime::Wiring& wiring() const { return wiring_; }
  const Room& room() const { return room_; }
  const runtime::Trace& trace() const { return trace_; }
  /// What a person did on a line of the trace; nothing for another line.
  const Act* actOf(runtime::LineNumber line) const;

  struct Done {
    Time at = 0;
    Act act;
    bool operator==(const Done&) const = default;
  };
  /// All that was done, in order: the script of this trial.
  std::vector<Done> script() const;

 private:
  void raiseLoopAtStart();

  runtime::Wiring wiring_;
  Room room_;
  runtime::Trace trace_;
  runtime::Machine machine_;
  std::map<runtime::LineNumber, Act> acts_;
  std::exception_ptr loopAtStart_;
};

/// A line of a trace for reading, without number and time: `Display Device is warming`.
std::string inWords(const runtime::Line& line, const program::Program& program);

/// `1.50` for 150 hundredths of a second.
std::string inSeconds(Time time);

}  // namespace simulator
