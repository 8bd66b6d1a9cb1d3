#include "tests/trellisar/World.h"

namespace tests {
namespace {

class ListingTest : public HostTest {
 protected:
  ListingTest() {
    openTemplate();
    receiver = data().controlSystem;
    display = addDisplay();
    relay = add("Power Relay", host::entryPowerRelay);
    const auto on = preset("Display Power On");
    append(*on, host::stepDigital, host::targetDevice, relay, "Relay_Close");
    append(*on, host::stepDelay, host::targetDevice, relay, "", "500");
    append(*on, host::stepDigital, host::targetDevice, display, "Power_On", "10");
    const auto inner = branch(*on, receiver, "RGB_Selected");
    append(*inner, host::stepDigital, host::targetDevice, display, "RGB_1", "10");
    append(*inner, host::stepCallPreset, host::targetPreset, preset("System Lock")->get_ID(), "");
    const auto off =
        host.document()->get_Signals()->Find(receiver, "Powered_Off", "", host::signalDigital);
    append(*off->GetEvent(host::eventHigh)->get_Preset(), host::stepDigital, host::targetDevice,
           receiver, "Lock", host::levelHigh);
  }

  std::int16_t receiver = 0;
  std::int16_t display = 0;
  std::int16_t relay = 0;
};

TEST_F(ListingTest, NamesWhatTheDocumentHoldsAndNumbersNothing) {
  const trellisar::Json json = trellisar::listing(data());
  EXPECT_EQ(json["receiver"].dump(), R"({"name":"Receiver","model":842})");
  EXPECT_EQ(json["devices"][0]["name"], "Receiver");
  EXPECT_EQ(json["devices"][0]["parent"], "");
  EXPECT_EQ(json["devices"][1]["type"], "") << "part of every room";
  EXPECT_EQ(json["devices"][5]["type"], "Bravonne P2200");
  EXPECT_EQ(json["devices"][5]["parent"], "Receiver");
  EXPECT_EQ(json["bill_of_materials"].dump(),
            R"([{"device":"Receiver","part":20701,"quantity":1,"main":true}])");
  EXPECT_EQ(json["events"].dump(),
            R"([{"device":"Receiver","output":"Powered_Off","event":0,"steps":[{"kind":1,)"
            R"("target_type":0,"target":"Receiver","signal":"Lock","value":"-1"}]}])");
}

TEST_F(ListingTest, ReadsLikeASentenceToWhoKnowsNoCode) {
  const std::string text = trellisar::readableText(data());
  EXPECT_NE(text.find("  \"Display Power On\"\n"
                      "    1. Power Relay: Relay_Close\n"
                      "    2. wait 5 s\n"
                      "    3. Display Device: Power_On (held 0.1 s)\n"
                      "    4. if RGB_Selected of Receiver is on:\n"
                      "        4.1. Display Device: RGB_1 (held 0.1 s)\n"
                      "        4.2. run \"System Lock\"\n"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("  when Powered_Off of Receiver goes on\n"
                      "    1. Receiver: Lock = on\n"),
            std::string::npos)
      << text;
}

}  // namespace
}  // namespace tests
