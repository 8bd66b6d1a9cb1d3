#include "bench/Process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdlib>
#include <list>
#include <stdexcept>
#include <utility>

extern char** environ;

namespace bench {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t shownWords = 8;  // of a command in an error

double seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

}  // namespace

Process::Process(const std::vector<std::string>& command) {
  std::vector<std::string> texts = command;
  std::vector<char*> pointers;
  for (std::string& text : texts) {
    pointers.push_back(text.data());
    if (pointers.size() <= shownWords) shown_ += text + " ";
  }
  pointers.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  for (const int stream : {1, 2}) {
    posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_WRONLY, 0);
  }
  const int error =
      posix_spawn(&id_, pointers.front(), &actions, nullptr, pointers.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error == 0) return;
  id_ = 0;
  throw std::runtime_error("this can't be started: " + shown_);
}

Process::~Process() {
  if (id_ != 0) waitpid(id_, nullptr, 0);
}

double Process::wait() {
  int state = 0;
  rusage used{};
  wait4(std::exchange(id_, 0), &state, 0, &used);
  if (!WIFEXITED(state) || WEXITSTATUS(state) != 0) {
    throw std::runtime_error("this has failed: " + shown_);
  }
  return seconds(used.ru_utime) + seconds(used.ru_stime);
}

Cost costOfProcesses(const std::vector<std::vector<std::string>>& commands) {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  std::list<Process> running;
  for (const auto& command : commands) running.emplace_back(command);
  double processor = 0;
  for (Process& process : running) processor += process.wait();
  const std::chrono::duration<double> wall = Clock::now() - start;
  return {wall.count(), processor};
}

TemporaryFolder::TemporaryFolder() {
  std::string pattern = (fs::temp_directory_path() / "orlena-bench-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder: " + pattern);
  path_ = fs::canonical(pattern);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code failure;
  fs::remove_all(path_, failure);
}

fs::path TemporaryFolder::emptied(const std::string& name) const {
  const fs::path folder = path_ / name;
  fs::remove_all(folder);
  fs::create_directories(folder);
  return folder;
}

}  // namespace bench
