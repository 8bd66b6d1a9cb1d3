#include "trellisar/document/Provisioning.h"

#include "tests/trellisar/World.h"

namespace tests {
namespace {

using Texts = std::vector<std::string>;

/// A room with the receiver of one input, which has one serial port and six relays.
class PortsTest : public HostTest {
 protected:
  static constexpr std::int16_t serialScreen = 2003;
  static constexpr std::int16_t liftWithTwoRelays = 2302;

  PortsTest() { openTemplate(); }

  trellisar::DevicePtr added(const std::string& name, std::int16_t entry) {
    return data().find(add(name, entry));
  }
  void changeReceiver(std::int16_t model) {
    trellisar::changeReceiver(data(), shippedLibrary()->findReceiver(model));
  }
};

TEST_F(PortsTest, DeviceTakesAsManyRelaysAsItHasWires) {
  EXPECT_EQ(portTexts(*added("Power Relay", host::entryPowerRelay)), Texts{"Relay 1"});
  const auto lift = added("Lift", liftWithTwoRelays);
  EXPECT_EQ(portTexts(*lift), (Texts{"Relay 2", "Relay 3"}));
  const auto screen = added("Screen", liftWithTwoRelays);
  EXPECT_EQ(portTexts(*screen), (Texts{"Relay 4", "Relay 5"}));
  EXPECT_FALSE(canTakePort(data(), *screen, 3)) << "the lift is there";
  EXPECT_TRUE(canTakePort(data(), *screen, 5));
  EXPECT_FALSE(canTakePort(data(), *screen, 6)) << "there is no seventh relay";
  EXPECT_EQ(trellisar::devicesWithoutPort(data()), Texts{});
}

TEST_F(PortsTest, DeviceThatDoesNotFitIsAddedWithoutAPortAndTold) {
  addDisplay();
  const auto screen = added("Screen", serialScreen);
  EXPECT_EQ(portText(*screen), "") << "the display has the serial port";
  EXPECT_EQ(trellisar::devicesWithoutPort(data()),
            Texts{"\"Screen\" (Fallowmere Roll 300 Serial) needs a serial port, and the OL-RX1 has "
                  "none left. Choose a device that is connected otherwise, or a receiver with more "
                  "ports."});
  expectHas(trellisar::readableText(data()), "needs a serial port");

  changeReceiver(host::modelReceiverThreeInputs);
  EXPECT_EQ(portText(*screen), "Serial Port 2");
  EXPECT_EQ(trellisar::devicesWithoutPort(data()), Texts{});
  changeReceiver(host::modelReceiverOneInput);
  EXPECT_EQ(portText(*screen), "");
}

}  // namespace
}  // namespace tests
