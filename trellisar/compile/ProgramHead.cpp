#include "trellisar/compile/ProgramHead.h"

#include <string_view>

#include "base/Digest.h"

namespace trellisar {
namespace {

constexpr std::string_view headStart = "trellisar-program 1 ";

}  // namespace

std::string withProgramHead(const std::string& body) {
  return std::string(headStart) + base::Digest::of(body) + " " + std::to_string(body.size()) +
         "\n" + body;
}

bool isWholeProgram(const std::string& program) {
  const auto end = program.find('\n');
  return end != std::string::npos && program == withProgramHead(program.substr(end + 1));
}

}  // namespace trellisar
