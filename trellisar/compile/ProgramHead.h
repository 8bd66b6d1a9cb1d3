#pragma once

#include <string>

namespace trellisar {

/// A program with the line in front that tells its form, hash and length.
std::string withProgramHead(const std::string& body);

/// Whether the text is a whole compiled program, by its own length and hash.
bool isWholeProgram(const std::string& program);

}  // namespace trellisar
