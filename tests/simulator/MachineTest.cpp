#include <gtest/gtest.h>

#include "tests/simulator/Rooms.h"

namespace {

using program::Unit;
using simulator::HelpDesk;
using simulator::Motion;
using simulator::MoveContact;
using simulator::PressPage;
using simulator::PressPanel;
using simulator::PressReceiver;
using simulator::Trial;
using tests::RoomProgram;
using tests::traceOf;

constexpr simulator::Time second = 100;

TEST(MachineTest, aLevelIsFollowedFirstAndItsEventRunsWhenTheStepsThatMovedItHaveEnded) {
  RoomProgram room;
  room.addUnit("Kestrum Interface", Unit::Kind::device, {"Notify"}, {"System_Power_Off"});
  room.addUnit("Lamp", Unit::Kind::device, {"Dim", "Bright"});
  room.addEvent("Receiver", "Powered_On", true, "Receiver.Select_RGB; Lamp.Dim");
  room.addEvent("Receiver", "RGB_Selected", true, "Lamp.Bright~10");
  room.addSource("Kestrum Interface", "Notify", "Receiver", "Powered_On");
  Trial trial(room.program());
  trial.act(second, PressReceiver{"Power_On"});
  trial.act(2 * second, PressReceiver{"Power_On"});
  EXPECT_TRUE(trial.runToRest());
  EXPECT_EQ(traceOf(trial, second),
            "1.00 press Power_On of Receiver\n"
            "1.00 Powered_Off of Receiver goes off <- press Power_On of Receiver\n"
            "1.00 Powered_On of Receiver goes on <- press Power_On of Receiver\n"
            "1.00 Kestrum Interface: Notify on <- Powered_On of Receiver goes on\n"
            "1.00 run what follows when Powered_On of Receiver goes on <- Powered_On of Receiver "
            "goes on\n"
            "1.00 Receiver: Select_RGB <- run what follows when Powered_On of Receiver goes on\n"
            "1.00 RGB_Selected of Receiver goes on <- Receiver: Select_RGB\n"
            "1.00 Lamp: Dim <- run what follows when Powered_On of Receiver goes on\n"
            "1.00 run what follows when RGB_Selected of Receiver goes on <- RGB_Selected of "
            "Receiver goes on\n"
            "1.00 Lamp: Bright (held 0.10 s) <- run what follows when RGB_Selected of Receiver "
            "goes on\n"
            "1.10 Lamp: Bright released <- Lamp: Bright (held 0.10 s)\n"
            "2.00 press Power_On of Receiver\n");
}

/// The runs, and who waits for whom, without what they send.
std::string turnsOf(const Trial& trial) {
  std::string text;
  for (const runtime::Line& line : trial.trace()) {
    using Kind = runtime::Line::Kind;
    const bool isTurn = line.kind == Kind::waiting || line.kind == Kind::joined ||
                        (line.kind == Kind::run && line.preset != program::none);
    if (!isTurn && line.kind != Kind::sent) continue;
    text += simulator::inSeconds(line.at) + " " +
            simulator::inWords(line, trial.wiring().program()) + "\n";
  }
  return text;
}

TEST(MachineTest, presetsWithWaitsRunOneAfterAnotherAndEqualOnesInLineJoin) {
  RoomProgram room;
  room.addUnit("Lamp", Unit::Kind::device, {"Dim", "Off"});
  room.addUnit("Kestrum Interface", Unit::Kind::device, {}, {"A", "B", "C"});
  room.addPreset("Short", "Lamp.Dim");
  room.addPreset("Inner", "wait 100");
  room.addPreset("Slow", "run Inner; run Short");
  room.addPreset("Other", "wait 0; Lamp.Off");
  room.addEvent("Kestrum Interface", "A", true, "run Slow; Lamp.Off");
  room.addEvent("Kestrum Interface", "B", true, "run Other");
  room.addEvent("Kestrum Interface", "C", true, "run Short");
  Trial trial(room.program());
  for (const char* signal : {"A", "B", "B", "A", "C"}) trial.act(second, HelpDesk{signal});
  EXPECT_TRUE(trial.runToRest());
  EXPECT_EQ(turnsOf(trial),
            "1.00 run \"Slow\"\n"
            "1.00 run \"Inner\"\n"
            "1.00 wait for the turn of \"Other\"\n"
            "1.00 join the one that waits for \"Other\"\n"
            "1.00 wait for the turn of \"Slow\"\n"
            "1.00 run \"Short\"\n"
            "1.00 Lamp: Dim\n"
            "2.00 run \"Short\"\n"
            "2.00 Lamp: Dim\n"
            "2.00 Lamp: Off\n"
            "2.00 run \"Other\"\n"
            "2.00 Lamp: Off\n"
            "2.00 run \"Slow\"\n"
            "2.00 run \"Inner\"\n"
            "3.00 run \"Short\"\n"
            "3.00 Lamp: Dim\n"
            "3.00 Lamp: Off\n");
}

TEST(MachineTest, aTurnLastsToTheEndOfTheInstantInWhichItsPresetEnds) {
  RoomProgram room;
  room.addUnit("Kestrum Interface", Unit::Kind::device, {}, {"A", "B"});
  room.addPreset("First", "wait 100");
  room.addPreset("Second", "wait 50");
  // The same run wants another turn in that instant: it stands behind the one that waits already.
  room.addEvent("Kestrum Interface", "A", true, "run First; run First");
  room.addEvent("Kestrum Interface", "B", true, "run Second");
  Trial trial(room.program());
  trial.act(second, HelpDesk{"A"});
  trial.act(second, HelpDesk{"B"});
  EXPECT_TRUE(trial.runToRest());
  EXPECT_EQ(turnsOf(trial),
            "1.00 run \"First\"\n"
            "1.00 wait for the turn of \"Second\"\n"
            "2.00 wait for the turn of \"First\"\n"
            "2.00 run \"Second\"\n"
            "2.50 run \"First\"\n");
  EXPECT_EQ(trial.machine().now(), 350);
}

TEST(MachineTest, theReadyPulseLocksARoomWhoseContactIsOpen) {
  RoomProgram room;
  room.addUnit("Digital Input 2", Unit::Kind::device, {}, {"dig_input_1"});
  room.addUnit("Panel", Unit::Kind::panel, {"Enabled"}, {"Button_1"});
  room.addPreset("System Lock", "Receiver.Lock; Panel.Enabled~-2");
  room.addPreset("System Unlock", "Receiver.Unlock; Panel.Enabled~-1");
  room.addEvent("Receiver", "System_Ready_Pulse", true,
                "if not dig_input_1 of Digital Input 2 { run System Lock }");
  room.addEvent("Digital Input 2", "dig_input_1", true, "run System Unlock");
  Trial trial(room.program());
  const program::Place panel = room.place("Panel");
  EXPECT_TRUE(trial.machine().isLocked());
  trial.act(second, PressReceiver{"Power_On"});
  trial.act(second, PressPanel{panel, "Button_1"});
  trial.act(second, MoveContact{room.place("Digital Input 2"), true});
  trial.act(second, PressReceiver{"Power_On"});
  trial.act(second, PressPanel{panel, "Button_1"});
  EXPECT_EQ(traceOf(trial, second),
            "1.00 press Power_On of Receiver\n"
            "1.00 Receiver refuses Power_On: it is locked <- press Power_On of Receiver\n"
            "1.00 press Button_1 of Panel\n"
            "1.00 Panel refuses Button_1: it is disabled <- press Button_1 of Panel\n"
            "1.00 close Digital Input 2\n"
            "1.00 dig_input_1 of Digital Input 2 goes on <- close Digital Input 2\n"
            "1.00 run what follows when dig_input_1 of Digital Input 2 goes on <- dig_input_1 of "
            "Digital Input 2 goes on\n"
            "1.00 run \"System Unlock\" <- run what follows when dig_input_1 of Digital Input 2 "
            "goes on\n"
            "1.00 Receiver: Unlock <- run \"System Unlock\"\n"
            "1.00 Panel: Enabled on <- run \"System Unlock\"\n"
            "1.00 press Power_On of Receiver\n"
            "1.00 Powered_Off of Receiver goes off <- press Power_On of Receiver\n"
            "1.00 Powered_On of Receiver goes on <- press Power_On of Receiver\n"
            "1.00 press Button_1 of Panel\n"
            "1.00 Button_1 of Panel goes on <- press Button_1 of Panel\n"
            "1.00 Button_1 of Panel goes off <- press Button_1 of Panel\n");
}

TEST(MachineTest, aLockoutBeginsWithItsCommandWhoeverSendsItAndIsSetAnewByTheNext) {
  RoomProgram room;
  room.addDisplay();
  room.addLockout(30, 0);
  Unit& panel = room.addUnit("Fenlet", Unit::Kind::panel);
  panel.pages = {{"Room",
                  {{7, "ON", room.place("Display Device"), "On"},
                   {8, "OFF", room.place("Display Device"), "Off"}}}};
  Trial trial(room.program());
  const PressPage on{room.place("Fenlet"), "Room", 7};
  trial.act(second, on);
  trial.act(20 * second, on);
  trial.act(25 * second, PressPage{on.panel, "Room", 8});
  EXPECT_TRUE(trial.runToRest());
  const std::string pressed = "press button 7 on the page \"Room\" of Fenlet\n";
  const std::string isOn = "Display Device: On";
  EXPECT_EQ(traceOf(trial, second),
            "1.00 " + pressed + "1.00 Display Device: On <- " + pressed +
                "1.00 Warming_Up of Display Device/PWRTIMEOUT goes on <- Display Device: On\n"
                "1.00 Display Device is warming <- Display Device: On\n"
                "20.00 " +
                pressed + "20.00 Display Device: On <- " + pressed +
                "20.00 Display Device does not take On: it warms up <- Display Device: On\n"
                "25.00 press button 8 on the page \"Room\" of Fenlet\n"
                "25.00 Display Device: Off <- press button 8 on the page \"Room\" of Fenlet\n"
                "25.00 Display Device does not take Off: it warms up <- Display Device: Off\n"
                "31.00 Display Device is on <- Display Device: On\n"
                "50.00 Warming_Up of Display Device/PWRTIMEOUT goes off <- Display Device: On\n");
}

TEST(MachineTest, motionEndsItsTimeAfterTheLastOneAndIsFollowedWithoutATime) {
  for (const char* timeout : {"60", "0"}) {
    RoomProgram room;
    Unit& detector = room.addUnit("Motion Detector", Unit::Kind::device, {}, {"Motion_Detected"});
    detector.properties = {{"Timeout", timeout}};
    Trial trial(room.program());
    trial.act(second, Motion{true});
    trial.act(11 * second, Motion{false});
    trial.act(31 * second, Motion{true});
    EXPECT_TRUE(trial.runToRest());
    const bool follows = std::string(timeout) == "0";
    EXPECT_EQ(
        traceOf(trial, second),
        std::string("1.00 move\n1.00 Motion_Detected of Motion Detector goes on <- move\n"
                    "11.00 stop moving\n") +
            (follows ? "11.00 Motion_Detected of Motion Detector goes off <- stop moving\n" : "") +
            "31.00 move\n" +
            (follows ? "31.00 Motion_Detected of Motion Detector goes on <- move\n"
                     : "91.00 Motion_Detected of Motion Detector goes off <- move\n"));
  }
}

TEST(MachineTest, aSensedDisplayIsToggledOnlyWhenItIsNotAsWanted) {
  RoomProgram room;
  room.addUnit("Display Device", Unit::Kind::device, {"POWER"});
  Unit& module = room.addUnit("Display Device/PWRSENSE", Unit::Kind::module,
                              {"Power_On", "Power_Off"}, {"Power_State"});
  module.parent = room.place("Display Device");
  module.slots = {{"Power_Toggle", module.parent, "POWER"}};
  room.addEvent("Receiver", "Powered_On", true,
                "Display Device/PWRSENSE.Power_On; Display Device/PWRSENSE.Power_On");
  Trial trial(room.program());
  trial.act(second, PressReceiver{"Power_On"});
  const std::string sense = "Display Device/PWRSENSE: Power_On";
  const std::string event = " <- run what follows when Powered_On of Receiver goes on\n";
  const std::string trace = traceOf(trial, second);
  EXPECT_NE(
      trace.find("1.00 " + sense + event + "1.00 Display Device: POWER (held 0.10 s) <- " + sense +
                 "\n1.00 Display Device is warming <- Display Device: POWER (held "
                 "0.10 s)\n1.00 Power_State of Display Device/PWRSENSE goes on <- "
                 "Display Device: POWER (held 0.10 s)\n1.00 " +
                 sense + event),
      std::string::npos)
      << trace;
  EXPECT_EQ(trace.find("1.00 " + sense + event, trace.rfind("goes on <- Display")) + sense.size() +
                event.size() + 5,
            trace.size())
      << trace;
}

std::string endOf(Trial& trial) {
  try {
    return trial.runToRest() ? "at rest" : "a day was over";
  } catch (const runtime::EndlessLoop& loop) {
    return loop.what();
  }
}

TEST(MachineTest, anEndlessLoopIsToldWithWhatIsInItAndAnEndlessWaitEndsWithTheDay) {
  const auto run = [](std::string_view steps) {
    RoomProgram room;
    room.addUnit("Kestrum Interface", Unit::Kind::device, {}, {"A"});
    room.addPreset("Calm", "Receiver.Lock");
    room.addPreset("Loop", steps);
    room.addEvent("Kestrum Interface", "A", true, "run Calm; wait 1; run Loop");
    room.addEvent("Receiver", "Powered_On", true, "Receiver.Power_Off");
    room.addEvent("Receiver", "Powered_Off", true, "Receiver.Power_On");
    Trial trial(room.program());
    trial.act(second, HelpDesk{"A"});
    return endOf(trial);
  };
  EXPECT_EQ(run("run Loop"), "The program runs in an endless loop: the preset \"Loop\".");
  EXPECT_EQ(run("Receiver.Power_On"),
            "The program runs in an endless loop: Powered_Off of Receiver goes on, Powered_On of "
            "Receiver goes on.");
  EXPECT_EQ(run("wait 100; run Loop"), "The program runs in an endless loop: the preset \"Loop\".");
  EXPECT_EQ(run("wait 8640001"), "a day was over");
  EXPECT_EQ(run("wait 8639999"), "at rest");

  RoomProgram room;
  room.addSource("Receiver", "Power_Off", "Receiver", "Powered_On");
  room.addSource("Receiver", "Power_On", "Receiver", "Powered_Off");
  Trial trial(room.program());
  EXPECT_THROW(trial.act(second, PressReceiver{"Power_On"}), runtime::EndlessLoop);
  EXPECT_TRUE(trial.machine().isAtRest());
}

}  // namespace
