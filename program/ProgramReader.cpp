#include <charconv>
#include <set>
#include <utility>

#include "base/Json.h"
#include "program/ProgramFields.h"
#include "program/ProgramHead.h"
#include "program/ProgramText.h"

namespace program {
namespace {

using base::FieldReader;
using base::Json;
using base::JsonReader;
using form::Places;

/// How many there are in a list of the program; its form is looked at where it is read.
Place lastOf(const Json& json, const char* key) {
  const auto found = json.is_object() ? json.find(key) : json.end();
  return found == json.end() ? none : static_cast<Place>(found->size()) - 1;
}

template <typename Value, typename Read>
std::vector<Value> listOf(const JsonReader& list, Read read) {
  std::vector<Value> values;
  list.each([&](JsonReader item) {
    values.push_back(read(item));
    item.finish();
  });
  return values;
}

class Reader {
 public:
  explicit Reader(Places places) : places_(places) {}

  Unit unit(JsonReader& reader) const {
    Unit unit;
    FieldReader fields(reader);
    form::unitFields(fields, unit, places_);
    reader.ifPresent("sensor", [&](JsonReader sensor) {
      FieldReader sensorFields(sensor);
      form::sensorFields(sensorFields, unit.sensor.emplace());
      sensor.finish();
    });
    unit.inputs = listOf<Input>(reader.at("inputs"), [](JsonReader& item) {
      Input input;
      FieldReader inputFields(item);
      form::inputFields(inputFields, input);
      return input;
    });
    reader.at("outputs").each([&](const JsonReader& name) { unit.outputs.push_back(name.text()); });
    reader.at("properties").eachKey([&](const std::string& name, const JsonReader& value) {
      unit.properties.emplace_back(name, value.text());
    });
    unit.slots = listOf<Slot>(reader.at("slots"), [this](JsonReader& item) {
      Slot slot;
      FieldReader slotFields(item);
      form::slotFields(slotFields, slot, places_);
      return slot;
    });
    reader.at("standard_commands").eachKey([&](const std::string& id, const JsonReader& value) {
      unit.standardCommands.emplace(standardId(id, value), value.text());
    });
    JsonReader timing = reader.at("timing");
    FieldReader timingFields(timing);
    form::timingFields(timingFields, unit.timing);
    timing.finish();
    fields("stale_after", unit.staleAfter, 1, longestTiming);
    std::set<std::int32_t> ids;
    unit.pages =
        listOf<Page>(reader.at("pages"), [&](JsonReader& item) { return page(item, ids); });
    return unit;
  }

  Preset preset(JsonReader& reader) const {
    return {reader.at("name").text(), steps(reader.at("steps"))};
  }

  Event event(JsonReader& reader) const {
    Event event;
    FieldReader fields(reader);
    form::eventFields(fields, event, places_);
    event.steps = steps(reader.at("steps"));
    return event;
  }

  Source source(JsonReader& reader) const {
    Source source;
    FieldReader fields(reader);
    form::sourceFields(fields, source, places_);
    return source;
  }

 private:
  static std::int32_t standardId(const std::string& key, const JsonReader& value) {
    std::int32_t id = 0;
    const char* end = key.data() + key.size();
    const auto [read, error] = std::from_chars(key.data(), end, id);
    if (error != std::errc() || read != end || std::to_string(id) != key) {
      value.fail("the key must be a standard command id");
    }
    return id;
  }

  Page page(JsonReader& reader, std::set<std::int32_t>& ids) const {
    Page page;
    page.name = reader.at("name").text();
    page.buttons = listOf<Button>(reader.at("buttons"), [&](JsonReader& item) {
      Button button;
      FieldReader fields(item);
      form::buttonFields(fields, button, places_);
      if (!ids.insert(button.id).second) item.at("id").fail("the id stands twice");
      return button;
    });
    return page;
  }

  std::vector<Step> steps(const JsonReader& list) const {
    return listOf<Step>(list, [this](JsonReader& item) { return step(item); });
  }

  Step step(JsonReader& reader) const {
    const std::string what = reader.at("do").text();
    if (what == "wait") return {Wait{reader.at("hundredths").int32(INT32_MIN)}};
    if (what == "call") return {Call{reader.at("preset").int32(0, places_.lastPreset)}};
    if (what == "if") return {branch(reader)};
    Command command;
    FieldReader fields(reader);
    form::commandFields(fields, command, places_);
    return {std::move(command)};
  }

  Branch branch(JsonReader& reader) const {
    Branch branch;
    JsonReader when = reader.at("when");
    FieldReader fields(when);
    form::testFields(fields, branch.when, places_);
    when.finish();
    branch.steps = steps(reader.at("steps"));
    return branch;
  }

  Places places_;
};

}  // namespace

Program readProgram(std::string_view bytes, const std::string& shown) {
  const Json json = base::parseJson(bodyOf(bytes, shown), shown);
  JsonReader reader(json, shown);
  const Reader parts({lastOf(json, "units"), lastOf(json, "presets")});
  Program program;
  program.name = reader.at("name").text();
  const JsonReader receiver = reader.at("receiver");
  program.units =
      listOf<Unit>(reader.at("units"), [&](JsonReader& item) { return parts.unit(item); });
  program.receiver = receiver.int32(0, static_cast<Place>(program.units.size()) - 1);
  if (program.units[static_cast<std::size_t>(program.receiver)].kind != Unit::Kind::receiver) {
    receiver.fail("is no receiver");
  }
  program.presets =
      listOf<Preset>(reader.at("presets"), [&](JsonReader& item) { return parts.preset(item); });
  program.events =
      listOf<Event>(reader.at("events"), [&](JsonReader& item) { return parts.event(item); });
  program.sources =
      listOf<Source>(reader.at("sources"), [&](JsonReader& item) { return parts.source(item); });
  reader.finish();
  return program;
}

void requireWholeProgram(std::string_view bytes, const std::string& shown) {
  static_cast<void>(bodyOf(bytes, shown));
}

}  // namespace program
