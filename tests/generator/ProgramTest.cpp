#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/Application.h"
#include "forms/Components.h"
#include "tests/generator/Room.h"
#include "tests/support/ScriptedDesktop.h"

namespace {

using tests::Room;

class ProgramTest : public testing::Test {
 protected:
  tests::ScriptedDesktop desktop;
  forms::Application application{desktop, "\\program"};
};

TEST_F(ProgramTest, panelsWithoutAProjectAreDisabledWhileTheRoomIsNotReady) {
  Room room;
  room.givenPanel();
  room.givenDisplay(host::powerDiscrete);
  room.addIn().put_PowerOnLockoutTime(30);
  room.addIn().put_PowerContactClosureOption(addin::contactContinue);
  room.addIn().AddKestrum();
  room.addIn().AddFenlet();  // a project panel, which has no such step
  ASSERT_TRUE(room.build()) << room.builder().GetLastError();
  const std::string panel = room.document().get_Touchpanels()->Items().front()->get_Name();
  const std::string off = panel + ".Enabled~-2", on = panel + ".Enabled~-1";
  const std::string state = "Kestrum Interface.Display_Power_State=";
  EXPECT_EQ(room.at("PWRTIMEOUT.Warming_Up 0"), state + "2d; " + off);
  EXPECT_TRUE(room.at("PWRTIMEOUT.Warming_Up 1").ends_with("}; " + on));
  EXPECT_EQ(room.at("PWRTIMEOUT.Cooling_Down 0"), state + "3d; Receiver.Lock; " + off);
  EXPECT_EQ(room.at("PWRTIMEOUT.Cooling_Down 1"),
            state +
                "0d; if Digital Input 2.dig_input_1 Is Closed=1 { "
                "if Kestrum Interface.System_Lock=0 { Receiver.Unlock; " +
                on + " } }");
  EXPECT_EQ(room.at("System Lock"),
            "Receiver.Lock; " + off + "; Kestrum Interface.System_Locked~-1");
  EXPECT_EQ(room.at("System Unlock"),
            "Receiver.Unlock; " + on + "; Kestrum Interface.System_Unlocked~-2");
}

TEST_F(ProgramTest, eachInputReportsItsErrorsOnTheReceiverWithThreeInputs) {
  Room room;
  room.addIn().AddKestrum();
  for (const std::int16_t model :
       {host::modelReceiverOneInput, host::modelReceiverThreeInputs, host::modelReceiverOneInput}) {
    std::string message;
    room.document().ChangeControlSystem(model, "", 0, message);
    ASSERT_TRUE(room.build());
    EXPECT_TRUE(room.errors().empty()) << model;
    for (const std::string input : {"Input1", "Input2", "Input3"}) {
      const auto text = [&](const std::string& severity, const std::string& what) {
        return model == host::modelReceiverOneInput
                   ? ""
                   : "Kestrum Interface.Set_Error_Message_Severity=" + severity +
                         "; Kestrum Interface.Send_Error_Message=\"" + input + " Error " + what +
                         "\"";
      };
      EXPECT_EQ(room.at("Receiver." + input + "_Error 0"), text("3", "Detected")) << model;
      EXPECT_EQ(room.at("Receiver." + input + "_Error 1"), text("0", "Corrected")) << model;
    }
  }
}

TEST_F(ProgramTest, lampHoursComeFromTheFirstOutputThatTheDisplayHas) {
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

TEST_F(ProgramTest, sourceWhoseCommandTheDisplayLacksIsNeitherSentNorLogged) {
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

TEST_F(ProgramTest, audioAnswersBecomePropertiesAndMutingStaysOnTheInput) {
  Room room;
  room.addIn().put_VolumeKnobControl(true);
  room.addIn().put_bMuteOnDigInp3(1);
  ASSERT_TRUE(room.build());
  EXPECT_EQ(room.at("Receiver is Volume Knob Control"), "1d");
  EXPECT_EQ(room.at("Receiver is Mic Mode Control"), "0d");
  EXPECT_EQ(room.at("Digital Input 3.dig_input_1 0"), "Receiver.Volume_Mute_On");
  EXPECT_EQ(room.at("Digital Input 3.dig_input_1 1"), "Receiver.Volume_Mute_Off");
  room.addIn().put_VolumeKnobControl(false);
  room.addIn().put_bMuteOnDigInp3(0);
  ASSERT_TRUE(room.build());
  EXPECT_EQ(room.at("Receiver is Volume Knob Control"), "0d");
  EXPECT_EQ(room.at("Digital Input 3.dig_input_1 0"), "Receiver.Volume_Mute_On");
}

TEST_F(ProgramTest, presetsKeepTheCommentsOfAUser) {
  Room room;
  for (const auto& preset : room.document().get_Presets()->Items()) preset->put_Comment("Mine.");
  room.preset("System Lock")->InsertStep(1, forms::createObject<host::Step>(host::progIDStep));
  ASSERT_TRUE(room.build());
  for (const auto& preset : room.document().get_Presets()->Items()) {
    EXPECT_EQ(preset->get_Comment(), "Mine.") << preset->get_Name();
  }
  EXPECT_EQ(room.at("System Lock"), "Receiver.Lock") << "a user's steps go";
}

TEST_F(ProgramTest, outputThatWasFedIsDrivenByItsEventsAgain) {
  Room room;
  room.addIn().AddKestrum();
  const auto lock = room.document().get_Signals()->Find(room.addIn().get_KestrumID(), "System_Lock",
                                                        "", host::signalDigital);
  lock->put_SourceType(host::sourceSignal);
  ASSERT_TRUE(room.build());
  EXPECT_EQ(lock->get_SourceType(), host::sourceEvents);
}

TEST_F(ProgramTest, lockoutModuleOfAnEarlierRunIsFoundAndHidden) {
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

TEST_F(ProgramTest, lockoutWithoutItsModuleStopsTheRun) {
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
