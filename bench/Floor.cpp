#include <cstdio>
#include <exception>
#include <filesystem>

#include "base/FileIO.h"

/// The least that building a room takes as a process: it reads the template, the index of the
/// library and a finished system, and writes that system's bytes to another place.
int main(int argc, char** argv) {
  if (argc != 5) {
    std::fprintf(stderr, "bench_floor TEMPLATE.tsy INDEX.json FINISHED.tsy WRITTEN.tsy\n");
    return 2;
  }
  try {
    const auto read = base::readFile(argv[1]).size() + base::readFile(argv[2]).size();
    const std::filesystem::path written = argv[4];
    std::filesystem::create_directories(written.parent_path());
    base::replaceFile(written, base::readFile(argv[3]));
    return read > 0 ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
