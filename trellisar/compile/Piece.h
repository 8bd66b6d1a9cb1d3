#pragma once

#include <vector>

#include "trellisar/document/Steps.h"

namespace trellisar {

/// Something of a document that a listing tells, by its address, which holds as long as the
/// document: a device, module or panel with all that is told of it, its head, one of its properties
/// or slots; a line of the bill; a preset, also that of an event; a step; a signal that is fed.
using Piece = const void*;
using Pieces = std::vector<Piece>;

/// A device, module or panel without its properties and slots.
inline Piece headOf(const DeviceData& device) { return &device.name; }

inline Piece pieceOf(const Step& step) {
  return std::visit([](const auto& any) -> Piece { return &any.data; }, step);
}

}  // namespace trellisar
