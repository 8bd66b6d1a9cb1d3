#include <gtest/gtest.h>

#include <filesystem>

#include "host/Numbers.h"
#include "trellisar/dialogs/HelpTopics.h"
#include "trellisar/library/DeviceLibrary.h"

namespace {

namespace fs = std::filesystem;

const fs::path data = fs::path(ORLENA_SOURCE_FOLDER) / "data";

TEST(ShippedData, everyHelpTopicIsWritten) {
  for (const std::int16_t topic :
       std::initializer_list<std::int16_t>{host::helpStartTab,
                                           host::helpNameAndLocationTab,
                                           host::helpDisplayDeviceTab,
                                           host::helpAudioControlTab,
                                           host::helpPowerControlTab,
                                           host::helpPowerOnOffLockout,
                                           host::helpDisplayOptionsTab,
                                           host::helpOriginationPointTab,
                                           host::helpRoomOptions,
                                           host::helpFinishTab,
                                           host::helpTouchpanelCreation,
                                           host::helpDisplayDeviceRequirements,
                                           host::helpKestrumSetup,
                                           host::helpVideoTestPattern,
                                           trellisar::help::mainWindow,
                                           trellisar::help::chooseDevice,
                                           trellisar::help::deviceProperties,
                                           trellisar::help::buildProgram,
                                           trellisar::help::documentation,
                                           trellisar::help::preferences,
                                           trellisar::help::audioSettings}) {
    EXPECT_TRUE(fs::exists(data / "help" / (std::to_string(topic) + ".md"))) << topic;
  }
}

TEST(ShippedData, transmittersHaveTheirPicturesButOne) {
  int without = 0;
  for (const auto& device :
       trellisar::DeviceLibrary(data / "library").all(trellisar::Definition::Form::device)) {
    if (device->kind != host::kindUsable || device->slot != host::slotReceiverPorts) continue;
    if (!fs::exists(data / "pictures" / (device->name + ".bmp"))) ++without;
  }
  EXPECT_EQ(without, 1);
}

}  // namespace
