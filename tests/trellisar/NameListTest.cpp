#include "base/Digest.h"
#include "tests/trellisar/World.h"
#include "trellisar/library/DeviceLibrary.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using trellisar::DeviceLibrary;
using trellisar::NameListFor;
using Form = trellisar::Definition::Form;

constexpr const char* indexStart =
    R"({"format": "trellisar-device-library", "version": 1, "files": [)";

std::string aFile(const std::string& name, int entry, const std::string& description = "") {
  return R"({"format": "trellisar-devices", "maker": "A", "devices": [{"name": ")" + name +
         R"(", "entry": )" + std::to_string(entry) +
         R"(, "model_id": 0, "model": "[{\"}", "type": 2, "category": "C", "kind": 1, "slot": 15,
            "description": ")" +
         description + R"(", "connection": "serial"}], "version": 1})";
}

/// All that a library says of its devices, in the order of their names.
std::string told(const DeviceLibrary& library) {
  auto devices = library.listed(Form::device);
  std::ranges::sort(devices, {}, &trellisar::ListedDefinition::rank);
  std::string text;
  for (const trellisar::ListedDefinition* device : devices) {
    const auto found = library.findDevice(device->name);
    text += found->name + " " + std::to_string(found->controlEntry) + found->description + ", " +
            library.definition(*device)->name + "; ";
  }
  return text;
}

/// A library of the devices "One" and "Two", in a file each, with its list of names.
class NameListTest : public testing::Test {
 protected:
  NameListTest() {
    folder.write("index.json", indexStart + std::string(R"("a.json", "b.json"]})"));
    folder.write("a.json", aFile("Two", 2));
    folder.write("b.json", aFile("One", 1));
    writeList(NameListFor::thisPlace);
  }
  void writeList(NameListFor place) {
    folder.write("names.tsv", nameListText(folder.path(), place));
  }
  std::string list() const { return fileText(folder / "names.tsv"); }

  TemporaryFolder folder;
};

TEST_F(NameListTest, ListSaysWhatTheFilesSay) {
  TemporaryFolder copy;
  fs::copy(dataFolder() / "library", copy.path());
  fs::remove(copy / "names.tsv");
  const DeviceLibrary read(copy.path());
  for (const auto place : {NameListFor::thisPlace, NameListFor::copies}) {
    copy.write("names.tsv", nameListText(copy.path(), place));
    const DeviceLibrary listed(copy.path());
    for (const Form form : {Form::device, Form::module, Form::interface, Form::receiver}) {
      const auto expected = read.listed(form);
      const auto found = listed.listed(form);
      ASSERT_EQ(found.size(), expected.size());
      for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_EQ(*found[i], *expected[i]) << expected[i]->name;
        EXPECT_EQ(*listed.definition(*found[i]), *read.definition(*expected[i]));
      }
    }
  }
}

TEST_F(NameListTest, ListIsUsedWhileItIsThatOfTheFiles) {
  for (const auto place : {NameListFor::thisPlace, NameListFor::copies}) {
    writeList(place);
    std::string lines = list().substr(list().find('\n') + 1);
    lines.replace(lines.find("Two"), 3, "Ten");
    folder.write("names.tsv", "trellisar-device-names\t1\t" + base::checksum(lines) + "\n" + lines);
    const DeviceLibrary library(folder.path());
    ASSERT_NE(library.findDevice("Ten"), nullptr);
    EXPECT_EQ(library.findDevice("Ten")->controlEntry, 2);
    EXPECT_EQ(library.findDevice("Two"), nullptr);
  }
}

TEST_F(NameListTest, ListThatIsNotOfTheFilesIsPassedOver) {
  const std::string foreign = R"(trellisar-device-names	2	)";
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"missing", [&] { fs::remove(folder / "names.tsv"); }},
      {"cut off", [&] { folder.write("names.tsv", list().substr(0, list().size() - 9)); }},
      {"damaged",
       [&] {
         std::string text = list();
         text[text.find("Two")] = 'D';
         folder.write("names.tsv", text);
       }},
      {"of another version",
       [&] { folder.write("names.tsv", foreign + list().substr(foreign.size())); }},
      {"of another library",
       [&] {
         TemporaryFolder other;
         fs::copy(folder.path(), other.path());
         other.write("a.json", aFile("Six", 2));
         folder.write("names.tsv", nameListText(other.path(), NameListFor::copies));
       }},
      {"stale in size", [&] { folder.write("a.json", aFile("Three", 3)); }},
      {"stale, with the old size and time",
       [&] {
         const auto time = fs::last_write_time(folder / "a.json");
         folder.write("a.json", aFile("Six", 6));
         fs::last_write_time(folder / "a.json", time);
       }},
      {"without a file that came, with the same name",
       [&] {
         folder.write("index.json", indexStart + std::string(R"("c.json", "a.json", "b.json"]})"));
         folder.write("c.json", aFile("Two", 9));
       }},
      {"with a file that went",
       [&] { folder.write("index.json", indexStart + std::string(R"("b.json"]})")); }},
      {"with a text that fits in no line",
       [&] {
         folder.write("a.json", aFile(R"(Two\tb)", 2));
         writeList(NameListFor::thisPlace);
       }},
  };
  for (const auto& [what, bend] : cases) {
    SCOPED_TRACE(what);
    folder.write("index.json", indexStart + std::string(R"("a.json", "b.json"]})"));
    folder.write("a.json", aFile("Two", 2));
    writeList(NameListFor::thisPlace);
    bend();
    const std::string found = told(DeviceLibrary(folder.path()));
    fs::remove(folder / "names.tsv");
    EXPECT_EQ(found, told(DeviceLibrary(folder.path())));
  }
}

TEST_F(NameListTest, FileThatChangesUnderAnOpenLibraryIsReadAnew) {
  const DeviceLibrary library(folder.path());
  const auto devices = library.listed(Form::device);
  folder.write("a.json", aFile("Two", 2, "New"));
  folder.write("b.json", aFile("Six", 1));
  EXPECT_EQ(library.definition(*devices[0])->description, "New");
  const std::string error = raisedBy([&] { library.definition(*devices[1]); }).description();
  EXPECT_NE(error.find("b.json: \"One\" is not there any more"), std::string::npos) << error;
}

TEST(ShippedLibrary, HasTheListOfItsNames) {
  EXPECT_EQ(fileText(dataFolder() / "library/names.tsv"),
            nameListText(dataFolder() / "library", NameListFor::copies))
      << "orlena library --for-copies data/library";
}

}  // namespace
}  // namespace tests
