#include "trellisar/library/DefinitionJson.h"

#include <set>

#include "base/Fields.h"
#include "forms/Numbers.h"
#include "forms/Text.h"
#include "host/Numbers.h"
#include "program/ProgramFields.h"

namespace trellisar {
namespace {

using Form = Definition::Form;
using Connection = Definition::Connection;

using base::Choices;
using base::nameOf;

constexpr Choices<Form> definitionForms = {{"device", Form::device},
                                           {"module", Form::module},
                                           {"interface", Form::interface},
                                           {"receiver", Form::receiver}};

constexpr Choices<Connection> connections = {
    {"serial", Connection::serial}, {"infrared", Connection::infrared},
    {"relay", Connection::relay},   {"contact", Connection::contact},
    {"sensor", Connection::sensor}, {"network", Connection::network},
    {"link", Connection::link},     {"none", Connection::none}};

template <typename T>
std::optional<T> valueNamed(std::string_view name, Choices<T> choices) {
  for (const auto& [candidate, value] : choices) {
    if (name == candidate) return value;
  }
  return std::nullopt;
}

constexpr std::int16_t mostPorts = 100;  // of one connection, far above what is built

constexpr Choices<Connection> portConnections = {{"link", Connection::link},
                                                 {"serial", Connection::serial},
                                                 {"infrared", Connection::infrared},
                                                 {"relay", Connection::relay},
                                                 {"contact", Connection::contact}};

constexpr Choices<std::int16_t> commandKinds = {{"momentary", host::commandMomentary},
                                                {"pulse", host::commandPulse},
                                                {"held", host::commandHeld}};

constexpr Choices<std::int16_t> signalTypes = {{"digital", host::signalDigital},
                                               {"analog", host::signalAnalog},
                                               {"serial", host::signalSerial}};

using PropertyType = PropertyDefinition::Type;
constexpr Choices<PropertyType> propertyTypes = {{"text", PropertyType::text},
                                                 {"integer", PropertyType::integer},
                                                 {"constant", PropertyType::constant}};

template <typename Fields, typename Property>
void propertyFields(Fields& fields, Property& property) {
  fields("name", property.name);
  fields("value", property.value);
  fields("type", property.type, propertyTypes);
  if (property.type == PropertyType::text) {
    fields.unless(std::nullopt, "max_length", property.maxLength, 0);
  }
  if (property.type == PropertyType::integer) {
    fields("minimum", property.minimum, INT32_MIN);
    fields("maximum", property.maximum, property.minimum);
  }
  if (property.type == PropertyType::constant) fields.own("choices");
  fields.unless(false, "advanced", property.advanced);
}

template <typename Fields, typename Device>
void driverFields(Fields& fields, Device& device) {
  fields("model", device.model);
  fields("type", device.type, 0);
  fields("connection", device.connection, connections);
  fields.unless(false, "second_off", device.secondOff);
  fields.unless(Definition().staleAfter, "stale_after", device.staleAfter, 1,
                program::longestTiming);
}

bool hasDriver(const Definition& definition) {
  return definition.form == Form::device || definition.form == Form::receiver;
}

/// What a definition of each form is known by.
template <typename Fields, typename Any>
void definitionFields(Fields& fields, Any& definition) {
  fields("name", definition.name);
  fields("description", definition.description);
  switch (definition.form) {
    case Form::device:
      fields("entry", definition.controlEntry, 1);
      fields("model_id", definition.modelId, 0);
      fields("category", definition.category);
      fields("kind", definition.kind, 0);
      fields("slot", definition.slot, 0);
      return fields.unless(0, "part", definition.part, 1);
    case Form::receiver:
      fields("model_id", definition.modelId, 1);
      return fields("part", definition.part, 1);
    case Form::module:
      fields("id", definition.id, 1);
      fields("short_name", definition.shortName);
      fields("maker", definition.maker);
      return fields.own("slots");
    case Form::interface:
      fields("model_id", definition.modelId, 1);
      fields("model", definition.model);
      fields("project_panel", definition.projectPanel);
      return fields.unless(0, "part", definition.part, 1);
  }
}

void requireText(const base::JsonReader& reader) {
  if (reader.text().empty()) reader.fail("must not be empty");
}

/// Refuses a second use of a name; names of inputs and of outputs are two worlds.
class Names {
 public:
  std::string take(const base::JsonReader& reader) {
    requireText(reader);
    std::string name = reader.text();
    if (!names_.insert(name).second) reader.fail("\"" + name + "\" stands twice");
    return name;
  }

 private:
  std::set<std::string> names_;
};

PropertyDefinition readProperty(base::JsonReader reader, Names& names) {
  PropertyDefinition property;
  base::FieldReader fields(reader);
  propertyFields(fields, property);
  names.take(reader.at("name"));
  if (property.type == PropertyType::constant) {
    reader.at("choices").each(
        [&](const base::JsonReader& value) { property.choices.push_back(value.text()); });
  }
  reader.finish();
  if (!property.takes(property.value)) {
    reader.at("value").fail("\"" + property.value + "\" is not what the property takes");
  }
  return property;
}

struct SignalNames {
  Names inputs;
  Names outputs;
};

template <typename Fields, typename Command>
void commandFields(Fields& fields, Command& command) {
  fields("name", command.name);
  fields("kind", command.type, commandKinds);
  fields.unless("", "send", command.send);
}

/// A port sends bytes.
void requireBytes(const base::JsonReader& reader) {
  for (const char32_t c : forms::toCodePoints(reader.text())) {
    if (c > 255) reader.fail("must have no code point above 255");
  }
}

void readCommands(const base::JsonReader& list, Definition& definition, SignalNames& names) {
  list.each([&](base::JsonReader reader) {
    CommandDefinition command{{}, host::commandMomentary};
    base::FieldReader fields(reader);
    commandFields(fields, command);
    names.inputs.take(reader.at("name"));
    reader.ifPresent("send", requireBytes);
    reader.finish();
    definition.commands.push_back(std::move(command));
  });
}

void readSignals(base::JsonReader& reader, Definition& definition, SignalNames& names) {
  reader.ifPresent("commands",
                   [&](const base::JsonReader& list) { readCommands(list, definition, names); });
  reader.ifPresent("inputs", [&](const base::JsonReader& list) {
    list.each([&](base::JsonReader row) {
      definition.furtherInputs.push_back(
          {"", names.inputs.take(row.at("name")), row.at("signal").choice(signalTypes), false});
      row.finish();
    });
  });
  reader.ifPresent("outputs", [&](const base::JsonReader& list) {
    list.each([&](base::JsonReader row) {
      SignalRow output{names.outputs.take(row.at("name")), "", row.at("signal").choice(signalTypes),
                       true};
      row.ifPresent("options",
                    [&](const base::JsonReader& value) { output.hasOptions = value.boolean(); });
      row.finish();
      definition.outputs.push_back(std::move(output));
    });
  });
  reader.ifPresent("pairs", [&](const base::JsonReader& list) {
    list.each([&](base::JsonReader row) {
      definition.pairs.push_back({names.outputs.take(row.at("output")),
                                  names.inputs.take(row.at("input")),
                                  row.at("signal").choice(signalTypes), true});
      row.finish();
    });
  });
}

/// The number that a key of "standard_commands" is; 0 for another text.
std::int16_t standardId(const std::string& key) {
  const std::int16_t id = forms::toInt16(forms::leadingNumber(key));
  return id >= 1 && forms::decimal(id) == key ? id : std::int16_t{0};
}

void readStandardCommands(const base::JsonReader& list, Definition& definition) {
  list.eachKey([&](const std::string& key, const base::JsonReader& value) {
    const std::int16_t id = standardId(key);
    if (id == 0) value.fail("the key must be a standard command id");
    const std::string command = value.text();
    if (!definition.findCommand(command)) value.fail("\"" + command + "\" is no command here");
    definition.standardCommands.push_back({id, command});
  });
}

void readProperties(base::JsonReader& reader, Definition& definition) {
  reader.ifPresent("properties", [&](const base::JsonReader& list) {
    Names names;
    list.each([&](const base::JsonReader& property) {
      definition.properties.push_back(readProperty(property, names));
    });
  });
}

/// The receiver's ports by connection. Sensors take the ports of contacts, and the network has as
/// many places as devices ask for.
void readPorts(const base::JsonReader& list, Definition& definition) {
  list.eachKey([&](const std::string& key, const base::JsonReader& count) {
    for (const auto& [name, connection] : portConnections) {
      if (key != name) continue;
      definition.ports.emplace_back(connection, count.int16(0, mostPorts));
      return;
    }
    count.fail("is no connection with ports of its own");
  });
}

void readDriver(base::JsonReader& reader, Definition& definition) {
  base::FieldReader fields(reader);
  driverFields(fields, definition);
  reader.ifPresent("terminals", [&](const base::JsonReader& list) {
    Names names;
    list.each(
        [&](const base::JsonReader& name) { definition.terminals.push_back(names.take(name)); });
    if (definition.terminals.size() > mostPorts) list.fail("are more than a receiver has");
  });
  reader.ifPresent("timing", [&](base::JsonReader timing) {
    base::FieldReader times(timing);
    program::form::timingFields(times, definition.timing);
    timing.finish();
  });
}

void readModule(base::JsonReader& reader, Definition& definition) {
  requireText(reader.at("short_name"));
  Names names;
  reader.at("slots").each(
      [&](const base::JsonReader& slot) { definition.slots.push_back(names.take(slot)); });
}

base::Json signalRows(const std::vector<SignalRow>& rows) {
  base::Json list = base::Json::array();
  for (const SignalRow& row : rows) {
    base::Json item = base::emptyObject(3);
    if (!row.input.empty() && !row.output.empty()) {
      item["input"] = row.input;
      item["output"] = row.output;
    } else {
      item["name"] = row.input.empty() ? row.output : row.input;
    }
    item["signal"] = nameOf(row.type, signalTypes);
    if (row.input.empty() && !row.hasOptions) item["options"] = false;
    list.push_back(std::move(item));
  }
  return list;
}

base::Json commandList(const std::vector<CommandDefinition>& commands) {
  base::Json list = base::Json::array();
  for (const CommandDefinition& command : commands) {
    base::Json item = base::emptyObject(3);
    base::FieldWriter fields(item);
    commandFields(fields, command);
    list.push_back(std::move(item));
  }
  return list;
}

base::Json propertyJson(const PropertyDefinition& property) {
  base::Json item = base::emptyObject(6);
  base::FieldWriter fields(item);
  propertyFields(fields, property);
  if (property.type == PropertyType::constant) item["choices"] = property.choices;
  return item;
}

void addSignals(base::Json& json, const Definition& definition) {
  if (!definition.commands.empty()) json["commands"] = commandList(definition.commands);
  if (!definition.furtherInputs.empty()) json["inputs"] = signalRows(definition.furtherInputs);
  if (!definition.outputs.empty()) json["outputs"] = signalRows(definition.outputs);
  if (!definition.pairs.empty()) json["pairs"] = signalRows(definition.pairs);
}

}  // namespace

Definition readDefinition(base::JsonReader reader, Form form, const std::string& maker) {
  Definition definition;
  definition.form = form;
  definition.maker = maker;
  base::FieldReader fields(reader);
  definitionFields(fields, definition);
  requireText(reader.at("name"));
  if (form == Form::module) readModule(reader, definition);
  if (form == Form::receiver) {
    reader.ifPresent("ports", [&](const base::JsonReader& list) { readPorts(list, definition); });
  }
  if (hasDriver(definition)) readDriver(reader, definition);
  SignalNames names;
  readSignals(reader, definition, names);
  reader.ifPresent("standard_commands",
                   [&](const base::JsonReader& value) { readStandardCommands(value, definition); });
  readProperties(reader, definition);
  reader.finish();
  return definition;
}

base::Json definitionJson(const Definition& definition) {
  base::Json json = base::emptyObject(18);
  base::FieldWriter fields(json);
  definitionFields(fields, definition);
  if (definition.form == Form::module) json["slots"] = definition.slots;
  for (const auto& [connection, count] : definition.ports) {
    json["ports"][nameOf(connection, portConnections)] = count;
  }
  if (hasDriver(definition)) driverFields(fields, definition);
  if (!definition.terminals.empty()) json["terminals"] = definition.terminals;
  if (definition.timing != program::Timing()) {
    base::FieldWriter times(json["timing"] = base::Json::object());
    program::form::timingFields(times, definition.timing);
  }
  addSignals(json, definition);
  for (const auto& [id, command] : definition.standardCommands) {
    json["standard_commands"][forms::decimal(id)] = command;
  }
  for (const PropertyDefinition& property : definition.properties) {
    json["properties"].push_back(propertyJson(property));
  }
  return json;
}

const char* formName(Form form) { return nameOf(form, definitionForms); }

Form readForm(const base::JsonReader& reader) { return reader.choice(definitionForms); }

std::optional<Form> formNamed(std::string_view name) { return valueNamed(name, definitionForms); }

const char* connectionWord(Connection connection) { return nameOf(connection, connections); }

std::optional<Connection> connectionNamed(std::string_view word) {
  return valueNamed(word, connections);
}

}  // namespace trellisar
