#include "app/CommandLine.h"

#include <sstream>

#include "app/Commands.h"
#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "app/Window.h"

namespace app {
namespace {

/// Help and version are no errors, but come like one.
int answer(const CLI::App& program, const CLI::ParseError& error) {
  std::ostringstream output;
  std::ostringstream errors;
  const bool isError = program.exit(error, output, errors) != 0;
  print(output.str());
  reportLine(errors.str());
  return isError ? exitStatus::wrongInput : exitStatus::ok;
}

}  // namespace

int run(int argc, char** argv) {
  Commands commands;
  try {
    commands.program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return answer(commands.program, error);
  }
  for (const Command& command : commands.all) {
    if (command.parsed->parsed()) return command.run();
  }
  return openMainWindow(commands.file);
}

}  // namespace app
