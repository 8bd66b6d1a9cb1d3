#include "answers/Schema.h"

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "answers/AnswersShape.h"
#include "host/Numbers.h"

namespace answers {
namespace {

using base::Json;
using trellisar::Definition;
using trellisar::DefinitionPtr;
using trellisar::DeviceLibrary;

/// Without those that are there already.
void addCommands(Json& texts, const Definition& device) {
  for (const trellisar::SignalRow& row : device.signalTable()) {
    const bool isCommand = !row.input.empty() && row.type == host::signalDigital;
    if (isCommand && std::find(texts.begin(), texts.end(), row.input) == texts.end()) {
      texts.push_back(row.input);
    }
  }
}

bool isMeant(const Shape& shape, const Definition& device) {
  if (shape.names == Shape::Names::slotDevice) return device.kind == host::kindUsable;
  return device.category == shape.category;
}

std::vector<DefinitionPtr> devicesFor(const Shape& shape, const DeviceLibrary& library) {
  std::vector<DefinitionPtr> devices = library.all(Definition::Form::device);
  std::erase_if(devices, [&](const DefinitionPtr& device) { return !isMeant(shape, *device); });
  return devices;
}

Json schemaOf(const Shape& shape, const DeviceLibrary& library);

Json ofText(const Shape& shape, const DeviceLibrary& library) {
  const bool isDevice =
      shape.names == Shape::Names::device || shape.names == Shape::Names::slotDevice;
  if (isDevice) {
    Json names = Json::array();
    for (const DefinitionPtr& device : devicesFor(shape, library)) names.push_back(device->name);
    return {{"enum", names}};
  }
  Json schema{{"type", "string"}};
  if (shape.minimum > 0) schema["minLength"] = shape.minimum;
  if (shape.maximum != noLimit) schema["maxLength"] = shape.maximum;
  if (!shape.further.pattern.empty()) schema["pattern"] = shape.further.pattern;
  return schema;
}

Json ofObject(const Shape& shape, const DeviceLibrary& library) {
  Json schema{{"type", "object"}};
  if (shape.takesNull) schema["type"] = {"object", "null"};
  Json required = Json::array();
  for (const Key& key : shape.keys) {
    Json& member = schema["properties"][key.name] = schemaOf(key.shape, library);
    if (!key.description.empty()) member["description"] = key.description;
    if (!key.leftOut.is_null()) member["default"] = key.leftOut;
    if (key.isRequired) required.push_back(key.name);
  }
  if (!required.empty()) schema["required"] = std::move(required);
  schema["additionalProperties"] = false;
  return schema;
}

Json schemaOf(const Shape& shape, const DeviceLibrary& library) {
  switch (shape.kind) {
    case Shape::Kind::text:
      return ofText(shape, library);
    case Shape::Kind::word:
      return {{"enum", shape.words}};
    case Shape::Kind::integer:
      return {{"type", "integer"}, {"minimum", shape.minimum}, {"maximum", shape.maximum}};
    case Shape::Kind::boolean:
      return {{"type", "boolean"}};
    case Shape::Kind::object:
      return ofObject(shape, library);
    case Shape::Kind::array:
      return {{"type", "array"},
              {"maxItems", shape.maximum},
              {"items", schemaOf(shape.keys.front().shape, library)}};
    case Shape::Kind::anything:
      return true;
  }
  return true;
}

/// Calls `visit` with each text outside of lists, and its place in the schema:
/// "/properties/display/properties/rgb".
void eachText(const Shape& shape, const std::string& place,
              const std::function<void(const std::string&, const Shape&)>& visit) {
  for (const Key& key : shape.keys) {
    const std::string below = place + "/properties/" + key.name;
    if (key.shape.kind == Shape::Kind::object) eachText(key.shape, below, visit);
    if (key.shape.kind == Shape::Kind::text) visit(below, key.shape);
  }
}

/// The schema of a file that has a value at a place, and what the value is.
Json whereSaid(const std::string& place, const Json& value) {
  Json schema;
  Json::json_pointer at(place);
  schema[at] = value;
  while (!at.empty()) {
    const std::string key = at.back();
    at = at.parent_pointer().parent_pointer();
    schema[at]["required"] = Json::array({key});
  }
  return schema;
}

/// Which commands there are, which hangs on the device that is chosen.
class CommandRules {
 public:
  explicit CommandRules(const DeviceLibrary& library) : library_(library) {
    eachText(answersShape(), "", [&](const std::string& place, const Shape& shape) {
      if (shape.names == Shape::Names::device) add(place, shape);
    });
  }

  void addTo(Json& schema) {
    schema["allOf"] = std::move(rules_);
    schema["$defs"] = std::move(lists_);
  }

 private:
  void add(const std::string& place, const Shape& shape) {
    Json all = Json::array({""});
    for (const DefinitionPtr& device : devicesFor(shape, library_)) {
      Json own = Json::array({""});
      addCommands(own, *device);
      addCommands(all, *device);
      rules_.push_back({{"if", whereSaid(place, {{"const", device->name}})},
                        {"then", commandsOf(shape, std::to_string(device->controlEntry), own)}});
    }
    // The device of a system that is there already is not known here.
    const std::string key = Json::json_pointer(place).parent_pointer().parent_pointer().back();
    rules_.push_back({{"if", whereSaid(place, true)}, {"else", commandsOf(shape, key, all)}});
  }

  /// The schema in which each command of a category's devices is one of a list.
  Json commandsOf(const Shape& device, const std::string& list, const Json& commands) {
    const std::string name = "commands-" + list;
    lists_[name]["enum"] = commands;
    Json schema;
    eachText(answersShape(), "", [&](const std::string& place, const Shape& shape) {
      if (shape.names != Shape::Names::command || shape.category != device.category) return;
      schema[Json::json_pointer(place)] = {{"$ref", "#/$defs/" + name}};
    });
    return schema;
  }

  const DeviceLibrary& library_;
  Json rules_ = Json::array();
  Json lists_ = Json::object();
};

}  // namespace

Json schema(const DeviceLibrary& library) {
  Json whole{{"$schema", "https://json-schema.org/draft/2020-12/schema"},
             {"title", "The answers of a room"}};
  whole.update(schemaOf(answersShape(), library));
  CommandRules(library).addTo(whole);
  return whole;
}

}  // namespace answers
