#include "trellisar/document/StepRules.h"

#include "host/Numbers.h"

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
  switch (kind) {
    case host::stepDigital:
    case host::stepAnalog:
    case host::stepSerial:
    case host::stepDelay:
      return targetType == host::targetDevice || targetType == host::targetTouchpanel;
    case host::stepCallPreset:
      return targetType == host::targetPreset;
    case host::stepConditional:
      return targetType == host::targetNone;
    default:
      return false;
  }
}

}  // namespace trellisar
