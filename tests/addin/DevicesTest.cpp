#include <gtest/gtest.h>

#include "host/Numbers.h"
#include "tests/wizard/Wizard.h"

namespace {

using tests::Wizard;

TEST(Devices, FixedCastIsAddedHiddenAndFoundAgain) {
  Wizard wizard;
  wizard.run([&] {
    addin::IAddIn& addIn = *wizard.addIn;
    addIn.AddPowerRelay();
    addIn.AddKestrum();
    addIn.AddFenlet();
    ASSERT_TRUE(wizard.device("Power Relay"));
    EXPECT_FALSE(wizard.device("Power Relay")->get_ShowInTree());
    EXPECT_EQ(wizard.device("Kestrum Interface")->get_ID(), addIn.get_KestrumID());
    EXPECT_GT(addIn.get_FenletID(), 0);

    const std::int16_t relay = addIn.get_PowerRelayID();
    const std::int16_t fenlet = addIn.get_FenletID();
    addIn.FileOpen();
    EXPECT_EQ(addIn.get_PowerRelayID(), relay);
    EXPECT_EQ(addIn.get_FenletID(), fenlet);
    EXPECT_EQ(addIn.get_ReceiverID(), wizard.document().get_ControlSystem()->get_ID());
    EXPECT_EQ(addIn.get_ScreenDeviceID(), 0);
  });
}

TEST(Devices, RemovalWithoutADeviceTouchesTheDocumentForTheInterfaceAlone) {
  Wizard wizard;
  wizard.run([&] {
    wizard.host->journal().clear();
    wizard.addIn->RemovePowerRelay();
    wizard.addIn->RemoveOccupancySensor();
    wizard.addIn->RemoveFenlet();
    EXPECT_TRUE(wizard.host->journal().calls().empty());
    wizard.desktop.expectMessageWith(forms::Icon::exclamation, "");
    wizard.addIn->RemoveKestrum();
    EXPECT_FALSE(wizard.host->journal().calls().empty());
  });
}

TEST(Devices, MotionDetectorTakesOverInputOneAndNeverOutlivesTheInterface) {
  Wizard wizard;
  wizard.run([&] {
    addin::IAddIn& addIn = *wizard.addIn;
    ASSERT_NE(addIn.GetDigitalInputID(1), 0);
    addIn.AddKestrum();
    addIn.AddOccupancySensor();
    EXPECT_EQ(addIn.GetDigitalInputID(1), 0);
    EXPECT_NE(addIn.get_OccupancySensorID(), 0);
    addIn.RemoveKestrum();
    EXPECT_EQ(addIn.get_KestrumID(), 0);
    EXPECT_EQ(addIn.get_OccupancySensorID(), 0);
    EXPECT_FALSE(wizard.device("Motion Detector"));
    EXPECT_NE(addIn.GetDigitalInputID(1), 0);
  });
}

struct StartingMode {
  const char* display;
  std::int16_t mode;
};

TEST(Devices, DisplayGetsItsStartingPowerModeFromItsDriver) {
  const StartingMode cases[] = {
      {"Bravonne P2200", host::powerDiscrete}, {"Bravonne P900 Pocket", host::powerSensing},
      {"Quenlowe K60", host::powerDiscrete},   {"Talmerick Nocturne", host::powerNone},
      {"Zephrant Zolt 1", host::powerNone},    {"Istrellan Bellova 32 Basic", host::powerNone},
      {"Pellucor Board Go", host::powerNone}};
  Wizard wizard;
  wizard.run([&] {
    wizard.goTo("Display Device");
    for (const auto& [display, mode] : cases) {
      wizard.chooseDisplay(display);
      EXPECT_EQ(wizard.device("Display Device")->get_PowerControlType(), mode) << display;
    }
  });
}

TEST(Devices, StandardCommandsAreEnteredAlsoWhereTheDriverHasNone) {
  Wizard wizard;
  wizard.run([&] {
    wizard.goTo("Display Device");
    wizard.chooseDisplay("Talmerick Nocturne");
    const auto display = wizard.device("Display Device");
    ASSERT_EQ(display->get_StandardCommands().size(), 4U);
    EXPECT_NE(display->GetCommandName("187"), "");
    EXPECT_EQ(display->GetCommandName("166"), "");
  });
}

TEST(Devices, LabelIsWrittenOnlyWhenItDiffersInMoreThanCase) {
  Wizard wizard;
  wizard.run([&] {
    wizard.addIn->AddPowerRelay();
    const std::int16_t relay = wizard.addIn->get_PowerRelayID();
    EXPECT_TRUE(wizard.addIn->SetDeviceLabel(relay, "SCREEN"));
    wizard.document().MarkUnchanged();
    EXPECT_TRUE(wizard.addIn->SetDeviceLabel(relay, "screen"));
    EXPECT_FALSE(wizard.document().get_Modified());
    EXPECT_EQ(wizard.device("Power Relay")->get_Label(), "SCREEN");
    EXPECT_FALSE(wizard.addIn->SetDeviceLabel(31000, "SCREEN"));
  });
}

}  // namespace
