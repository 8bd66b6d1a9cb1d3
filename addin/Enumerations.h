#pragma once

#include <cstdint>

namespace addin {

/// Whether a power operation works on going on or on going off.
enum enumPowerDiscrete : std::int16_t { pdOn = 1, pdOff = 2 };

enum enumAuxiliaryDeviceType : std::int16_t { adtScreen = 1, adtLift = 2 };

enum enumAuxiliaryEvent : std::int16_t { aeToggleSet = 2, aeToggleReset = 3 };

/// The values of PowerContactClosureOption.
enum enumContactClosure : std::int16_t {
  contactUnused = -1,
  contactPowerOff = 0,
  contactContinue = 1
};

/// The pictures that IAddInContract_ShowPreview can show.
enum enumPreviewImage : std::int16_t { previewProduct = 1, previewWiring = 2 };

}  // namespace addin
