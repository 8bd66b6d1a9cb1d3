#pragma once

#include <cstdint>
#include <string>

/// The names that systems and their files can have.
namespace trellisar {

/// The most characters that a system's name has.
inline constexpr std::int16_t maximumNameLength = 50;

/// Why no system's file can have the name, which is without the extension; empty when one can.
std::string fileNameProblem(const std::string& name);

/// As above for a name that a user gives a system, which is no longer than systems' names are.
std::string systemNameProblem(const std::string& name);

/// A path with backslashes as people read and type it; an empty one stays empty.
std::string shownPath(const std::string& path);

}  // namespace trellisar
