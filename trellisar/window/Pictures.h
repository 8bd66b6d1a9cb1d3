#pragma once

#include <filesystem>

#include "forms/ImageList.h"

namespace trellisar {

/// The host's two lists of pictures. No picture is read before it is drawn.
struct Pictures {
  forms::ImageList small;
  forms::ImageList large;
};

/// Reads "index.json" of the folder: `{"format": "trellisar-pictures", "version": 1, "small":
/// [...], "large": [...]}`, the lists being names of files in their order. Raises host::Error
/// errFile or errBadFile with the file and the place.
Pictures readPictures(const std::filesystem::path& folder);

}  // namespace trellisar
