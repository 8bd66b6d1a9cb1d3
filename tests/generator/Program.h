#pragma once

#include <map>
#include <string>

#include "trellisar/DocumentData.h"

namespace tests {

/// The control program of a document, place by place: presets, events with their number, sources,
/// slots of modules and properties. A place that holds nothing is left out.
///
///     "Display Power On"                    -> "Power Relay.Relay_Close; Power Relay waits 500"
///     "Receiver.RGB_Selected 0"             -> "Display Device.RGB_1~10"
///     "Receiver.RGB_Selected events"        -> "7", those that are enabled
///     "Kestrum Interface.Display_Usage <-"  -> "Display Device.Lamp_Hours"
///     "PWRSENSE slot Power_Toggle"          -> "Display Device.POWER"
///     "Motion Detector is Timeout"          -> "600"
///
/// Steps are separated by "; ":
///
///     Display Device.Power_On~10          a command, and its value if it has one
///     Power Relay waits 500               a delay in hundredths of a second
///     call Display Power On
///     if Receiver.RGB_Selected=1 { ... }
///     if Digital Input 2.dig_input_1 Is Open=0 { ... }
using Program = std::map<std::string, std::string>;

Program programOf(const trellisar::DocumentData& document);

}  // namespace tests
