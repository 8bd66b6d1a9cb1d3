#include <gtest/gtest.h>

#include "tests/simulator/Rooms.h"
#include "trial/Script.h"

namespace {

using program::Unit;
using tests::RoomProgram;
using trial::readScript;
using trial::Script;

/// A room in which everything can be done.
RoomProgram givenRoom() {
  RoomProgram room;
  room.addUnit("Digital Input 2", Unit::Kind::device, {}, {"dig_input_1"});
  room.addUnit("Kestrum Interface", Unit::Kind::device, {}, {"System_Lock", "System_Unlock"});
  room.addDisplay();
  room.addMotor("Screen");
  room.addUnit("Browser", Unit::Kind::panel).pages = {
      {"Main", {{7, "ON", 0, "Power_On"}, {8, "OFF", 0, "Power_Off"}}}};
  room.addUnit("Keypad", Unit::Kind::panel, {}, {"Button_1", "Button_2"});
  return room;
}

std::string faultsOf(const std::string& script) {
  RoomProgram room = givenRoom();
  std::string text;
  for (const base::Fault& fault : readScript(script, room.program()).faults) {
    text += std::to_string(fault.line) + " " + fault.text() + "\n";
  }
  return text;
}

TEST(ScriptTest, everyFaultIsToldWithItsLineAndTheNearestName) {
  struct Case {
    const char* script;
    const char* faults;
  };
  for (
      const Case& each : std::initializer_list<Case>{
          {R"([{"at": 1, "press": {"unit": "Reciever", "button": "Power_On"}}])",
           "1 [0].press.unit: \"Reciever\" is none of \"Receiver\", \"Browser\", \"Keypad\"; did you "
           "mean \"Receiver\"?\n"},
          {R"([{"at": 1, "press": {"unit": "Screen", "button": "Up"}}])",
           "1 [0].press.unit: \"Screen\" is none of \"Receiver\", \"Browser\", \"Keypad\"\n"},
          {R"([{"at": 1, "press": {"unit": "Keypad", "button": "Button1"}}])",
           "1 [0].press.button: \"Button1\" is none of \"Button_1\", \"Button_2\"; did you mean "
           "\"Button_1\"?\n"},
          {R"([{"at": 1, "press": {"unit": "Browser", "page": "main", "object": 7}}])",
           "1 [0].press.page: \"main\" is none of \"Main\"; did you mean \"Main\"?\n"},
          {R"([{"at": 1, "press": {"unit": "Browser", "page": "Main", "object": 9}}])",
           "1 [0].press.object: is no button of the page; it has \"7\", \"8\"; did you mean "
           "\"7\"?\n"},
          {R"([{"at": 1, "press": {"unit": "Keypad", "page": "Main", "object": 7}}])",
           "1 [0].press.page: \"Keypad\" has no pages\n"},
          {R"([{"at": 1, "press": {"unit": "Browser"}}])",
           "1 [0].press.page: is missing; it must be a text\n"
           "1 [0].press.object: is missing; it must be a whole number\n"},
          {R"([{"at": 1, "press": {"unit": "Browser", "button": "Button_1", "object": 7}}])",
           "1 [0].press: must name a \"button\", or a \"page\" and its \"object\", and not both\n"},
          {R"([{"at": 1, "contact": {"unit": "Digital Input 1", "closed": 1}}])",
           "1 [0].contact.unit: \"Digital Input 1\" is none of \"Digital Input 2\"; did you mean "
           "\"Digital Input 2\"?\n1 [0].contact.closed: must be true or false\n"},
          {R"([{"at": 1, "help_desk": {"signal": "System_Luck", "value": "on"}}])",
           "1 [0].help_desk.value: must be true, false or \"pulse\"\n"
           "1 [0].help_desk.signal: \"System_Luck\" is none of \"System_Lock\", \"System_Unlock\"; "
           "did you mean \"System_Lock\"?\n"},
          {"[{\"at\": 2.5, \"motion\": true},\n{\"at\": 1, \"motion\": false},\n"
           "{\"at\": 2.25, \"motion\": false}]",
           "2 [1].at: runs backward: 1 s after 2.50 s\n"
           "3 [2].at: runs backward: 2.25 s after 2.50 s\n"},
          {"[{\"at\": 1.005, \"motion\": 1},\n{\"motion\": true, \"at\": -1},\n{\"at\": \"1\"}]",
           "1 [0].at: must be a number of seconds from 0 to 1000000000 with at most two decimals\n"
           "1 [0].motion: must be true or false\n"
           "2 [1].at: must be a number of seconds from 0 to 1000000000 with at most two decimals\n"
           "3 [2].at: must be a number of seconds\n"
           "3 [2]: says nothing that is done; it must have one of the keys \"press\", \"contact\", "
           "\"motion\", \"help_desk\"\n"},
          {R"([{"at": 1, "motion": true, "contact": {"unit": "Digital Input 2", "closed": true},
               "presss": 1}, 7])",
           "1 [0]: says several things; it must have one of the keys \"press\", \"contact\", "
           "\"motion\", \"help_desk\"\n"
           "2 [0].presss: is no key; known here are \"at\", \"press\", \"contact\", \"motion\", "
           "\"help_desk\"; did you mean \"press\"?\n2 [1]: must be an object\n"},
          {R"({"script": {}, "timings": {}, "timing": {"Screen": {"travels": 1, "travel": 1.5},
               "Sceen": {"travel": 86401}, "Receiver": 4}})",
           "1 timings: is no key; known here are \"script\", \"timing\"; did you mean \"timing\"?\n"
           "1 script: must be an array\n"
           "1 timing.Screen.travels: is no key; known here are \"warm_up\", \"cool_down\", "
           "\"travel\"; did you mean \"travel\"?\n"
           "1 timing.Screen.travel: must be a whole number of seconds from 0 to 86400\n"
           "2 timing.Sceen: \"Sceen\" is none of \"Display Device\", \"Screen\"; did you mean "
           "\"Screen\"?\n"
           "2 timing.Sceen.travel: must be a whole number of seconds from 0 to 86400\n"
           "2 timing.Receiver: \"Receiver\" is none of \"Display Device\", \"Screen\"\n"
           "2 timing.Receiver: must be an object\n"},
          {"true",
           "1 must be an array of acts, or an object with the keys \"script\", \"timing\"\n"},
          {"[{\"at\": 1, \"motion\": true},\n]",
           "1 a comma with nothing behind it; take it away\n"},
      }) {
    EXPECT_EQ(faultsOf(each.script), each.faults) << each.script;
  }
}

TEST(ScriptTest, whatIsWrittenIsReadAsTheSame) {
  using namespace simulator;
  RoomProgram room = givenRoom();
  const auto readBack = [&](const Script& script) {
    const trial::ReadScript read =
        readScript(trial::scriptText(script, room.program()), room.program());
    EXPECT_TRUE(read.faults.empty());
    return read.script;
  };
  Script script;
  script.acts = {{0, PressReceiver{"Power_On"}},
                 {1, PressPage{room.place("Browser"), "Main", 8}},
                 {110, PressPanel{room.place("Keypad"), "Button_2"}},
                 {110, MoveContact{room.place("Digital Input 2"), true}},
                 {2999, Motion{false}},
                 {3000, HelpDesk{"System_Lock", HelpDesk::Value::off}},
                 {3000, HelpDesk{"System_Lock", HelpDesk::Value::on}},
                 {99999999999, HelpDesk{"System_Unlock", HelpDesk::Value::pulse}}};
  EXPECT_EQ(readBack(script), script);
  // Every time of two decimals keeps them.
  script.acts.clear();
  for (Time at = 0; at < 100000; at += 31) script.acts.push_back({at, Motion{true}});
  script.timing = {{room.place("Display Device"), 40, {}, {}}, {room.place("Screen"), {}, {}, 0}};
  EXPECT_EQ(readBack(script), script);

  trial::setTimes(script, room.program());
  const program::Timing& display =
      room.program().units[static_cast<std::size_t>(room.place("Display Device"))].timing;
  EXPECT_EQ(display.warmUp, 40);
  EXPECT_EQ(display.coolDown, 60);
}

}  // namespace
