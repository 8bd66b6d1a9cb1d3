#pragma once

#include <filesystem>
#include <string>

#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// The drawing of a room's wiring, and its size on paper in pixels of 1/96 inch.
struct WiringDrawing {
  std::string svg;
  int width = 0;
  int height = 0;
};

/// The receiver stands in the middle, what the room is told by to its left, what it acts on to its
/// right, and each wire is a level line of its own. A picture that is not in the folder is left
/// out. The same room gives the same bytes.
WiringDrawing drawWiring(const DocumentData& document, const std::filesystem::path& pictures);

}  // namespace trellisar
