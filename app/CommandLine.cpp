#include "app/CommandLine.h"

#include <CLI/CLI.hpp>

#include "app/Build.h"
#include "app/ExitStatus.h"
#include "app/Receiver.h"
#include "app/Reports.h"
#include "app/Show.h"
#include "app/Window.h"

namespace app {
namespace {

constexpr int mostJobs = 256;

/// A command of the program: it declares what it takes, and runs when it was given.
struct Command {
  CLI::App* parsed;
  std::function<int()> run;
};

Command buildCommand(CLI::App& program) {
  auto options = std::make_shared<BuildOptions>();
  CLI::App* command = program.add_subcommand(
      "build", "Answers the wizard from files, unattended, and saves the systems");
  command->add_option("ANSWERS.json", options->answersFiles, "A room's answers")->required();
  command->add_option("--out", options->out, "Parent folder of the systems, over the answers' own");
  command->add_option("--library", options->library,
                      "Device library in the place of the shipped one");
  command->add_flag("--replace", options->replace, "Lets an existing system be replaced");
  command->add_option("--export", options->delivery.archive,
                      "Exports the system to this archive (.tsa)");
  command->add_option("--upload", options->delivery.address,
                      "Uploads the system to the receiver at HOST or HOST:PORT");
  command->add_option("--jobs", options->jobs, "Number of rooms to build at a time")
      ->check(CLI::Range(1, mostJobs));
  return {command, [options] { return build(*options); }};
}

Command showCommand(CLI::App& program) {
  auto options = std::make_shared<ShowOptions>();
  CLI::App* command = program.add_subcommand(
      "show", "Prints a system's devices, bill of materials and control program");
  command->add_option("FILE.tsy", options->systemFile, "A saved system")->required();
  command->add_flag("--json", options->asJson, "Prints the listing for other programs");
  return {command, [options] { return show(*options); }};
}

Command receiverCommand(CLI::App& program) {
  auto options = std::make_shared<ReceiverOptions>();
  CLI::App* command =
      program.add_subcommand("receiver", "A receiver that takes programs and passwords");
  command->add_option("--listen", options->listen, "HOST:PORT to listen on; port 0 picks one");
  command->add_option("--folder", options->folder, "Where it keeps what it is sent")
      ->capture_default_str();
  return {command, [options] { return runReceiver(*options); }};
}

Command reportCommand(CLI::App& program) {
  auto options = std::make_shared<ReportsOptions>();
  CLI::App* command =
      program.add_subcommand("report", "Writes a system's bill of materials and connection sheet");
  command->add_option("FILE.tsy", options->systemFile, "A saved system")->required();
  command->add_option("--out", options->out, "Folder for the files")->capture_default_str();
  command->add_flag("--replace", options->replace,
                    "Lets files be replaced that are no earlier reports of the same system");
  return {command, [options] { return writeReports(*options); }};
}

Command wizardCommand(CLI::App& program) {
  auto file = std::make_shared<std::optional<std::filesystem::path>>();
  CLI::App* command =
      program.add_subcommand("wizard", "Opens the wizard on a new system, or on a saved one");
  command->add_option("FILE.tsy", *file, "A saved system");
  return {command, [file] { return openWizard(*file); }};
}

Command screenshotsCommand(CLI::App& program) {
  auto options = std::make_shared<ScreenshotOptions>();
  CLI::App* command = program.add_subcommand(
      "screenshots", "For developers: draws the wizard's steps in their states");
  command->add_option("--out", options->out, "Folder for the pictures")->required();
  return {command, [options] { return takeScreenshots(*options); }};
}

}  // namespace

int run(int argc, char** argv) {
  CLI::App program("Orlena room solutions: the wizard, with a person or unattended", "orlena");
  program.require_subcommand(0, 1);
  const Command commands[] = {buildCommand(program),    showCommand(program),
                              receiverCommand(program), reportCommand(program),
                              wizardCommand(program),   screenshotsCommand(program)};
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return program.exit(error) == 0 ? exitStatus::ok : exitStatus::wrongInput;
  }
  for (const Command& command : commands) {
    if (command.parsed->parsed()) return command.run();
  }
  return openMainWindow();
}

}  // namespace app
