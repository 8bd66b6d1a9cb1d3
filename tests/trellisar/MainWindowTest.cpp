#include <cstdlib>

#include "forms/DropDownList.h"
#include "forms/ListView.h"
#include "forms/Paths.h"
#include "forms/TextBox.h"
#include "tests/trellisar/World.h"
#include "trellisar/compile/CompiledProgram.h"
#include "trellisar/dialogs/DeviceDialog.h"
#include "trellisar/document/SystemNames.h"
#include "trellisar/library/DeviceLibrary.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using forms::Buttons;
using forms::Icon;

class MainWindowTest : public HostTest {
 protected:
  MainWindowTest() { openTemplate(); }

  bool save(const std::string& name) { return window().FileSaveAs(folder.inside(name), "Orlena"); }
  void expectCritical(const std::string& text) {
    desktop.expectMessage("Trellisar", text, Buttons::ok, Icon::critical);
  }
  void expectRefusal(const std::string& text) {
    desktop.expectMessage("Trellisar", text, Buttons::ok, Icon::exclamation);
  }
  /// The question before a file is replaced, of which Yes, the default, keeps it.
  void expectKeepQuestion(const std::string& text, std::optional<forms::Answer> answer = {}) {
    desktop.expectMessage("Trellisar", text, Buttons::yesNo, Icon::question, answer);
  }
  void build() {
    bool isCancelled = false;
    ASSERT_TRUE(window().ShowCreateProgramDialog(isCancelled));
  }
  std::string machine(const std::string& name) { return (folder.path() / name).string(); }
};

TEST_F(MainWindowTest, SaveMakesTheFoldersAndSetsTheWord) {
  data().isModified = true;
  EXPECT_TRUE(save("a\\b\\Room"));
  EXPECT_TRUE(fs::exists(folder / "a" / "b" / "Room.tsy"));
  EXPECT_FALSE(data().isModified);
  EXPECT_EQ(data().application, "Orlena");
  EXPECT_TRUE(save("a\\b\\Room.tsy")) << "its own file is replaced without a question";
  bool saved = true;
  host.document()->Save(folder.inside("none\\Room"), saved);
  EXPECT_FALSE(saved) << "the plain one makes no folder";
  expectHas(host.document()->GetLastError(), "its folder does not exist");
}

TEST_F(MainWindowTest, SaveThatCantBeLeavesEverythingAsItWas) {
  data().isModified = true;
  folder.write("file", "");
  expectCritical("The system could not be saved.\r\n\r\nCan't make the folder \"" +
                 machine("file/deep") +
                 "\": a file stands where a folder should be. Choose another folder.");
  EXPECT_FALSE(save("file\\deep\\Room"));
  fs::create_directories(folder / "Room.tsy");
  data().ownFile = folder / "Room.tsy";
  expectCritical("The system could not be saved.\r\n\r\nCan't write \"" + machine("Room.tsy") +
                 "\": a folder stands where the file should be. Choose another name.");
  EXPECT_FALSE(save("Room"));
  EXPECT_EQ(data().application, "Trellisar");
  EXPECT_TRUE(data().isModified);
}

TEST_F(MainWindowTest, NameThatNoFileCanHaveIsRefusedWhereverItComesFrom) {
  for (const std::string name : {"", ".", "..", "a\tb", "a/b", "Room.tsy", "\x7F", "a\001b"}) {
    data().name = name;
    expectRefusal(name.empty() ? "The system has no name, so its folder can't be made. Give the "
                                 "system a name."
                               : trellisar::fileNameProblem(name));
    EXPECT_FALSE(window().CreateProjectFolder(folder.inside(name) + "\\"));
    expectCritical("The system could not be saved.\r\n\r\n" + trellisar::fileNameProblem(name));
    EXPECT_FALSE(save("Room"));
    bool saved = true;
    host.document()->Save(folder.inside("Room"), saved);
    EXPECT_FALSE(saved);
  }
  EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(MainWindowTest, OpenReplacesTheSystemOnlyWhenItSucceeded) {
  ASSERT_TRUE(save("Room"));
  const auto first = host.document();
  folder.write("Bad.tsy", "{}");
  expectCritical("The system could not be opened.\r\n\r\nBad.tsy: format: is missing");
  EXPECT_EQ(window().FileOpen(folder.inside("Bad.tsy"), true), nullptr);
  EXPECT_EQ(window().FileOpen(folder.inside("None.tsy"), false), nullptr);
  bool cancelled = false;
  desktop.expectOpenDialog("Open System", "");
  EXPECT_EQ(window().FileOpen(cancelled), nullptr);
  EXPECT_TRUE(cancelled);
  EXPECT_EQ(host.document(), first);
  EXPECT_NO_THROW(static_cast<void>(first->get_Name()));

  desktop.expectOpenDialog("Open System", folder.inside("Room.tsy"));
  EXPECT_NE(window().FileOpen(cancelled), nullptr);
  EXPECT_FALSE(cancelled);
  EXPECT_EQ(host.document()->get_Path(), folder.inside(""));
  EXPECT_THROW(static_cast<void>(first->get_Name()), host::Error);
  EXPECT_FALSE(host.document()->get_Modified());
}

TEST_F(MainWindowTest, ForeignFileIsReplacedOnlyAsTheHostWasTold) {
  ASSERT_TRUE(save("Room"));
  const std::string first = base::readFile(folder / "Room.tsy");
  openTemplate();
  data().name = "Other";
  const std::string question =
      "Another system is in the file \"" + machine("Room.tsy") +
      "\".\r\n\r\nDo you want to keep that system? Yes keeps it and does not save; No replaces it.";
  expectKeepQuestion(question);
  EXPECT_FALSE(save("Room")) << "the default answer does no harm";
  EXPECT_EQ(base::readFile(folder / "Room.tsy"), first);

  expectKeepQuestion(question, forms::Answer::no);
  EXPECT_TRUE(save("Room"));
  EXPECT_NE(base::readFile(folder / "Room.tsy"), first);
}

TEST_F(MainWindowTest, ReplacedSystemLeavesNoProgramAndNoPanels) {
  const auto panel = [&] { return fs::exists(folder / "Room/Fenlet.tpj"); };
  auto fenlet = window().AddInterface(host::modelFenlet, data().controlSystem, "");
  saveAsRoom();
  ASSERT_TRUE(window().CreateTouchpanels(fenlet));
  build();
  saveAsRoom();
  EXPECT_TRUE(panel() && fs::exists(folder / "Room/Room.tsp")) << "they are its own";

  openTemplate();
  trellisar::Host other({.dataFolder = dataFolder(),
                         .library = shippedLibrary(),
                         .replacing = trellisar::Replacing::always});
  const auto templateFile = dataFolder() / "TemplateSystems/Orlena TEMPLATE/Orlena TEMPLATE.tsy";
  ASSERT_TRUE(other.mainWindow()->FileOpen(forms::fromMachinePath(templateFile), false));
  EXPECT_TRUE(other.mainWindow()->FileSaveAs(folder.inside("Room\\Room"), "Orlena"));
  EXPECT_FALSE(panel() || fs::exists(folder / "Room/Room.tsp"));
}

TEST_F(MainWindowTest, FileThatAnotherProgramChangedIsNotReplacedUnasked) {
  saveAsRoom();
  const fs::path file = folder / "Room/Room.tsy";
  const std::string theirs = base::readFile(file) + "\n";
  writeFile(file, theirs);
  const std::string question =
      "Another program has changed the file \"" + file.string() +
      "\" since the system was opened.\r\n\r\nDo you want to keep that file? Yes keeps it and does "
      "not save; No replaces it.";
  expectKeepQuestion(question);
  EXPECT_FALSE(save("Room\\Room"));
  bool saved = true;
  host.document()->Save(folder.inside("Room\\Room"), saved);
  EXPECT_FALSE(saved);
  expectHas(host.document()->GetLastError(), "was changed by another program");
  EXPECT_THROW(trellisar::storeCompiledProgram(data(), trellisar::compileProgram(data())),
               host::Error);
  EXPECT_EQ(base::readFile(file), theirs);
  EXPECT_FALSE(fs::exists(folder / "Room/Room.tsp"));

  expectKeepQuestion(question, forms::Answer::no);
  EXPECT_TRUE(save("Room\\Room"));
  EXPECT_NE(base::readFile(file), theirs);
  EXPECT_TRUE(save("Room\\Room")) << "and it is the system's own again";

  fs::permissions(file, fs::perms::owner_read);
  expectCritical("The system could not be saved.\r\n\r\nCan't write \"" + file.string() +
                 "\": it is protected against writing. Take the protection away or choose another "
                 "name.");
  EXPECT_FALSE(save("Room\\Room"));
}

TEST_F(MainWindowTest, ProgramStaysWithTheSystemItWasCompiledFor) {
  saveAsRoom();
  build();
  fs::create_directory(folder / "Hall");
  folder.write("Hall/Room.tsp", "another system's");
  data().name = "Hall";
  data().folder = folder.inside("Hall\\");
  bool saved = false;
  host.document()->Save(folder.inside("Hall\\Hall"), saved);
  EXPECT_TRUE(saved);
  EXPECT_EQ(host.document()->get_SystemInfo()->get_CompiledProgramFile(), "");
  EXPECT_FALSE(host.document()->get_SystemInfo()->get_ProgramIsCurrent());
}

TEST_F(MainWindowTest, WhoWishesItSeesWhatASaveChangesOfABuiltProgram) {
  const fs::path file = folder / "Room" / "Room.tsy";
  saveAsRoom();
  const auto saveChanged = [&] {
    press(*preset("System Lock"), data().controlSystem, "Lock");
    return save("Room\\Room");
  };
  build();
  EXPECT_TRUE(saveChanged()) << "nobody has asked for it";
  host.preferences().setShowsChanges(true);
  EXPECT_TRUE(saveChanged()) << "what is replaced is not built";
  build();
  EXPECT_TRUE(save("Room\\Room")) << "nothing changes";

  const std::string built = fileText(file);
  desktop.whenShown("ComparisonDialog", [&](forms::Form&) { user.press(forms::keys::escape); });
  EXPECT_FALSE(saveChanged());
  EXPECT_EQ(fileText(file), built);
  desktop.whenShown("ComparisonDialog", [&](forms::Form& form) {
    user.click(form.control("cmdCopy"));
    user.press(forms::keys::tab);
    user.press(forms::keys::enter);
  });
  EXPECT_TRUE(saveChanged());
  EXPECT_NE(fileText(file), built);
  EXPECT_EQ(desktop.copiedText(),
            "Presets\n"
            "    System Lock: after Receiver's second Lock, Receiver's third Lock is new\n"
            "    System Lock: after Receiver's third Lock, Receiver's fourth Lock is new\n");
}

TEST_F(MainWindowTest, ProjectFolderHoldsOneSystem) {
  const std::string place = folder.inside("New");
  EXPECT_TRUE(window().CreateProjectFolder(place + "\\"));
  EXPECT_TRUE(fs::is_directory(folder / "New"));
  EXPECT_TRUE(window().CreateProjectFolder(place));
  ASSERT_TRUE(save("New\\New"));
  EXPECT_TRUE(window().CreateProjectFolder(place)) << "the system's own folder";
  openTemplate();
  expectRefusal("The folder \"" + machine("New") +
                "\" holds another system, \"New.tsy\". Choose another name or another place for "
                "this system.");
  EXPECT_FALSE(window().CreateProjectFolder(place));
}

TEST_F(MainWindowTest, TimeTextsAreReadToHundredths) {
  using Case = std::pair<const char*, std::int32_t>;
  for (const auto& [text, hundredths] :
       {Case{"0.1s", 10}, Case{" 120s", 12000}, Case{"3", 300}, Case{"2.675s", 268},
        Case{"0.005s", 0}, Case{"0.015s", 2}, Case{"0.0051s", 1}, Case{".5s", 50},
        Case{"-1s", -100}, Case{"s", 0}, Case{"abc", 0}, Case{"1e3s", 0}, Case{"1.2.3s", 0},
        Case{"655.36s", 65536}, Case{"99999999999s", INT32_MAX}}) {
    EXPECT_EQ(window().GetHSeconds(text, 0), hundredths) << "\"" << text << "\"";
  }
}

TEST_F(MainWindowTest, AddDeviceTellsWhatItCantAdd) {
  const auto refusal = [&](auto&& change) {
    host::AddDeviceArguments arguments;
    arguments.strName = "Thing";
    arguments.strParentName = "Receiver";
    arguments.iSlot = host::slotReceiverPorts;
    arguments.iControlEntryID = host::entryPowerRelay;
    change(arguments);
    EXPECT_FALSE(window().AddDevice(arguments));
    return arguments.strError;
  };
  EXPECT_EQ(refusal([](auto& a) { a.iControlEntryID = 9; }),
            "\"Thing\" can't be added: the device library has no control entry 9.");
  EXPECT_EQ(refusal([](auto& a) { a.iModelID = 7; }),
            "\"Thing\" can't be added: the device library knows it as model 2528 and not 7.");
  EXPECT_EQ(refusal([](auto& a) { a.iSlot = 3; }),
            "\"Thing\" can't be added: it does not fit into slot 3.");
  EXPECT_EQ(refusal([](auto& a) { a.strParentName = "Nobody"; }),
            "\"Thing\" can't be added: there is no device \"Nobody\".");
  EXPECT_EQ(refusal([](auto& a) { a.strName = "Digital Input 1"; }),
            "There is a device named \"Digital Input 1\" in the system already.");
}

TEST_F(MainWindowTest, DeviceDialogFindsWordsInAnyOrderAndSorts) {
  using Rows = std::vector<std::string>;
  const auto library = host.library();
  auto offered = library->listed(trellisar::Definition::Form::device);
  std::erase_if(offered, [](const trellisar::ListedDefinition* device) {
    const int entry = device->controlEntry;
    return entry != 1101 && entry != 2202 && entry != 2001;
  });
  trellisar::DeviceDialog dialog("Select", *library, offered, library->findEntry(2001));
  const auto shown = [&] {
    Rows rows;
    for (std::int32_t row = 0; row < dialog.lvwDevices.rowCount(); ++row) {
      rows.push_back(dialog.lvwDevices.text(row, 0));
    }
    return rows;
  };
  desktop.whenShown("DeviceDialog", [&](forms::Form&) {
    EXPECT_EQ(shown(), (Rows{"Bravonne P2200", "Drapewick Mixed 240", "Fallowmere Roll 180"}));
    EXPECT_EQ(dialog.chosen(), library->findEntry(2001));
    EXPECT_EQ(dialog.lvwDevices.shownText().substr(0, 56),
              "Bravonne P2200 | Bravonne | Serial | On, Off, second Off");
    user.clickHeading(dialog.lvwDevices, 2);
    EXPECT_EQ(shown().back(), "Bravonne P2200") << "two relays come before";
    EXPECT_EQ(dialog.lvwDevices.sortedColumn(), 2);
    EXPECT_EQ(dialog.chosen(), library->findEntry(2001));
    user.replaceText(dialog.txtFind, " 240  DRAPE ");
    EXPECT_EQ(shown(), (Rows{"Drapewick Mixed 240"}));
    EXPECT_EQ(dialog.chosen(), library->findEntry(2202)) << "Enter takes what was found";
    user.replaceText(dialog.txtFind, "no such");
    EXPECT_FALSE(dialog.cmdOK.isEnabled());
    user.replaceText(dialog.txtFind, "");
    EXPECT_EQ(dialog.chosen(), library->findEntry(2001));
    user.press(forms::keys::escape);
  });
  EXPECT_FALSE(dialog.run());
}

TEST_F(MainWindowTest, DevicePropertiesChangeNothingBeforeOk) {
  const auto timeoutAfter = [&](const std::string& value, const char* button) {
    const std::int16_t id =
        data().findByName(trellisar::DeviceData::Kind::device, "Motion Detector", "Receiver")->id;
    desktop.whenShown("DeviceProperties", [&, value](forms::Form& form) {
      user.replaceText(in<forms::TextBox>(form, "txtValue"), value);
      user.click(form.control(button));
      if (form.isVisible()) user.click(form.control("cmdCancel"));
    });
    window().ShowControlledDeviceProperties(id, {host::progIDPageProperties});
    return *data().find(id)->findProperty("Timeout");
  };
  add("Motion Detector", host::entryMotionDetector);
  EXPECT_EQ(timeoutAfter("60", "cmdCancel"), "300");
  EXPECT_EQ(timeoutAfter("60", "cmdOK"), "60");
  expectRefusal("\"soon\" is no value for \"Timeout\". A whole number from 0 to 32767.");
  EXPECT_EQ(timeoutAfter("soon", "cmdOK"), "60");

  const std::int16_t display = addDisplay();
  desktop.whenShown("DeviceProperties", [&](forms::Form& form) {
    auto& list = in<forms::DropDownList>(form, "cboValue");
    EXPECT_EQ(list.text(list.selected()), "9600");
    EXPECT_FALSE(form.control("txtValue").isVisible()) << "a few values are chosen from";
    user.select(list, list.find("38400"));
    user.click(form.control("cmdOK"));
  });
  window().ShowControlledDeviceProperties(display, {host::progIDPageProperties});
  EXPECT_EQ(*data().find(display)->findProperty("Baud Rate"), "38400");
}

TEST_F(MainWindowTest, PreferencesGiveTheDefaultFolderBelowTheEnvironment) {
  ::unsetenv("TRELLISAR_SYSTEMS");
  const std::string place = folder.inside("Mine");
  desktop.whenShown("Preferences", [&](forms::Form& form) {
    user.replaceText(in<forms::TextBox>(form, "txtFolder"), "relative");
    expectRefusal(
        "\"relative\" is no whole path of a folder. Choose the folder with Browse, or leave the "
        "box empty for the usual one.");
    user.click(form.control("cmdOK"));
    desktop.expectFolderDialog("Save new systems in this folder:", place);
    user.click(form.control("cmdBrowse"));
    EXPECT_EQ(form.control("txtFolder").shownText(), forms::toMachinePath(place).string());
    user.click(form.control("cmdOK"));
  });
  window().ShowPreferencesDialog();
  EXPECT_EQ(window().GetDefaultSystemsFolder(), place + "\\");
  ::setenv("TRELLISAR_SYSTEMS", folder.path().c_str(), 1);
  EXPECT_EQ(window().GetDefaultSystemsFolder(), folder.inside(""));
  ::unsetenv("TRELLISAR_SYSTEMS");
}

}  // namespace
}  // namespace tests
