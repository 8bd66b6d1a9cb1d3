#include "trellisar/library/ListedDefinition.h"

#include "host/Numbers.h"

namespace trellisar {

ListedDefinition listingOf(const Definition& definition) {
  const auto has = [&](std::int16_t command) {
    return !definition.defaultCommand(command).empty();
  };
  return {.form = definition.form,
          .name = definition.name,
          .maker = definition.maker,
          .category = definition.category,
          .controlEntry = definition.controlEntry,
          .modelId = definition.modelId,
          .id = definition.id,
          .type = definition.type,
          .kind = definition.kind,
          .slot = definition.slot,
          .part = definition.part,
          .connection = definition.connection,
          .power = {has(host::scOn), has(host::scOff), has(host::scDown), has(host::scUp),
                    definition.secondOff}};
}

}  // namespace trellisar
