#pragma once

#include "base/Fields.h"
#include "program/Program.h"

/// How a program stands in its file, each key once, for reader and writer. A key that is `own` is
/// read and written by hand.
namespace program::form {

inline constexpr base::Choices<Unit::Kind> unitKinds = {{"receiver", Unit::Kind::receiver},
                                                        {"device", Unit::Kind::device},
                                                        {"module", Unit::Kind::module},
                                                        {"panel", Unit::Kind::panel}};

inline constexpr base::Choices<Command::Type> types = {{"digital", Command::Type::digital},
                                                       {"analog", Command::Type::analog},
                                                       {"serial", Command::Type::serial}};

/// The places that something may name; a writer asks for none.
struct Places {
  Place lastUnit = none;
  Place lastPreset = none;
};

inline constexpr base::Choices<bool> directions = {{"on", true}, {"off", false}};

template <typename Fields, typename AnyUnit>
void unitFields(Fields& fields, AnyUnit& unit, const Places& places) {
  fields("name", unit.name);
  fields("kind", unit.kind, unitKinds);
  fields("parent", unit.parent, none, places.lastUnit);
  fields("handle", unit.handle, 0);
  fields("driver", unit.driver);
  fields("port", unit.port);
  fields("address", unit.address);
}

template <typename Fields, typename AnyPort>
void sensorFields(Fields& fields, AnyPort& sensor) {
  fields("handle", sensor.handle, 0);
  fields("format", sensor.format);
}

template <typename Fields, typename AnyInput>
void inputFields(Fields& fields, AnyInput& input) {
  fields("name", input.name);
  fields.unless(Command::Type::digital, "type", input.type, types);
  fields.unless("", "send", input.send);
}

template <typename Fields, typename AnyTiming>
void timingFields(Fields& fields, AnyTiming& timing) {
  constexpr Timing usual;
  fields.unless(usual.warmUp, "warm_up", timing.warmUp, 0, longestTiming);
  fields.unless(usual.coolDown, "cool_down", timing.coolDown, 0, longestTiming);
  fields.unless(usual.travel, "travel", timing.travel, 0, longestTiming);
}

template <typename Fields, typename AnySlot>
void slotFields(Fields& fields, AnySlot& slot, const Places& places) {
  fields("name", slot.name);
  fields("unit", slot.unit, none, places.lastUnit);
  fields("command", slot.command);
}

template <typename Fields, typename AnyButton>
void buttonFields(Fields& fields, AnyButton& button, const Places& places) {
  fields("id", button.id, 1);
  fields("text", button.text);
  fields.unless(none, "unit", button.unit, 0, places.lastUnit);
  fields.unless("", "command", button.command);
  fields.unless(none, "preset", button.preset, 0, places.lastPreset);
}

template <typename Fields, typename AnyCommand>
void commandFields(Fields& fields, AnyCommand& command, const Places& places) {
  fields("do", command.type, types);
  fields("unit", command.unit, none, places.lastUnit);
  fields("signal", command.signal);
  fields("value", command.value);
}

template <typename Fields, typename AnyTest>
void testFields(Fields& fields, AnyTest& test, const Places& places) {
  fields("unit", test.unit, none, places.lastUnit);
  fields("type", test.type, INT32_MIN);
  fields("signal", test.signal);
  fields("state", test.state);
  fields("compare", test.compare, INT32_MIN);
  fields("value", test.value, INT32_MIN);
}

template <typename Fields, typename AnyEvent>
void eventFields(Fields& fields, AnyEvent& event, const Places& places) {
  fields("unit", event.unit, none, places.lastUnit);
  fields("signal", event.signal);
  fields("goes", event.goesOn, directions);
  fields("enabled", event.enabled, INT32_MIN);
  fields.own("steps");
}

template <typename Fields, typename AnySource>
void sourceFields(Fields& fields, AnySource& source, const Places& places) {
  fields("unit", source.unit, none, places.lastUnit);
  fields("input", source.input);
  fields("output", source.output);
  fields("type", source.type, 0);
  fields("from", source.from, none, places.lastUnit);
  fields("signal", source.signal);
}

}  // namespace program::form
