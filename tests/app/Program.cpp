#include "tests/app/Program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>
#include <utility>

namespace app {

namespace fs = std::filesystem;

Outcome Program::run(const std::vector<std::string>& arguments) {
  start(arguments);
  return wait();
}

Outcome Program::shell(const std::string& script) {
  startProcess({"/bin/sh", "-c", script});
  return wait();
}

void Program::start(const std::vector<std::string>& arguments) {
  std::vector<std::string> command{ORLENA_PROGRAM};
  command.insert(command.end(), arguments.begin(), arguments.end());
  startProcess(std::move(command));
}

void Program::startProcess(std::vector<std::string> command) {
  std::vector<char*> pointers;
  for (std::string& text : command) pointers.push_back(text.data());
  pointers.push_back(nullptr);

  processId_ = fork();
  if (processId_ < 0) throw std::runtime_error("the program can't be started");
  if (processId_ > 0) return;
  const auto redirect = [](const fs::path& file, int to) {
    dup2(open(file.c_str(), O_CREAT | O_WRONLY | O_TRUNC, 0600), to);
  };
  redirect(streams_ / "output", STDOUT_FILENO);
  redirect(streams_ / "errors", STDERR_FILENO);
  setenv("TRELLISAR_SYSTEMS", (folder_ / "systems").c_str(), 1);
  setenv("XDG_CONFIG_HOME", streams_.path().c_str(), 1);
  const std::string folderOfProgram = fs::path(ORLENA_PROGRAM).parent_path().string();
  setenv("PATH", (folderOfProgram + ":/usr/bin:/bin").c_str(), 1);
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) unsetenv(name);
  if (!platform_.empty()) setenv("QT_QPA_PLATFORM", platform_.c_str(), 1);
  if (chdir(folder_.path().c_str()) == 0) execv(pointers[0], pointers.data());
  _exit(127);
}

Outcome Program::wait() {
  int state = 0;
  waitpid(processId_, &state, 0);
  const int status = WIFEXITED(state) ? WEXITSTATUS(state) : -WTERMSIG(state);
  return {status, fileText(streams_ / "output"), fileText(streams_ / "errors")};
}

}  // namespace app
