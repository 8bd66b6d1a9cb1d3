#include <cstdlib>
#include <ctime>

#include "tests/support/Zip.h"
#include "tests/trellisar/World.h"
#include "trellisar/archive/Archive.h"
#include "trellisar/compile/CompiledProgram.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using base::readFile;

class ArchiveTest : public HostTest {
 protected:
  ArchiveTest() {
    openTemplate();
    data().name = "Büro";
    data().folder = folder.inside("Büro\\");
    addDisplay();
    auto panel = window().AddInterface(host::modelFenlet, data().controlSystem, "");
    EXPECT_TRUE(window().FileSaveAs(folder.inside("Büro\\Büro"), "Orlena"));
    EXPECT_TRUE(window().CreateTouchpanels(panel));
    bool cancelled = false;
    EXPECT_TRUE(window().ShowCreateProgramDialog(cancelled));
    fs::create_directory(place());
  }

  fs::path place() const { return folder / "place"; }
  fs::path inRoom(const std::string& name) const { return folder / "Büro" / name; }
  void exportTo(const std::string& name) {
    desktop.expectSaveDialog("Export System", folder.inside(name));
    std::int32_t hwnd = 0;
    window().Export(hwnd);
  }

  /// What unpacking says of the bytes; empty when it takes them. A refusal leaves nothing behind.
  std::string refusalOf(const std::string& bytes) {
    const fs::path file = folder / "Other.tsa";
    writeFile(file, bytes);
    const std::string refusal =
        raisedBy([&] { trellisar::unpackArchive(file, place()); }).description();
    EXPECT_TRUE(refusal.empty() || fs::is_empty(place())) << refusal;
    fs::remove_all(place());
    fs::create_directory(place());
    return refusal;
  }
};

TEST_F(ArchiveTest, HoldsTheWholeSystemAndGivesItBack) {
  exportTo("Room");
  const fs::path archive = folder / "Room.tsa";
  ASSERT_TRUE(fs::exists(archive)) << "the extension is added";
  EXPECT_EQ(host.exportedFile(), archive);

  const std::string title =
      "Choose the folder in which the system of the archive gets its own folder:";
  const auto first = host.document();
  bool cancelled = false;
  desktop.expectFolderDialog(title, "");
  EXPECT_EQ(window().FileOpen(folder.inside("Room.tsa"), true, cancelled), nullptr);
  EXPECT_TRUE(cancelled);
  EXPECT_EQ(host.document(), first);
  desktop.expectFolderDialog(title, folder.inside("place"));
  ASSERT_NE(window().FileOpen(folder.inside("Room.tsa"), true, cancelled), nullptr);
  EXPECT_EQ(host.document()->get_Path(), folder.inside("place\\Büro\\"));
  EXPECT_TRUE(data().programIsCurrent);
  for (const char* name : {"Büro.tsy", "Büro.tsp", "Fenlet.tpj"}) {
    EXPECT_EQ(readFile(place() / "Büro" / name), readFile(inRoom(name))) << name;
  }
  EXPECT_TRUE(fs::exists(place() / "Büro" / "reports" / "Connection Sheet.html"));

  EXPECT_THROW(trellisar::unpackArchive(archive, place()), host::Error) << "it is there already";
}

TEST_F(ArchiveTest, SameRoomGivesTheSameBytesInEveryTimeZone) {
  const std::string bytes = trellisar::archiveOf(data());
  ::setenv("TZ", "Asia/Tokyo", 1);
  ::tzset();
  EXPECT_EQ(trellisar::archiveOf(data()), bytes);
  ::unsetenv("TZ");
  ::tzset();
}

TEST_F(ArchiveTest, ExportThatCantBeIsToldAndReplacesNothing) {
  desktop.expectMessageWith(forms::Icon::critical, "its folder does not exist");
  exportTo("none\\Room.tsa");
  folder.write("Old.tsa", "old");
  fs::remove(inRoom("Büro.tsp"));
  desktop.expectMessageWith(forms::Icon::critical, "The system could not be exported.");
  exportTo("Old.tsa");
  EXPECT_EQ(readFile(folder / "Old.tsa"), "old");
  EXPECT_TRUE(host.exportedFile().empty());
}

TEST_F(ArchiveTest, NamesOfAnyLettersComeBack) {
  fs::create_directories(place() / ".opening-0" / "left by a program that was ended");
  std::string longest;
  for (int i = 0; i < 50; ++i) longest += "\U0001F3E2";
  for (const auto& [name, unpacked] :
       {std::pair<std::string, std::string>{"Bu\u0308ro", "B\u00FCro"}, {longest, longest}}) {
    data().name = name;
    data().folder = folder.inside(name + "\\");
    ASSERT_TRUE(window().FileSaveAs(folder.inside(name + "\\" + name), "Orlena"));
    auto panel = host.document()->get_Touchpanels()->Items().front();
    ASSERT_TRUE(window().CreateTouchpanels(panel));
    bool cancelled = false;
    ASSERT_TRUE(window().ShowCreateProgramDialog(cancelled));
    const fs::path file = folder / "names.tsa";
    writeFile(file, trellisar::archiveOf(data()));
    const fs::path system = trellisar::unpackArchive(file, place());
    EXPECT_EQ(system, place() / unpacked / (unpacked + ".tsy"));
    const auto opened = trellisar::readSystemFile(system, nullptr);
    EXPECT_EQ(trellisar::storedProgram(*opened), trellisar::storedProgram(data()));
  }
  EXPECT_EQ(std::distance(fs::directory_iterator(place()), fs::directory_iterator()), 2);
}

TEST_F(ArchiveTest, HostileArchivesAreRefused) {
  const ZipEntry system{"Room.tsy", readFile(inRoom("Büro.tsy"))};
  std::vector<ZipEntry> many(1001, system);
  for (std::size_t i = 1; i < many.size(); ++i) many[i] = {"f" + std::to_string(i), ""};
  const std::pair<std::vector<ZipEntry>, const char*> cases[] = {
      {{system, {"../evil", "x"}}, "\"../evil\" leads out of the system's folder"},
      {{system, {"a/../../evil", "x"}}, "leads out of the system's folder"},
      {{system, {"/tmp/evil", "x"}}, "leads out of the system's folder"},
      {{system, {"..\\evil", "x"}}, "leads out of the system's folder"},
      {{system, {"a//evil", "x"}}, "has no usable name"},
      {{system, {"link", "", "/etc/passwd"}}, "is no plain file"},
      {{system, {"A", "1"}, {"a", "2"}}, "\"a\" stands twice"},
      {{system, {"a", "1"}, {"a/b", "2"}}, "a file stands where a folder should be"},
      {{system, {"Hall.tsy", "{}"}}, "more than one system"},
      {{{"deep/Room.tsy", system.content}}, "it holds no system"},
      {{{"...tsy", system.content}}, "has no usable name"},
      {{{"Room.tsy", "{}"}}, "Room.tsy: format: is missing"},
      {{system}, "it lacks the compiled program \"Büro.tsp\""},
      {{system, {"Büro.tsp", "trellisar-program 2 0 0\n"}},
       "the compiled program \"Büro.tsp\" is damaged"},
      {many, "more than 1,000 entries"},
      {{system, {"bomb", std::string(129U << 20U, '0')}}, "more than 128 MB"},
  };
  for (const auto& [entries, why] : cases) {
    const std::string refusal = refusalOf(zipOf(entries));
    expectHas(refusal, why);
  }
  expectHas(refusalOf("no zip at all"), "it is damaged or no archive");
}

TEST_F(ArchiveTest, DamagedAnywhereIsRefusedOrHarmless) {
  const std::string whole = trellisar::archiveOf(data());
  EXPECT_EQ(refusalOf(whole), "");
  for (std::size_t at = 0; at < whole.size(); at += 1 + whole.size() / 97) {
    EXPECT_NE(refusalOf(whole.substr(0, at)), "") << "cut at " << at;
  }
  // The directory at the end, in which the sizes and places of the entries stand.
  const std::size_t directory = whole.find("PK\1\2");
  ASSERT_NE(directory, std::string::npos);
  std::string lying = whole;
  lying[directory + 24] = static_cast<char>(lying[directory + 24] + 1);
  EXPECT_NE(refusalOf(lying), "") << "an entry is smaller than the directory says";
  for (std::size_t at = directory; at < whole.size(); at += 3) {
    std::string changed = whole;
    changed[at] = static_cast<char>(changed[at] ^ 0x55);
    static_cast<void>(refusalOf(changed));
  }
}

}  // namespace
}  // namespace tests
