#include "app/StepTable.h"

#include "app/Answers.h"
#include "app/Shape.h"

namespace app {
namespace {

struct NotBuilt {
  const char* answers;
  const char* step;
};

constexpr NotBuilt notBuilt[] = {
    {"audio", "Audio Control"},
    {"lockout", "Power On/Off Lockout"},
    {"screen", "Display Options"},
    {"lift", "Display Options"},
    {"transmitters", "Orlena Transmitters"},
    {"three_input_receiver", "Orlena Transmitters"},
    {"room", "Room Options"},
};

/// The place of the first answer in what stands at a path; nothing when it holds none.
std::optional<std::string> firstAnswer(const trellisar::Json& value, const std::string& path) {
  if (!value.is_structured()) return path;
  for (const auto& [key, member] : value.items()) {
    const std::string place = value.is_array() ? path + "[" + key + "]" : path + "." + key;
    if (const auto answer = firstAnswer(member, place)) return answer;
  }
  return std::nullopt;
}

}  // namespace

const std::vector<StepActs>& stepActs() {
  static const std::vector<StepActs> steps = {locationActs(), displayActs(), powerActs()};
  return steps;
}

void refuseAnswersWithoutStep(const Answers& answers) {
  for (const auto& [key, step] : notBuilt) {
    const trellisar::Json* value = answers.find(key);
    if (!value) continue;
    if (const auto answer = firstAnswer(*value, key)) {
      throw RunEnded(exitStatus::wrongInput,
                     *answer + ": the step " + quoted(step) + " is not built yet");
    }
  }
}

}  // namespace app
