#include "trellisar/compile/Words.h"

#include "forms/Numbers.h"
#include "forms/Text.h"
#include "host/Numbers.h"

namespace trellisar::words {
namespace {

std::string digitalValue(const std::string& value) {
  if (value.empty()) return {};
  if (value == host::levelHigh) return " = on";
  if (value == host::levelLow) return " = off";
  return " (held " + seconds(value) + ")";
}

}  // namespace

std::string inQuotes(const std::string& text) { return "\"" + text + "\""; }

std::string seconds(const std::string& hundredths) {
  return forms::decimal(static_cast<float>(forms::leadingNumber(hundredths) / 100)) + " s";
}

std::string targetOf(const DocumentData& document, const StepData& step) {
  return document.shownName(static_cast<std::int16_t>(step.target));
}

std::string valueOf(const CommandStep& step) {
  const std::string& value = step.data.value;
  if (step.signalType == host::signalAnalog) return " = " + value;
  return step.signalType == host::signalSerial ? " = " + inQuotes(value) : digitalValue(value);
}

std::string conditionOf(const DocumentData& document, const BranchStep& step) {
  if (!step.condition()) return "always";
  const host::StepCondition& test = *step.condition();
  const std::string what =
      test.get_SignalName() + " of " + document.shownName(test.get_DeviceID()) + " ";
  if (!test.get_StateName().empty()) return what + forms::lowerCase(test.get_StateName());
  return what + (test.get_Value() != 0 ? "is on" : "is off");
}

std::string eventOf(const ProgrammedEvent& event) {
  return "when " + event.signal + " of " + event.device +
         (event.event == host::eventHigh ? " goes on" : " goes off");
}

std::string fedSignal(const std::string& device, const SignalData& signal) {
  return (signal.row.input.empty() ? signal.row.output : signal.row.input) + " of " + device;
}

std::string sourceOf(const DocumentData& document, const SignalData& signal) {
  return signal.sourceSignal + " of " + document.shownName(signal.sourceDevice);
}

std::string typeOf(const DeviceData& device) {
  const Definition& definition = *device.definition;
  return definition.form == Definition::Form::receiver ? definition.model : chosenType(device);
}

std::string powerControlOf(const DeviceData& device) {
  switch (device.powerControl) {
    case host::powerSensing:
      return "power sensing";
    case host::powerDiscrete:
      return "discrete commands";
    default:
      return {};
  }
}

std::string slotTarget(const DocumentData& document, const SlotData& slot) {
  if (slot.command.empty()) return "nothing";
  const std::string target = document.shownName(slot.device);
  return target.empty() ? slot.command : target + ": " + slot.command;
}

std::string billLine(const BillLine& line) {
  return std::to_string(line.quantity) + " x part " + std::to_string(line.part);
}

}  // namespace trellisar::words
