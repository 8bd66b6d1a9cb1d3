#pragma once

#include <string>

#include "trellisar/compile/Listing.h"
#include "trellisar/document/Steps.h"

/// What stands in a document, in the words in which every reader meets it.
namespace trellisar::words {

std::string inQuotes(const std::string& text);

/// Hundredths of a second: "500" is "5 s", "10" is "0.1 s".
std::string seconds(const std::string& hundredths);

/// The name of what a step sends to.
std::string targetOf(const DocumentData& document, const StepData& step);
/// What a command is sent with, as it stands behind its signal: " = on", " (held 5 s)".
std::string valueOf(const CommandStep& step);
/// "dig_input_1 of Digital Input 2 is closed"; "always" without a condition.
std::string conditionOf(const DocumentData& document, const BranchStep& step);

/// "when Powered_On of Receiver goes on"
std::string eventOf(const ProgrammedEvent& event);
/// The signal that is fed, of a device: "Display_Usage of Kestrum Interface".
std::string fedSignal(const std::string& device, const SignalData& signal);
/// What feeds it: "Lamp_Hours_Analog of Display Device".
std::string sourceOf(const DocumentData& document, const SignalData& signal);

/// The library device that was chosen, or the receiver's model; empty for what every room has.
std::string typeOf(const DeviceData& device);
/// "power sensing"; empty for none.
std::string powerControlOf(const DeviceData& device);
/// What a module's slot sends: "Display Device: On", "nothing".
std::string slotTarget(const DocumentData& document, const SlotData& slot);
/// "1 x part 20703"
std::string billLine(const BillLine& line);

}  // namespace trellisar::words
