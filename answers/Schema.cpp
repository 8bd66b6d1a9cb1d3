#include "answers/Schema.h"

#include <algorithm>
#include <utility>

#include "answers/AnswersShape.h"
#include "host/Numbers.h"

namespace answers {
namespace {

using base::Json;
using trellisar::Definition;
using trellisar::DefinitionPtr;
using trellisar::DeviceLibrary;

void addNew(Json& texts, const std::string& text) {
  if (std::find(texts.begin(), texts.end(), text) == texts.end()) texts.push_back(text);
}

bool isMeant(const Shape& shape, const Definition& device) {
  if (shape.names == Shape::Names::slotDevice) return device.kind == host::kindUsable;
  return device.category == shape.category;
}

void addCommands(Json& texts, const Definition& device) {
  for (const trellisar::SignalRow& row : device.signalTable()) {
    if (!row.input.empty() && row.type == host::signalDigital) addNew(texts, row.input);
  }
}

/// What the library has for a text to name.
Json offered(const Shape& shape, const DeviceLibrary& library) {
  const bool isCommand = shape.names == Shape::Names::command;
  Json texts = Json::array();
  if (isCommand && shape.minimum == 0) texts.push_back("");
  for (const DefinitionPtr& device : library.all(Definition::Form::device)) {
    if (!isMeant(shape, *device)) continue;
    if (isCommand) {
      addCommands(texts, *device);
    } else {
      texts.push_back(device->name);
    }
  }
  return texts;
}

Json schemaOf(const Shape& shape, const DeviceLibrary& library);

Json ofText(const Shape& shape, const DeviceLibrary& library) {
  if (shape.names != Shape::Names::nothing) return {{"enum", offered(shape, library)}};
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

}  // namespace

Json schema(const DeviceLibrary& library) {
  Json whole{{"$schema", "https://json-schema.org/draft/2020-12/schema"},
             {"title", "The answers of a room"}};
  whole.update(schemaOf(answersShape(), library));
  return whole;
}

}  // namespace answers
