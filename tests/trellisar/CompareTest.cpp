#include "trellisar/compare/Compare.h"

#include <random>

#include "tests/trellisar/World.h"
#include "trellisar/compare/StepUnits.h"
#include "trellisar/document/Provisioning.h"

namespace tests {
namespace {

using trellisar::DocumentData;
using trellisar::StepData;
using Steps = std::vector<std::shared_ptr<StepData>>;

/// A saved room in which the lift goes up, the display is turned off, and a contact decides whether
/// the receiver is unlocked.
class CompareTest : public HostTest {
 protected:
  CompareTest() {
    openTemplate();
    const std::int16_t receiver = host.document()->get_ControlSystem()->get_ID();
    const std::int16_t display = addDisplay();
    const auto powerOn = std::make_shared<host::StandardCommand>();
    powerOn->put_StandardID(host::scOn);
    powerOn->put_CommandName("Power_On");
    data().find(display)->standardCommands.push_back(powerOn);
    const std::int16_t lift = add("Lift", 2301);
    const auto off = preset("System Power Off");
    press(*off, lift, "Up", "1000");
    press(*off, display, "Power_Off");
    const auto unlocking = branch(*off, receiver, "Powered_On");
    press(*unlocking, receiver, "Unlock");
    press(*unlocking, receiver, "Power_Off");
    press(*preset("System Lock"), receiver, "Lock");
    press(*signal(receiver, "Powered_Off")->GetEvent(host::eventHigh)->get_Preset(), lift, "Down");
    saveAsRoom();
  }

  trellisar::DocumentPtr read() const {
    return trellisar::readSystemFile(folder / "Room" / "Room.tsy", nullptr);
  }

  Steps& steps(DocumentData& document, const std::string& preset = "System Power Off") {
    return document.findPreset(preset)->steps;
  }
  Steps& branchSteps(DocumentData& document) { return steps(document).at(2)->branch->steps; }

  std::shared_ptr<StepData> delay(const StepData& before, const std::string& hundredths) {
    auto step = std::make_shared<StepData>(before);
    step->kind = host::stepDelay;
    step->signal.clear();
    step->value = hundredths;
    return step;
  }
};

TEST_F(CompareTest, TellsWhatBecameOfARoomInItsWords) {
  struct Case {
    std::function<void(DocumentData&)> edit;
    std::string words;
  };
  const Case cases[] = {
      {[](DocumentData& room) { room.folder = "\\elsewhere\\", room.name = "Other"; }, ""},
      {[](DocumentData& room) { removeDevice(room, room.devices.back()); },
       "Devices\n"
       "    Lift is gone: Hoistrel HL-30, Relay 1, Relay 2\n"
       "\nPresets\n"
       "    System Power Off: Lift's Up (held 10 s) is gone\n"
       "\nEvents\n"
       "    when Powered_Off of Receiver goes on is gone: Lift's Down\n"},
      {[](DocumentData& room) {
         trellisar::DeviceData& display = **(room.devices.end() - 2);
         display.findStandardCommand(host::scOn)->put_CommandName("PWR_On");
         display.label = "Beamer";
         display.powerControl = host::powerDiscrete;
         *display.findProperty("Baud Rate") = "38400";
       },
       "Devices\n"
       "    Display Device: power control none became discrete commands\n"
       "    Display Device: Power On command Power_On became PWR_On\n"
       "    Display Device: Baud Rate 9600 became 38400\n"
       "    Display Device: label \"Beamer\" is new\n"},
      {[&](DocumentData& room) {
         Steps& off = steps(room);
         off.insert(off.begin() + 2, {delay(*off[1], "300"), std::make_shared<StepData>(*off[1])});
         off.push_back(delay(*off[0], "50"));
       },
       "Presets\n"
       "    System Power Off: after Display Device's Power_Off, Display Device's second Power_Off "
       "3 s later is new\n"
       "    System Power Off: after \"if Powered_On of Receiver is on\", the end 0.5 s later is "
       "new\n"},
      {[&](DocumentData& room) {
         Steps& off = steps(room);
         off[0]->value = "1500";
         off.insert(off.begin() + 1, delay(*off[0], "200"));
         room.findPreset("System Lock")->comment = "once\nonly";
       },
       "Presets\n"
       "    System Power Off: Lift's Up (held 10 s) became (held 15 s)\n"
       "    System Power Off: Display Device's Power_Off at once became 2 s later\n"
       "    System Lock: comment \"\" became \"once\\nonly\"\n"},
      {[&](DocumentData& room) { steps(room)[1]->signal = "Menu"; },
       "Presets\n"
       "    System Power Off: Display Device's command Power_Off became Menu\n"},
      {[&](DocumentData& room) { std::swap(steps(room)[0], steps(room)[1]); },
       "Presets\n"
       "    System Power Off: Lift's Up was first and is now after Display Device's Power_Off\n"},
      {[&](DocumentData& room) {
         Steps& inside = branchSteps(room);
         inside.front()->value = host::levelHigh;
         steps(room).push_back(inside.back());
         inside.pop_back();
       },
       "Presets\n"
       "    System Power Off, if Powered_On of Receiver is on: Receiver's Unlock not held became "
       "= on\n"
       "    System Power Off: Receiver's Power_Off was after Receiver's Unlock in \"if Powered_On "
       "of Receiver is on\" and is now after \"if Powered_On of Receiver is on\" outside\n"},
      {[&](DocumentData& room) { steps(room)[2]->condition->put_Value(0); },
       "Presets\n"
       "    System Power Off: condition Powered_On of Receiver is on became Powered_On of Receiver "
       "is off\n"},
      {[&](DocumentData& room) { steps(room).pop_back(); },
       "Presets\n"
       "    System Power Off: after Display Device's Power_Off, \"if Powered_On of Receiver is "
       "on\" (Receiver's Unlock, Receiver's Power_Off) is gone\n"},
      {[&](DocumentData& room) { steps(room)[0]->value = "1000.0"; },
       "Presets\n"
       "    System Power Off: Lift's Up (held 10 s) became (held 10 s), written in another form\n"},
  };
  for (const auto& [edit, expected] : cases) {
    const auto room = read();
    edit(*room);
    EXPECT_EQ(readableText(compare(*read(), *room)), expected);
    EXPECT_EQ(compare(*read(), *room).size(), compare(*room, *read()).size()) << expected;
  }
}

TEST_F(CompareTest, OfNoSystemEverythingIsNew) {
  const DocumentData nothing(nullptr);
  const std::string words = readableText(compare(nothing, *read()));
  expectHas(words, "Lift is new: Hoistrel HL-30, Relay 1, Relay 2\n");
  expectHas(words, "System Lock is new: Receiver's Lock\n");
  EXPECT_EQ(words.find("gone"), std::string::npos) << words;
}

/// The longest sequence that two have in common, by trying all ways.
std::size_t mostInCommon(const std::string& one, const std::string& other) {
  if (one.empty() || other.empty()) return 0;
  if (one[0] == other[0]) return 1 + mostInCommon(one.substr(1), other.substr(1));
  return std::max(mostInCommon(one.substr(1), other), mostInCommon(one, other.substr(1)));
}

std::vector<trellisar::StepUnit> unitsNamed(const std::string& letters) {
  std::vector<trellisar::StepUnit> units;
  for (const char letter : letters) units.push_back({.name = std::string(1, letter)});
  return units;
}

TEST(Alignment, keepsAsManyStepsAsPossibleAndTheirOrder) {
  std::mt19937 random(7);
  const auto letters = [&] {
    std::string text(random() % 9, 'a');
    for (char& letter : text) letter = static_cast<char>('a' + random() % 3);
    return text;
  };
  for (int round = 0; round < 500; ++round) {
    const std::string one = letters();
    const std::string other = letters();
    std::string before, after;
    std::size_t common = 0;
    for (const auto& [from, to] : trellisar::align(unitsNamed(one), unitsNamed(other))) {
      if (from) before += one.at(*from);
      if (to) after += other.at(*to);
      common += from && to ? 1 : 0;
    }
    EXPECT_EQ(before, one) << "to " << other;
    EXPECT_EQ(after, other) << "from " << one;
    EXPECT_EQ(common, mostInCommon(one, other)) << one << " to " << other;
  }
  const auto huge = unitsNamed(std::string(100'000, 'x'));
  EXPECT_EQ(trellisar::align(unitsNamed(std::string(90'000, 'y')), huge).size(), 190'000u);
}

}  // namespace
}  // namespace tests
