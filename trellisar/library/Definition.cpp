#include "trellisar/library/Definition.h"

#include <algorithm>
#include <charconv>

#include "forms/Text.h"
#include "host/Numbers.h"

namespace trellisar {
namespace {

/// A whole decimal number, with nothing before or behind it.
bool isIntegerIn(std::string_view text, std::int32_t minimum, std::int32_t maximum) {
  std::int32_t value = 0;
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), value);
  return status == std::errc() && end == text.data() + text.size() && value >= minimum &&
         value <= maximum;
}

template <typename List>
auto findNamed(const List& list, std::string_view name) -> decltype(list.data()) {
  const auto found = std::find_if(list.begin(), list.end(),
                                  [name](const auto& item) { return item.name == name; });
  return found == list.end() ? nullptr : &*found;
}

SignalRow commandRow(const std::string& name) { return {"", name, host::signalDigital, false}; }

}  // namespace

bool PropertyDefinition::takes(std::string_view newValue) const {
  switch (type) {
    case Type::text:
      return !maxLength || forms::length(newValue) <= *maxLength;
    case Type::integer:
      return isIntegerIn(newValue, minimum, maximum);
    case Type::constant:
      return std::find(choices.begin(), choices.end(), newValue) != choices.end();
  }
  return false;
}

std::int16_t Definition::portsTaken() const {
  return std::max<std::int16_t>(1, static_cast<std::int16_t>(terminals.size()));
}

const CommandDefinition* Definition::findCommand(std::string_view commandName) const {
  return findNamed(commands, commandName);
}

const PropertyDefinition* Definition::findProperty(std::string_view propertyName) const {
  return findNamed(properties, propertyName);
}

std::string Definition::defaultCommand(std::int16_t standardId) const {
  for (const auto& [id_, command] : standardCommands) {
    if (id_ == standardId) return command;
  }
  return {};
}

std::vector<SignalRow> Definition::signalTable() const {
  std::vector<SignalRow> rows = outputs;
  rows.insert(rows.end(), pairs.begin(), pairs.end());
  for (const CommandDefinition& command : commands) rows.push_back(commandRow(command.name));
  rows.insert(rows.end(), furtherInputs.begin(), furtherInputs.end());
  return rows;
}

bool Definition::findRow(std::string_view output, std::string_view input, std::int16_t signalType,
                         SignalRow& row) const {
  if (output.empty() && input.empty()) return false;
  for (const auto* rows : {&outputs, &pairs, &furtherInputs}) {
    for (const SignalRow& candidate : *rows) {
      if (candidate.output == output && candidate.input == input && candidate.type == signalType) {
        row = candidate;
        return true;
      }
    }
  }
  if (!output.empty() || signalType != host::signalDigital || !findCommand(input)) return false;
  row = commandRow(std::string(input));
  return true;
}

bool Definition::hasSignal(std::string_view signalName, std::int16_t direction,
                           std::int16_t signalType) const {
  if (signalName.empty()) return false;
  const bool isInput = direction == host::directionInput;
  if (isInput && signalType == host::signalDigital && findCommand(signalName)) return true;
  for (const auto* rows : {&outputs, &pairs, &furtherInputs}) {
    for (const SignalRow& row : *rows) {
      if (row.type == signalType && (isInput ? row.input : row.output) == signalName) return true;
    }
  }
  return false;
}

const DefinitionPtr& emptyDefinition() {
  static const DefinitionPtr empty = std::make_shared<const Definition>();
  return empty;
}

const char* connectionName(Definition::Connection connection) {
  switch (connection) {
    case Definition::Connection::serial:
      return "Serial";
    case Definition::Connection::infrared:
      return "Infrared";
    case Definition::Connection::relay:
      return "Relay";
    case Definition::Connection::contact:
      return "Contact";
    case Definition::Connection::sensor:
      return "Sensor";
    case Definition::Connection::network:
      return "Network";
    case Definition::Connection::link:
      return "Link";
    case Definition::Connection::none:
      break;
  }
  return "";
}

}  // namespace trellisar
