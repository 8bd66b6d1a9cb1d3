#pragma once

#include <limits>

#include "base/Fields.h"
#include "host/Numbers.h"
#include "trellisar/document/DocumentData.h"

/// What stands in a system's file, each key once, for its reader and its writer. A key that is
/// `own` is read and written by hand: it names something else of the document.
namespace trellisar::systemFile {

inline constexpr const char* format = "trellisar-system";
inline constexpr std::int32_t version = 1;

inline constexpr std::int16_t least16 = std::numeric_limits<std::int16_t>::min();
inline constexpr std::int32_t least32 = std::numeric_limits<std::int32_t>::min();

template <typename Fields, typename Document>
void documentFields(Fields& fields, Document& document) {
  fields.own("format");
  fields.own("version");
  fields("name", document.name);
  fields("application", document.application);
  fields("program_is_current", document.programIsCurrent);
  fields("compiled_program", document.compiledProgram);
  fields.own("settings");
  fields("next_id", document.nextId, 1);
  fields("next_handle", document.nextHandle, 1);
  fields("control_system", document.controlSystem, 1);
  fields.own("definitions");
  fields.own("devices");
  fields.own("touch_panels");
  fields.own("sensor_handles");
  fields.own("bill_of_materials");
  fields.own("presets");
}

/// A device or a module.
template <typename Fields, typename Device>
void deviceFields(Fields& fields, Device& device) {
  fields("id", device.id, 1);
  fields("name", device.name);
  fields("short_name", device.shortName);
  fields("parent", device.parent, 0);
  fields.own("definition");
  fields("library_id", device.libraryId, 0);
  fields("handle", device.handle, 0);
  fields("port", device.port, 0);
  fields("address", device.address);
  fields("label", device.label);
  fields("description", device.description);
  fields("maker", device.maker);
  fields("shown", device.shown);
  fields("power_control", device.powerControl, host::powerNone, host::powerDiscrete);
  fields("real_time_page", device.realTimePage);
  fields("sensor_handle", device.sensorHandle, least16);
  fields("sensor_format", device.sensorFormat);
  fields.own("standard_commands");
  fields.own("properties");
  fields.own("slots");
  fields.own("signals");
  if (device.kind == DeviceData::Kind::device) fields.own("modules");
}

template <typename Fields, typename Panel>
void panelFields(Fields& fields, Panel& panel) {
  fields("id", panel.id, 1);
  fields("name", panel.name);
  fields("parent", panel.parent, 0);
  fields.own("definition");
  fields("handle", panel.handle, 0);
  fields("label", panel.label);
  fields("connect_slot", panel.connectSlot, 0);
  fields("project_built", panel.projectBuilt);
  fields.own("signals");
}

template <typename Fields, typename Slot>
void slotFields(Fields& fields, Slot& slot) {
  fields("name", slot.name);
  fields.own("device");
  fields("command", slot.command);
}

template <typename Fields, typename Signal>
void signalFields(Fields& fields, Signal& signal) {
  fields("output", signal.row.output);
  fields("input", signal.row.input);
  fields("type", signal.row.type, 0);
  fields("options", signal.row.hasOptions);
  fields("enabled_events", signal.enabledEvents, least16);
  fields("source_type", signal.sourceType, 0);
  fields.own("source_device");
  fields("source_signal", signal.sourceSignal);
  fields.own("events");
}

/// A step that sends something or waits.
template <typename Fields, typename Step>
void sendingFields(Fields& fields, Step& step) {
  fields("target_type", step.targetType, host::targetDevice, host::targetTouchpanel);
  fields("target", step.target, 1, INT16_MAX);
  fields("signal", step.signal);
  fields.unless("", "value", step.value);
  fields.unless(0, "value_format", step.valueFormat, least16);
}

template <typename Fields, typename Preset>
void presetFields(Fields& fields, Preset& preset) {
  fields("name", preset.name);
  fields("comment", preset.comment);
  fields.own("steps");
}

template <typename Fields, typename Sensor>
void sensorFields(Fields& fields, Sensor& sensor) {
  fields("model", sensor.model, 1);
  fields("number", sensor.number, least16);
  fields("handle", sensor.handle, 1);
}

template <typename Fields, typename Line>
void billLineFields(Fields& fields, Line& line) {
  fields("part", line.part, 0);
  fields("quantity", line.quantity, 0);
}

template <typename Fields, typename Entry>
void billEntryFields(Fields& fields, Entry& entry) {
  fields("key", entry.key, least32);
  fields.own("main");
  fields.own("parts");
}

/// The members of a host::StandardCommand that are stored.
struct StoredCommand {
  std::int16_t id = 0;
  std::string command;
  std::int16_t libraryId = 0;
};

template <typename Fields, typename Command>
void commandFields(Fields& fields, Command&& command) {
  fields("id", command.id, 0);
  fields("command", command.command);
  fields("library_id", command.libraryId, 0);
}

/// The members of a host::StepCondition but for its device.
struct StoredCondition {
  std::int32_t type = 0;
  std::string signal;
  std::string state;
  std::int32_t compare = 0;
  std::int16_t value = 0;
};

template <typename Fields, typename Condition>
void conditionFields(Fields& fields, Condition&& condition) {
  fields.own("device");
  fields("type", condition.type, least32);
  fields("signal", condition.signal);
  fields("state", condition.state);
  fields("compare", condition.compare, least32);
  fields("value", condition.value, least16);
}

}  // namespace trellisar::systemFile
