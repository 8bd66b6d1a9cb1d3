#include "trial/Trace.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/simulator/Rooms.h"
#include "trial/Play.h"

namespace {

using program::Unit;
using simulator::PressPage;
using simulator::PressReceiver;
using tests::RoomProgram;

base::Json traceOf(RoomProgram& room, const trial::Script& script) {
  simulator::Trial trial(room.program());
  return trial::traceJson(trial, trial::play(script, trial).isAtRest);
}

/// The first line of each kind and form.
std::string kindsIn(const base::Json& trace) {
  std::string text;
  std::set<std::string> seen;
  for (const base::Json& line : trace) {
    std::string keys;
    for (const auto& [key, value] : line.items()) keys += key;
    if (seen.insert(line["kind"].get<std::string>() + keys).second) text += line.dump() + "\n";
  }
  return text;
}

TEST(TraceTest, everyKindOfLineHasItsKeysInTheirOrder) {
  RoomProgram room;
  room.addDisplay().timing.warmUp = 9;
  room.addRelay();
  room.addUnit("Browser", Unit::Kind::panel, {"Enabled"}).pages = {
      {"Main", {{7, "ON", room.place("Display Device"), "On"}}}};
  room.addPreset("Slow", "wait 50; Display Device.On~10");
  room.addEvent("Receiver", "Powered_On", true, "Power Relay.Relay_Close; run Slow");
  room.addEvent("Receiver", "RGB_Selected", true, "run Slow");
  room.addEvent("Receiver", "Composite_Video_Selected", true, "run Slow");
  room.addEvent("Receiver", "Powered_Off", true, "Power Relay.Relay_Open; Browser.Enabled~-2");
  const PressPage page{room.place("Browser"), "Main", 7};
  const base::Json json = traceOf(room, {{{100, PressReceiver{"Power_On"}},
                                          {100, PressReceiver{"Select_RGB"}},
                                          {100, PressReceiver{"Select_Composite_Video"}},
                                          {225, PressReceiver{"Power_Off"}},
                                          {225, page}},
                                         {}});
  EXPECT_EQ(
      kindsIn(json["trace"]),
      R"({"n":1,"at":0,"kind":"level","because":null,"unit":"Receiver","signal":"System_Ready_Pulse","value":true})"
      "\n"
      R"({"n":3,"at":1,"kind":"input","because":null,"press":{"unit":"Receiver","button":"Power_On"}})"
      "\n"
      R"({"n":6,"at":1,"kind":"run","because":5,"event":{"unit":"Receiver","signal":"Powered_On","goes":"on"}})"
      "\n"
      R"({"n":7,"at":1,"kind":"sent","because":6,"unit":"Power Relay","signal":"Relay_Close","type":"digital","value":""})"
      "\n"
      R"({"n":8,"at":1,"kind":"run","because":6,"preset":"Slow"})"
      "\n"
      R"({"n":12,"at":1,"kind":"waiting","because":11,"preset":"Slow"})"
      "\n"
      R"({"n":17,"at":1,"kind":"joined","because":16,"preset":"Slow"})"
      "\n"
      R"({"n":19,"at":1.5,"kind":"state","because":18,"unit":"Display Device","state":"warming"})"
      "\n"
      R"({"n":21,"at":1.6,"kind":"released","because":18,"unit":"Display Device","signal":"On","type":"digital","value":"10"})"
      "\n"
      R"({"n":23,"at":2,"kind":"lost","because":22,"unit":"Display Device","signal":"On","why":"it warms up"})"
      "\n"
      R"({"n":30,"at":2.25,"kind":"cut","because":29,"unit":"Display Device","signal":"Relay_Open","why":"its mains went while it was on"})"
      "\n"
      R"({"n":34,"at":2.25,"kind":"refused","because":33,"unit":"Browser","button":7,"why":"it is disabled"})"
      "\n");
  EXPECT_EQ(json["rest"].dump(),
            R"({"Receiver":{"levels":{"Powered_On":false,"Powered_Off":true,"RGB_Selected":false,)"
            R"("Composite_Video_Selected":true,"System_Ready_Pulse":false},"locked":false},)"
            R"("Display Device":{"state":"off","input":null},"Power Relay":{"closed":false},)"
            R"("Browser":{"enabled":false}})");
  EXPECT_EQ(json["system"], "Test");
  EXPECT_EQ(json["at_rest"], true);
}

TEST(TraceTest, anEndlessLoopEndsTheTrialAlsoAtItsStart) {
  for (const auto& [signal, lines] : {std::pair{"Powered_On", 5U}, {"System_Ready_Pulse", 2U}}) {
    RoomProgram room;
    room.addPreset("Loop", "run Loop");
    room.addEvent("Receiver", signal, true, "run Loop");
    simulator::Trial trial(room.program());
    const trial::Ending ending = trial::play({{{100, PressReceiver{"Power_On"}}}, {}}, trial);
    EXPECT_FALSE(ending.isAtRest);
    EXPECT_EQ(ending.loop, "The program runs in an endless loop: the preset \"Loop\".");
    EXPECT_GT(trial.trace().size(), lines) << signal;
  }
}

TEST(TraceTest, forReadingItIsATableAndHowTheRoomStands) {
  RoomProgram room;
  room.addDisplay();
  room.addMotor("Screen");
  room.addUnit("Browser", Unit::Kind::panel);
  room.addEvent("Receiver", "Powered_On", true, "Screen.Down~150; Display Device.On");
  simulator::Trial trial(room.program());
  const trial::Ending ending = trial::play({{{100, PressReceiver{"Power_On"}}}, {}}, trial);
  EXPECT_EQ(trial::traceText(trial, ending.isAtRest),
            "    n       at  from  what happens\n"
            "    1     0.00        System_Ready_Pulse of Receiver goes on\n"
            "    2     0.00        System_Ready_Pulse of Receiver goes off\n"
            "    3     1.00        press Power_On of Receiver\n"
            "    4     1.00     3  Powered_Off of Receiver goes off\n"
            "    5     1.00     3  Powered_On of Receiver goes on\n"
            "    6     1.00     5  run what follows when Powered_On of Receiver goes on\n"
            "    7     1.00     6  Screen: Down (held 1.50 s)\n"
            "    8     1.00     7  Screen is moving down\n"
            "    9     1.00     6  Display Device: On\n"
            "   10     1.00     9  Display Device is warming\n"
            "   11     2.50     7  Screen: Down released\n"
            "   12    21.00     7  Screen is down\n"
            "   13    31.00     9  Display Device is on\n"
            "\n"
            "At rest after 31.00 s:\n"
            "    Receiver: not locked, Powered_On on\n"
            "    Display Device: on, no input chosen\n"
            "    Screen: down\n"
            "    Browser: enabled\n");
}

}  // namespace
