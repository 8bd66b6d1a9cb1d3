#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

namespace app {

/// What a run of the program left.
struct Outcome {
  int status = -1;  // negative: the signal that ended it
  std::string output;
  std::string errors;
};

/// Writes a file and the folders that it needs, and answers its path.
std::filesystem::path writeFile(const std::filesystem::path& file, const std::string& content);

/// A folder of its own for a test, gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

  std::filesystem::path write(const std::string& name, const std::string& content) const {
    return writeFile(path_ / name, content);
  }
  /// Everything in the folder, with paths relative to it, in order. Folders end with "/".
  std::vector<std::string> listing() const;

 private:
  std::filesystem::path path_;
};

std::string readWhole(const std::filesystem::path& file);

/// The program as a process, run in a folder, which also holds its systems where nothing else is
/// said.
class Program {
 public:
  explicit Program(const TemporaryFolder& folder) : folder_(folder) {}

  /// The platform that windows are drawn on; without one there is no display.
  void setPlatform(const std::string& platform) { platform_ = platform; }

  Outcome run(const std::vector<std::string>& arguments);
  /// Runs a script of the shell, in which the program is called "orlena".
  Outcome shell(const std::string& script);

  /// Starts it; `wait` then answers what it left. `wait` also where it was killed.
  void start(const std::vector<std::string>& arguments);
  pid_t processId() const { return processId_; }
  Outcome wait();

 private:
  void startProcess(std::vector<std::string> command);

  const TemporaryFolder& folder_;
  TemporaryFolder streams_;
  std::string platform_;
  pid_t processId_ = 0;
};

}  // namespace app
