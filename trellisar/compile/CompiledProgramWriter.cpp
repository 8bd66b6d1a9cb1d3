#include <unordered_map>

#include "base/Json.h"
#include "forms/Numbers.h"
#include "host/Numbers.h"
#include "trellisar/compile/CompiledProgram.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/compile/ProgramHead.h"
#include "trellisar/document/Provisioning.h"
#include "trellisar/document/Steps.h"

namespace trellisar {
namespace {

using Kind = DeviceData::Kind;

constexpr int noUnit = -1;

/// Turns a document into the program of a receiver, in which devices, modules and panels are units
/// and presets are places.
class Compiler {
 public:
  explicit Compiler(const DocumentData& document) : document_(document) {
    for (const DevicePtr& device : document.everyDevice()) {
      units_.emplace(device->id, static_cast<int>(list_.size()));
      list_.push_back(device);
    }
    for (const auto& preset : document.presets) {
      presets_.emplace(preset->id, static_cast<int>(presets_.size()));
    }
  }

  base::Json compile() const {
    base::Json json;
    json["name"] = document_.name;
    json["receiver"] = unit(document_.controlSystem);
    json["units"] = base::Json::array();
    for (const DevicePtr& device : list_) json["units"].push_back(unitJson(*device));
    json["presets"] = base::Json::array();
    for (const auto& preset : document_.presets) {
      json["presets"].push_back({{"name", preset->name}, {"steps", steps(*preset)}});
    }
    json["events"] = events();
    json["sources"] = sources();
    return json;
  }

 private:
  int unit(std::int32_t id) const {
    const auto found = units_.find(id);
    return found == units_.end() ? noUnit : found->second;
  }

  static const char* kindName(const DeviceData& device) {
    if (device.kind == Kind::module) return "module";
    if (device.kind == Kind::panel) return "panel";
    return device.definition->form == Definition::Form::receiver ? "receiver" : "device";
  }

  base::Json unitJson(const DeviceData& device) const {
    base::Json json;
    json["name"] = document_.shownName(device.id);
    json["kind"] = kindName(device);
    json["parent"] = unit(device.parent);
    json["handle"] = device.handle;
    json["driver"] = device.definition->name;
    json["port"] = portText(device);
    json["address"] = device.address;
    if (device.sensorHandle != 0) {
      json["sensor"] = {{"handle", device.sensorHandle}, {"format", device.sensorFormat}};
    }
    json["properties"] = base::Json::object();
    for (const auto& [name, value] : device.properties) json["properties"][name] = value;
    json["slots"] = base::Json::array();
    for (const auto& slot : device.slots) {
      if (slot->command.empty()) continue;
      const std::int16_t target = slot->device != 0 ? slot->device : device.parent;
      json["slots"].push_back(
          {{"name", slot->name}, {"unit", unit(target)}, {"command", slot->command}});
    }
    return json;
  }

  base::Json steps(const PresetData& preset) const {
    base::Json list = base::Json::array();
    eachStep(preset, [&](const Step& step, int) {
      list.push_back(std::visit([this](const auto& each) { return compiled(each); }, step));
    });
    return list;
  }

  base::Json compiled(const CallStep& step) const {
    return {{"do", "call"}, {"preset", presets_.at(step.preset())}};
  }

  base::Json compiled(const BranchStep& step) const {
    return {{"do", "if"}, {"when", condition(*step.condition())}, {"steps", steps(step.branch())}};
  }

  base::Json compiled(const DelayStep& step) const {
    return {{"do", "wait"}, {"hundredths", forms::toInt32(forms::leadingNumber(step.data.value))}};
  }

  base::Json compiled(const CommandStep& step) const {
    return {{"do", signalName(step.signalType)},
            {"unit", unit(step.data.target)},
            {"signal", step.data.signal},
            {"value", step.data.value}};
  }

  static const char* signalName(std::int16_t signalType) {
    if (signalType == host::signalAnalog) return "analog";
    return signalType == host::signalSerial ? "serial" : "digital";
  }

  base::Json condition(const host::StepCondition& condition) const {
    return {{"unit", unit(condition.get_DeviceID())}, {"type", condition.get_ConditionType()},
            {"signal", condition.get_SignalName()},   {"state", condition.get_StateName()},
            {"compare", condition.get_Compare()},     {"value", condition.get_Value()}};
  }

  base::Json events() const {
    base::Json list = base::Json::array();
    for (const ProgrammedEvent& event : programmedEvents(document_)) {
      list.push_back({{"unit", unit(event.data->deviceId)},
                      {"signal", event.signal},
                      {"goes", event.event == host::eventHigh ? "on" : "off"},
                      {"enabled", event.data->enabledEvents},
                      {"steps", steps(*event.preset)}});
    }
    return list;
  }

  base::Json sources() const {
    base::Json list = base::Json::array();
    for (const auto& [device, signal] : fedSignals(document_)) {
      list.push_back({{"unit", unit(signal->deviceId)},
                      {"input", signal->row.input},
                      {"output", signal->row.output},
                      {"type", signal->row.type},
                      {"from", unit(signal->sourceDevice)},
                      {"signal", signal->sourceSignal}});
    }
    return list;
  }

  const DocumentData& document_;
  std::vector<DevicePtr> list_;
  std::unordered_map<std::int32_t, int> units_;
  std::unordered_map<std::int32_t, int> presets_;
};

}  // namespace

std::string compileProgram(const DocumentData& document) {
  return withProgramHead(base::jsonText(Compiler(document).compile()));
}

}  // namespace trellisar
