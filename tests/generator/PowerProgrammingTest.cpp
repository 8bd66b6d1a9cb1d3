#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "addin/modGlobals.h"
#include "forms/Application.h"
#include "forms/Components.h"
#include "tests/generator/Room.h"
#include "tests/support/ScriptedDesktop.h"

namespace {

using tests::Room;

class PowerProgrammingTest : public testing::Test {
 protected:
  tests::ScriptedDesktop desktop;
  forms::Application application{desktop, "\\program"};
};

struct Combination {
  std::int16_t power;
  bool relay, second, lockout, on, off, rgb, video;

  std::string forOn() const {
    return powerName() + (relay ? " relay" : "") +
           (power == host::powerDiscrete && !on ? " -on" : "");
  }
  std::string forOff() const {
    return powerName() + (relay ? " relay" : "") + (second ? " second" : "") +
           (power == host::powerDiscrete && !off ? " -off" : "");
  }
  std::string forSources() const {
    return lockout ? "lockout" : std::string(rgb ? "rgb" : "") + (video ? " video" : "");
  }
  std::string powerName() const {
    return std::vector<std::string>{"none", "sensing", "discrete"}.at(
        static_cast<std::size_t>(power));
  }
};

std::vector<Combination> everyCombination() {
  std::vector<Combination> all;
  for (const std::int16_t power : {host::powerNone, host::powerSensing, host::powerDiscrete}) {
    for (unsigned bits = 0; bits < 128; ++bits) {
      const auto has = [bits](unsigned bit) { return (bits >> bit & 1U) != 0; };
      all.push_back({power, has(0), has(1), has(2), has(3), has(4), has(5), has(6)});
    }
  }
  return all;
}

void arrange(Room& room, const Combination& c) {
  room.givenDisplay(c.power);
  if (c.relay) room.givenRelay();
  if (c.second) room.givenSecondPowerOff();
  if (c.lockout) room.addIn().put_PowerOnLockoutTime(30);
  const std::int16_t display = room.addIn().get_DisplayDeviceID();
  if (!c.on) room.givenNoCommand(display, host::scOn);
  if (!c.off) room.givenNoCommand(display, host::scOff);
  if (!c.rgb) room.givenNoCommand(display, host::scRGB1);
  if (!c.video) room.givenNoCommand(display, host::scVideo1);
}

const std::string closes = "Power Relay.Relay_Close; Power Relay waits 500";
const std::string opens = "Power Relay waits 9000; Power Relay.Relay_Open";
const std::string second = "Display Device waits 300; Display Device.RGB_1~10";

const std::map<std::string, std::string> displayPowerOn{
    {"none", ""},
    {"none relay", ""},
    {"sensing", "PWRSENSE.Power_On"},
    {"sensing relay", closes + "; PWRSENSE.Power_On"},
    {"discrete", "Display Device.Power_On~10"},
    {"discrete relay", closes + "; Display Device.Power_On~10"},
    {"discrete -on", ""},
    {"discrete relay -on", ""},
};

const std::map<std::string, std::string> sources{
    {"lockout", ""},
    {"", ""},
    {"rgb", "if Receiver.RGB_Selected=1 { Display Device.RGB_1~10 }"},
    {" video", "if Receiver.Composite_Video_Selected=1 { Display Device.Video_1~10 }"},
    {"rgb video",
     "if Receiver.RGB_Selected=1 { Display Device.RGB_1~10 }; "
     "if Receiver.Composite_Video_Selected=1 { Display Device.Video_1~10 }"},
};

const std::map<std::string, std::string> displayPowerOff{
    {"none", ""},
    {"none relay", ""},
    {"none second", ""},
    {"none relay second", ""},
    {"sensing", "PWRSENSE.Power_Off"},
    {"sensing relay", "PWRSENSE.Power_Off; " + opens},
    {"sensing second", "PWRSENSE.Power_Off"},
    {"sensing relay second", "PWRSENSE.Power_Off; " + opens},
    {"discrete", "Display Device.Power_Off~10"},
    {"discrete relay", "Display Device.Power_Off~10; " + opens},
    {"discrete second", "Display Device.Power_Off~10; " + second},
    {"discrete relay second", "Display Device.Power_Off~10; " + opens + "; " + second},
    {"discrete -off", ""},
    {"discrete relay -off", ""},
    {"discrete second -off", ""},
    {"discrete relay second -off", ""},
};

std::string joined(const std::string& one, const std::string& other) {
  return one + (one.empty() || other.empty() ? "" : "; ") + other;
}

TEST_F(PowerProgrammingTest, everyCombinationHasItsDisplayPresetsAndCanBeBuiltAgain) {
  for (const Combination& c : everyCombination()) {
    const testing::Message name = testing::Message()
                                  << c.forOff() << (c.on ? "" : " -on") << " / " << c.forSources();
    Room room;
    arrange(room, c);
    ASSERT_TRUE(room.build()) << name << ": " << room.builder().GetLastError();
    EXPECT_EQ(room.steps("Display Power On"),
              joined(displayPowerOn.at(c.forOn()), sources.at(c.forSources())))
        << name;
    EXPECT_EQ(room.steps("Display Power Off"), displayPowerOff.at(c.forOff())) << name;
    EXPECT_EQ(room.steps("System Power On"), "call Display Power On") << name;
    EXPECT_EQ(room.steps("System Power Off"), "call Display Power Off; Receiver.Power_Off") << name;

    const std::string firstRun = room.program();
    ASSERT_TRUE(room.build()) << name;
    EXPECT_EQ(room.program(), firstRun) << name;
  }
}

TEST_F(PowerProgrammingTest, secondPowerOffNeedsFlagCommandAndTime) {
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
    EXPECT_EQ(room.steps("Display Power Off"), "Display Device.Power_Off~10" + c.added);
  }
}

TEST_F(PowerProgrammingTest, relayWithoutADelayStillHasItsDelayStep) {
  Room room;
  room.givenDisplay(host::powerDiscrete);
  room.givenRelay();
  room.addIn().put_PowerRelayOnDelay(0);
  EXPECT_TRUE(room.build());
  EXPECT_EQ(room.steps("Display Power On").substr(0, 46),
            "Power Relay.Relay_Close; Power Relay waits 0; ");
}

TEST_F(PowerProgrammingTest, screenAndLiftMoveInTheSystemPresetsForTheirPulseTimes) {
  constexpr std::int16_t taut = 2004, gravityScreen = 2005, lift = 2301, keyLift = 2305;
  struct Case {
    std::string name;
    std::int16_t screen, lift;
    bool kestrum;
    std::string on, off;
  };
  const std::vector<Case> cases{
      {"both and monitoring", taut, lift, true,
       "Screen.Lower~150; Lift.Down~1000; Kestrum Interface.System_Powered_On",
       "Screen.Raise~25; Lift.Up~0; Receiver.Power_Off; Kestrum Interface.System_Powered_Off"},
      {"screen that only goes down", gravityScreen, 0, false, "Screen.Release~150",
       "Receiver.Power_Off"},
      {"lift that only goes up", 0, keyLift, false, "", "Lift.Retract~0; Receiver.Power_Off"},
  };
  for (const Case& c : cases) {
    Room room;
    if (c.screen != 0) room.givenScreen(c.screen, 1.5F, 0.25F);
    if (c.lift != 0) room.givenLift(c.lift, 10, 0);
    if (c.kestrum) room.addIn().AddKestrum();
    EXPECT_TRUE(room.build()) << c.name;
    EXPECT_EQ(room.steps("System Power On"), joined("call Display Power On", c.on)) << c.name;
    EXPECT_EQ(room.steps("System Power Off"), joined("call Display Power Off", c.off)) << c.name;
  }
}

TEST_F(PowerProgrammingTest, commentsAreWrittenOnlyWhereThereIsNone) {
  Room room;
  room.preset("Display Power On")->put_Comment("Mine.");
  EXPECT_TRUE(room.build());
  EXPECT_EQ(room.preset("Display Power On")->get_Comment(), "Mine.");
  EXPECT_EQ(room.preset("System Power Off")->get_Comment(),
            "Add additional steps here that will be executed when the system turns off.");
}

TEST_F(PowerProgrammingTest, branchThatAUserExtendedStaysAndOneIsAddedBehindIt) {
  Room room;
  room.givenDisplay(host::powerNone);
  EXPECT_TRUE(room.build());
  const auto preset = room.preset("Display Power On");
  const auto branch =
      room.document().get_Presets()->ItemByID(preset->get_Steps().front()->get_SubPresetID());
  const auto own = forms::createObject<host::Step>(host::progIDStep);
  branch->InsertStep(2, own);
  ASSERT_TRUE(own->Init(host::stepDigital, host::targetDevice, 0,
                        room.addIn().get_DisplayDeviceID(), "Video_1"));
  const std::string users =
      "if Receiver.RGB_Selected=1 { Display Device.RGB_1~10; Display Device.Video_1 }";
  const std::string video = "if Receiver.Composite_Video_Selected=1 { Display Device.Video_1~10 }";
  const std::string added = "if Receiver.RGB_Selected=1 { Display Device.RGB_1~10 }";
  for (int run = 1; run <= 2; ++run) {
    EXPECT_TRUE(room.build());
    EXPECT_EQ(room.steps("Display Power On"), users + "; " + video + "; " + added) << run;
  }
  bool changed = false;
  room.display()->SetCommandName(std::to_string(host::scVideo1), "Video_2", changed);
  EXPECT_TRUE(room.build());
  EXPECT_NE(room.steps("Display Power On").find("_Selected=1 { Display Device.Video_2~10 }; if"),
            std::string::npos)
      << "another command goes into the branch of the earlier run";
}

TEST_F(PowerProgrammingTest, powerSensingTakesInputAndPartAndGivesThePartBack) {
  Room room;
  room.givenDisplay(host::powerSensing);
  ASSERT_NE(room.addIn().GetDigitalInputID(4), 0);
  EXPECT_TRUE(room.build());
  EXPECT_TRUE(room.build());
  EXPECT_EQ(room.addIn().GetDigitalInputID(4), 0);
  EXPECT_EQ(room.parts(host::partPowerSensor), 1);

  ASSERT_EQ(room.display()->get_Modules().size(), 1U);
  const auto module = room.display()->get_Modules().front();
  EXPECT_FALSE(module->get_ShowInTree());
  EXPECT_GT(module->get_SensorHandle(), 0);
  EXPECT_EQ(module->get_SensorFormat(), "i4");
  ASSERT_FALSE(module->get_CommandSlots().empty());
  const auto slot = module->get_CommandSlots().front();
  EXPECT_EQ(slot->get_CommandName(), "POWER");
  slot->put_CommandName("Power_On");
  EXPECT_TRUE(room.build());
  EXPECT_EQ(slot->get_CommandName(), "Power_On") << "a slot that is taken stays";

  room.display()->put_PowerControlType(host::powerDiscrete);
  EXPECT_TRUE(room.build());
  EXPECT_EQ(room.parts(host::partPowerSensor), 0);
  EXPECT_EQ(room.steps("Display Power Off"), "Display Device.Power_Off~10");
}

/// The library of the host without its modules.
class NoModules : public host::LibraryManager {
 public:
  std::shared_ptr<host::DeviceTypes> get_DeviceTypes() const override { return nullptr; }
  std::shared_ptr<host::Models> get_Models() const override { return nullptr; }
  std::vector<std::shared_ptr<host::LibraryModule>> get_Modules() const override { return {}; }
  std::string get_PicturesFolder() const override { return {}; }
};

TEST_F(PowerProgrammingTest, powerSensingWithoutItsModuleFailsButWritesPartAndSources) {
  Room room;
  room.givenDisplay(host::powerSensing);
  addin::SetLibraryManager(std::make_shared<NoModules>());
  EXPECT_FALSE(room.build());
  EXPECT_EQ(room.builder().GetLastError(), "Failed to add Power Sensing module.");
  EXPECT_EQ(room.parts(host::partPowerSensor), 1);
  EXPECT_EQ(room.steps("Display Power On"), sources.at("rgb video"));
  EXPECT_EQ(room.steps("System Power On"), "");
  EXPECT_EQ(room.steps("System Power Off"), "Receiver.Power_Off");
}

TEST_F(PowerProgrammingTest, discreteDisplayWithoutACommandIsAWarningOfEachRun) {
  const std::string on = "2 Display device driver does not define the \"Power On\" command.";
  const std::string off = "2 Display device driver does not define the \"Power Off\" command.";
  Room room;
  room.givenDisplay(host::powerDiscrete);
  room.givenNoCommand(room.addIn().get_DisplayDeviceID(), host::scOn);
  room.givenNoCommand(room.addIn().get_DisplayDeviceID(), host::scOff);
  generator::Generate builder;
  for (int run = 1; run <= 2; ++run) {
    EXPECT_TRUE(builder.Build());
    ASSERT_EQ(builder.GetErrorItems().size(), 2U) << run;
    EXPECT_EQ(builder.GetLastError(), "");
  }
  EXPECT_TRUE(room.build());
  EXPECT_EQ(room.warnings(), (std::vector<std::string>{on, off}));

  room.display()->put_PowerControlType(host::powerNone);
  EXPECT_TRUE(room.build());
  EXPECT_TRUE(room.warnings().empty());
}

/// The template with something in it under another name.
std::filesystem::path templateWithout(const std::string& name) {
  std::stringstream text;
  text << std::ifstream(tests::templateSystem()).rdbuf();
  std::string system = text.str();
  const std::string quoted = "\"" + name + "\"";
  for (auto at = system.find(quoted); at != std::string::npos; at = system.find(quoted, at)) {
    system.replace(at, quoted.size(), "\"Another " + name + "\"");
  }
  const auto file = std::filesystem::path(testing::TempDir()) / "generator" / (name + ".tsy");
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file) << system;
  return file;
}

TEST_F(PowerProgrammingTest, missingPresetIsToldAndTheOtherPartsStillRun) {
  struct Case {
    std::string missing, error, systemOn, systemOff;
  };
  const std::string receiverOff = "Receiver.Power_Off";
  for (const Case& c : {
           Case{"System Power On", "Failed to build power event for the OL receiver.", "absent",
                receiverOff},
           Case{"System Power Off", "Cannot find sequence: System Power Off",
                "call Display Power On", "absent"},
           Case{"Display Power On", "Cannot find sequence: Display Power On", "", receiverOff},
           Case{"Display Power Off", "Cannot find sequence: Display Power Off",
                "call Display Power On", receiverOff},
       }) {
    Room room(templateWithout(c.missing));
    room.givenDisplay(host::powerDiscrete);
    EXPECT_FALSE(room.build()) << c.missing;
    EXPECT_EQ(room.builder().GetLastError(), c.error) << c.missing;
    EXPECT_EQ(room.steps("System Power On"), c.systemOn) << c.missing;
    EXPECT_EQ(room.steps("System Power Off"), c.systemOff) << c.missing;
  }
}

TEST_F(PowerProgrammingTest, roomWithoutADisplayStillHasItsSystemPresets) {
  Room room;
  EXPECT_TRUE(room.build());
  EXPECT_EQ(room.program(),
            "System Power On: call Display Power On\n"
            "System Power Off: call Display Power Off; Receiver.Power_Off\n"
            "Display Power On: \nDisplay Power Off: \n"
            "Powered_On: call System Power On\nPowered_Off: call System Power Off\n");
}

}  // namespace
