#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/Components.h"
#include "host/Error.h"
#include "host/Numbers.h"
#include "tests/generator/Room.h"
#include "tests/support/Files.h"

namespace {

using tests::Room;

using Places = std::vector<std::pair<std::string, std::string>>;
using Answers = std::function<void(Room&)>;

/// What a library or template lacks or refuses, and what the run makes of it.
struct Broken {
  std::string text, replacement;
  Answers answers;
  bool built;
  std::string error;
  Places places;  // what shows how far the run came
};

Broken replacing(const std::string& text, const std::string& replacement, Answers answers,
                 bool built, const std::string& error, Places places = {}) {
  return {text, replacement, std::move(answers), built, error, std::move(places)};
}

/// A name that is not there.
Broken without(const std::string& name, Answers answers, bool built, const std::string& error,
               Places places = {}) {
  return replacing("\"" + name + "\"", "\"Another\"", std::move(answers), built, error,
                   std::move(places));
}

void plain(Room& room) { room.addIn().put_VolumeKnobControl(true); }
void kestrum(Room& room) { room.addIn().AddKestrum(); }
void threeInputs(Room& room) {
  kestrum(room);
  std::string message;
  room.document().ChangeControlSystem(host::modelReceiverThreeInputs, "", 0, message);
}
void detector(Room& room) { room.addIn().AddOccupancySensor(); }
void monitoredDetector(Room& room) {
  kestrum(room);
  detector(room);
}
void timeout(Room& room) {
  detector(room);
  room.addIn().put_MotionSensorTimeout(600);
}
void display(Room& room) { room.givenDisplay(host::powerDiscrete); }
void uncontrolledDisplay(Room& room) {
  room.givenDisplay(host::powerNone);
  room.addIn().put_PowerOnLockoutTime(30);
}
void sensedDisplay(Room& room) { room.givenDisplay(host::powerSensing); }
void lockout(Room& room) {
  display(room);
  room.addIn().put_PowerOnLockoutTime(30);
  room.addIn().put_PowerOffLockoutTime(70);
}
void longLockout(Room& room) {
  lockout(room);
  room.addIn().put_PowerOnLockoutTime(31);
}
void monitoredLockout(Room& room) {
  lockout(room);
  kestrum(room);
}
void mute(Room& room) { room.addIn().put_bMuteOnDigInp3(1); }
void contact(Room& room) { room.addIn().put_PowerContactClosureOption(addin::contactPowerOff); }
void screen(Room& room) {
  display(room);
  room.givenScreen(2004, 1.5F, 0.25F);
  kestrum(room);
}

/// Puts a command of the receiver into an event, as a user can.
void putInto(Room& room, std::int16_t device, const std::string& output, std::int16_t event) {
  const auto signal = room.document().get_Signals()->Find(device, output, "", host::signalDigital);
  const auto step = forms::createObject<host::Step>(host::progIDStep);
  signal->GetEvent(event)->get_Preset()->InsertStep(1, step);
  EXPECT_TRUE(step->Init(host::stepDigital, host::targetDevice, 0, room.addIn().get_ReceiverID(),
                         "Volume_Up"));
}
void muteBesideSteps(Room& room) {
  mute(room);
  putInto(room, room.addIn().GetDigitalInputID(3), "dig_input_1", host::eventLow);
}
void detectorBesideSteps(Room& room) {
  monitoredDetector(room);
  putInto(room, room.addIn().get_OccupancySensorID(), "Motion_Detected", host::eventHigh);
}
void triggerBesideSteps(Room& room) {
  kestrum(room);
  putInto(room, room.addIn().get_KestrumID(), "System_Unlock", host::eventHigh);
}

const std::string integer = R"(, "type": "integer", "minimum": 0, "maximum": )";
const std::string notRefused = integer + "32767";

std::vector<Broken> presetsOfTheTemplate() {
  return {
      without("System Lock", plain, false, "Cannot find sequence: System Lock"),
      without("System Unlock", plain, false, "Cannot find sequence: System Unlock"),
      without("System Unlock", triggerBesideSteps, false, "",
              {{"Kestrum Interface.System_Lock 0", "call System Lock"},
               {"Kestrum Interface.System_Unlock 0", ""}}),
      without("System Power On", screen, false, "Cannot find sequence: System Power On",
              {{"System Power Off", "Screen.Raise~25; Receiver.Power_Off"}}),
      without("System Power On", display, false, "Failed to build power event for the OL receiver.",
              {{"System Power Off", "Receiver.Power_Off"}}),
      without("System Power Off", display, false, "Cannot find sequence: System Power Off",
              {{"System Power On", "call Display Power On"}}),
      without("Display Power On", uncontrolledDisplay, false, ""),
      without("Display Power On", display, false, "Cannot find sequence: Display Power On",
              {{"System Power On", ""}, {"System Power Off", "Receiver.Power_Off"}}),
      without("Display Power Off", display, false, "Cannot find sequence: Display Power Off",
              {{"System Power On", "call Display Power On"},
               {"System Power Off", "Receiver.Power_Off"}}),
  };
}

std::vector<Broken> receiverAndInputs() {
  return {
      without("Powered_On", display, false, "Failed to build power event for the OL receiver.",
              {{"Receiver.Powered_Off 0", "call System Power Off"},
               {"System Power Off", "call Display Power Off; Receiver.Power_Off"},
               {"System Lock", ""}}),
      without("RGB_Selected", uncontrolledDisplay, true, "",
              {{"Receiver.Composite_Video_Selected 0", "Display Device.Video_1~10"}}),
      without("Composite_Video_Selected", uncontrolledDisplay, true, "",
              {{"Receiver.RGB_Selected 0", "Display Device.RGB_1~10"}}),
      without("Input_Error", threeInputs, true, "",
              {{"Receiver.Input1_Error 0", ""},
               {"Kestrum Interface.System_Lock 0", "call System Lock"}}),
      without("System_Ready_Pulse", contact, false, "",
              {{"Digital Input 2.dig_input_1 1", "call System Lock"}}),
      without("Digital Input 2", plain, false, "", {{"Receiver is Volume Knob Control", "0d"}}),
      without("Digital Input 3", mute, false, ""),
      without("Volume Knob Control", plain, false, "Failed to find Volume Knob Control"),
      without("Mic Mode Control", plain, false, "Failed to find Mic Mode Control",
              {{"Receiver is Volume Knob Control", "1d"}}),
      replacing("\"1d\"", "\"2d\"", plain, false,
                "Failed to set property value Volume Knob Control to 1d"),
      without("Volume_Mute_On", muteBesideSteps, false,
              "Cannot find command Volume_Mute_On on device Receiver",
              {{"Digital Input 3.dig_input_1 1", ""}}),
      without("Volume_Mute_Off", mute, false,
              "Cannot find command Volume_Mute_Off on device Receiver",
              {{"Digital Input 3.dig_input_1 0", "Receiver.Volume_Mute_On"}}),
      replacing(R"("key": 1,)", R"("key": 77,)", sensedDisplay, true, ""),
  };
}

std::vector<Broken> motionDetector() {
  const std::string timeoutOf = R"("name": "Timeout", "value": "300")";
  return {
      without("Motion_Detected", monitoredDetector, false, ""),
      without("Motion_Detected", timeout, false, "", {{"Motion Detector is Timeout", "600"}}),
      without("Timeout", detector, true, ""),
      without("Timeout", timeout, false, "Failed to find Timeout"),
      replacing(timeoutOf + notRefused, timeoutOf + integer + "400", timeout, false,
                "Failed to set property value Timeout to 600",
                {{"Motion Detector.Motion_Detected 1", ""}}),
  };
}

std::vector<Broken> monitoringInterface() {
  const Places wiredToTheEnd{{"Kestrum Interface.System_Lock 0", "call System Lock"}};
  return {
      without("Room_Occupied", detectorBesideSteps, false,
              "Cannot find command Room_Occupied on device Kestrum Interface",
              {{"Motion Detector.Motion_Detected 0", ""}}),
      without("System_Off_Warning_Time", kestrum, true, "Failed to find System_Off_Warning_Time",
              wiredToTheEnd),
      replacing(R"("type": "text", "max_length": 6)", R"("type": "constant", "choices": ["60d"])",
                kestrum, true, "Failed to set property value System_Off_Warning_Time to 0d",
                wiredToTheEnd),
      without("Display_Usage", screen, true, "", wiredToTheEnd),
      without("Display_Power_State", monitoredLockout, false,
              "Cannot find command Display_Power_State on device Kestrum Interface",
              {{"PWRTIMEOUT.Warming_Up 1", ""}, {"System Power On", ""}}),
      without("Digital_Attribute_8_Name", kestrum, false, "",
              {{"Kestrum Interface.Custom_Digital_Notify_7 <-", "Digital Input 1.dig_input_1"},
               {"Kestrum Interface.Custom_Digital_Notify_9 <-", ""}}),
      replacing(R"("type": "text", "max_length": 32)", R"("type": "text", "max_length": 3)",
                kestrum, true, "",
                {{"Kestrum Interface.Custom_Digital_Notify_8 <-", "Digital Input 2.dig_input_1"}}),
  };
}

std::vector<Broken> lockoutModule() {
  const std::string warmUp = R"("name": "Warm Up Time", "value": "30")";
  const std::string coolDown = R"("name": "Cool Down Time", "value": "60")";
  const std::string slots = R"("slots": ["Power_On", "Power_Off"])";
  const Places slotsAreSet{{"PWRTIMEOUT slot Power_On", "Display Device.Power_On"},
                           {"PWRTIMEOUT slot Power_Off", "Display Device.Power_Off"}};
  const std::string warming = "Kestrum Interface.Display_Power_State=2d";
  return {
      without("Warming_Up", lockout, false, "", {{"PWRTIMEOUT.Cooling_Down 1", ""}}),
      without("Cooling_Down", lockout, false, "",
              {{"PWRTIMEOUT.Warming_Up events", "7"}, {"System Power On", ""}}),
      without("Warm Up Time", lockout, false, "Failed to find Warm Up Time", slotsAreSet),
      replacing(warmUp + notRefused, warmUp + integer + "30", longLockout, false,
                "Failed to set property value Warm Up Time to 31", slotsAreSet),
      replacing(coolDown + notRefused, coolDown + integer + "69", lockout, false,
                "Failed to set property value Cool Down Time to 70",
                {{"PWRTIMEOUT is Warm Up Time", "30"}, slotsAreSet[0], slotsAreSet[1]}),
      replacing(slots, R"("slots": [])", lockout, true, "",
                {{"PWRTIMEOUT is Cool Down Time", "70"}}),
      replacing(slots, R"("slots": ["POWER_ON", "power_off"])", lockout, true, "",
                {{"PWRTIMEOUT slot POWER_ON", "Display Device.Power_On"},
                 {"PWRTIMEOUT slot power_off", "Display Device.Power_Off"}}),
      replacing("\"PWRTIMEOUT\"", "\"PwrTimeOut\"", monitoredLockout, true, "",
                {{"PwrTimeOut.Warming_Up 0", warming}, {"PwrTimeOut is Warm Up Time", "30"}}),
      replacing(R"("Warming_Up", "signal": "digital")",
                R"("Warming_Up", "signal": "digital", "options": false)", monitoredLockout, true,
                "", {{"PWRTIMEOUT.Warming_Up 0", warming}, {"PWRTIMEOUT.Warming_Up events", ""}}),
  };
}

/// A room over what is broken, with its answers given.
void inBroken(const Broken& broken, const std::function<void(Room&)>& look) {
  SCOPED_TRACE(broken.text + " -> " + broken.replacement);
  const tests::TemporaryFolder data;
  tests::copyData(data.path(), broken.text, broken.replacement);
  Room room(data.path());
  broken.answers(room);
  look(room);
}

void expectAsTold(const Broken& broken) {
  inBroken(broken, [&](Room& room) {
    EXPECT_EQ(room.build(), broken.built);
    EXPECT_EQ(room.builder().GetLastError(), broken.error);
    for (const auto& [place, text] : broken.places) EXPECT_EQ(room.at(place), text) << place;
    EXPECT_TRUE(!broken.built || room.errors().empty());
  });
}

TEST(BrokenRoomTest, stopsOrGoesOnWithItsTextAndWithWhatWasWrittenBefore) {
  for (const auto& table : {presetsOfTheTemplate(), receiverAndInputs(), motionDetector(),
                            monitoringInterface(), lockoutModule()}) {
    for (const Broken& broken : table) expectAsTold(broken);
  }
}

TEST(BrokenRoomTest, thatTheGeneratorDoesNotExpectIsAnErrorOfTheHost) {
  for (const Broken& broken : {without("Cool Down Time", lockout, false, ""),
                               without("Custom_Digital_Command_8", kestrum, false, "")}) {
    inBroken(broken,
             [](Room& room) { EXPECT_THROW(static_cast<void>(room.build()), host::Error); });
  }
}

TEST(BrokenRoomTest, keepsItsLastErrorWhenTheNextRunOfTheSameBuilderSucceeds) {
  Room room;
  lockout(room);
  room.givenNoModules();
  generator::Generate builder;
  EXPECT_FALSE(builder.Build());
  room.addIn().put_PowerOnLockoutTime(0);
  room.addIn().put_PowerOffLockoutTime(0);
  EXPECT_TRUE(builder.Build());
  EXPECT_EQ(builder.GetLastError(), "Failed to add Power On/Off Lockout module.");
}

}  // namespace
