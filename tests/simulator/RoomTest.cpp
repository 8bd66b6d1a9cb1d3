#include <gtest/gtest.h>

#include "tests/simulator/Rooms.h"

namespace {

using program::Unit;
using simulator::HelpDesk;
using simulator::PressReceiver;
using simulator::Trial;
using tests::RoomProgram;

constexpr simulator::Time second = 100;

/// States, losses and cuts alone.
std::string worldOf(const Trial& trial) {
  std::string text;
  for (const runtime::Line& line : trial.trace()) {
    using Kind = runtime::Line::Kind;
    if (line.kind != Kind::state && line.kind != Kind::lost && line.kind != Kind::cut) continue;
    text += simulator::inSeconds(line.at) + " " +
            simulator::inWords(line, trial.wiring().program()) + "\n";
  }
  return text;
}

/// A room in which the help desk sends one command each.
void addCommand(RoomProgram& room, const std::string& signal, const std::string& steps) {
  room.addEvent("Kestrum Interface", signal, true, steps);
}

TEST(RoomTest, aDisplayLosesWhatItCanNotTakeAndIsCutOffByItsMains) {
  RoomProgram room;
  room.addUnit("Kestrum Interface", Unit::Kind::device);
  room.addDisplay().timing = {10, 20, 5};
  room.addRelay();
  addCommand(room, "on", "Display Device.On");
  addCommand(room, "off", "Display Device.Off~10");
  addCommand(room, "rgb", "Display Device.RGB");
  addCommand(room, "close", "Power Relay.Relay_Close");
  addCommand(room, "open", "Power Relay.Relay_Open");
  Trial trial(room.program());
  const std::vector<std::pair<int, const char*>> script{
      {1, "on"},    {2, "close"},  {2, "rgb"},  {3, "on"},    {4, "off"},
      {13, "rgb"},  {14, "off"},   {15, "rgb"}, {16, "open"}, {17, "rgb"},
      {18, "open"}, {19, "close"}, {20, "on"},  {21, "open"}};
  for (const auto& [at, signal] : script) trial.act(at * second, HelpDesk{signal});
  EXPECT_TRUE(trial.runToRest());
  EXPECT_EQ(worldOf(trial),
            "1.00 Display Device does not take On: it has no mains\n"
            "2.00 Display Device does not take RGB: it is off\n"
            "3.00 Display Device is warming\n"
            "4.00 Display Device does not take Off: it warms up\n"
            "13.00 Display Device is on\n"
            "14.00 Display Device is cooling\n"
            "15.00 Display Device does not take RGB: it cools down\n"
            "16.00 Display Device is cut off by Relay_Open: its mains went while it cooled down\n"
            "16.00 Display Device is off\n"
            "17.00 Display Device does not take RGB: it has no mains\n"
            "20.00 Display Device is warming\n"
            "21.00 Display Device is cut off by Relay_Open: its mains went while it was on\n"
            "21.00 Display Device is off\n");
  EXPECT_EQ(trial.room().devices().input, "RGB");
}

TEST(RoomTest, screenAndLiftTravelAndTurnAround) {
  RoomProgram room;
  room.addUnit("Kestrum Interface", Unit::Kind::device);
  room.addMotor("Screen");
  room.addMotor("Lift");
  addCommand(room, "down", "Screen.Down~150; Lift.Down");
  addCommand(room, "up", "Screen.Up");
  Trial trial(room.program());
  for (const auto& [at, signal] :
       std::vector<std::pair<int, const char*>>{{1, "down"}, {5, "down"}, {11, "up"}, {40, "up"}}) {
    trial.act(at * second, HelpDesk{signal});
  }
  EXPECT_TRUE(trial.runToRest());
  EXPECT_EQ(worldOf(trial),
            "1.00 Screen is moving down\n"
            "1.00 Lift is moving down\n"
            "11.00 Screen is moving up\n"
            "21.00 Lift is down\n"
            "31.00 Screen is up\n");
}

TEST(RoomTest, statesThatGoOnAlikeHashAlikeWheneverTheyWereReached) {
  RoomProgram room;
  room.addDisplay();
  room.addPreset("On", "wait 100; Display Device.On~10");
  room.addEvent("Receiver", "Powered_On", true, "run On");
  room.addEvent("Receiver", "Powered_Off", true, "Display Device.Off");
  const runtime::Wiring wiring(room.program());
  const auto hashAfter = [&](int start, int later) {
    simulator::Room devices(wiring);
    runtime::Machine machine(wiring, devices);
    machine.start();
    machine.advance(start);
    machine.pressReceiver("Power_On");
    machine.advance(start + later);
    return machine.state().hash(std::vector<char>(wiring.signals().size(), true));
  };
  EXPECT_EQ(hashAfter(100, 50), hashAfter(7777, 50));
  EXPECT_NE(hashAfter(100, 50), hashAfter(100, 51));
  EXPECT_NE(hashAfter(100, 50), hashAfter(100, 105));
  EXPECT_EQ(hashAfter(100, 20000), hashAfter(100, 30000));
}

}  // namespace
