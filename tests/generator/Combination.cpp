#include "tests/generator/Combination.h"

#include <array>

namespace tests {
namespace {

constexpr std::array standardCommands{host::scOn, host::scOff, host::scRGB1, host::scVideo1};
constexpr std::array commandNames{" on", " off", " rgb", " video"};
// All, one without composite video, one of each pair, and none.
constexpr std::array commandSets{0b1111U, 0b0111U, 0b0110U, 0b1001U, 0b0000U};

constexpr std::array<std::int16_t, 2> lockoutOnTimes{0, 30};
constexpr std::array<std::int16_t, 2> lockoutOffTimes{0, 120};

void answerCommands(Room& room, const Combination& c) {
  for (unsigned i = 0; i < standardCommands.size(); ++i) {
    const std::int16_t id = standardCommands.at(i);
    bool changed = false;
    room.display()->SetCommandName(
        std::to_string(id), c.has(i) ? room.display()->GetDefaultCommandName(id) : "", changed);
  }
}

void answerDevices(Room& room, const Combination& c) {
  addin::IAddIn& addIn = room.addIn();
  if (c.relay && addIn.get_PowerRelayID() == 0) room.givenRelay();
  if (!c.relay) addIn.RemovePowerRelay();
  if (c.kestrum && addIn.get_KestrumID() == 0) addIn.AddKestrum();
  if (!c.kestrum && addIn.get_KestrumID() != 0) addIn.RemoveKestrum();
  const bool sensor = c.sensor != Combination::none;
  if (sensor && addIn.get_OccupancySensorID() == 0) addIn.AddOccupancySensor();
  if (!sensor) addIn.RemoveOccupancySensor();
}

}  // namespace

std::string Combination::name() const {
  std::string text = std::array{"none", "sensing", "discrete"}.at(static_cast<std::size_t>(power));
  if (relay) text += " relay";
  if (secondOff) text += " second";
  if (lockoutOn != 0) text += " on" + std::to_string(lockoutOn);
  if (lockoutOff != 0) text += " off" + std::to_string(lockoutOff);
  if (contact != addin::contactUnused) {
    text += contact == addin::contactPowerOff ? " power-off" : " continue";
  }
  if (kestrum) text += " kestrum";
  text += std::array{"", " sensor", " timeout"}.at(static_cast<std::size_t>(sensor));
  text += " |";
  for (unsigned i = 0; i < commandNames.size(); ++i) {
    if (has(i)) text += commandNames.at(i);
  }
  return text + " :";
}

std::vector<Combination> everyCombination() {
  std::vector<Combination> all;
  const auto bools = {false, true};
  for (const std::int16_t power : {host::powerNone, host::powerSensing, host::powerDiscrete})
    for (const bool relay : bools)
      for (const bool second : bools)
        for (const std::int16_t on : lockoutOnTimes)
          for (const std::int16_t off : lockoutOffTimes)
            for (const std::int16_t contact :
                 {addin::contactUnused, addin::contactPowerOff, addin::contactContinue})
              for (const bool kestrum : bools)
                for (const auto sensor :
                     {Combination::none, Combination::withoutTimeout, Combination::withTimeout})
                  for (const unsigned commands : commandSets)
                    all.push_back(
                        {power, relay, second, on, off, contact, kestrum, sensor, commands});
  return all;
}

void answer(Room& room, const Combination& c) {
  addin::IAddIn& addIn = room.addIn();
  if (!room.display()) room.givenDisplay(c.power);
  room.display()->put_PowerControlType(c.power);
  answerCommands(room, c);
  answerDevices(room, c);
  addIn.put_bSecondPowerOff(c.secondOff ? 1 : 0);
  addIn.put_sSecondPowerOff(c.secondOff ? "RGB_1" : "");
  addIn.put_iSecondPowerOff(c.secondOff ? 3 : 0);
  addIn.put_PowerOnLockoutTime(c.lockoutOn);
  addIn.put_PowerOffLockoutTime(c.lockoutOff);
  addIn.put_PowerContactClosureOption(c.contact);
  addIn.put_MotionSensorTimeout(c.sensor == Combination::withTimeout ? 600 : 0);
}

}  // namespace tests
