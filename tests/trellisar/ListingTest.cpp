#include "tests/trellisar/World.h"

namespace tests {
namespace {

TEST_F(HostTest, ListingReadsLikeASentenceToWhoKnowsNoCode) {
  openTemplate();
  const std::int16_t receiver = data().controlSystem;
  const std::int16_t display = addDisplay();
  const std::int16_t relay = add("Power Relay", host::entryPowerRelay);
  const auto on = preset("Display Power On");
  press(*on, relay, "Relay_Close");
  append(*on, host::stepDelay, host::targetDevice, relay, "", "500");
  press(*on, display, "Power_On", "10");
  const auto inner = branch(*on, receiver, "RGB_Selected");
  append(*inner, host::stepCallPreset, host::targetPreset, preset("System Lock")->get_ID(), "");
  const auto input =
      data().findByName(trellisar::DeviceData::Kind::device, "Digital Input 2", "Receiver");
  press(*branch(*on, input->id, "dig_input_1"), receiver, "Unlock");
  data().findPreset("Display Power On")->steps.back()->condition->put_StateName("Is Open");
  press(*signal(receiver, "Powered_Off")->GetEvent(host::eventHigh)->get_Preset(), receiver, "Lock",
        host::levelHigh);
  const std::string text = trellisar::readableText(data());
  EXPECT_NE(text.find("  \"Display Power On\"\n"
                      "    1. Power Relay: Relay_Close\n"
                      "    2. wait 5 s\n"
                      "    3. Display Device: Power_On (held 0.1 s)\n"
                      "    4. if RGB_Selected of Receiver is on:\n"
                      "        4.1. run \"System Lock\"\n"
                      "    5. if dig_input_1 of Digital Input 2 is open:\n"
                      "        5.1. Receiver: Unlock\n"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("  when Powered_Off of Receiver goes on\n"
                      "    1. Receiver: Lock = on\n"),
            std::string::npos)
      << text;
}

}  // namespace
}  // namespace tests
