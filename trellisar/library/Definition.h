#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "program/Program.h"

namespace trellisar {

/// A row of a device's signal table. Commands are rows too: digital inputs.
struct SignalRow {
  std::string output;  // empty: an input alone
  std::string input;   // empty: an output alone
  std::int16_t type;   // host::enumSignalType
  bool hasOptions;     // whether the output takes event options
  bool operator==(const SignalRow&) const = default;
};

struct CommandDefinition {
  std::string name;
  std::int16_t type;      // host::enumCommandType
  std::string send = {};  // what goes to the port, a byte for each code point; empty: not told
  bool operator==(const CommandDefinition&) const = default;
};

struct StandardCommandDefinition {
  std::int16_t id;
  std::string command;
  bool operator==(const StandardCommandDefinition&) const = default;
};

struct PropertyDefinition {
  enum class Type { text, integer, constant };

  std::string name;
  std::string value;
  Type type = Type::text;
  std::optional<std::int32_t> maxLength;  // code points, of a text; nothing: any
  std::int32_t minimum = 0;               // of an integer
  std::int32_t maximum = 0;
  std::vector<std::string> choices;  // of a constant
  bool advanced = false;

  bool takes(std::string_view newValue) const;
  bool operator==(const PropertyDefinition&) const = default;
};

/// What the library says about a device, a module, a user interface or a receiver. A document keeps
/// the definitions of its devices, so that it lives without the library.
struct Definition {
  enum class Form { device, module, interface, receiver };
  enum class Connection { none, serial, infrared, relay, contact, sensor, network, link };

  Form form = Form::device;
  std::string name;
  std::string shortName;          // of a module
  std::int16_t id = 0;            // of a module
  std::int16_t controlEntry = 0;  // of a device
  std::int16_t modelId = 0;
  std::string model;
  std::string maker;
  std::int16_t type = 0;
  std::string category;
  std::int16_t kind = 0;
  std::int16_t slot = 0;
  std::int32_t part = 0;  // 0: none
  std::string description;
  Connection connection = Connection::none;
  bool secondOff = false;
  bool projectPanel = false;                             // of a user interface
  program::Timing timing;                                // of a device
  std::int32_t staleAfter = program::Unit().staleAfter;  // of a device, in seconds
  /// What each wire of a device does, where it takes more than one port of its connection.
  std::vector<std::string> terminals;
  /// How many ports of a connection a receiver has; a connection that is not here has no limit.
  std::vector<std::pair<Connection, std::int16_t>> ports;
  std::vector<CommandDefinition> commands;
  std::vector<SignalRow> furtherInputs;
  std::vector<SignalRow> outputs;
  std::vector<SignalRow> pairs;
  std::vector<StandardCommandDefinition> standardCommands;
  std::vector<PropertyDefinition> properties;
  std::vector<std::string> slots;  // of a module

  /// How many ports of its connection a device takes, one behind the other.
  std::int16_t portsTaken() const;
  const CommandDefinition* findCommand(std::string_view name) const;
  const PropertyDefinition* findProperty(std::string_view name) const;
  /// Empty when the driver has no command for the id.
  std::string defaultCommand(std::int16_t standardId) const;
  bool hasSignal(std::string_view name, std::int16_t direction, std::int16_t signalType) const;
  /// All rows: outputs, pairs, commands, further inputs.
  std::vector<SignalRow> signalTable() const;
  /// The row of that output (empty: none), input (empty: none) and type.
  bool findRow(std::string_view output, std::string_view input, std::int16_t signalType,
               SignalRow& row) const;

  bool operator==(const Definition&) const = default;
};

using DefinitionPtr = std::shared_ptr<const Definition>;

/// "Serial", "Relay"; a dash for a device without a connection.
const char* connectionName(Definition::Connection connection);

/// A definition with nothing in it, for objects without one.
const DefinitionPtr& emptyDefinition();

}  // namespace trellisar
