#include "answers/ErrorWords.h"

#include <filesystem>
#include <new>
#include <system_error>

namespace answers {
namespace {

template <typename Kind>
const Kind* as(const std::exception& error) {
  return dynamic_cast<const Kind*>(&error);
}

}  // namespace

std::string wordsOf(const std::exception& error) {
  if (as<std::bad_alloc>(error)) {
    return "There is not enough memory. Close other programs, or build fewer rooms at a time.";
  }
  if (const auto* file = as<std::filesystem::filesystem_error>(error)) {
    const std::string path = file->path1().string();
    return "\"" + path + "\": " + file->code().message() + ".";
  }
  if (const auto* system = as<std::system_error>(error)) {
    return "The system does not allow it: " + system->code().message() + ".";
  }
  if (as<std::runtime_error>(error)) return error.what();
  return "The program has a fault of its own, and could not go on: " + std::string(error.what()) +
         ".";
}

}  // namespace answers
