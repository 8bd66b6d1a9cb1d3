#pragma once

#include <cstdint>
#include <string>

namespace host {

/// What a fault in a program is about: the device (0: none that is in the system), and the preset
/// in which it stands (empty: in none).
struct ProgramPlace {
  std::int16_t iDeviceID = 0;
  std::string strPreset;
  bool operator==(const ProgramPlace&) const = default;
};

/// What an add-in offers beside its contract where it knows which of its pages a part of the
/// program comes from.
class ProgramGuide {
 public:
  virtual ~ProgramGuide() = default;

  /// The name of the page on which a user mends it; empty: it is none of the add-in's.
  virtual std::string PageOf(const ProgramPlace& place) const = 0;
  /// Shows that page as soon as what is running now has ended.
  virtual void ShowPageOf(const ProgramPlace& place) = 0;
};

}  // namespace host
