#pragma once

#include <string>

#include "base/Json.h"
#include "trellisar/library/Definition.h"

namespace trellisar {

/// Reads a definition in the form of the device library. Raises what JsonReader raises.
Definition readDefinition(base::JsonReader reader, Definition::Form form, const std::string& maker);

/// The same as JSON; `readDefinition` gives it back.
base::Json definitionJson(const Definition& definition);

/// "device", "module", "interface", "receiver".
const char* formName(Definition::Form form);
Definition::Form readForm(const base::JsonReader& reader);

}  // namespace trellisar
