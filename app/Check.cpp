#include "app/Check.h"

#include <algorithm>
#include <functional>
#include <string>

#include "answers/ErrorWords.h"
#include "answers/LeftOver.h"
#include "answers/Room.h"
#include "answers/RunEnded.h"
#include "app/AddIn.h"
#include "app/Environment.h"
#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "base/Json.h"
#include "host/Error.h"
#include "simulator/Search.h"
#include "trellisar/compile/ProgramCheck.h"
#include "trellisar/compile/TriedProgram.h"
#include "trellisar/document/SystemFile.h"
#include "trial/Findings.h"

namespace app {
namespace {

namespace fs = std::filesystem;

/// What was found in a system.
struct Checked {
  std::string name;
  std::vector<std::string> errors;  // of the program, which then was not tried
  std::vector<std::string> leftOver;
  program::Program program;
  simulator::SearchResult search;

  std::size_t faults() const { return errors.size() + leftOver.size() + search.findings.size(); }
};

/// Nothing, which is told, where the wizard does not open the system or its answers build nothing.
std::vector<std::string> leftOverOf(const fs::path& system, const answers::RoomOptions& options) {
  const RunReport report(system.string());
  try {
    return answers::leftOver(system, answers::readRoom(system, options, report).answers, options);
  } catch (const answers::RunEnded& ended) {
    for (const base::Fault& fault : ended.faults()) report.fault(fault);
  } catch (const std::exception& error) {
    report.line(answers::wordsOf(error));
  }
  return {};
}

Checked checked(const fs::path& system, int depth, const answers::RoomOptions& options) {
  const auto document = trellisar::readSystemFile(system, nullptr);
  Checked result;
  result.name = document->name;
  result.errors = trellisar::programErrors(*document);
  result.leftOver = leftOverOf(system, options);
  if (!result.errors.empty()) return result;
  result.program = trellisar::triedProgram(*document, dataFolder() / "PanelTemplates");
  result.search = simulator::search(result.program, depth);
  return result;
}

void addPart(const std::string& heading, const std::vector<std::string>& lines, std::string& text) {
  if (lines.empty()) return;
  text += '\n';
  text += heading + "\n";
  for (const std::string& line : lines) text += line;
}

std::vector<std::string> indented(std::vector<std::string> lines) {
  for (std::string& line : lines) {
    line.insert(0, "  ");
    line += '\n';
  }
  return lines;
}

std::vector<std::string> findings(const Checked& system, bool isEveryday) {
  std::vector<std::string> texts;
  for (const simulator::Finding& finding : system.search.findings) {
    if (finding.isEveryday != isEveryday) continue;
    std::string text = trial::findingText(finding, system.program);
    if (!texts.empty()) text.insert(text.begin(), '\n');
    texts.push_back(std::move(text));
  }
  return texts;
}

std::string counted(std::size_t count, const std::string& what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string textOf(const Checked& system, int depth) {
  std::string text = "\"" + system.name + "\"\n";
  addPart("The program can't be built", indented(system.errors), text);
  addPart("Left behind by earlier answers", indented(system.leftOver), text);
  addPart("What visitors can bring about", findings(system, /*isEveryday=*/true), text);
  addPart("What the help desk and the buttons for single devices can bring about",
          findings(system, /*isEveryday=*/false), text);
  text += '\n';
  text += system.faults() == 0 ? "Nothing was found" : counted(system.faults(), "fault");
  if (system.errors.empty()) {
    const std::string acts = counted(static_cast<std::size_t>(depth), "act");
    const std::string states = counted(system.search.states, "state");
    text += " after every order of up to ";
    text += acts + ", in " + states;
  }
  return text + ".\n";
}

base::Json jsonOf(const fs::path& file, const Checked& system, int depth) {
  base::Json json;
  json["file"] = file.string();
  json["name"] = system.name;
  json["errors"] = system.errors;
  json["left_over"] = system.leftOver;
  json["faults"] = base::Json::array();
  for (const simulator::Finding& finding : system.search.findings) {
    json["faults"].push_back(trial::findingJson(finding, system.program));
  }
  json["depth"] = depth;
  json["states"] = system.search.states;
  return json;
}

}  // namespace

int check(const CheckOptions& options) {
  const answers::RoomOptions roomOptions{
      .dataFolder = dataFolder(),
      .openWizard = openUnattended,
      .library = std::make_shared<trellisar::DeviceLibrary>(dataFolder() / "library")};
  base::Json systems = base::Json::array();
  bool isFirst = true;
  int status = exitStatus::ok;
  for (const fs::path& file : options.systemFiles) {
    try {
      const Checked system = checked(file, options.depth, roomOptions);
      if (system.faults() > 0) status = std::max(status, exitStatus::different);
      if (options.asJson) systems.push_back(jsonOf(file, system, options.depth));
      if (!options.asJson) {
        if (!isFirst) print("\n");
        print(textOf(system, options.depth));
        isFirst = false;
      }
    } catch (const host::Error& error) {
      RunReport(file.string()).line(error.description());
      status = exitStatus::wrongInput;
    }
  }
  if (options.asJson) print(base::jsonText({{"systems", systems}}));
  return status;
}

}  // namespace app
