#include <gtest/gtest.h>

#include "addin/modGlobals.h"
#include "tests/wizard/Wizard.h"

namespace {

class Settings : public testing::Test, public tests::Wizard {
 protected:
  void givenBlock(const std::string& block) {
    document().get_SystemInfo()->SetAddInAttributes("Orlena", block);
    addIn->FileOpen();
  }
};

using Contract = Settings;

constexpr const char* freshBlock =
    "Volume Knob Control=0d;Mic Mode Control=0d;Mute on Digital Input 3 contact=False;"
    "Always use the 3 OL receiver=False;Second Power Off command Send=False;"
    "Second Power Off command Name=;Second Power Off command Time=0;Power Relay Power On Delay=0;"
    "Power Relay Power Off Delay=120;Power On Lockout Time=30;Power Off Lockout Time=120;"
    "Contact Closure Option=-1;Power On Pulse Time 0=0;Power On Pulse Time 1=0;"
    "Power Off Pulse Time 0=0;Power Off Pulse Time 1=0;Fenlet Password=mossgate;"
    "Motion Sensor Timeout=0;";

constexpr const char* answeredBlock =
    "Volume Knob Control=1d;Mic Mode Control=0d;Mute on Digital Input 3 contact=False;"
    "Always use the 3 OL receiver=True;Second Power Off command Send=False;"
    "Second Power Off command Name(11)=POF;CONFIRM;Second Power Off command Time=3;"
    "Power Relay Power On Delay=5;Power Relay Power Off Delay=6;Power On Lockout Time=7;"
    "Power Off Lockout Time=8;Contact Closure Option=0;Power On Pulse Time 0=10;"
    "Power On Pulse Time 1=250;Power Off Pulse Time 0=30;Power Off Pulse Time 1=40;"
    "Fenlet Password(6)=a=b; c;Motion Sensor Timeout=600;";

TEST_F(Settings, FreshSystemSavesTheWholeBlockAndTwiceTheSame) {
  run([&] {
    clickInWindow("cmdSave");
    EXPECT_EQ(settingsBlock(), freshBlock);
    const std::string file = tests::fileText(systemFile("My Orlena System"));
    clickInWindow("cmdSave");
    EXPECT_EQ(settingsBlock(), freshBlock);
    EXPECT_EQ(tests::fileText(systemFile("My Orlena System")), file);
  });
}

TEST_F(Settings, EachAnswerHasItsRowAndIsReadFromIt) {
  run([&] {
    addin::IAddIn& settings = *addIn;
    settings.put_VolumeKnobControl(true);
    settings.put_bUse3OLReceiver(1);
    settings.put_bSecondPowerOff(2);  // no tick
    settings.put_sSecondPowerOff("POF;CONFIRM");
    settings.put_iSecondPowerOff(3);
    settings.put_PowerRelayOnDelay(5);
    settings.put_PowerRelayOffDelay(6);
    settings.put_PowerOnLockoutTime(-7);
    settings.put_PowerOffLockoutTime(8);
    settings.put_PowerContactClosureOption(addin::contactPowerOff);
    settings.put_PowerOnPulseTime(0, 0.1F);
    settings.put_PowerOnPulseTime(1, 2.5F);
    settings.put_PowerOffPulseTime(0, -0.3F);
    settings.put_PowerOffPulseTime(1, 0.4F);
    settings.put_FenletPassword("  a=b; c ");
    settings.put_MotionSensorTimeout(600);
    settings.SaveAttributes();
    EXPECT_EQ(settingsBlock(), answeredBlock);
    settings.FileOpen();
    EXPECT_FLOAT_EQ(settings.get_PowerOnPulseTime(1), 2.5F);
    settings.SaveAttributes();
    EXPECT_EQ(settingsBlock(), answeredBlock);
  });
}

TEST_F(Settings, WhatAResetAndAMissingBlockLeaveIsNotTheSame) {
  run([&] {
    addin::IAddIn& settings = *addIn;
    const auto answer = [&] {
      settings.put_VolumeKnobControl(true);
      settings.put_bMuteOnDigInp3(1);
      settings.put_MotionSensorTimeout(600);
      settings.put_PowerRelayOffDelay(6);
    };
    answer();
    settings.ResetSettings();
    EXPECT_TRUE(settings.get_VolumeKnobControl());
    EXPECT_EQ(settings.get_bMuteOnDigInp3(), 0);
    EXPECT_EQ(settings.get_MotionSensorTimeout(), 600);
    EXPECT_EQ(settings.get_PowerRelayOffDelay(), 120);
    answer();
    document().get_SystemInfo()->SetAddInAttributes("Orlena", "");
    settings.LoadAttributes();
    EXPECT_FALSE(settings.get_VolumeKnobControl());
    EXPECT_EQ(settings.get_bMuteOnDigInp3(), 1);
    EXPECT_EQ(settings.get_MotionSensorTimeout(), 0);
    EXPECT_EQ(settings.get_PowerRelayOffDelay(), 120);
  });
}

TEST_F(Settings, RowsThatAreMissingReadAsNothing) {
  run([&] {
    givenBlock("Second Power Off command Send=yes;Power Off Lockout Time=-45");
    EXPECT_EQ(addIn->get_bSecondPowerOff(), 1);
    EXPECT_EQ(addIn->get_PowerOnLockoutTime(), 0);
    EXPECT_EQ(addIn->get_PowerOffLockoutTime(), 45);
    EXPECT_EQ(addIn->get_PowerRelayOffDelay(), 0);
    EXPECT_EQ(addIn->get_FenletPassword(), "");
  });
}

TEST_F(Contract, UseOpenFileFalseLetsTheDocumentGo) {
  addIn->IAddInContract_UseOpenFile(false);
  givenOpenSystem(std::filesystem::path(ORLENA_SOURCE_FOLDER) /
                  "data/TemplateSystems/Orlena EXAMPLE/Orlena EXAMPLE.tsy");
  ASSERT_TRUE(addin::IsDocumentSet());
  document().MarkChanged();
  addIn->IAddInContract_UseOpenFile(false);
  EXPECT_FALSE(addin::IsDocumentSet());
  EXPECT_FALSE(document().get_Modified());
}

}  // namespace
