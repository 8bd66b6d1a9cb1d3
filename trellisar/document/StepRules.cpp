#include "trellisar/document/StepRules.h"

#include "host/Numbers.h"
#include "trellisar/document/Steps.h"

namespace trellisar {

bool isTargetThere(const DocumentData& document, std::int16_t targetType, std::int32_t target) {
  const auto id = static_cast<std::int16_t>(target);
  switch (targetType) {
    case host::targetDevice: {
      const DevicePtr device = target == id ? document.find(id) : nullptr;
      return device && device->kind != DeviceData::Kind::panel;
    }
    case host::targetTouchpanel:
      return target == id && document.find(id, DeviceData::Kind::panel) != nullptr;
    case host::targetPreset: {
      const auto preset = document.findPreset(target);
      return preset && !preset->name.empty();
    }
    case host::targetNone:
      return true;
    default:
      return false;
  }
}

bool isStepForm(std::int16_t kind, std::int16_t targetType) {
  StepData data;
  data.kind = kind;
  const std::optional<Step> step = stepOf(data);
  if (!step) return false;
  const bool isDevice = targetType == host::targetDevice || targetType == host::targetTouchpanel;
  return std::visit(ForStep{[&](const CommandStep&) { return isDevice; },
                            [&](const DelayStep&) { return isDevice; },
                            [&](const CallStep&) { return targetType == host::targetPreset; },
                            [&](const BranchStep&) { return targetType == host::targetNone; }},
                    *step);
}

}  // namespace trellisar
