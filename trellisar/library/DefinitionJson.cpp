#include "trellisar/library/DefinitionJson.h"

#include <set>

#include "forms/Numbers.h"
#include "host/Numbers.h"

namespace trellisar {
namespace {

using Form = Definition::Form;
using Connection = Definition::Connection;

template <typename T>
using Choices = std::initializer_list<std::pair<const char*, T>>;

constexpr Choices<Form> definitionForms = {{"device", Form::device},
                                           {"module", Form::module},
                                           {"interface", Form::interface},
                                           {"receiver", Form::receiver}};

constexpr Choices<Connection> connections = {
    {"serial", Connection::serial}, {"infrared", Connection::infrared},
    {"relay", Connection::relay},   {"contact", Connection::contact},
    {"sensor", Connection::sensor}, {"network", Connection::network},
    {"link", Connection::link},     {"none", Connection::none}};

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

template <typename T>
const char* nameOf(T value, Choices<T> choices) {
  for (const auto& [name, candidate] : choices) {
    if (candidate == value) return name;
  }
  return "";
}

std::string nonEmptyText(const base::JsonReader& reader) {
  std::string text = reader.text();
  if (text.empty()) reader.fail("must not be empty");
  return text;
}

/// Refuses a second use of a name; names of inputs and of outputs are two worlds.
class Names {
 public:
  std::string take(const base::JsonReader& reader) {
    std::string name = nonEmptyText(reader);
    if (!names_.insert(name).second) reader.fail("\"" + name + "\" stands twice");
    return name;
  }

 private:
  std::set<std::string> names_;
};

PropertyDefinition readProperty(base::JsonReader reader, Names& names) {
  PropertyDefinition property;
  property.name = names.take(reader.at("name"));
  property.value = reader.at("value").text();
  property.type = reader.at("type").choice(propertyTypes);
  if (property.type == PropertyType::text) {
    property.hasMaxLength = reader.ifPresent(
        "max_length", [&](const base::JsonReader& value) { property.maxLength = value.int32(0); });
  } else if (property.type == PropertyType::integer) {
    property.minimum = reader.at("minimum").int32(INT32_MIN);
    property.maximum = reader.at("maximum").int32(property.minimum);
  } else {
    reader.at("choices").each(
        [&](const base::JsonReader& value) { property.choices.push_back(value.text()); });
  }
  reader.ifPresent("advanced",
                   [&](const base::JsonReader& value) { property.advanced = value.boolean(); });
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

void readCommands(const base::JsonReader& list, Definition& definition, SignalNames& names) {
  list.each([&](base::JsonReader reader) {
    CommandDefinition command{names.inputs.take(reader.at("name")),
                              reader.at("kind").choice(commandKinds)};
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

void readPart(base::JsonReader& reader, Definition& definition) {
  reader.ifPresent("part",
                   [&](const base::JsonReader& value) { definition.part = value.int32(1); });
}

void readEntry(base::JsonReader& reader, Definition& definition) {
  definition.controlEntry = reader.at("entry").int16(1);
  definition.modelId = reader.at("model_id").int16(0);
  definition.category = reader.at("category").text();
  definition.kind = reader.at("kind").int16(0);
  definition.slot = reader.at("slot").int16(0);
  readPart(reader, definition);
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

void readReceiver(base::JsonReader& reader, Definition& definition) {
  definition.modelId = reader.at("model_id").int16(1);
  definition.part = reader.at("part").int32(1);
  reader.ifPresent("ports", [&](const base::JsonReader& list) { readPorts(list, definition); });
}

void readDriver(base::JsonReader& reader, Definition& definition) {
  definition.model = reader.at("model").text();
  definition.type = reader.at("type").int16(0);
  definition.connection = reader.at("connection").choice(connections);
  reader.ifPresent("second_off",
                   [&](const base::JsonReader& value) { definition.secondOff = value.boolean(); });
  reader.ifPresent("terminals", [&](const base::JsonReader& list) {
    Names names;
    list.each(
        [&](const base::JsonReader& name) { definition.terminals.push_back(names.take(name)); });
    if (definition.terminals.size() > mostPorts) list.fail("are more than a receiver has");
  });
}

void readModule(base::JsonReader& reader, Definition& definition) {
  definition.id = reader.at("id").int16(1);
  definition.shortName = nonEmptyText(reader.at("short_name"));
  definition.maker = reader.at("maker").text();
  Names names;
  reader.at("slots").each(
      [&](const base::JsonReader& slot) { definition.slots.push_back(names.take(slot)); });
}

void readInterface(base::JsonReader& reader, Definition& definition) {
  definition.modelId = reader.at("model_id").int16(1);
  definition.model = reader.at("model").text();
  definition.projectPanel = reader.at("project_panel").boolean();
  readPart(reader, definition);
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
    base::Json item = base::emptyObject(2);
    item["name"] = command.name;
    item["kind"] = nameOf(command.type, commandKinds);
    list.push_back(std::move(item));
  }
  return list;
}

base::Json propertyJson(const PropertyDefinition& property) {
  base::Json item = base::emptyObject(6);
  item["name"] = property.name;
  item["value"] = property.value;
  item["type"] = nameOf(property.type, propertyTypes);
  if (property.hasMaxLength) item["max_length"] = property.maxLength;
  if (property.type == PropertyType::integer) {
    item["minimum"] = property.minimum;
    item["maximum"] = property.maximum;
  }
  if (property.type == PropertyType::constant) item["choices"] = property.choices;
  if (property.advanced) item["advanced"] = true;
  return item;
}

void addDriver(base::Json& json, const Definition& definition) {
  json["model"] = definition.model;
  json["type"] = definition.type;
  json["connection"] = nameOf(definition.connection, connections);
  if (definition.secondOff) json["second_off"] = true;
  if (!definition.terminals.empty()) json["terminals"] = definition.terminals;
}

void addEntry(base::Json& json, const Definition& definition) {
  json["entry"] = definition.controlEntry;
  json["model_id"] = definition.modelId;
  json["category"] = definition.category;
  json["kind"] = definition.kind;
  json["slot"] = definition.slot;
  if (definition.part != 0) json["part"] = definition.part;
  addDriver(json, definition);
}

void addReceiver(base::Json& json, const Definition& definition) {
  json["model_id"] = definition.modelId;
  json["part"] = definition.part;
  for (const auto& [connection, count] : definition.ports) {
    json["ports"][nameOf(connection, portConnections)] = count;
  }
  addDriver(json, definition);
}

void addModule(base::Json& json, const Definition& definition) {
  json["id"] = definition.id;
  json["short_name"] = definition.shortName;
  json["maker"] = definition.maker;
  json["slots"] = definition.slots;
}

void addInterface(base::Json& json, const Definition& definition) {
  json["model_id"] = definition.modelId;
  json["model"] = definition.model;
  json["project_panel"] = definition.projectPanel;
  if (definition.part != 0) json["part"] = definition.part;
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
  definition.name = nonEmptyText(reader.at("name"));
  definition.description = reader.at("description").text();
  switch (form) {
    case Form::device:
      readEntry(reader, definition);
      break;
    case Form::receiver:
      readReceiver(reader, definition);
      break;
    case Form::module:
      readModule(reader, definition);
      break;
    case Form::interface:
      readInterface(reader, definition);
      break;
  }
  if (form == Form::device || form == Form::receiver) readDriver(reader, definition);
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
  json["name"] = definition.name;
  json["description"] = definition.description;
  switch (definition.form) {
    case Form::device:
      addEntry(json, definition);
      break;
    case Form::receiver:
      addReceiver(json, definition);
      break;
    case Form::module:
      addModule(json, definition);
      break;
    case Form::interface:
      addInterface(json, definition);
      break;
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

}  // namespace trellisar
