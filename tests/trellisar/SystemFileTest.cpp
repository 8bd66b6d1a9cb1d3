#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

#include "base/Json.h"
#include "forms/Paths.h"
#include "tests/trellisar/World.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using base::readFile;
using trellisar::readSystemFile;
using trellisar::systemFileText;

/// A process of its own that ends with what the act answers.
template <typename Act>
pid_t inOwnProcess(Act&& act) {
  const pid_t child = fork();
  if (child == 0) _exit(act());
  return child;
}

int statusOf(pid_t child) {
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// A room in which everything is stored that a file can hold.
class SystemFileTest : public HostTest {
 protected:
  SystemFileTest() : file(folder / "Room.tsy") {
    openTemplate();
    const std::int16_t display = addDisplay();
    auto on = preset("Display Power On");
    press(*on, display, "Power_On", "10");
    const std::int16_t receiver = data().controlSystem;
    const auto inner = branch(*branch(*on, receiver, "RGB_Selected"), receiver, "Powered_On");
    append(*inner, host::stepCallPreset, host::targetPreset, preset("System Lock")->get_ID(), "");
    const auto powered = signal(receiver, "Powered_On");
    append(*powered->GetEvent(host::eventLow)->get_Preset(), host::stepDelay, host::targetDevice,
           display, "", "100");
    powered->get_Options()->EnableEvents(host::eventsAll, true);
    const auto fed = signal(receiver, "", "Lock");
    fed->put_SourceType(host::sourceSignal);
    fed->put_SourceDeviceID(receiver);
    fed->put_SourceSignalName("Powered_On");
    window().AddInterface(host::modelFenlet, receiver, "");
    const auto entry =
        host.document()->get_Reports()->get_BillOfMaterials()->Item(data().bill.front()->key);
    entry->get_Parts()->Add(host::partPowerSensor, 1);
    host.document()->get_SystemInfo()->SetAddInAttributes("Orlena", "A=1;B(3)=;=;;");
    data().name = "Room";
    trellisar::saveSystemFile(data(), folder.inside("Room"));
  }

  /// The text of the error that reading gives; empty when it gives none.
  std::string errorOf(const std::string& content) {
    const fs::path other = folder / "Other.tsy";
    writeFile(other, content);
    return raisedBy([&] { readSystemFile(other, shippedLibrary()); }).description();
  }

  fs::path file;
};

TEST_F(SystemFileTest, OpenedAndSavedGivesTheSameBytesAndTheSameListing) {
  const std::string first = readFile(file);
  trellisar::saveSystemFile(data(), folder.inside("Room.tsy"));
  EXPECT_EQ(readFile(file), first);

  const auto opened = readSystemFile(file, nullptr);
  EXPECT_EQ(systemFileText(*opened), first);
  EXPECT_FALSE(opened->isModified);
  auto expected = trellisar::listing(data());
  expected["folder"] = folder.inside("");
  EXPECT_EQ(trellisar::listing(*opened).dump(1), expected.dump(1));
}

TEST_F(SystemFileTest, LiesWhereItLiesAndIsNamedAsItsFile) {
  fs::create_directory(folder / "moved");
  const fs::path moved = folder / "moved" / "rOOM.tsy";
  fs::copy_file(file, moved);
  EXPECT_EQ(readSystemFile(moved, nullptr)->folder, folder.inside("moved") + "\\");
  EXPECT_EQ(readSystemFile(moved, nullptr)->name, "Room") << "differs in case alone";
  const fs::path renamed = folder / "moved" / "Hall.tsy";
  fs::copy_file(file, renamed);
  EXPECT_EQ(readSystemFile(renamed, nullptr)->name, "Hall");
}

TEST_F(SystemFileTest, CutAnywhereIsRefusedWithTheFilesName) {
  const std::string whole = readFile(file);
  for (std::size_t length = 0; length + 2 < whole.size(); length += 1 + whole.size() / 211) {
    const std::string error = errorOf(whole.substr(0, length));
    EXPECT_TRUE(error.starts_with("Other.tsy: ")) << "cut at " << length << ": " << error;
  }
}

TEST_F(SystemFileTest, DamageIsToldWithItsPlace) {
  struct Case {
    const char *error, *place, *value;
  };
  const Case cases[] = {
      {"format: is no Trellisar system", "/format", "\"other\""},
      {"version: the file is of version 2; this program reads version 1", "/version", "2"},
      {"colour: is no key that is known here", "/colour", "1"},
      {"devices[2].name: is missing", "/devices/2/name", nullptr},
      {"devices[1].port: must be a whole number from 0 to 32767", "/devices/1/port", "40000"},
      {"devices[1].id: the id stands twice", "/devices/1/id", "1"},
      {"devices[0].handle: must be below \"next_handle\"", "/next_handle", "1"},
      {"devices[2].parent: there is no device under this id", "/devices/2/parent", "999"},
      {"devices[0].definition: there is no such definition", "/devices/0/definition", "99"},
      {"devices[0].properties.Volume Knob Control: \"9d\" is not what the property takes",
       "/devices/0/properties/Volume Knob Control", "\"9d\""},
      {"devices[1].properties: must be an object", "/devices/1/properties", "null"},
      {"control_system: there is no receiver under this id", "/control_system", "2"},
      {"presets[2].steps[0].target: there is no device under this id", "/presets/2/steps/0/target",
       "999"},
      {"presets[2].steps[0].kind: there is no such kind of step", "/presets/2/steps/0/kind", "2"},
      {"presets[2].steps[1].steps[0].steps[0].preset: there is no preset \"Gone\"",
       "/presets/2/steps/1/steps/0/steps/0/preset", "\"Gone\""},
      {"presets[1].name: the name stands twice", "/presets/1/name", "\"System Power On\""},
  };
  for (const Case& one : cases) {
    auto json = base::Json::parse(readFile(file));
    const base::Json::json_pointer place(one.place);
    if (one.value) {
      json[place] = base::Json::parse(one.value);
    } else {
      json[place.parent_pointer()].erase(place.back());
    }
    EXPECT_EQ(errorOf(json.dump()), "Other.tsy: " + std::string(one.error));
  }
  std::string twice = readFile(file);
  twice.insert(1, "\"name\": \"Room\",");
  EXPECT_EQ(errorOf(twice), "Other.tsy: name: the key stands twice");
  expectHas(errorOf(std::string(200, '[')), "is nested more than 100 deep");
  expectHas(errorOf("\xff\xfe"), "The file is damaged");
}

TEST_F(SystemFileTest, FullDiskKeepsTheOldFileAndSaysWhy) {
  const std::string old = readFile(file);
  const pid_t child = inOwnProcess([&] {
    const rlimit limit{4096, 4096};
    setrlimit(RLIMIT_FSIZE, &limit);
    data().name = "Another";
    const auto save = [&] { trellisar::saveSystemFile(data(), folder.inside("Room")); };
    return raisedBy(save).description().find("larger than the disk") != std::string::npos ? 7 : 1;
  });
  EXPECT_EQ(statusOf(child), 7);
  EXPECT_EQ(readFile(file), old);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1) << "nothing is left over";
}

TEST_F(SystemFileTest, KilledDuringASaveLeavesOneOfTheTwoWhole) {
  data().application = "One";
  const std::string one = systemFileText(data());
  data().application = "Two";
  const std::string two = systemFileText(data());
  base::replaceFile(file, one);
  for (int round = 0; round < 40; ++round) {
    const pid_t child = inOwnProcess([&]() -> int {
      while (true) {
        base::replaceFile(file, one);
        base::replaceFile(file, two);
      }
    });
    usleep(static_cast<useconds_t>(1000 + round * 350));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::string left = readFile(file);
    EXPECT_TRUE(left == one || left == two) << "in round " << round;
  }
  base::replaceFile(file, one);
  EXPECT_EQ(readFile(file), one) << "what a killed save leaves beside does not hinder the next";
}

TEST_F(SystemFileTest, OfTwoProgramsThatMakeOneSystemOneIsRefused) {
  for (int pair = 0; pair < 20; ++pair) {
    const fs::path place = folder.path() / ("pair" + std::to_string(pair));
    fs::create_directory(place);
    int start[2];
    ASSERT_EQ(pipe(start), 0);
    const auto save = [&] {
      data().name = "Made by " + std::to_string(getpid());
      char byte = 0;
      static_cast<void>(!read(start[0], &byte, 1));
      const std::string system = forms::fromMachinePath(place / "New");
      return raisedBy([&] { trellisar::saveSystemFile(data(), system); }).number() == host::errFile;
    };
    const std::array<pid_t, 2> programs{inOwnProcess(save), inOwnProcess(save)};
    EXPECT_EQ(write(start[1], "go", 2), 2);
    const bool isFirstRefused = statusOf(programs[0]) == 1;
    EXPECT_EQ(statusOf(programs[1]), isFirstRefused ? 0 : 1) << "pair " << pair;
    close(start[0]);
    close(start[1]);
    const pid_t winner = programs[isFirstRefused ? 1 : 0];
    expectHas(readFile(place / "New.tsy"), "Made by " + std::to_string(winner));
    EXPECT_EQ(std::distance(fs::directory_iterator(place), fs::directory_iterator()), 1);
  }
}

TEST_F(SystemFileTest, SavedThroughALinkKeepsTheLink) {
  const fs::path link = folder / "Link.tsy";
  fs::create_symlink(file, link);
  data().application = "Linked";
  trellisar::saveSystemFile(data(), folder.inside("Link"));
  EXPECT_TRUE(fs::is_symlink(link));
  expectHas(readFile(file), "\"Linked\"");
}

}  // namespace
}  // namespace tests
