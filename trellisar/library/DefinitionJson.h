#pragma once

#include <optional>
#include <string>
#include <string_view>

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
std::optional<Definition::Form> formNamed(std::string_view name);

/// "serial", as files have it.
const char* connectionWord(Definition::Connection connection);
std::optional<Definition::Connection> connectionNamed(std::string_view word);

}  // namespace trellisar
