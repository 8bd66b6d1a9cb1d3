#include "trellisar/document/Steps.h"

#include "host/Numbers.h"

namespace trellisar {

std::optional<Step> stepOf(const StepData& data) {
  switch (data.kind) {
    case host::stepDigital:
      return CommandStep{data, host::signalDigital};
    case host::stepAnalog:
      return CommandStep{data, host::signalAnalog};
    case host::stepSerial:
      return CommandStep{data, host::signalSerial};
    case host::stepDelay:
      return DelayStep{data};
    case host::stepCallPreset:
      return CallStep{data};
    case host::stepConditional:
      return BranchStep{data};
    default:
      return std::nullopt;
  }
}

void eachStep(const PresetData& preset, const std::function<void(const Step&, int number)>& see) {
  int number = 0;
  for (const auto& data : preset.steps) {
    if (const std::optional<Step> step = stepOf(*data)) see(*step, ++number);
  }
}

void everyStep(const PresetData& preset, const std::function<void(const Step&)>& see) {
  eachStep(preset, [&see](const Step& step, int) {
    see(step);
    if (const auto* branch = std::get_if<BranchStep>(&step)) everyStep(branch->branch(), see);
  });
}

}  // namespace trellisar
