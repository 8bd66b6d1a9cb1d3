#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "host/Numbers.h"

/// The fixed cast of a room: the devices that the add-in puts into a system under names of its own,
/// and finds there again by these names.
namespace addin {

/// The id of a device or panel that isn't in the system.
inline constexpr std::int16_t iNoDevice = 0;
/// Whether it is the id of one that is.
constexpr bool IsInSystem(std::int16_t iDeviceID) { return iDeviceID > iNoDevice; }

/// What the host adds: a device of the library under its fixed ids.
struct LibraryEntry {
  std::int16_t iModelID;
  std::int16_t iControlEntryID;
  const char* strMaker = "";
  const char* strModel = "";
  bool bFlag5 = false;
};

struct CastMember {
  const char* strName;
  LibraryEntry entry;
};

inline constexpr const char* strCastMaker = "Velmondo";

inline constexpr CastMember powerRelay{"Power Relay",
                                       {host::modelPowerRelay, host::entryPowerRelay}};
inline constexpr CastMember kestrumInterface{
    "Kestrum Interface", {host::modelKestrum, host::entryKestrum, strCastMaker, "Kestrum", true}};
inline constexpr CastMember motionDetector{"Motion Detector",
                                           {host::modelMotionDetector, host::entryMotionDetector}};
inline constexpr LibraryEntry digitalInput{host::modelDigitalInput, host::entryDigitalInput};

// Of these the user chooses the library's entry; the host names the Fenlet itself.
inline constexpr const char* strDisplayDevice = "Display Device";
inline constexpr const char* strScreen = "Screen";
inline constexpr const char* strLift = "Lift";
inline constexpr const char* strFenlet = "Fenlet";

// What the digital inputs are for. The motion detector and the power sensor take the place of
// theirs.
inline constexpr std::int16_t iOccupancyInput = 1;
inline constexpr std::int16_t iContactInput = 2;
inline constexpr std::int16_t iMuteInput = 3;
inline constexpr std::int16_t iPowerSensorInput = 4;
std::string DigitalInputName(std::int16_t iInput);

/// The ids of the cast in the open document.
struct CastIDs {
  std::int16_t iReceiver = iNoDevice;
  std::int16_t iDisplayDevice = iNoDevice;
  std::int16_t iPowerRelay = iNoDevice;
  std::int16_t iKestrum = iNoDevice;
  std::int16_t iOccupancySensor = iNoDevice;
  std::int16_t iFenlet = iNoDevice;
  std::int16_t iScreenDevice = iNoDevice;
  std::int16_t iLiftDevice = iNoDevice;
  std::array<std::int16_t, 3> iOriginationPoint{};  // by port, the first at 0
};

/// The device of this name below the receiver; iNoDevice when there is none.
std::int16_t FindInCast(const std::string& strName);

}  // namespace addin
