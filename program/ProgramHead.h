#pragma once

#include <string>
#include <string_view>

/// The first line of a compiled program, which tells its form, hash and length.
namespace program {

std::string withHead(const std::string& body);

/// What stands behind the line. Raises what `readProgram` raises.
std::string_view bodyOf(std::string_view bytes, const std::string& shown);

}  // namespace program
