#include "app/Commands.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>

#include "app/Answers.h"
#include "app/Build.h"
#include "app/Check.h"
#include "app/Diff.h"
#include "app/Explain.h"
#include "app/NamesOfLibrary.h"
#include "app/Receiver.h"
#include "app/Reports.h"
#include "app/Rooms.h"
#include "app/Schema.h"
#include "app/Show.h"
#include "app/Try.h"
#include "app/Window.h"
#include "forms/Text.h"

namespace app {
namespace {

constexpr int mostJobs = 256;

/// A positional argument is called what it is.
CLI::Option* named(CLI::Option* option) { return option->type_name(""); }

Command buildCommand(CLI::App& program) {
  auto options = std::make_shared<BuildOptions>();
  CLI::App* command = program.add_subcommand(
      "build", "Answers the wizard from files, unattended, and saves the systems");
  named(command->add_option("ANSWERS.json", options->answersFiles,
                            "A room's answers; - is standard input"))
      ->required();
  command->add_option("--out", options->out, "Parent folder of the systems, over the answers' own")
      ->type_name("FOLDER");
  command
      ->add_option("--library", options->library, "Device library in the place of the shipped one")
      ->type_name("FOLDER");
  command->add_flag("--replace", options->replace, "Lets an existing system be replaced");
  command
      ->add_option("--onto", options->onto, "Answers these saved systems with the one answers file")
      ->type_name("FILE.tsy...");
  command->add_option("--export", options->delivery.archive, "Exports the system to this archive")
      ->type_name("FILE.tsa");
  command
      ->add_option("--upload", options->delivery.address,
                   "Uploads the system to the receiver at HOST or HOST:PORT")
      ->type_name("ADDRESS");
  command->add_option("--jobs", options->jobs, "Number of rooms to build at a time")
      ->check(CLI::Range(1, mostJobs).description(""))
      ->type_name("N");
  return {command,
          [options] { return build(*options); },
          {{"0", "all systems are saved, and delivered where that was asked for"},
           {"1",
            "the wizard refused an answer, or the program, the save, the export, the upload "
            "or standard output failed"},
           {"2", "the command line or an answers file is wrong"}}};
}

std::vector<Meaning> statusesOfAReader() {
  return {{"0", "done"},
          {"1", "the output can't be written"},
          {"2", "the command line is wrong, or the file can't be read"}};
}

Command showCommand(CLI::App& program) {
  auto options = std::make_shared<ShowOptions>();
  CLI::App* command = program.add_subcommand(
      "show", "Prints a system's devices, bill of materials and control program");
  named(command->add_option("FILE.tsy", options->systemFile, "A saved system"))->required();
  command->add_flag("--json", options->asJson, "Prints the listing for other programs");
  return {command, [options] { return show(*options); }, statusesOfAReader()};
}

Command tryCommand(CLI::App& program) {
  auto options = std::make_shared<TryOptions>();
  CLI::App* command = program.add_subcommand(
      "try", "Tries a system in virtual time: does what a script says and prints what happens");
  named(command->add_option("FILE.tsy", options->systemFile, "A saved system"))->required();
  command->add_option("--script", options->script, "What is done in the room; - is standard input")
      ->type_name("FILE.json");
  command->add_flag("--json", options->asJson, "Prints the trace for other programs");
  return {command,
          [options] { return tryRoom(*options); },
          {{"0", "the script was played"},
           {"1", "the output can't be written"},
           {"2", "the command line, the system or the script is wrong"}}};
}

Command answersCommand(CLI::App& program) {
  auto options = std::make_shared<AnswersOptions>();
  CLI::App* command =
      program.add_subcommand("answers", "Prints the answers file that builds a system anew");
  named(command->add_option("FILE.tsy", options->systemFile, "A saved system"))->required();
  command
      ->add_option("--library", options->library, "Device library in the place of the shipped one")
      ->type_name("FOLDER");
  return {command, [options] { return printAnswers(*options); }, statusesOfAReader()};
}

Command diffCommand(CLI::App& program) {
  auto options = std::make_shared<DiffOptions>();
  CLI::App* command = program.add_subcommand(
      "diff", "Prints in what a system's answers, devices and program differ from another one's");
  named(command->add_option("A.tsy", options->before, "A saved system; /dev/null for none"))
      ->required();
  named(command->add_option("B.tsy", options->after, "The one that it is compared with"))
      ->required();
  command->add_flag("--json", options->asJson, "Prints the differences for other programs");
  return {command,
          [options] { return diff(*options); },
          {{"0", "they are the same"},
           {"1", "they differ, or the output can't be written"},
           {"2", "the command line is wrong, or a file can't be read"}}};
}

Command explainCommand(CLI::App& program) {
  auto options = std::make_shared<ExplainOptions>();
  CLI::App* command = program.add_subcommand(
      "explain", "Prints what show prints, and the answers that each line is there for");
  named(command->add_option("FILE.tsy", options->systemFile, "A saved system"))->required();
  command->add_flag("--json", options->asJson, "Prints the listing for other programs");
  command
      ->add_option("--library", options->library, "Device library in the place of the shipped one")
      ->type_name("FOLDER");
  return {command, [options] { return explain(*options); }, statusesOfAReader()};
}

Command gitDiffCommand(CLI::App& program) {
  auto arguments = std::make_shared<std::vector<std::string>>();
  CLI::App* command = program.add_subcommand(
      "git-diff", "Tells git in what a system differs, as the driver that git config names");
  named(command->add_option("ARGUMENTS", *arguments, "What git hands over"))->required();
  return {command,
          [arguments] { return diffForGit(*arguments); },
          {{"0", "done, whether they differ or not"},
           {"1", "the output can't be written"},
           {"2", "the command line is wrong"}}};
}

Command checkCommand(CLI::App& program) {
  auto options = std::make_shared<CheckOptions>();
  CLI::App* command = program.add_subcommand(
      "check", "Looks for faults of rooms: in the program, and in what people's acts bring about");
  named(command->add_option("FILE.tsy", options->systemFiles, "Saved systems"))->required();
  command
      ->add_option("--depth", options->depth,
                   "How many acts in a row are tried; each more takes some twenty times as long")
      ->check(CLI::Range(0, deepestCheck).description(""))
      ->type_name("N")
      ->capture_default_str();
  command->add_flag("--json", options->asJson, "Prints what was found for other programs");
  return {command,
          [options] { return check(*options); },
          {{"0", "nothing was found"},
           {"1", "a fault was found, or the output can't be written"},
           {"2", "the command line is wrong, or a file can't be read"}}};
}

Command receiverCommand(CLI::App& program) {
  auto options = std::make_shared<ReceiverOptions>();
  CLI::App* command =
      program.add_subcommand("receiver", "A receiver that takes programs and passwords");
  command->add_option("--listen", options->listen, "Where to listen; port 0 picks one")
      ->type_name("HOST:PORT");
  command->add_option("--folder", options->folder, "Where it keeps what it is sent")
      ->type_name("FOLDER")
      ->capture_default_str();
  return {command,
          [options] { return runReceiver(*options); },
          {{"0", "ended by SIGTERM or SIGINT"},
           {"2", "the command line is wrong, or it can't listen or use its folder"}}};
}

Command reportCommand(CLI::App& program) {
  auto options = std::make_shared<ReportsOptions>();
  CLI::App* command =
      program.add_subcommand("report", "Writes a system's bill of materials and connection sheet");
  named(command->add_option("FILE.tsy", options->systemFile, "A saved system"))->required();
  command->add_option("--out", options->out, "Folder for the files")
      ->type_name("FOLDER")
      ->capture_default_str();
  command->add_flag("--replace", options->replace,
                    "Lets files be replaced that are no earlier reports of the same system");
  return {command,
          [options] { return writeReports(*options); },
          {{"0", "done"},
           {"1", "the files can't be written, or are not to be replaced"},
           {"2", "the command line is wrong, or the file can't be read"}}};
}

Command roomsCommand(CLI::App& program) {
  auto options = std::make_shared<RoomsOptions>();
  CLI::App* command =
      program.add_subcommand("rooms", "Writes an answers file for each row of a table");
  named(command->add_option("TABLE.csv", options->table,
                            "Rooms below the paths of their answers, as a spreadsheet saves them"))
      ->required();
  command
      ->add_option("--template", options->pattern,
                   "The answers of all rooms, where the table says nothing")
      ->type_name("ANSWERS.json")
      ->required();
  command->add_option("--out", options->out, "Folder of the answers files")
      ->type_name("FOLDER")
      ->capture_default_str();
  command->add_flag("--replace", options->replace,
                    "Lets files be replaced that say something else");
  return {command,
          [options] { return writeRooms(*options); },
          {{"0", "the folder holds an answers file for each row"},
           {"1", "the files can't be written, or are not to be replaced"},
           {"2", "the command line, the template or the table is wrong"}}};
}

Command schemaCommand(CLI::App& program) {
  auto options = std::make_shared<SchemaOptions>();
  CLI::App* command = program.add_subcommand(
      "schema", "Prints the JSON Schema of an answers file, with the library's devices");
  command
      ->add_option("--library", options->library, "Device library in the place of the shipped one")
      ->type_name("FOLDER");
  return {command,
          [options] { return printSchema(*options); },
          {{"0", "done"},
           {"1", "the output can't be written"},
           {"2", "the command line is wrong, or the library can't be read"}}};
}

Command libraryCommand(CLI::App& program) {
  auto options = std::make_shared<LibraryOptions>();
  CLI::App* command =
      program.add_subcommand("library", "Checks a device library and lists its names");
  named(command->add_option("FOLDER", options->folder, "A device library"))->required();
  command->add_flag("--for-copies", options->forCopies,
                    "Writes a list that holds where the folder is copied to, and is slower");
  return {command,
          [options] { return listNames(*options); },
          {{"0", "the list is written"},
           {"1", "the list can't be written"},
           {"2", "the command line is wrong, or the library can't be read or has a fault"}}};
}

Command wizardCommand(CLI::App& program) {
  auto file = std::make_shared<std::optional<std::filesystem::path>>();
  CLI::App* command =
      program.add_subcommand("wizard", "Opens the wizard on a new system, or on a saved one");
  named(command->add_option("FILE.tsy", *file, "A saved system"));
  return {
      command,
      [file] { return openWizard(*file); },
      {{"0", "the wizard was closed"},
       {"1", "no system could be started"},
       {"2",
        "the command line is wrong, or there is no display, or the windows are not installed"}}};
}

/// Why no system can be in a file of this name; empty: one can.
std::string isSystemOrArchive(const std::string& file) {
  const std::string extension = std::filesystem::path(file).extension().string();
  if (forms::equalsIgnoringCase(extension, ".tsy") ||
      forms::equalsIgnoringCase(extension, ".tsa")) {
    return {};
  }
  return "\"" + file + "\" is neither a command nor a system (.tsy) or an archive (.tsa)";
}

std::string asLines(const std::string& heading, const std::vector<Meaning>& meanings) {
  std::size_t width = 0;
  for (const Meaning& each : meanings) width = std::max(width, each.word.size());
  std::string lines = heading + ":\n";
  for (const auto& [word, meaning] : meanings) {
    lines += "  " + word + std::string(width + 2 - word.size(), ' ') + meaning + "\n";
  }
  return lines;
}

}  // namespace

Commands::Commands()
    : program("Room solutions: the wizard, with a person or unattended", "orlena") {
  program.require_subcommand(0, 1);
  program.set_version_flag("--version", "orlena " ORLENA_VERSION, "Prints the version");
  all = {buildCommand(program),   wizardCommand(program),  answersCommand(program),
         roomsCommand(program),   showCommand(program),    explainCommand(program),
         tryCommand(program),     diffCommand(program),    gitDiffCommand(program),
         checkCommand(program),   reportCommand(program),  schemaCommand(program),
         libraryCommand(program), receiverCommand(program)};
  CLI::Option* opened =
      named(program.add_option("FILE.tsy", file, "A system, or an archive (.tsa), to be opened"))
          ->check(isSystemOrArchive);
  for (const Command& command : all) {
    command.parsed->excludes(opened);
    command.parsed->footer(asLines("Exit status", command.exitStatuses));
  }
  program.footer(
      "Without a command the host's main window opens, with the file where one is named.\n"
      "orlena COMMAND --help tells the options and exit statuses of a command.\n\n" +
      asLines("Environment", environmentVariables()));
}

const std::vector<Meaning>& environmentVariables() {
  static const std::vector<Meaning> variables{
      {"ORLENA_DATA", "folder of the program's data, in the place of the one that came with it"},
      {"TRELLISAR_SYSTEMS", "default parent folder of systems, over the preferences"},
      {"XDG_CONFIG_HOME", "where the preferences are kept, and where the documents folder is told"},
      {"DISPLAY, WAYLAND_DISPLAY", "the screen that windows open on"},
      {"QT_QPA_PLATFORM", "\"offscreen\" draws windows without a screen"},
  };
  return variables;
}

bool isFlag(const CLI::Option& option) { return option.get_items_expected_max() == 0; }

std::string valueName(const CLI::Option& option) {
  return option.get_positional() ? option.get_name(/*positional=*/true) : option.get_type_name();
}

}  // namespace app
