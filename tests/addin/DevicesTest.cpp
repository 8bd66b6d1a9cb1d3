#include <gtest/gtest.h>

#include "host/Numbers.h"
#include "tests/wizard/Wizard.h"

namespace {

class Devices : public testing::Test, public tests::Wizard {};

TEST_F(Devices, RemovalWithoutADeviceTouchesTheDocumentForTheInterfaceAlone) {
  run([&] {
    host->journal().clear();
    addIn->RemovePowerRelay();
    addIn->RemoveOccupancySensor();
    addIn->RemoveFenlet();
    EXPECT_TRUE(host->journal().calls().empty());
    desktop.expectMessageWith(forms::Icon::exclamation, "");
    addIn->RemoveKestrum();
    EXPECT_FALSE(host->journal().calls().empty());
  });
}

TEST_F(Devices, DisplayGetsItsStartingPowerModeFromItsDriverAndEntriesForAllCommands) {
  const std::pair<const char*, std::int16_t> cases[] = {
      {"Bravonne P2200", host::powerDiscrete}, {"Bravonne P900 Pocket", host::powerSensing},
      {"Quenlowe K60", host::powerDiscrete},   {"Talmerick Nocturne", host::powerNone},
      {"Zephrant Zolt 1", host::powerNone},    {"Istrellan Bellova 32 Basic", host::powerNone},
      {"Pellucor Board Go", host::powerNone}};
  run([&] {
    goTo("Display Device");
    for (const auto& [display, mode] : cases) {
      chooseDisplay(display);
      EXPECT_EQ(device("Display Device")->get_PowerControlType(), mode) << display;
      EXPECT_EQ(device("Display Device")->get_StandardCommands().size(), 4U) << display;
    }
  });
}

TEST_F(Devices, LabelIsWrittenOnlyWhenItDiffersInMoreThanCase) {
  run([&] {
    addIn->AddPowerRelay();
    const std::int16_t relay = addIn->get_PowerRelayID();
    EXPECT_TRUE(addIn->SetDeviceLabel(relay, "SCREEN"));
    document().MarkUnchanged();
    EXPECT_TRUE(addIn->SetDeviceLabel(relay, "screen"));
    EXPECT_FALSE(document().get_Modified());
    EXPECT_EQ(device("Power Relay")->get_Label(), "SCREEN");
    EXPECT_FALSE(addIn->SetDeviceLabel(31000, "SCREEN"));
  });
}

}  // namespace
