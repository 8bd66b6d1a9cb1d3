#include "simulator/Trial.h"

#include <charconv>
#include <utility>

namespace simulator {
namespace {

using runtime::Line;
using runtime::LineNumber;

constexpr Time day = Time{24} * 60 * 60 * 100;

std::string shownValue(const Line& line) {
  using Type = program::Command::Type;
  if (line.text.empty()) return {};
  if (line.type != Type::digital) return " = " + std::string(line.text);
  if (line.text == program::Command::levelOn) return " on";
  if (line.text == program::Command::levelOff) return " off";
  Time held = 0;
  const char* end = line.text.data() + line.text.size();
  const auto [read, error] = std::from_chars(line.text.data(), end, held);
  if (error != std::errc() || read != end || held < 0) return " = " + std::string(line.text);
  return " (held " + inSeconds(held) + " s)";
}

}  // namespace

Trial::Trial(const program::Program& program)
    : wiring_(program), room_(wiring_), machine_(wiring_, room_, &trace_) {
  try {
    machine_.start();
  } catch (const runtime::EndlessLoop&) {
    loopAtStart_ = std::current_exception();
  }
}

void Trial::raiseLoopAtStart() {
  if (loopAtStart_) std::rethrow_exception(std::exchange(loopAtStart_, nullptr));
}

void Trial::advance(Time to) {
  raiseLoopAtStart();
  machine_.advance(to);
}

void Trial::act(Time at, Act act) {
  advance(at);
  acts_.emplace(trace_.size() + 1, act);
  perform(machine_, act);
}

bool Trial::runToRest() {
  raiseLoopAtStart();
  const Time latest = machine_.now() + day;
  while (const auto next = machine_.nextDeadline()) {
    if (*next > latest) {
      machine_.advance(latest);
      return false;
    }
    machine_.advance(*next);
  }
  return true;
}

const Act* Trial::actOf(LineNumber line) const {
  const auto found = acts_.find(line);
  return found == acts_.end() ? nullptr : &found->second;
}

std::vector<Trial::Done> Trial::script() const {
  std::vector<Done> script;
  for (const auto& [line, act] : acts_) script.push_back({trace_[line - 1].at, act});
  return script;
}

std::string inWords(const Line& line, const program::Program& program) {
  const auto unit = [&] { return program.units[static_cast<std::size_t>(line.unit)].name; };
  const auto preset = [&] {
    return "\"" + program.presets[static_cast<std::size_t>(line.preset)].name + "\"";
  };
  const std::string name(line.name);
  const std::string why = ": " + std::string(line.text);
  switch (line.kind) {
    case Line::Kind::input:
      return "a person acts";
    case Line::Kind::level:
      return name + " of " + unit() + (line.isOn ? " goes on" : " goes off");
    case Line::Kind::run:
      if (line.preset != program::none) return "run " + preset();
      return "run what follows when " + name + " of " + unit() +
             (line.isOn ? " goes on" : " goes off");
    case Line::Kind::waiting:
      return "wait for the turn of " + preset();
    case Line::Kind::joined:
      return "join the one that waits for " + preset();
    case Line::Kind::sent:
      return unit() + ": " + name + shownValue(line);
    case Line::Kind::released:
      return unit() + ": " + name + " released";
    case Line::Kind::refused:
      return unit() + " refuses " + name + why;
    case Line::Kind::lost:
      return unit() + " does not take " + name + why;
    case Line::Kind::cut:
      return unit() + " is cut off by " + name + why;
    case Line::Kind::state:
      return unit() + " is " + name;
  }
  return {};
}

std::string inSeconds(Time time) {
  const std::string hundredths = std::to_string(time % 100);
  return std::to_string(time / 100) + (hundredths.size() == 1 ? ".0" : ".") + hundredths;
}

}  // namespace simulator
