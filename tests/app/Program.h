#pragma once

#include <gtest/gtest.h>
#include <sys/types.h>

#include <source_location>
#include <string>
#include <vector>

#include "tests/support/Files.h"
#include "tests/support/Texts.h"

namespace app {

using tests::expectHas;
using tests::fileText;
using tests::TemporaryFolder;
using tests::writeFile;

/// What a run of the program left.
struct Outcome {
  int status = -1;  // negative: the signal that ended it
  std::string output;
  std::string errors;

  std::string firstLine() const { return output.substr(0, output.find('\n')); }
};

/// A run that printed nothing, ended so and told this.
inline void expectRefused(const Outcome& outcome, int status, const std::string& told,
                          const std::source_location& place = std::source_location::current()) {
  EXPECT_EQ(outcome.status, status) << "in line " << place.line();
  EXPECT_EQ(outcome.output, "") << "in line " << place.line();
  expectHas(outcome.errors, told, place);
}

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

/// Runs the program in a folder of its own.
class ProgramTest : public testing::Test {
 protected:
  Outcome build(const std::string& answers, std::vector<std::string> options = {}) {
    folder.write("answers.json", answers);
    options.insert(options.begin(), {"build", "answers.json"});
    return program.run(options);
  }

  TemporaryFolder folder;
  Program program{folder};
};

}  // namespace app
