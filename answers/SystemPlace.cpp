#include "answers/SystemPlace.h"

#include "forms/Paths.h"

namespace answers {

std::filesystem::path systemFileOf(const host::Document& document) {
  std::string folder = document.get_Path();
  if (!folder.ends_with('\\')) folder += '\\';
  return forms::toMachinePath(folder + document.get_Name() + ".tsy");
}

}  // namespace answers
