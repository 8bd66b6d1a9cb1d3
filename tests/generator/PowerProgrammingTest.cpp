#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/Components.h"
#include "host/Numbers.h"
#include "tests/generator/Room.h"

namespace {

using tests::Room;

TEST(PowerProgrammingTest, secondPowerOffNeedsFlagCommandAndTime) {
  struct Case {
    std::int16_t flag;
    std::string command;
    std::int16_t seconds;
    std::string added;
  };
  for (const Case& c :
       {Case{1, "Power_Off", 1, "; Display Device waits 100; Display Device.Power_Off~10"},
        Case{0, "Power_Off", 1, ""}, Case{1, "", 1, ""}, Case{1, "Power_Off", 0, ""},
        Case{1, "Power_Off", -1, ""}}) {
    Room room;
    room.givenDisplay(host::powerDiscrete);
    room.addIn().put_bSecondPowerOff(c.flag);
    room.addIn().put_sSecondPowerOff(c.command);
    room.addIn().put_iSecondPowerOff(c.seconds);
    EXPECT_TRUE(room.build());
    EXPECT_EQ(room.at("Display Power Off"), "Display Device.Power_Off~10" + c.added);
  }
}

/// A step of a user's own, at the end.
std::shared_ptr<host::Step> appended(host::Preset& preset) {
  auto step = forms::createObject<host::Step>(host::progIDStep);
  preset.InsertStep(static_cast<std::int16_t>(preset.get_StepCount() + 1), step);
  return step;
}

TEST(PowerProgrammingTest, branchesOfAUserStayAndTheGeneratorsOwnIsFoundBehindThem) {
  struct Own {
    std::int16_t kind;
    bool toDisplay;
    std::string signal;
    std::int16_t value;  // that the test looks for
    std::string text;
  };
  const std::string rgb = "if Receiver.RGB_Selected=1 { Display Device.RGB_1~10 }";
  const std::string video = "if Receiver.Composite_Video_Selected=1 { Display Device.Video_1~10 }";
  for (const Own& own : {Own{host::stepDigital, false, "Volume_Up", 1, "=1 { Receiver.Volume_Up }"},
                         Own{host::stepDelay, true, "", 1, "=1 { Display Device waits  }"},
                         Own{host::stepDigital, true, "RGB_1", 0, "=0 { Display Device.RGB_1 }"}}) {
    Room room;
    room.givenDisplay(host::powerNone);
    const std::int16_t receiver = room.addIn().get_ReceiverID();
    const auto branch = appended(*room.preset("Display Power On"));
    ASSERT_TRUE(branch->Init(host::stepConditional, host::targetNone, 0, 0, ""));
    const auto conditions = std::make_shared<host::StepConditionGroup>();
    conditions->Add(std::make_shared<host::StepCondition>());
    const auto& test = conditions->Items().front();
    test->put_DeviceID(receiver);
    test->put_ConditionType(host::conditionDigitalValue);
    test->put_SignalName("RGB_Selected");
    test->put_Value(own.value);
    branch->put_Conditions(conditions);
    const auto steps = room.document().get_Presets()->ItemByID(branch->get_SubPresetID());
    ASSERT_TRUE(appended(*steps)->Init(
        own.kind, host::targetDevice, 0,
        own.toDisplay ? room.addIn().get_DisplayDeviceID() : receiver, own.signal));
    for (int run = 1; run <= 2; ++run) {
      EXPECT_TRUE(room.build());
      EXPECT_EQ(room.at("Display Power On"),
                "if Receiver.RGB_Selected" + own.text + "; " + rgb + "; " + video)
          << run;
    }
  }
}

TEST(PowerProgrammingTest, branchOfAnEarlierRunIsWrittenOverUnlessAUserExtendedIt) {
  Room room;
  room.givenDisplay(host::powerNone);
  EXPECT_TRUE(room.build());
  const auto preset = room.preset("Display Power On");
  const auto branch =
      room.document().get_Presets()->ItemByID(preset->get_Steps().front()->get_SubPresetID());
  ASSERT_TRUE(appended(*branch)->Init(host::stepDigital, host::targetDevice, 0,
                                      room.addIn().get_DisplayDeviceID(), "Video_1"));
  bool changed = false;
  room.display()->SetCommandName(std::to_string(host::scVideo1), "Video_2", changed);
  EXPECT_TRUE(room.build());
  EXPECT_EQ(room.at("Display Power On"),
            "if Receiver.RGB_Selected=1 { Display Device.RGB_1~10; Display Device.Video_1 }; "
            "if Receiver.Composite_Video_Selected=1 { Display Device.Video_2~10 }; "
            "if Receiver.RGB_Selected=1 { Display Device.RGB_1~10 }");
}

TEST(PowerProgrammingTest, slotOfTheSensingModuleThatIsTakenStays) {
  Room room;
  room.givenDisplay(host::powerSensing);
  EXPECT_TRUE(room.build());
  const auto slot = room.display()->get_Modules().front()->get_CommandSlots().front();
  slot->put_CommandName("Power_On");
  room.givenNoModules();
  EXPECT_TRUE(room.build()) << "the library is not asked again";
  EXPECT_EQ(slot->get_CommandName(), "Power_On");
  slot->put_CommandName("Dance");
  EXPECT_EQ(room.errors(), std::vector<std::string>{
                               "module \"Display Device/PWRSENSE\", slot \"Power_Toggle\": the "
                               "device \"Display Device\" has no command \"Dance\"."});
}

TEST(PowerProgrammingTest, powerSensingWithoutItsModuleFailsButWritesPartAndSources) {
  Room room;
  room.givenDisplay(host::powerSensing);
  room.givenNoModules();
  EXPECT_FALSE(room.build());
  EXPECT_EQ(room.builder().GetLastError(), "Failed to add Power Sensing module.");
  EXPECT_EQ(room.at("Receiver bill"), "1 x 20701 + 1 x 366");
  EXPECT_EQ(room.at("Display Power On"),
            "if Receiver.RGB_Selected=1 { Display Device.RGB_1~10 }; "
            "if Receiver.Composite_Video_Selected=1 { Display Device.Video_1~10 }");
  EXPECT_EQ(room.at("System Power On"), "");
  EXPECT_EQ(room.at("System Power Off"), "Receiver.Power_Off");
}

TEST(PowerProgrammingTest, discreteDisplayWithoutACommandIsAWarningOfEachRun) {
  const std::string on = "2 Display device driver does not define the \"Power On\" command.";
  const std::string off = "2 Display device driver does not define the \"Power Off\" command.";
  Room room;
  room.givenDisplay(host::powerDiscrete);
  room.givenNoCommand(room.addIn().get_DisplayDeviceID(), host::scOn);
  room.givenNoCommand(room.addIn().get_DisplayDeviceID(), host::scOff);
  generator::Generate builder;
  EXPECT_TRUE(builder.Build());
  const auto first = builder.GetErrorItems();
  EXPECT_TRUE(builder.Build());
  EXPECT_EQ(builder.GetErrorItems()->size(), 2U);
  EXPECT_EQ(builder.GetLastError(), "");
  EXPECT_TRUE(room.build());
  EXPECT_EQ(room.warnings(), (std::vector<std::string>{on, off}));

  room.display()->put_PowerControlType(host::powerNone);
  EXPECT_TRUE(room.build());
  EXPECT_TRUE(room.warnings().empty());
  EXPECT_TRUE(builder.Build());
  EXPECT_TRUE(builder.GetErrorItems()->empty());
  EXPECT_EQ(first->size(), 2U) << "stays as it was";
}

TEST(PowerProgrammingTest, roomWithoutADisplayStillHasItsSystemPresets) {
  Room room;
  EXPECT_TRUE(room.build());
  EXPECT_EQ(room.at("System Power On"), "call Display Power On");
  EXPECT_EQ(room.at("System Power Off"), "call Display Power Off; Receiver.Power_Off");
  EXPECT_EQ(room.at("Display Power On"), "");
  EXPECT_EQ(room.at("Receiver.Powered_On 0"), "call System Power On");
  EXPECT_EQ(room.at("Receiver.Powered_Off 0"), "call System Power Off");
}

}  // namespace
