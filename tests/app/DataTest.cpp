#include <gtest/gtest.h>

#include <filesystem>

#include "host/Numbers.h"
#include "trellisar/dialogs/HelpTopics.h"

namespace {

namespace fs = std::filesystem;

const fs::path data = fs::path(ORLENA_SOURCE_FOLDER) / "data";

template <typename... Topics>
void expectWritten(Topics... topics) {
  for (const std::int16_t topic : {std::int16_t{topics}...}) {
    EXPECT_TRUE(fs::exists(data / "help" / (std::to_string(topic) + ".md"))) << topic;
  }
}

TEST(ShippedData, everyHelpTopicIsWritten) {
  using namespace host;
  using namespace trellisar::help;
  expectWritten(helpStartTab, helpNameAndLocationTab, helpDisplayDeviceTab, helpAudioControlTab,
                helpPowerControlTab, helpPowerOnOffLockout, helpDisplayOptionsTab,
                helpOriginationPointTab, helpRoomOptions, helpFinishTab, helpTouchpanelCreation,
                helpDisplayDeviceRequirements, helpKestrumSetup, helpVideoTestPattern, mainWindow,
                chooseDevice, deviceProperties, buildProgram, documentation, preferences,
                audioSettings);
}

}  // namespace
