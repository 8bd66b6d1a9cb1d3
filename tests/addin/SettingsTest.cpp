#include <gtest/gtest.h>

#include "addin/modGlobals.h"
#include "tests/wizard/Wizard.h"

namespace {

using tests::Wizard;

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

void givenBlock(Wizard& wizard, const std::string& block) {
  wizard.document().get_SystemInfo()->SetAddInAttributes("Orlena", block);
  wizard.addIn->FileOpen();
}

TEST(Settings, FreshSystemSavesTheWholeBlockAndTwiceTheSame) {
  Wizard wizard;
  wizard.run([&] {
    wizard.clickInWindow("cmdSave");
    EXPECT_EQ(wizard.settingsBlock(), freshBlock);
    const std::string file = tests::fileText(wizard.systemFile("My Orlena System"));
    wizard.clickInWindow("cmdSave");
    EXPECT_EQ(wizard.settingsBlock(), freshBlock);
    EXPECT_EQ(tests::fileText(wizard.systemFile("My Orlena System")), file);
  });
}

TEST(Settings, EachAnswerHasItsRowAndIsReadFromIt) {
  Wizard wizard;
  wizard.run([&] {
    addin::IAddIn& settings = *wizard.addIn;
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
    EXPECT_EQ(wizard.settingsBlock(), answeredBlock);
    settings.FileOpen();
    EXPECT_FLOAT_EQ(settings.get_PowerOnPulseTime(1), 2.5F);
    settings.SaveAttributes();
    EXPECT_EQ(wizard.settingsBlock(), answeredBlock);
  });
}

TEST(Settings, WhatAResetAndAMissingBlockLeaveIsNotTheSame) {
  Wizard wizard;
  wizard.run([&] {
    addin::IAddIn& settings = *wizard.addIn;
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
    wizard.document().get_SystemInfo()->SetAddInAttributes("Orlena", "");
    settings.LoadAttributes();
    EXPECT_FALSE(settings.get_VolumeKnobControl());
    EXPECT_EQ(settings.get_bMuteOnDigInp3(), 1);
    EXPECT_EQ(settings.get_MotionSensorTimeout(), 0);
    EXPECT_EQ(settings.get_PowerRelayOffDelay(), 120);
  });
}

TEST(Settings, RowsThatAreMissingReadAsNothing) {
  Wizard wizard;
  wizard.run([&] {
    givenBlock(wizard, "Second Power Off command Send=yes;Power Off Lockout Time=-45");
    EXPECT_EQ(wizard.addIn->get_bSecondPowerOff(), 1);
    EXPECT_EQ(wizard.addIn->get_PowerOnLockoutTime(), 0);
    EXPECT_EQ(wizard.addIn->get_PowerOffLockoutTime(), 45);
    EXPECT_EQ(wizard.addIn->get_PowerRelayOffDelay(), 0);
    EXPECT_EQ(wizard.addIn->get_FenletPassword(), "");
  });
}

TEST(Settings, NumberThatDoesNotFitIsTold) {
  Wizard wizard;
  wizard.run([&] {
    const std::string block = "Power On Lockout Time=40000;";
    wizard.desktop.expectMessage("Overflow Error",
                                 "Overflow error in GetAttributeValueInt: \r\nData: " + block +
                                     "\r\nKey: Power On Lockout Time\r\nSeparator: ;\r\n"
                                     "This error should be reported to Velmondo Technical Support.",
                                 forms::Buttons::ok, forms::Icon::exclamation);
    givenBlock(wizard, block);
    EXPECT_EQ(wizard.addIn->get_PowerOnLockoutTime(), 0);
  });
}

TEST(Contract, UseOpenFileFalseLetsTheDocumentGo) {
  Wizard wizard;
  wizard.addIn->IAddInContract_UseOpenFile(false);
  wizard.givenOpenSystem(std::filesystem::path(ORLENA_SOURCE_FOLDER) /
                         "data/TemplateSystems/Orlena EXAMPLE/Orlena EXAMPLE.tsy");
  ASSERT_TRUE(addin::IsDocumentSet());
  wizard.document().MarkChanged();
  wizard.addIn->IAddInContract_UseOpenFile(false);
  EXPECT_FALSE(addin::IsDocumentSet());
  EXPECT_FALSE(wizard.document().get_Modified());
}

TEST(Contract, SecondLoadCopiesNoPictures) {
  Wizard wizard;
  const std::int16_t small = addin::frmImages().get_ImageList().count();
  const std::int16_t large = addin::frmImages().get_ImageListLarge().count();
  EXPECT_GE(small, 166);
  EXPECT_GE(large, 174);
  wizard.addIn->IAddInContract_Load(nullptr, wizard.host->libraryManager(),
                                    wizard.host->communication(), wizard.host->smallPictures(),
                                    wizard.host->largePictures(), wizard.host->mainWindow());
  EXPECT_EQ(addin::frmImages().get_ImageList().count(), small);
  EXPECT_EQ(addin::frmImages().get_ImageListLarge().count(), large);
}

}  // namespace
