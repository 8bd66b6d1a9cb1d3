#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace trellisar {

/// A class that others can create by its name, and the component that has it.
struct RegisteredClass {
  std::string name;
  std::filesystem::path library;
};

/// The classes of a registration file, in its order. A library that is named without a whole path
/// lies beside the file. Raises host::Error errFile when the file can't be read, and errBadFile
/// when it is damaged, of another kind or of another version. Its form is in docs/components.md.
std::vector<RegisteredClass> readRegistration(const std::filesystem::path& registration);

}  // namespace trellisar
