#include <algorithm>
#include <string_view>

#include "trial/Rest.h"
#include "trial/Trace.h"

namespace trial {
namespace {

using base::Json;
using runtime::Line;

/// A row of the table, whose first three columns stand to the right.
std::string row(std::string_view number, std::string_view at, std::string_view from,
                std::string_view what) {
  constexpr std::size_t widthOfTime = 9;
  const auto right = [](std::string_view text, std::size_t width) {
    return std::string(width - std::min(width, text.size()), ' ').append(text);
  };
  constexpr std::size_t widthOfNumber = 5;
  return right(number, widthOfNumber) + right(at, widthOfTime) + right(from, widthOfNumber + 1) +
         "  " + std::string(what) + "\n";
}

std::string numberText(runtime::LineNumber line) {
  return line == runtime::noLine ? "" : std::to_string(line);
}

std::string words(const simulator::Trial& trial, const Line& line) {
  const program::Program& program = trial.wiring().program();
  const simulator::Act* act = trial.actOf(line.number);
  return act ? simulator::inWords(*act, program) : simulator::inWords(line, program);
}

/// The levels that are on: `Powered_On, RGB_Selected`.
std::string levelsText(const Json& unit) {
  std::string names;
  if (!unit.contains("levels")) return names;
  for (const auto& [name, level] : unit["levels"].items()) {
    if (level.get<bool>()) names += (names.empty() ? "" : ", ") + name;
  }
  return names.empty() ? names : names + " on";
}

/// How a unit stands: `on, input RGB_1`.
std::string unitText(const Json& unit) {
  std::string text;
  const auto add = [&](const std::string& part) { text += (text.empty() ? "" : ", ") + part; };
  if (unit.contains("state")) add(unit["state"]);
  if (unit.contains("input")) {
    const std::string input = unit["input"].is_null() ? "" : unit["input"].get<std::string>();
    add(input.empty() ? "no input chosen" : "input " + input);
  }
  if (unit.contains("locked")) add(unit["locked"].get<bool>() ? "locked" : "not locked");
  if (unit.contains("enabled")) add(unit["enabled"].get<bool>() ? "enabled" : "disabled");
  if (unit.contains("closed")) add(unit["closed"].get<bool>() ? "closed" : "open");
  if (const std::string levels = levelsText(unit); !levels.empty()) add(levels);
  return text;
}

}  // namespace

std::string traceText(const simulator::Trial& trial, bool isAtRest) {
  std::string text = row("n", "at", "from", "what happens");
  for (const Line& line : trial.trace()) {
    text += row(numberText(line.number), simulator::inSeconds(line.at), numberText(line.because),
                words(trial, line));
  }
  const std::string now = simulator::inSeconds(trial.machine().now());
  text += isAtRest ? "\nAt rest after " : "\nNot at rest after ";
  text += now + " s:\n";
  const Json rest = restJson(trial);
  for (const auto& [name, unit] : rest.items()) {
    if (const std::string stands = unitText(unit); !stands.empty()) {
      text += "    " + name + ": " + stands + "\n";
    }
  }
  return text;
}

}  // namespace trial
