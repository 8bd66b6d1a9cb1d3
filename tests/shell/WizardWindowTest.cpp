#include <gtest/gtest.h>

#include <fstream>

#include "addin/modGlobals.h"
#include "forms/CommandButton.h"
#include "forms/Paths.h"
#include "forms/TextBox.h"
#include "tests/wizard/Wizard.h"

namespace {

using forms::Answer;
using forms::Buttons;
using forms::Icon;
using tests::Wizard;

constexpr const char* saveQuestion = "Do you wish to save the changes you made to the system?";
constexpr const char* exitQuestion = "Are you sure you want to exit the Orlena wizard?";

void expectSaveQuestion(Wizard& wizard, Answer answer) {
  wizard.desktop.expectMessage("Orlena", saveQuestion, Buttons::yesNoCancel, Icon::question,
                               answer);
}

void replaceInFile(const std::filesystem::path& file, const std::string& what,
                   const std::string& by) {
  std::string text = tests::fileText(file);
  const auto at = text.find(what);
  ASSERT_NE(at, std::string::npos) << what;
  text.replace(at, what.size(), by);
  std::ofstream(file, std::ios::binary) << text;
}

/// A saved system of the wizard's.
std::filesystem::path givenSavedSystem(const std::filesystem::path& folder) {
  Wizard wizard;
  wizard.run([&] {
    wizard.clickInWindow("cmdSave");
    std::filesystem::copy(wizard.systemsFolder() / "My Orlena System", folder / "Saved System");
  });
  std::filesystem::rename(folder / "Saved System" / "My Orlena System.tsy",
                          folder / "Saved System" / "Saved System.tsy");
  return folder / "Saved System" / "Saved System.tsy";
}

TEST(WizardWindow, StartsWithAllStepsOnTheFirst) {
  Wizard wizard;
  EXPECT_EQ(wizard.addIn->IAddInContract_HwndAddIn(), 0);
  wizard.run([&] {
    EXPECT_EQ(wizard.window().caption(), "Orlena");
    EXPECT_GT(wizard.addIn->IAddInContract_HwndAddIn(), 0);
    EXPECT_EQ(wizard.currentStep(), "Start");
    EXPECT_EQ(wizard.addIn->GetVersion(), "3.06.09");
    EXPECT_EQ(wizard.text("lblVersion"), "v3.06.09");
    EXPECT_FALSE(wizard.inWindow("cmdBack").isEnabled());
    EXPECT_TRUE(wizard.inWindow("cmdNext").isEnabled());
    for (const char* step : {"Name and Location", "Audio Control", "Room Options", "Finish"}) {
      wizard.goTo(step);
      EXPECT_EQ(wizard.currentStep(), step);
    }
    EXPECT_FALSE(wizard.inWindow("cmdNext").isEnabled());
    EXPECT_EQ(wizard.window().helpContext(), host::helpFinishTab);
    wizard.clickInWindow("cmdHelp");
    EXPECT_EQ(wizard.desktop.helpCalls().back().topic, host::helpFinishTab);
  });
  EXPECT_EQ(wizard.addIn->IAddInContract_HwndAddIn(), 0);
  EXPECT_FALSE(addin::IsDocumentSet());
}

TEST(WizardWindow, FinishGoesToTheLastStepFirstAndThenAsks) {
  Wizard wizard;
  wizard.run([&] {
    wizard.clickInWindow("cmdFinish");
    EXPECT_EQ(wizard.currentStep(), "Finish");
    wizard.desktop.expectMessage("Orlena", exitQuestion, Buttons::yesNo, Icon::question,
                                 Answer::no);
    wizard.clickInWindow("cmdFinish");
    EXPECT_TRUE(wizard.window().isVisible());
    wizard.desktop.expectMessage("Orlena", exitQuestion, Buttons::yesNo, Icon::question,
                                 Answer::yes);
    wizard.clickInWindow("cmdFinish");
    EXPECT_FALSE(wizard.window().isVisible());
  });
}

TEST(WizardWindow, FolderThatIsRefusedKeepsStepAndSystem) {
  Wizard wizard;
  std::ofstream(wizard.systemsFolder() / "Taken") << "a file where the folder should be";
  wizard.run([&] {
    wizard.goTo("Name and Location");
    wizard.enter("txtSystemName", "Taken");
    const auto expectRefusal = [&] {
      wizard.desktop.expectMessageWith(Icon::exclamation, "Taken");
    };
    expectRefusal();
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(wizard.currentStep(), "Name and Location");
    expectRefusal();
    wizard.clickInWindow("cmdSave");
    expectRefusal();
    EXPECT_FALSE(wizard.user.close(wizard.window()));
    EXPECT_TRUE(wizard.window().isVisible());
    wizard.enter("txtSystemName", "Free");
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(wizard.currentStep(), "Display Device");
  });
}

TEST(WizardWindow, ClosingAModifiedSystemAsks) {
  for (const Answer answer : {Answer::yes, Answer::no, Answer::cancel}) {
    Wizard wizard;
    wizard.run([&] {
      wizard.goTo("Name and Location");
      wizard.enter("txtSystemName", "Room 4");
      expectSaveQuestion(wizard, answer);
      wizard.user.close(wizard.window());
      EXPECT_EQ(wizard.window().isVisible(), answer == Answer::cancel);
      EXPECT_EQ(std::filesystem::exists(wizard.systemFile("Room 4")), answer == Answer::yes);
      if (answer == Answer::cancel) {
        EXPECT_EQ(wizard.text("txtSystemName"), "Room 4");
      }
    });
  }
}

TEST(WizardWindow, NewSystemTakesTheNextFreeName) {
  Wizard wizard;
  wizard.run([&] {
    wizard.goTo("Name and Location");
    EXPECT_EQ(wizard.text("txtSystemName"), "My Orlena System");
    wizard.clickInWindow("cmdSave");
    std::filesystem::create_directory(wizard.systemsFolder() / "My Orlena System 2");
    wizard.clickInWindow("cmdNew");
    EXPECT_EQ(wizard.currentStep(), "Start");
    wizard.goTo("Name and Location");
    EXPECT_EQ(wizard.text("txtSystemName"), "My Orlena System 3");
  });
}

TEST(WizardWindow, OpeningShowsTheSystemAndCancellingKeepsTheOldOne) {
  const tests::TemporaryFolder folder;
  const auto saved = givenSavedSystem(folder.path());
  Wizard wizard;
  wizard.run([&] {
    wizard.goTo("Name and Location");
    wizard.desktop.expectOpenDialog("Open System", "");
    wizard.clickInWindow("cmdFolder");
    EXPECT_EQ(wizard.currentStep(), "Name and Location");
    EXPECT_EQ(wizard.text("txtSystemName"), "My Orlena System");

    wizard.desktop.expectOpenDialog("Open System", forms::fromMachinePath(saved));
    wizard.clickInWindow("cmdFolder");
    EXPECT_EQ(wizard.currentStep(), "Start");
    wizard.goTo("Name and Location");
    EXPECT_EQ(wizard.text("txtSystemName"), "Saved System");
  });
}

TEST(WizardWindow, ForeignSystemGivesItsMessageAndANewSystem) {
  const tests::TemporaryFolder folder;
  const auto saved = givenSavedSystem(folder.path());
  for (const std::string word : {"Corvane", ""}) {
    std::filesystem::copy_file(saved, folder.path() / "Foreign.tsy",
                               std::filesystem::copy_options::overwrite_existing);
    replaceInFile(folder.path() / "Foreign.tsy", "\"application\": \"Orlena\"",
                  "\"application\": \"" + word + "\"");
    const std::string before = tests::fileText(folder.path() / "Foreign.tsy");
    Wizard wizard;
    wizard.givenOpenSystem(folder.path() / "Foreign.tsy");
    wizard.desktop.expectMessage("Orlena",
                                 "This file was last saved by the following application: \r\n" +
                                     word +
                                     "\r\n\r\nTherefore it can not be opened in the "
                                     "Orlena.\r\n\r\nClick OK to continue with "
                                     "a new Orlena System.",
                                 Buttons::ok, Icon::critical);
    wizard.run([&] { EXPECT_EQ(wizard.document().get_Name(), "My Orlena System"); });
    EXPECT_EQ(tests::fileText(folder.path() / "Foreign.tsy"), before);
  }
}

TEST(WizardWindow, SystemOfTheWizardOpensWhateverTheCaseOfItsWord) {
  const tests::TemporaryFolder folder;
  const auto saved = givenSavedSystem(folder.path());
  replaceInFile(saved, "\"application\": \"Orlena\"", "\"application\": \"ORLENA\"");
  Wizard wizard;
  wizard.givenOpenSystem(saved);
  wizard.run([&] { EXPECT_EQ(wizard.document().get_Name(), "Saved System"); });
}

TEST(WizardWindow, DamagedSystemLeavesTheOpenOne) {
  const tests::TemporaryFolder folder;
  const auto saved = givenSavedSystem(folder.path());
  const std::string whole = tests::fileText(saved);
  std::ofstream(saved, std::ios::binary) << whole.substr(0, whole.size() / 2);
  Wizard wizard;
  wizard.run([&] {
    wizard.desktop.expectOpenDialog("Open System", forms::fromMachinePath(saved));
    wizard.desktop.expectMessageWith(Icon::critical, "Saved System.tsy: line");
    wizard.clickInWindow("cmdFolder");
    EXPECT_EQ(wizard.document().get_Name(), "My Orlena System");
  });
}

TEST(WizardWindow, SavingKeepsWhetherTheProgramIsCurrent) {
  Wizard wizard;
  wizard.run([&] {
    wizard.clickInWindow("cmdSave");
    EXPECT_FALSE(wizard.document().get_SystemInfo()->get_ProgramIsCurrent());
    wizard.document().get_SystemInfo()->put_ProgramIsCurrent(true);
    wizard.clickInWindow("cmdSave");
    EXPECT_TRUE(wizard.document().get_SystemInfo()->get_ProgramIsCurrent());
  });
}

TEST(WizardWindow, MissingTemplateIsToldAndClosesTheWizard) {
  const tests::TemporaryFolder empty;
  Wizard wizard;
  forms::Application elsewhere(wizard.desktop, forms::fromMachinePath(empty.path()));
  std::shared_ptr<addin::IAddIn> addIn = std::make_shared<addin::IAddIn>();
  addIn->IAddInContract_Load(nullptr, wizard.host->libraryManager(), wizard.host->communication(),
                             wizard.host->smallPictures(), wizard.host->largePictures(),
                             wizard.host->mainWindow());
  const std::string path = forms::fromMachinePath(empty.path()) +
                           "\\TemplateSystems\\Orlena TEMPLATE\\Orlena TEMPLATE.tsy";
  wizard.desktop.expectMessage("Orlena", "Failed to find " + path + ": Critical Error", Buttons::ok,
                               Icon::critical);
  wizard.desktop.expectMessage("Orlena",
                               "Failed to start Orlena\r\n\r\nContact Velmondo customer support.",
                               Buttons::ok, Icon::critical);
  addIn->IAddInContract_Run(wizard.host->mainWindow());
  EXPECT_EQ(addIn->IAddInContract_HwndAddIn(), 0);
}

TEST(WizardWindow, SecondRunOfTheSameAddInWorks) {
  Wizard wizard;
  wizard.run([] {});
  wizard.addIn->IAddInContract_Load(nullptr, wizard.host->libraryManager(),
                                    wizard.host->communication(), wizard.host->smallPictures(),
                                    wizard.host->largePictures(), wizard.host->mainWindow());
  wizard.run([&] { EXPECT_EQ(wizard.currentStep(), "Start"); });
}

}  // namespace
