#include "trial/Script.h"

#include "base/Json.h"
#include "trial/ActJson.h"

namespace trial {
namespace {

using base::Json;

Json timingJson(const OwnTiming& timing) {
  Json json = Json::object();
  if (timing.warmUp) json["warm_up"] = *timing.warmUp;
  if (timing.coolDown) json["cool_down"] = *timing.coolDown;
  if (timing.travel) json["travel"] = *timing.travel;
  return json;
}

}  // namespace

std::string scriptText(const Script& script, const program::Program& program) {
  Json acts = Json::array();
  for (const auto& [at, act] : script.acts) {
    Json json;
    json["at"] = secondsJson(at);
    addAct(act, program, json);
    acts.push_back(std::move(json));
  }
  if (script.timing.empty()) return base::jsonText(acts);
  Json timing = Json::object();
  for (const OwnTiming& each : script.timing) {
    timing[unitJson(each.unit, program).get<std::string>()] = timingJson(each);
  }
  return base::jsonText({{"script", std::move(acts)}, {"timing", std::move(timing)}});
}

void setTimes(const Script& script, program::Program& program) {
  for (const OwnTiming& own : script.timing) {
    program::Timing& timing = program.units[static_cast<std::size_t>(own.unit)].timing;
    timing.warmUp = own.warmUp.value_or(timing.warmUp);
    timing.coolDown = own.coolDown.value_or(timing.coolDown);
    timing.travel = own.travel.value_or(timing.travel);
  }
}

}  // namespace trial
