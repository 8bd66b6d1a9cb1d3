#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <set>

#include "addin/modGlobals.h"
#include "forms/ListView.h"
#include "forms/TextBox.h"
#include "host/Numbers.h"
#include "tests/support/Shipped.h"
#include "tests/wizard/Wizard.h"
#include "trellisar/objects/LibraryObjects.h"

namespace {

using forms::Answer;
using forms::Buttons;
using forms::Icon;
using tests::Wizard;

constexpr const char* exitQuestion = "Are you sure you want to exit the Orlena wizard?";

class WizardWindow : public testing::Test, public Wizard {};

void expectSaveQuestion(Wizard& wizard, Answer answer) {
  wizard.desktop.expectMessage("Orlena", "Do you wish to save the changes you made to the system?",
                               Buttons::yesNoCancel, Icon::question, answer);
}

/// A library that knows the filter that was set last, and has no memory left when it is taken away.
struct WatchedLibrary : trellisar::LibraryManager {
  struct Types : host::DeviceTypes {
    void put_DeviceFilter(const std::optional<std::vector<std::int16_t>>& ids) override {
      filter = ids;
      if (!ids) throw std::bad_alloc();
    }
    std::optional<std::vector<std::int16_t>> filter;
  };

  WatchedLibrary() : LibraryManager(tests::shippedLibrary(), "\\pictures") {}
  std::shared_ptr<host::DeviceTypes> get_DeviceTypes() const override { return types; }

  const std::shared_ptr<Types> types = std::make_shared<Types>();
};

/// Saves a wizard's system; the answer is a copy of it under another name.
std::filesystem::path savedCopy(Wizard& wizard, const std::filesystem::path& folder) {
  wizard.clickInWindow("cmdSave");
  std::filesystem::copy(wizard.systemsFolder() / "My Orlena System", folder);
  std::filesystem::rename(folder / "My Orlena System.tsy", folder / "Saved System.tsy");
  return folder / "Saved System.tsy";
}

TEST_F(WizardWindow, StartsWithAllStepsOnTheFirst) {
  EXPECT_EQ(addIn->IAddInContract_HwndAddIn(), 0);
  run([&] {
    EXPECT_EQ(window().caption(), "Orlena");
    EXPECT_GT(addIn->IAddInContract_HwndAddIn(), 0);
    EXPECT_EQ(text("lblVersion"), "v3.06.09");
    EXPECT_TRUE(!inWindow("cmdBack").isEnabled() && inWindow("cmdNext").isEnabled());
    goTo("Finish");
    EXPECT_FALSE(inWindow("cmdNext").isEnabled());
    clickInWindow("cmdHelp");
    EXPECT_EQ(desktop.helpTopics().back(), host::helpFinishTab);
  });
  EXPECT_EQ(addIn->IAddInContract_HwndAddIn(), 0);
  EXPECT_FALSE(addin::IsDocumentSet());
}

TEST_F(WizardWindow, NextAndBackGoToTheFirstFieldOfThePage) {
  run([&] {
    goTo("Display Device");
    chooseDisplay("Bravonne P2200");
    goTo("Start");
    const auto focused = [&] { return window().focus().control()->name(); };
    for (const char* field :
         {"txtSystemName", "cmdChoose", "optVolumeKnob(0)", "optPower(2)", "txtPowerLockoutTime(1)",
          "chkInclude(0)", "listDevices", "chkInclude(0)", "cmdUpload"}) {
      clickInWindow("cmdNext");
      EXPECT_EQ(focused(), field);
    }
    clickInWindow("cmdBack");
    EXPECT_EQ(focused(), "chkInclude(0)");
    goTo("Display Device");
    clickInWindow("cmdBack");
    EXPECT_EQ(control<forms::TextBox>("txtSystemName").selectionLength(), 16) << "typed over";
  });
}

TEST_F(WizardWindow, FinishGoesToTheLastStepFirstAndThenAsks) {
  run([&] {
    clickInWindow("cmdFinish");
    for (const Answer answer : {Answer::no, Answer::yes}) {
      desktop.expectMessage("Orlena", exitQuestion, Buttons::yesNo, Icon::question, answer);
      clickInWindow("cmdFinish");
      EXPECT_EQ(window().isVisible(), answer == Answer::no);
    }
  });
}

TEST_F(WizardWindow, SavesByKeySaysSoAndStaysWhereItIs) {
  run([&] {
    goTo("Name and Location");
    control("txtSystemName").setFocus();
    user.press('S', 2);
    EXPECT_TRUE(inWindow("lblSaved").shownText().starts_with("Saved at "));
    EXPECT_TRUE(control("txtSystemName").hasFocus());
    user.press('N', 2);
    EXPECT_EQ(inWindow("lblSaved").shownText(), "");
    EXPECT_EQ(currentStep(), "Start");
    desktop.expectOpenDialog("Open System", "");
    user.press('O', 2);
  });
}

TEST_F(WizardWindow, AFaultInTheProgramIsMendedOnThePageOfItsDevice) {
  run([&] {
    goTo("Display Device");
    chooseDisplay("Bravonne P2200");
    goTo("Display Options");
    user.click(control("chkInclude(0)"));
    chooseDisplay("Drapewick Mixed 240", "cmdChoose(0)");
    goTo("Orlena Transmitters");
    click("cmdAdd");
    goTo("Room Options");
    click("chkInclude(1)");
    goTo("Finish");
    const auto page = [&](std::int16_t iDeviceID, const std::string& strPreset = {}) {
      return addIn->PageOf({.iDeviceID = iDeviceID, .strPreset = strPreset});
    };
    EXPECT_EQ(page(addIn->get_DisplayDeviceID(), "RGB"), "Display Device");
    EXPECT_EQ(page(addIn->get_DisplayDeviceID(), "System Power On"), "Power Control");
    EXPECT_EQ(page(addIn->get_ScreenDeviceID(), "System Power On"), "Display Options");
    EXPECT_EQ(page(addIn->get_OriginationPointID(1)), "Orlena Transmitters");
    EXPECT_EQ(page(addIn->get_FenletID()), "Room Options");
    EXPECT_EQ(page(0), "");
    addIn->ShowPageOf({.iDeviceID = addIn->get_ScreenDeviceID(), .strPreset = {}});
    EXPECT_EQ(currentStep(), "Finish") << "what is running ends first";
    application.processEvents();
    EXPECT_EQ(currentStep(), "Display Options");
  });
}

TEST_F(WizardWindow, FolderThatIsRefusedKeepsStepAndSystem) {
  tests::writeFile(systemsFolder() / "Taken", "a file where the folder should be");
  run([&] {
    goTo("Name and Location");
    enter("txtSystemName", "Taken");
    const auto expectRefusal = [&] { desktop.expectMessageWith(Icon::exclamation, "Taken"); };
    expectRefusal();
    clickInWindow("cmdNext");
    EXPECT_EQ(currentStep(), "Name and Location");
    expectRefusal();
    clickInWindow("cmdSave");
    expectSaveQuestion(*this, Answer::yes);
    expectRefusal();
    EXPECT_FALSE(user.close(window()));
    enter("txtSystemName", "Free");
    clickInWindow("cmdNext");
    EXPECT_EQ(currentStep(), "Display Device");
    goTo("Name and Location");
    enter("txtSystemName", "Taken");
    expectSaveQuestion(*this, Answer::no);
    EXPECT_TRUE(user.close(window()));
  });
}

/// Each on a saved system with a display and two transmitters, on the page named; what the file
/// holds when the question is answered with Yes.
struct UnsavedChange {
  const char* page;
  std::function<void(Wizard&)> make;
  const char *inFile, *isCurrent;
};

const std::vector<UnsavedChange> unsavedChanges{
    {"Audio Control", [](Wizard& wizard) { wizard.click("optVolumeKnob(1)"); },
     "Volume Knob Control=1d;", "false"},
    {"Audio Control", [](Wizard& wizard) { wizard.click("optMicrophone(1)"); },
     "Mic Mode Control=1d;", "false"},
    {"Power On/Off Lockout", [](Wizard& wizard) { wizard.enter("txtPowerLockoutTime(1)", "77"); },
     "Power On Lockout Time=77;", "false"},
    {"Orlena Transmitters",
     [](Wizard& wizard) {
       wizard.click("cmdRename");
       wizard.user.labelText(wizard.control<forms::ListView>("lvwTransmitters"), "Podium");
     },
     "\"label\": \"Podium\"", "true"},
    {"Orlena Transmitters",
     [](Wizard& wizard) {
       wizard.user.editLabel(wizard.control<forms::ListView>("lvwTransmitters"), 0, "Podium");
     },
     "\"label\": \"Podium\"", "true"},
    {"Room Options", [](Wizard& wizard) { wizard.enter("txtFenletPassword", "lantern"); },
     "Fenlet Password=lantern;", "true"},
};

TEST(WizardsSystem, ClosingAsksForWhateverWouldBeLostAndYesSavesIt) {
  for (const UnsavedChange& change : unsavedChanges) {
    Wizard wizard;
    wizard.run([&] {
      wizard.goTo("Display Device");
      wizard.chooseDisplay("Bravonne P2200");
      wizard.goTo("Orlena Transmitters");
      for (int i = 0; i < 2; ++i) wizard.click("cmdAdd");
      wizard.goTo("Room Options");
      wizard.click("chkInclude(1)");
      wizard.goTo(change.page);
      wizard.saveAndCompile();
      change.make(wizard);
      expectSaveQuestion(wizard, Answer::cancel);
      EXPECT_FALSE(wizard.user.close(wizard.window()));
      expectSaveQuestion(wizard, Answer::yes);
      EXPECT_TRUE(wizard.user.close(wizard.window()));
    });
    const std::string saved = tests::fileText(wizard.systemFile("My Orlena System"));
    EXPECT_NE(saved.find(change.inFile), std::string::npos) << change.inFile;
    const std::string current = std::string("\"program_is_current\": ") + change.isCurrent;
    EXPECT_NE(saved.find(current), std::string::npos) << change.inFile;
  }
}

TEST_F(WizardWindow, FoldersOfNamesThatWereTriedGoWithTheWizard) {
  const auto inside = [&](const char* name) { return systemsFolder() / name; };
  std::filesystem::create_directory(inside("Before"));
  run([&] {
    for (const char* name : {"Before", "Tried", "Filled", "Saved"}) {
      goTo("Name and Location");
      enter("txtSystemName", name);
      clickInWindow("cmdNext");
      EXPECT_TRUE(std::filesystem::exists(inside(name)));
    }
    tests::writeFile(inside("Filled") / "notes.txt", "by hand");
    clickInWindow("cmdSave");
  });
  std::set<std::string> left;
  for (const auto& entry : std::filesystem::directory_iterator(systemsFolder())) {
    left.insert(entry.path().filename());
  }
  EXPECT_EQ(left, (std::set<std::string>{"Before", "Filled", "Saved"}));
}

TEST_F(WizardWindow, NewSystemTakesTheNextFreeName) {
  run([&] {
    saveAndCompile();
    clickInWindow("cmdSave");
    EXPECT_TRUE(document().get_SystemInfo()->get_ProgramIsCurrent()) << "kept";
    std::filesystem::create_directory(systemsFolder() / "My Orlena System 2");
    clickInWindow("cmdNew");
    EXPECT_EQ(currentStep(), "Start");
    goTo("Name and Location");
    EXPECT_EQ(text("txtSystemName"), "My Orlena System 3");
  });
}

TEST_F(WizardWindow, OpeningShowsTheSystemAndCancellingKeepsTheOldOne) {
  const tests::TemporaryFolder folder;
  run([&] {
    const auto saved = savedCopy(*this, folder.path());
    goTo("Name and Location");
    enter("txtSystemName", "Not saved");
    expectSaveQuestion(*this, Answer::no);
    desktop.expectOpenDialog("Open System", "");
    clickInWindow("cmdFolder");
    EXPECT_EQ(text("txtSystemName"), "Not saved");
    EXPECT_TRUE(document().get_Modified());

    expectSaveQuestion(*this, Answer::no);
    desktop.expectOpenDialog("Open System", forms::fromMachinePath(saved));
    clickInWindow("cmdFolder");
    EXPECT_EQ(currentStep(), "Start");
    goTo("Name and Location");
    EXPECT_EQ(text("txtSystemName"), "Saved System");
  });
}

TEST(WizardsSystem, ForeignSystemGivesItsMessageAndANewSystem) {
  const tests::TemporaryFolder folder;
  std::filesystem::path file;
  {
    Wizard wizard;
    wizard.run([&] { file = savedCopy(wizard, folder.path()); });
  }
  const std::string saved = tests::fileText(file);
  const std::string own = "\"application\": \"Orlena\"";
  for (const std::string word : {"Corvane", "", "ORLENA"}) {
    std::string text = saved;
    text.replace(text.find(own), own.size(), "\"application\": \"" + word + "\"");
    tests::writeFile(file, text);
    Wizard wizard;
    wizard.givenOpenSystem(file);
    const auto library = std::make_shared<WatchedLibrary>();
    wizard.addIn->IAddInContract_Load(wizard.host->document(), library,
                                      wizard.host->communication(), wizard.host->smallPictures(),
                                      wizard.host->largePictures(), wizard.host->mainWindow());
    wizard.application.setHelpFile("Host.chm");
    const bool isForeign = word != "ORLENA";
    if (isForeign) {
      wizard.desktop.expectMessage("Orlena",
                                   "This file was last saved by the following application: \r\n" +
                                       word +
                                       "\r\n\r\nTherefore it can not be opened in the "
                                       "Orlena.\r\n\r\nClick OK to continue with "
                                       "a new Orlena System.",
                                   Buttons::ok, Icon::critical);
    }
    wizard.run([&] {
      EXPECT_EQ(wizard.document().get_Name(), isForeign ? "My Orlena System" : "Saved System");
      EXPECT_EQ(library->types->filter->size(), 13U);
      const std::string left = "ResetApplicationStatus " + forms::fromMachinePath(folder.path());
      const auto& calls = wizard.host->journal().calls();
      EXPECT_EQ(std::any_of(calls.begin(), calls.end(),
                            [&](const auto& call) { return call.starts_with(left); }),
                isForeign);
    });
    EXPECT_EQ(wizard.application.helpFile(), "Host.chm");
    wizard.addIn.reset();
    EXPECT_FALSE(library->types->filter) << word;
    EXPECT_EQ(tests::fileText(file), text);
  }
}

TEST_F(WizardWindow, ProgramThatFailsWithoutATextIsToldByItsPart) {
  run([&] {
    const std::int16_t input = device("Digital Input 3")->get_ID();
    ASSERT_TRUE(document().RemoveDevice(input, host::removalOfDevice));
    goTo("Audio Control");
    click("chkMuteOnDigInp3");
    desktop.expectMessage("Orlena",
                          "Failed to build the system \r\n\r\nThe program could not be written for "
                          "the audio.\r\n\r\nPlease contact Velmondo for assistance.",
                          Buttons::ok, Icon::critical);
    clickInWindow("cmdSave");
  });
}

TEST_F(WizardWindow, MissingTemplateIsToldAndClosesTheWizard) {
  const tests::TemporaryFolder empty;
  forms::Application elsewhere(desktop, forms::fromMachinePath(empty.path()));
  const auto fresh = std::make_shared<addin::IAddIn>();
  fresh->IAddInContract_Load(nullptr, host->libraryManager(), host->communication(),
                             host->smallPictures(), host->largePictures(), host->mainWindow());
  const std::string path =
      empty.path().string() + "/TemplateSystems/Orlena TEMPLATE/Orlena TEMPLATE.tsy";
  desktop.expectMessage("Orlena", "Failed to find " + path + ": Critical Error", Buttons::ok,
                        Icon::critical);
  desktop.expectMessage("Orlena",
                        "Failed to start Orlena\r\n\r\nContact Velmondo customer support.",
                        Buttons::ok, Icon::critical);
  fresh->IAddInContract_Run(host->mainWindow());
  EXPECT_EQ(fresh->IAddInContract_HwndAddIn(), 0);
}

}  // namespace
