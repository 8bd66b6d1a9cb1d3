#include "tests/generator/Combination.h"
#include "host/Numbers.h"

#include <algorithm>
#include <array>
#include <functional>

#include "tests/generator/Covering.h"

namespace tests {
namespace {

constexpr std::array standardCommands{host::scOn, host::scOff, host::scRGB1, host::scVideo1};
constexpr std::array commandNames{" on", " off", " rgb", " video"};
// All, one without composite video, one of each pair, and none.
constexpr std::array commandSets{0b1111U, 0b0111U, 0b0110U, 0b1001U, 0b0000U};

struct Display {
  const char* name;
  std::int16_t controlEntry;
};
/// With the command POWER and LampHours; with Lamp_Hours; with Lamp_Hours that is no number, and
/// Lamp_Hours_Analog; with POWER and no lamp hours.
constexpr std::array displays{Display{" P1400", 1105}, Display{" P2200", 1101},
                              Display{" Clarant30", 1302}, Display{" Bellova", 1801}};
// By Combination::Movement.
constexpr std::array<std::int16_t, 4> screens{0, 2004, 2005, 2104};
constexpr std::array<std::int16_t, 4> lifts{0, 2301, 2304, 2305};

struct Factor {
  unsigned count;
  std::function<void(Combination&, unsigned)> choose;
};

template <typename T>
Factor flag(T Combination::*answer) {
  return {2, [answer](Combination& c, unsigned i) { c.*answer = i == 1; }};
}

template <typename T>
Factor oneOf(T Combination::*answer, const std::vector<T>& values) {
  return {static_cast<unsigned>(values.size()),
          [answer, values](Combination& c, unsigned i) { c.*answer = values.at(i); }};
}

const std::vector<Factor>& factors() {
  using C = Combination;
  static const std::vector<Factor> all{
      oneOf<std::int16_t>(&C::power, {host::powerNone, host::powerSensing, host::powerDiscrete}),
      oneOf<unsigned>(&C::relay, {C::noRelay, C::relayAtOnce, C::relayWithDelays}),
      flag(&C::secondOff),
      oneOf<std::int16_t>(&C::lockoutOn, {0, 30}),
      oneOf<std::int16_t>(&C::lockoutOff, {0, 120}),
      oneOf<std::int16_t>(&C::contact,
                          {addin::contactUnused, addin::contactPowerOff, addin::contactContinue}),
      flag(&C::kestrum),
      oneOf<unsigned>(&C::sensor, {C::noSensor, C::withoutTimeout, C::withTimeout}),
      oneOf<std::size_t>(&C::display, {0, 1, 2, 3}),
      oneOf<unsigned>(&C::commands, {commandSets.begin(), commandSets.end()}),
      oneOf<unsigned>(&C::screen, {C::notThere, C::downAndUp, C::downAlone, C::upAlone}),
      oneOf<unsigned>(&C::lift, {C::notThere, C::downAndUp, C::downAlone, C::upAlone}),
      flag(&C::mute),
      oneOf<unsigned>(&C::panels,
                      {C::noPanel, C::plainPanel, C::projectPanel, C::projectPanelFirst}),
      flag(&C::threeInputs),
      flag(&C::masterVolume),
      flag(&C::micAlways),
  };
  return all;
}

Combination combinationOf(const Choices& choices) {
  Combination combination;
  for (std::size_t i = 0; i < choices.size(); ++i) {
    factors()[i].choose(combination, choices[i]);
  }
  return combination;
}

std::string movementName(unsigned movement, const std::string& device) {
  constexpr std::array parts{"", "", "-down", "-up"};
  return movement == Combination::notThere ? "" : " " + device + parts.at(movement);
}

void answerDisplay(Room& room, const Combination& c) {
  const std::int16_t entry = displays.at(c.display).controlEntry;
  if (!room.display() || room.display()->get_ControlEntryID() != entry) {
    room.givenDisplay(c.power, entry);
  }
  room.display()->put_PowerControlType(c.power);
  for (unsigned i = 0; i < standardCommands.size(); ++i) {
    const std::int16_t id = standardCommands.at(i);
    bool changed = false;
    room.display()->SetCommandName(
        std::to_string(id), c.has(i) ? room.display()->GetDefaultCommandName(id) : "", changed);
  }
}

void answerReceiver(Room& room, const Combination& c) {
  const std::int16_t model =
      c.threeInputs ? host::modelReceiverThreeInputs : host::modelReceiverOneInput;
  std::string message;
  if (room.document().get_ControlSystem()->get_ModelID() != model) {
    room.document().ChangeControlSystem(model, "", 0, message);
  }
  room.addIn().put_VolumeKnobControl(c.masterVolume);
  room.addIn().put_MicModeControl(c.micAlways);
  room.addIn().put_bMuteOnDigInp3(c.mute ? 1 : 0);
}

void answerMonitoring(Room& room, const Combination& c) {
  addin::IAddIn& addIn = room.addIn();
  if (c.kestrum && addIn.get_KestrumID() == 0) addIn.AddKestrum();
  if (!c.kestrum && addIn.get_KestrumID() != 0) addIn.RemoveKestrum();
  const bool sensor = c.sensor != Combination::noSensor;
  if (sensor && addIn.get_OccupancySensorID() == 0) addIn.AddOccupancySensor();
  if (!sensor) addIn.RemoveOccupancySensor();
  addIn.put_MotionSensorTimeout(c.sensor == Combination::withTimeout ? 600 : 0);
}

void answerScreenAndLift(Room& room, const Combination& c) {
  room.givenNo("Screen");
  room.givenNo("Lift");
  room.addIn().put_ScreenDeviceID(0);
  room.addIn().put_LiftDeviceID(0);
  if (c.screen != Combination::notThere) room.givenScreen(screens.at(c.screen), 1.5F, 0.25F);
  if (c.lift != Combination::notThere) room.givenLift(lifts.at(c.lift), 10, 0);
}

void answerPanels(Room& room, const Combination& c) {
  room.givenNo("Fenlet");
  room.givenNo("Touch Panel");
  if (c.panels == Combination::projectPanel || c.panels == Combination::projectPanelFirst) {
    room.addIn().AddFenlet();
  }
  if (c.panels == Combination::plainPanel || c.panels == Combination::projectPanelFirst) {
    room.givenPanel();
  }
}

void answerPower(Room& room, const Combination& c) {
  addin::IAddIn& addIn = room.addIn();
  if (c.relay == Combination::noRelay) addIn.RemovePowerRelay();
  if (c.relay == Combination::relayAtOnce) room.givenRelay(0, 0);
  if (c.relay == Combination::relayWithDelays) room.givenRelay(5, 90);
  addIn.put_bSecondPowerOff(c.secondOff ? 1 : 0);
  addIn.put_sSecondPowerOff(c.secondOff ? room.display()->GetDefaultCommandName(host::scRGB1) : "");
  addIn.put_iSecondPowerOff(c.secondOff ? 3 : 0);
  addIn.put_PowerOnLockoutTime(c.lockoutOn);
  addIn.put_PowerOffLockoutTime(c.lockoutOff);
  addIn.put_PowerContactClosureOption(c.contact);
}

}  // namespace

std::string Combination::name() const {
  std::string text = std::array{"none", "sensing", "discrete"}.at(static_cast<std::size_t>(power));
  text += std::array{"", " relay0", " relay"}.at(relay);
  if (secondOff) text += " second";
  if (lockoutOn != 0) text += " on" + std::to_string(lockoutOn);
  if (lockoutOff != 0) text += " off" + std::to_string(lockoutOff);
  if (contact != addin::contactUnused) {
    text += contact == addin::contactPowerOff ? " power-off" : " continue";
  }
  if (kestrum) text += " kestrum";
  text += std::array{"", " sensor", " timeout"}.at(sensor);
  text += displays.at(display).name;
  text += " |";
  for (unsigned i = 0; i < commandNames.size(); ++i) {
    if (has(i)) text += commandNames.at(i);
  }
  text += " |" + movementName(screen, "screen") + movementName(lift, "lift");
  text += std::array{"", " panel", " fenlet", " fenlet+panel"}.at(panels);
  if (threeInputs) text += " three";
  if (mute) text += " mute";
  if (masterVolume) text += " master";
  if (micAlways) text += " always";
  return text + " :";
}

std::vector<Combination> variedCombinations() {
  std::vector<unsigned> counts;
  for (const Factor& factor : factors()) counts.push_back(factor.count);
  std::vector<Combination> varied;
  for (const Choices& row : coverThreefold(counts)) varied.push_back(combinationOf(row));
  return varied;
}

Combination anyCombination(std::minstd_rand& random) {
  Choices row;
  for (const Factor& factor : factors()) {
    row.push_back(static_cast<unsigned>(random() % factor.count));
  }
  return combinationOf(row);
}

void answer(Room& room, const Combination& c) {
  answerDisplay(room, c);
  answerReceiver(room, c);
  answerMonitoring(room, c);
  answerScreenAndLift(room, c);
  answerPanels(room, c);
  answerPower(room, c);
}

}  // namespace tests
