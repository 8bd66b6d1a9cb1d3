#pragma once

#include <filesystem>
#include <string>

namespace base {

/// Why a file or folder can't be made or written, for the number of a failed system call: "the disk
/// is full. Make room or choose another folder."
std::string systemReason(int errorNumber);

/// Raises FileError that says so of a file. The system says the same of a folder that is missing
/// and of one that takes no files.
[[noreturn]] void failToWrite(const std::filesystem::path& file, int errorNumber);

}  // namespace base
