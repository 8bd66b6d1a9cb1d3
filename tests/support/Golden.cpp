#include "tests/support/Golden.h"

#include <fnmatch.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/support/Files.h"

namespace tests {
namespace {

/// The glob of tools/renew-goldens; null in an ordinary run.
const char* renewed() { return std::getenv("ORLENA_RENEW_GOLDENS"); }

/// Headed by the preset, the event or the place in which it is; of many differences the first ones.
std::string difference(const std::filesystem::path& expected, const std::string& built) {
  const TemporaryFolder folder;
  writeFile(folder.path() / "built", built);
  const std::string command = "cd '" + folder.path().string() +
                              R"(' && diff -N -U1 -F '^\(  "\|  when\|[^ ]\)')"
                              " --label expected --label built '" +
                              expected.string() + "' built | head -60 > difference";
  if (std::system(command.c_str()) != 0) return "no difference could be made\n";
  return fileText(folder.path() / "difference");
}

}  // namespace

bool isGoldenAsked(const std::string& name) {
  return !renewed() || fnmatch(renewed(), name.c_str(), 0) == 0;
}

void expectGolden(const std::string& name, const std::filesystem::path& file,
                  const std::string& built) {
  ASSERT_NE(built, "");
  if (renewed()) {
    writeFile(file, built);
  } else if (fileText(file) != built) {
    ADD_FAILURE() << difference(file, built) << "if this is meant: tools/renew-goldens '" << name
                  << "', and review the change";
  }
}

}  // namespace tests
