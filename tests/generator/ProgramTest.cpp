#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/Components.h"
#include "host/Numbers.h"
#include "tests/generator/Room.h"

namespace {

using tests::Room;

TEST(ProgramTest, lampHoursComeFromTheFirstOutputThatTheDisplayHas) {
  struct Case {
    std::int16_t display;
    std::string source;
    std::vector<std::string> warnings;
  };
  const std::string warning =
      "1 Display device does not have a Lamp_Hours, LampHours, or Lamp_Hours_Analog output.\r\n"
      "Therefore, this feature will not be available from Kestrum.";
  constexpr std::int16_t allNames = 1704, otherName = 1105, noLamp = 1305;
  for (const Case& c :
       {Case{allNames, "Display Device.Lamp_Hours", {}},
        Case{otherName, "Display Device.LampHours", {}}, Case{noLamp, "", {warning}}}) {
    Room room;
    room.givenDisplay(host::powerNone, c.display);
    room.addIn().AddKestrum();
    ASSERT_TRUE(room.build());
    EXPECT_EQ(room.at("Kestrum Interface.Display_Usage <-"), c.source) << c.display;
    EXPECT_EQ(room.warnings(), c.warnings) << c.display;
  }
}

TEST(ProgramTest, sourceWhoseCommandTheDisplayLacksIsNeitherSentNorLogged) {
  Room room;
  room.givenDisplay(host::powerDiscrete);
  room.addIn().AddKestrum();
  bool changed = false;
  room.display()->SetCommandName(std::to_string(host::scRGB1), "Dance", changed);
  EXPECT_TRUE(room.build());
  EXPECT_EQ(room.builder().GetLastError(), "Cannot find command Dance on device Display Device");
  EXPECT_EQ(room.at("Receiver.RGB_Selected 0"), "");
  EXPECT_EQ(room.errors().size(), 1U) << "the branch in Display Power On names it all the same";
}

TEST(ProgramTest, presetsKeepTheCommentsOfAUser) {
  Room room;
  for (const auto& preset : room.document().get_Presets()->Items()) preset->put_Comment("Mine.");
  room.preset("System Lock")->InsertStep(1, forms::createObject<host::Step>(host::progIDStep));
  ASSERT_TRUE(room.build());
  for (const auto& preset : room.document().get_Presets()->Items()) {
    EXPECT_EQ(preset->get_Comment(), "Mine.") << preset->get_Name();
  }
  EXPECT_EQ(room.at("System Lock"), "Receiver.Lock") << "a user's steps go";
}

TEST(ProgramTest, outputThatWasFedIsDrivenByItsEventsAgain) {
  Room room;
  room.addIn().AddKestrum();
  const auto lock = room.document().get_Signals()->Find(room.addIn().get_KestrumID(), "System_Lock",
                                                        "", host::signalDigital);
  lock->put_SourceType(host::sourceSignal);
  ASSERT_TRUE(room.build());
  EXPECT_EQ(lock->get_SourceType(), host::sourceEvents);
}

TEST(ProgramTest, lockoutModuleOfAnEarlierRunIsFoundAndHidden) {
  Room room;
  room.givenDisplay(host::powerDiscrete);
  room.addIn().put_PowerOffLockoutTime(90);
  ASSERT_TRUE(room.build());
  room.givenNoModules();
  room.addIn().put_PowerOffLockoutTime(60);
  ASSERT_TRUE(room.build()) << "the library is not asked again";
  ASSERT_EQ(room.display()->get_Modules().size(), 1U);
  EXPECT_FALSE(room.display()->get_Modules().front()->get_ShowInTree());
  EXPECT_EQ(room.at("PWRTIMEOUT is Cool Down Time"), "60");
  EXPECT_EQ(room.at("PWRTIMEOUT is Warm Up Time"), "0");
}

TEST(ProgramTest, lockoutWithoutItsModuleStopsTheRun) {
  Room room;
  room.givenDisplay(host::powerDiscrete);
  room.addIn().put_PowerOnLockoutTime(30);
  room.givenNoModules();
  EXPECT_FALSE(room.build());
  EXPECT_EQ(room.builder().GetLastError(), "Failed to add Power On/Off Lockout module.");
  EXPECT_EQ(room.at("Receiver.RGB_Selected 0"), "Display Device.RGB_1~10") << "written before";
  EXPECT_EQ(room.at("System Power On"), "") << "not reached";
}

}  // namespace
