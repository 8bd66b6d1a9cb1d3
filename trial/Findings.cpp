#include "trial/Findings.h"

#include "trial/Play.h"
#include "trial/Script.h"
#include "trial/Trace.h"

namespace trial {
namespace {

using runtime::Line;
using simulator::Concern;
using simulator::Truth;

std::string listed(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : ", ") + word;
  return text;
}

/// What one sees of a room without looking into its program.
bool isSeen(const Line& line) {
  switch (line.kind) {
    case Line::Kind::input:
    case Line::Kind::state:
    case Line::Kind::lost:
    case Line::Kind::cut:
    case Line::Kind::refused:
      return true;
    case Line::Kind::level:
    case Line::Kind::run:
    case Line::Kind::waiting:
    case Line::Kind::joined:
    case Line::Kind::sent:
    case Line::Kind::released:
      return false;
  }
  return false;
}

std::string right(const std::string& text) {
  constexpr std::size_t width = 16;
  return std::string(width - std::min(width, text.size()), ' ') + text;
}

std::string wayText(const simulator::Trial& trial, const simulator::Fault& fault) {
  const program::Program& program = trial.wiring().program();
  std::string text;
  for (const Line& line : trial.trace()) {
    if (!isSeen(line)) continue;
    const simulator::Act* act = trial.actOf(line.number);
    const std::string words = act ? inWords(*act, program) : simulator::inWords(line, program);
    text += right(simulator::inSeconds(line.at)) + "  " + words + "\n";
    if (words == fault.what) break;
  }
  return text;
}

}  // namespace

std::vector<std::string> answersThatMend(const simulator::Fault& fault) {
  switch (fault.concern) {
    case Concern::warmUp:
      return {"lockout.on"};
    case Concern::coolDown:
      if (fault.truth == Truth::mainsStay) return {"display.relay.off_delay", "lockout.off"};
      return {"lockout.off"};
    case Concern::mains:
      return {"display.relay.on_delay"};
    case Concern::displayPower:
      if (fault.truth == Truth::nothingIsLost) return {};  // no answer makes the room wait for it
      return {"power.control", "power.on", "power.off"};
    case Concern::relay:
      return {"display.relay"};
    case Concern::screen:
      return {"screen.on", "screen.off"};
    case Concern::lift:
      return {"lift.on", "lift.off"};
    case Concern::rgbSource:
      return {"display.rgb", "lockout.on"};
    case Concern::compositeSource:
      return {"display.composite", "lockout.on"};
    case Concern::lock:
      return {"lockout.contact"};
    case Concern::helpDesk:
      return {"room.kestrum"};
    case Concern::endless:
      return {};
  }
  return {};
}

base::Json findingJson(const simulator::Finding& finding, const program::Program& program) {
  const Script script{finding.script, {}};
  simulator::Trial trial(program);
  const Ending ending = play(script, trial);
  base::Json json;
  json["what"] = finding.fault.what;
  json["against"] = inWords(finding.fault.truth);
  json["answers"] = answersThatMend(finding.fault);
  json["everyday"] = finding.isEveryday;
  json["script"] = base::Json::parse(scriptText(script, program));
  json["trace"] = traceJson(trial, ending.isAtRest)["trace"];
  return json;
}

std::string findingText(const simulator::Finding& finding, const program::Program& program) {
  simulator::Trial trial(program);
  play({finding.script, {}}, trial);
  std::string text = "  " + finding.fault.what + "\n";
  const std::string against = inWords(finding.fault.truth);
  if (against != finding.fault.what) text += "      against: " + against + "\n";
  const std::string answers = listed(answersThatMend(finding.fault));
  if (!answers.empty()) text += "      answers to look at: " + answers + "\n";
  return text + wayText(trial, finding.fault);
}

std::string findingLine(const simulator::Fault& fault) {
  const std::string answers = listed(answersThatMend(fault));
  return fault.what + (answers.empty() ? "" : " (answers to look at: " + answers + ")");
}

}  // namespace trial
