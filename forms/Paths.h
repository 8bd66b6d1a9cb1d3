#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// Inside the program a path has backslashes, and `\` stands for the root of the machine's file
/// system. Here, and nowhere else, such a path becomes one of the machine's.
namespace forms {

/// A relative path counts from the current folder of the thread's Application, and an empty one is
/// that folder.
std::filesystem::path toMachinePath(std::string_view path);

/// Raises Error 76 for a machine path with a backslash in a name: it could not be told from a
/// separator.
std::string fromMachinePath(const std::filesystem::path& path);

/// What stands behind the last backslash, and what stands before it, the backslash included.
std::string fileNameOf(std::string_view path);
std::string folderOf(std::string_view path);

}  // namespace forms
