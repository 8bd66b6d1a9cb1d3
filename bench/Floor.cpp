#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::string content(fs::file_size(file), '\0');
  if (!stream.read(content.data(), static_cast<std::streamsize>(content.size()))) {
    throw std::runtime_error("can't read " + file.string());
  }
  return content;
}

std::size_t sizeOfAllIn(const fs::path& folder) {
  std::size_t size = 0;
  for (const auto& entry : fs::directory_iterator(folder)) size += contentOf(entry.path()).size();
  return size;
}

void flush(const fs::path& place) {
  const int descriptor = ::open(place.c_str(), O_RDONLY | O_CLOEXEC);
  const bool isFlushed = descriptor >= 0 && ::fsync(descriptor) == 0;
  ::close(descriptor);
  if (!isFlushed) throw std::runtime_error("can't flush " + place.string());
}

/// As a system is saved: beside its place, flushed and then renamed, the folder flushed too.
void save(const std::string& content, const fs::path& file) {
  fs::create_directories(file.parent_path());
  const fs::path beside = file.string() + ".saving";
  std::ofstream stream(beside, std::ios::binary);
  if (!stream.write(content.data(), static_cast<std::streamsize>(content.size())).flush()) {
    throw std::runtime_error("can't write " + beside.string());
  }
  flush(beside);
  fs::rename(beside, file);
  flush(file.parent_path());
}

}  // namespace

/// The least that building a room takes as a process, with the standard library alone: it reads the
/// answers, the template, the library and a finished system, and writes that system's bytes to
/// another place.
int main(int argc, char** argv) {
  if (argc != 6) {
    std::fprintf(stderr,
                 "bench_floor ANSWERS.json TEMPLATE.tsy LIBRARY FINISHED.tsy WRITTEN.tsy\n");
    return 2;
  }
  try {
    const std::size_t read =
        contentOf(argv[1]).size() + contentOf(argv[2]).size() + sizeOfAllIn(argv[3]);
    save(contentOf(argv[4]), argv[5]);
    return read > 0 ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
