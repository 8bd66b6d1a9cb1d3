#pragma once

#include <filesystem>

namespace bench {

/// Writes a device library: the shipped one with further makers, whose devices are those of the
/// shipped makers under names and entries of their own, until there are so many devices. Answers
/// the folder.
std::filesystem::path writeLargeLibrary(const std::filesystem::path& folder, int devices);

}  // namespace bench
