#include <gtest/gtest.h>

#include "simulator/Search.h"
#include "tests/simulator/Rooms.h"

namespace {

using simulator::search;
using tests::RoomProgram;

/// The faults of a room and the acts that lead to each.
std::string findingsOf(RoomProgram& room, int depth) {
  std::string text;
  for (const simulator::Finding& finding : search(room.program(), depth).findings) {
    text += finding.fault.what + " <-";
    for (const auto& [at, act] : finding.script) {
      text += " " + simulator::inSeconds(at) + " " + inWords(act, room.program()) + ";";
    }
    text += "\n";
  }
  return text;
}

TEST(SearchTest, aRoomIsOnlyFaultlessWhileItsLockoutLastsAsLongAsItsDisplay) {
  for (const int lockout : {30, 25}) {
    RoomProgram room;
    room.addDisplay().standardCommands = {{program::standardOn, "On"},
                                          {program::standardOff, "Off"}};
    room.addLockout(lockout, 60);
    room.addEvent("Receiver", "Powered_On", true, "Display Device.On");
    room.addEvent("Receiver", "Powered_Off", true, "Display Device.Off");
    for (const char* signal : {"Warming_Up", "Cooling_Down"}) {
      room.addEvent("Display Device/PWRTIMEOUT", signal, true, "Receiver.Lock");
      room.addEvent("Display Device/PWRTIMEOUT", signal, false, "Receiver.Unlock");
    }
    EXPECT_EQ(findingsOf(room, 3),
              lockout == 30
                  ? ""
                  : "Display Device does not take Off: it warms up <- 0.00 press Power_On "
                    "of Receiver; 25.00 press Power_Off of Receiver;\n"
                    "the display stays on <- 0.00 press Power_On of Receiver; 25.00 "
                    "press Power_Off of Receiver;\n");
  }
}

TEST(SearchTest, aFaultOfTheStartNeedsNoActAndAnEndlessLoopIsOne) {
  RoomProgram room;
  room.addPreset("Loop", "run Loop");
  room.addEvent("Receiver", "System_Ready_Pulse", true, "Receiver.Lock");
  room.addEvent("Receiver", "Powered_On", true, "run Loop");
  EXPECT_EQ(findingsOf(room, 1), "the receiver stays locked <-\n");
  room.addEvent("Receiver", "Powered_Off", false, "Receiver.Unlock");
  room.program().events.erase(room.program().events.begin());
  EXPECT_EQ(findingsOf(room, 1),
            "The program runs in an endless loop: the preset \"Loop\". <- 0.00 press Power_On of "
            "Receiver;\n");
}

}  // namespace
