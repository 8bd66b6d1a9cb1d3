#include "program/ProgramText.h"

#include <gtest/gtest.h>

#include "program/ProgramHead.h"

namespace tests {
namespace {

using program::Command;
using program::Program;
using program::Step;
using program::Unit;

/// A program in which everything stands once.
Program everything() {
  Unit receiver;
  receiver.name = "Receiver";
  receiver.kind = Unit::Kind::receiver;
  receiver.inputs = {{"Power_On"}};
  receiver.outputs = {"Powered_On"};
  Unit display;
  display.name = "Display Device";
  display.parent = 0;
  display.handle = 7;
  display.driver = "Bravonne P-100";
  display.port = "Serial Port 1";
  display.address = "10.0.0.7";
  display.inputs = {{"On", Command::Type::digital, "\x02PON\r"},
                    {"Level", Command::Type::analog},
                    {"Text", Command::Type::serial}};
  display.properties = {{"Baud Rate", "9600"}};
  display.standardCommands = {{165, "Off"}, {166, "On"}};
  display.timing = {25, 90, 20};
  display.staleAfter = 5;
  Unit module;
  module.name = "Display Device/PWRSENSE";
  module.kind = Unit::Kind::module;
  module.parent = 1;
  module.sensor = program::SensorPort{12, "video"};
  module.slots = {{"Power_Toggle", 1, "On"}};
  Unit panel;
  panel.name = "Fenlet";
  panel.kind = Unit::Kind::panel;
  panel.parent = 0;
  panel.pages = {{"[Room]", {{2, "ON\r\nNOW", 1, "On"}, {3, "OFF", program::none, "", 0}}},
                 {"[Help]", {{4, "HELP"}}}};
  Program program;
  program.name = "Hall \"A\"";
  program.receiver = 0;
  program.units = {receiver, display, module, panel};
  const program::Test isOn{0, 1, "Powered_On", "Is On", 1, 1};
  const std::vector<Step> inner{{program::Wait{500}}, {program::Call{1}}};
  program.presets = {
      {"System Power On",
       {{Command{Command::Type::digital, 1, "On", "10"}}, {program::Branch{isOn, inner}}}},
      {"Empty", {}}};
  program.events = {
      {0, "Powered_On", true, 7, {{program::Call{0}}}},
      {0, "Powered_On", false, 1, {{Command{Command::Type::serial, 1, "Text", "x"}}}}};
  program.sources = {{1, "Level", "", 2, 0, "Volume"}};
  return program;
}

std::string bodyOf(const Program& program) {
  return std::string(program::bodyOf(programText(program), "Room.tsp"));
}

/// Why a program is refused; empty: it is not.
std::string refusal(const std::string& bytes) {
  try {
    static_cast<void>(program::readProgram(bytes, "Room.tsp"));
    return {};
  } catch (const base::ContentError& error) {
    return error.what();
  }
}

TEST(ProgramTextTest, AProgramIsReadAsItWasWritten) {
  const std::string text = programText(everything());
  const Program read = program::readProgram(text, "Room.tsp");
  EXPECT_EQ(programText(read), text);
  EXPECT_EQ(read.units[1].inputs[0].send, "\x02PON\r");
  EXPECT_EQ(read.units[1].timing.coolDown, 90);
  EXPECT_EQ(read.units[3].pages[0].buttons[1].preset, 0);
  const auto& branch = std::get<program::Branch>(read.presets[0].steps[1].what);
  EXPECT_EQ(std::get<program::Wait>(branch.steps[0].what).hundredths, 500);
}

TEST(ProgramTextTest, BytesThatAreCutChangedOrOfAnotherFormAreRefused) {
  const std::string text = programText(everything());
  for (std::size_t end = 0; end < text.size(); ++end) {
    EXPECT_NE(refusal(text.substr(0, end)), "") << "cut at " << end;
    std::string changed = text;
    changed[end] = static_cast<char>(changed[end] ^ 1);
    EXPECT_NE(refusal(changed), "") << "changed at " << end;
  }
  EXPECT_EQ(refusal(text + " "),
            "The compiled program \"Room.tsp\" is damaged. Save and build the system again.");
  EXPECT_EQ(refusal("PK\x03\x04"), "\"Room.tsp\" is no compiled program.");
  EXPECT_THROW(program::requireWholeProgram("trellisar-program 1 0 0\n", "Room.tsp"),
               program::EarlierForm);
  EXPECT_EQ(refusal("trellisar-program 3 0 0\n"),
            "The compiled program \"Room.tsp\" was made by a later version of this application.");
}

TEST(ProgramTextTest, WhatMakesNoSenseIsToldWithItsPlace) {
  struct Change {
    const char* from;
    const char* to;
    const char* refused;
  };
  for (const auto& [from, to, refused] : {
           Change{"\"receiver\": 0", "\"receiver\": 4", "receiver: "},
           Change{"\"receiver\": 0", "\"receiver\": 1", "receiver: is no receiver"},
           Change{"\"kind\": \"panel\"", "\"kind\": \"car\"", "units[3].kind: "},
           Change{"\"hundredths\": 500", "\"minutes\": 5", "presets[0].steps[1].steps[0]"},
           Change{"\"preset\": 1\n", "\"preset\": 2\n", "presets[0].steps[1].steps[1].preset: "},
           Change{"\"do\": \"serial\"", "\"do\": \"dance\"", "events[1].steps[0].do: "},
           Change{"\"id\": 3", "\"id\": 2", "units[3].pages[0].buttons[1].id: the id stands twice"},
           Change{"\"warm_up\": 25", "\"warm_up\": -1", "units[1].timing.warm_up: "},
           Change{"\"165\"", "\"0165\"", "units[1].standard_commands.0165: "},
           Change{"\"handle\": 12", "\"handel\": 12", "units[2].sensor.handle: is missing"},
           Change{"\"from\": 0", "\"from\": -2", "sources[0].from: "},
       }) {
    std::string body = bodyOf(everything());
    const auto place = body.find(from);
    ASSERT_NE(place, std::string::npos) << from;
    body.replace(place, std::string(from).size(), to);
    EXPECT_NE(refusal(program::withHead(body)).find(refused), std::string::npos)
        << from << " -> " << refusal(program::withHead(body));
  }
}

}  // namespace
}  // namespace tests
