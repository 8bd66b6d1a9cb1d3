#include "app/Try.h"

#include <utility>

#include "app/Environment.h"
#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "base/Error.h"
#include "base/FileIO.h"
#include "base/Nearest.h"
#include "host/Error.h"
#include "program/ProgramText.h"
#include "trellisar/compile/CompiledProgram.h"
#include "trellisar/compile/ProgramCheck.h"
#include "trellisar/compile/TriedProgram.h"
#include "trellisar/document/SystemFile.h"
#include "trial/Play.h"
#include "trial/Script.h"
#include "trial/Trace.h"

namespace app {
namespace {

namespace fs = std::filesystem;

/// The file name that stands for standard input.
constexpr const char* standardInput = "-";

/// Why the stored program is not the system's; empty: it is, or none is stored. It is told alone:
/// what is tried is compiled anew.
std::string faultOfStoredProgram(const trellisar::DocumentData& document) {
  if (document.compiledProgram.empty()) return {};
  try {
    const std::string& file = document.compiledProgram;
    const std::string name = program::readProgram(trellisar::storedProgram(document), file).name;
    if (name == document.name) return {};
    return "The compiled program " + base::quoted(file) + " is that of the system " +
           base::quoted(name) + ". Save and build the system again.";
  } catch (const host::Error& error) {
    return error.description();
  } catch (const base::Error& error) {
    return error.what();
  }
}

/// The program of a system, compiled now; nothing when it has errors, which are told.
std::optional<program::Program> compile(const fs::path& systemFile) {
  const auto document = trellisar::readSystemFile(systemFile, nullptr);
  const RunReport report(systemFile.string());
  const std::vector<std::string> errors = trellisar::programErrors(*document);
  for (const std::string& error : errors) report.line(error);
  if (!errors.empty()) return std::nullopt;
  report.line(faultOfStoredProgram(*document));
  return trellisar::triedProgram(*document, dataFolder() / "PanelTemplates");
}

/// One byte more than is allowed is enough to see that there is too much.
std::string contentOf(const fs::path& script) {
  return script == standardInput ? readInput(trial::mostBytesOfScript + 1) : base::readFile(script);
}

/// The script; nothing when it is wrong, which is told.
std::optional<trial::Script> read(const fs::path& file, const program::Program& program) {
  const RunReport report(file.string());
  try {
    trial::ReadScript read = trial::readScript(contentOf(file), program);
    if (read.faults.empty()) return std::move(read.script);
    for (const base::Fault& fault : read.faults) report.fault(fault);
  } catch (const base::Error& error) {
    report.line(error.what());
  }
  return std::nullopt;
}

void playAndPrint(const trial::Script& script, program::Program program,
                  const TryOptions& options) {
  trial::setTimes(script, program);
  simulator::Trial trial(program);
  const trial::Ending ending = trial::play(script, trial);
  print(options.asJson ? base::jsonText(trial::traceJson(trial, ending.isAtRest))
                       : trial::traceText(trial, ending.isAtRest));
  RunReport(options.systemFile.string()).line(ending.loop);
}

}  // namespace

int tryRoom(const TryOptions& options) {
  if (!options.script) {
    reportLine("a trial has no window yet; --script FILE.json tries the room without one");
    return exitStatus::wrongInput;
  }
  try {
    const std::optional<program::Program> program = compile(options.systemFile);
    if (!program) return exitStatus::wrongInput;
    const std::optional<trial::Script> script = read(*options.script, *program);
    if (!script) return exitStatus::wrongInput;
    playAndPrint(*script, *program, options);
    return exitStatus::ok;
  } catch (const host::Error& error) {
    reportLine(error.description());
    return exitStatus::wrongInput;
  }
}

}  // namespace app
