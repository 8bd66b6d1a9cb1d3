#pragma once

#include <map>
#include <string>

#include "trellisar/document/DocumentData.h"

namespace tests {

/// The control program of a document, place by place: presets with their comments, events with
/// their number, sources, modules with their slots, properties and the bill of materials. A place
/// that holds nothing is left out.
///
///     "Display Power On"                    -> "Power Relay.Relay_Close; Power Relay waits 500"
///     "Display Power On comment"            -> its lines, with "|" between them
///     "Receiver.RGB_Selected 0"             -> "Display Device.RGB_1~10"
///     "Receiver.RGB_Selected events"        -> "7", those that are enabled
///     "Kestrum Interface.Display_Usage <-"  -> "Display Device.Lamp_Hours"
///     "PWRSENSE"                   -> "hidden, Power Sensing, sensor 1 of model 844 as i4"
///     "PWRSENSE slot Power_Toggle" -> "Display Device.POWER"
///     "Motion Detector is Timeout" -> "600"
///     "Receiver bill"              -> "1 x 20701 + 1 x 366"
///
/// Steps are separated by "; ":
///
///     Display Device.Power_On~10          a digital command, and its value if it has one
///     Kestrum Interface.Usage=2d          an analog command
///     Kestrum Interface.Log="Text"        a serial command
///     Power Relay waits 500               a delay in hundredths of a second
///     call Display Power On
///     if Receiver.RGB_Selected=1 { ... }
///     if Digital Input 2.dig_input_1 Is Open=0 { ... }
///
/// A "?" is something that the generator never writes: a target of another type, another format or
/// comparison, a step that was not initialised.
using Program = std::map<std::string, std::string>;

Program programOf(const trellisar::DocumentData& document);

}  // namespace tests
