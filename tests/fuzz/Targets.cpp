#include "tests/fuzz/Targets.h"

#include <filesystem>
#include <stdexcept>

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "answers/Answers.h"
#include "answers/RoomTable.h"
#include "answers/RunEnded.h"
#include "answers/UnattendedDesktop.h"
#include "app/RunReport.h"
#include "base/FileIO.h"
#include "base/Json.h"
#include "forms/Application.h"
#include "forms/Paths.h"
#include "host/Error.h"
#include "program/ProgramHead.h"
#include "program/ProgramText.h"
#include "receiver/Error.h"
#include "receiver/Frame.h"
#include "receiver/Messages.h"
#include "simulator/Search.h"
#include "tests/fuzz/Structure.h"
#include "tests/support/Files.h"
#include "tests/support/Shipped.h"
#include "trellisar/archive/Archive.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/compile/ProgramCheck.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/panels/PanelProject.h"
#include "trellisar/settings/Preferences.h"
#include "trellisar/window/Host.h"

namespace tests {
namespace {

namespace fs = std::filesystem;

void require(bool holds, const char* what) {
  if (!holds) throw std::logic_error(what);
}

/// For the files of one process.
const TemporaryFolder& folder() {
  static const TemporaryFolder made;
  return made;
}

/// A host with the template open, and the add-in that works on it.
struct World {
  app::RunReport report{"fuzzing"};
  answers::UnattendedDesktop desktop{report};
  forms::Application application{desktop, forms::fromMachinePath(dataFolder())};
  trellisar::Host host{{.dataFolder = dataFolder()}};
  std::shared_ptr<addin::IAddIn> addIn = std::make_shared<addin::IAddIn>();

  World() {
    const auto file = dataFolder() / "TemplateSystems" / "Orlena TEMPLATE" / "Orlena TEMPLATE.tsy";
    addin::SetAddIn(addIn);
    addin::SetDocument(host.mainWindow()->FileOpen(forms::fromMachinePath(file), false));
    addin::SetLibraryManager(host.libraryManager());
    addin::SetOwnerForm(host.mainWindow());
  }
};

/// What was read is written and read again as the same settings.
void settings(std::string_view bytes) {
  World world;
  auto& stored = world.host.document()->data().settings;
  stored = {{"Orlena", std::string(bytes)}};
  world.addIn->LoadAttributes();
  world.addIn->SaveAttributes();
  const auto first = stored;
  world.addIn->LoadAttributes();
  world.addIn->SaveAttributes();
  require(stored == first, "the settings changed when they were read again");
}

void system(std::string_view bytes) {
  try {
    const auto document = trellisar::readSystemFile(folder().write("system.tsy", bytes), nullptr);
    trellisar::listing(*document);
    trellisar::readableText(*document);
    trellisar::programErrors(*document);
    const std::string text = trellisar::systemFileText(*document);
    const auto again = trellisar::readSystemFile(folder().write("system.tsy", text), nullptr);
    require(trellisar::systemFileText(*again) == text, "the system changed when it was read again");
  } catch (const host::Error&) {
  }
}

void library(std::string_view bytes) {
  static const fs::path index = folder().write("index.json", R"({
    "format": "trellisar-device-library", "version": 1, "files": ["devices.json"]})");
  folder().write("devices.json", bytes);
  try {
    trellisar::DeviceLibrary(index.parent_path()).check();
  } catch (const host::Error&) {
  }
}

void answers(std::string_view bytes) {
  try {
    const answers::Answers read{std::string(bytes)};
  } catch (const answers::RunEnded&) {
  }
}

/// What is made of a table is an answers file.
void table(std::string_view bytes) {
  static const base::Json pattern = base::parseJson(
      R"({"lift": null, "screen": {"device": "S"}, "transmitters": [{"type": "T"}]})", {});
  for (const answers::TableRoom& room : answers::RoomTable(bytes, pattern).rooms) {
    const answers::Answers read(room.text);
  }
}

void archive(std::string_view bytes) {
  const fs::path parent = folder() / "unpacked";
  fs::create_directories(parent);
  try {
    trellisar::unpackArchive(folder().write("system.tsa", bytes), parent);
  } catch (const host::Error&) {
    require(fs::is_empty(parent), "a refused archive left something behind");
  }
  fs::remove_all(parent);
}

void protocol(std::string_view bytes) {
  try {
    const receiver::Frame frame = receiver::Frame::decode(bytes);
    require(frame.encode() == bytes, "a frame changed when it was written again");
    receiver::readMessage(frame);
  } catch (const receiver::Error&) {
  }
}

void project(std::string_view bytes) {
  try {
    const auto read = trellisar::readPanelProject(folder().write("Panel.tpj", bytes));
    const std::string text = trellisar::panelProjectText(read);
    const auto again = trellisar::readPanelProject(folder().write("Panel.tpj", text));
    require(trellisar::panelProjectText(again) == text,
            "the project changed when it was read again");
  } catch (const host::Error&) {
  }
}

/// A program that is taken is written and read again as the same, and runs.
void run(const std::string& bytes) {
  try {
    const program::Program read = program::readProgram(bytes, "Room.tsp");
    const std::string text = programText(read);
    require(programText(program::readProgram(text, "Room.tsp")) == text,
            "the program changed when it was read again");
    constexpr simulator::Time second = 100;
    simulator::Trial trial(read);
    for (const simulator::Act& act : simulator::actsOf(trial.wiring())) {
      trial.act(trial.machine().now() + second, act);
    }
  } catch (const base::ContentError&) {
  } catch (const runtime::EndlessLoop&) {
  }
}

/// Few bytes have the hash that their head tells, so that they are tried behind a head too.
void program(std::string_view bytes) {
  run(std::string(bytes));
  run(program::withHead(std::string(bytes)));
}

/// A file that can't be read is kept beside; one that can be keeps what was not changed.
void preferences(std::string_view bytes) {
  const fs::path parent = folder() / "preferences";
  fs::create_directories(parent);
  const fs::path file = folder().write("preferences/preferences.json", bytes);
  bool isAside = false;
  trellisar::Preferences kept(file, [&](const std::string&) { isAside = true; });
  const trellisar::AddressBook book = kept.addressBook();
  kept.setDefaultFolder("\\Rooms\\");
  require(trellisar::Preferences(file).addressBook() == book,
          "the address book changed with the folder");
  const fs::path aside = parent / "preferences.json.unreadable";
  require(fs::exists(aside) == isAside, "it was told otherwise than it was done");
  require(!isAside || base::readFile(aside) == bytes, "what was kept aside is not the file");
  fs::remove_all(parent);
}

/// The kinds of file whose structure is changed. Each has a valid file among its kept cases.
constexpr std::pair<const char*, FuzzTarget> structured[] = {
    {"system", system},   {"library", library}, {"project", project}, {"preferences", preferences},
    {"archive", archive}, {"answers", answers}, {"program", program}};

base::Json wholeFile(const std::string& kind) {
  const fs::path file = fs::path(ORLENA_SOURCE_FOLDER "/tests/fuzz/cases") / kind / "whole";
  if (kind == "archive") return archiveStructure(file);
  return base::parseJson(base::readFile(file), kind);
}

/// The first byte chooses the kind of file, each of the next ones a change.
void structure(std::string_view bytes) {
  Decisions decisions(bytes);
  const auto& [kind, target] = structured[decisions.below(std::size(structured))];
  static std::map<std::string, base::Json> files;
  if (!files.contains(kind)) files[kind] = wholeFile(kind);
  base::Json json = files[kind];
  constexpr int mostChanges = 4;
  for (int i = 0; i < mostChanges && !decisions.isEmpty(); ++i) changeStructure(json, decisions);
  target(kind == std::string("archive") ? archiveBytes(json) : base::jsonText(json));
}

}  // namespace

const std::map<std::string, FuzzTarget>& fuzzTargets() {
  static const std::map<std::string, FuzzTarget> targets{
      {"settings", settings}, {"system", system},           {"library", library},
      {"answers", answers},   {"archive", archive},         {"protocol", protocol},
      {"project", project},   {"preferences", preferences}, {"structure", structure},
      {"table", table},       {"program", program}};
  return targets;
}

}  // namespace tests
