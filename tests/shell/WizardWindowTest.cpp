#include <gtest/gtest.h>

#include "addin/modGlobals.h"
#include "tests/wizard/Wizard.h"

namespace {

using forms::Answer;
using forms::Buttons;
using forms::Icon;
using tests::Wizard;

constexpr const char* exitQuestion = "Are you sure you want to exit the Orlena wizard?";

class WizardWindow : public testing::Test, public Wizard {};

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
    EXPECT_EQ(currentStep(), "Start");
    EXPECT_EQ(addIn->GetVersion(), "3.06.09");
    EXPECT_EQ(text("lblVersion"), "v3.06.09");
    EXPECT_FALSE(inWindow("cmdBack").isEnabled());
    EXPECT_TRUE(inWindow("cmdNext").isEnabled());
    for (const char* step : {"Name and Location", "Audio Control", "Room Options", "Finish"}) {
      goTo(step);
      EXPECT_EQ(currentStep(), step);
    }
    EXPECT_FALSE(inWindow("cmdNext").isEnabled());
    EXPECT_EQ(window().helpContext(), host::helpFinishTab);
    clickInWindow("cmdHelp");
    EXPECT_EQ(desktop.helpTopics().back(), host::helpFinishTab);
  });
  EXPECT_EQ(addIn->IAddInContract_HwndAddIn(), 0);
  EXPECT_FALSE(addin::IsDocumentSet());
}

TEST_F(WizardWindow, FinishGoesToTheLastStepFirstAndThenAsks) {
  run([&] {
    clickInWindow("cmdFinish");
    EXPECT_EQ(currentStep(), "Finish");
    for (const Answer answer : {Answer::no, Answer::yes}) {
      desktop.expectMessage("Orlena", exitQuestion, Buttons::yesNo, Icon::question, answer);
      clickInWindow("cmdFinish");
      EXPECT_EQ(window().isVisible(), answer == Answer::no);
    }
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
    expectRefusal();
    EXPECT_FALSE(user.close(window()));
    EXPECT_TRUE(window().isVisible());
    enter("txtSystemName", "Free");
    clickInWindow("cmdNext");
    EXPECT_EQ(currentStep(), "Display Device");
  });
}

TEST(WizardsSystem, ClosingAModifiedSystemAsks) {
  for (const Answer answer : {Answer::yes, Answer::no, Answer::cancel}) {
    Wizard wizard;
    wizard.run([&] {
      wizard.goTo("Name and Location");
      wizard.enter("txtSystemName", "Room 4");
      wizard.desktop.expectMessage("Orlena",
                                   "Do you wish to save the changes you made to the system?",
                                   Buttons::yesNoCancel, Icon::question, answer);
      wizard.user.close(wizard.window());
      EXPECT_EQ(wizard.window().isVisible(), answer == Answer::cancel);
      EXPECT_EQ(std::filesystem::exists(wizard.systemFile("Room 4")), answer == Answer::yes);
    });
  }
}

TEST_F(WizardWindow, NewSystemTakesTheNextFreeName) {
  run([&] {
    goTo("Name and Location");
    EXPECT_EQ(text("txtSystemName"), "My Orlena System");
    for (const bool isCurrent : {false, true}) {
      bool cancelled = false;
      EXPECT_TRUE(!isCurrent || host->mainWindow()->ShowCreateProgramDialog(cancelled));
      clickInWindow("cmdSave");
      EXPECT_EQ(document().get_SystemInfo()->get_ProgramIsCurrent(), isCurrent) << "kept";
    }
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
    desktop.expectOpenDialog("Open System", "");
    clickInWindow("cmdFolder");
    EXPECT_EQ(currentStep(), "Name and Location");
    EXPECT_EQ(text("txtSystemName"), "My Orlena System");

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
    });
    EXPECT_EQ(tests::fileText(file), text);
  }
}

TEST_F(WizardWindow, MissingTemplateIsToldAndClosesTheWizard) {
  const tests::TemporaryFolder empty;
  forms::Application elsewhere(desktop, forms::fromMachinePath(empty.path()));
  const auto fresh = std::make_shared<addin::IAddIn>();
  fresh->IAddInContract_Load(nullptr, host->libraryManager(), host->communication(),
                             host->smallPictures(), host->largePictures(), host->mainWindow());
  const std::string path = forms::fromMachinePath(empty.path()) +
                           "\\TemplateSystems\\Orlena TEMPLATE\\Orlena TEMPLATE.tsy";
  desktop.expectMessage("Orlena", "Failed to find " + path + ": Critical Error", Buttons::ok,
                        Icon::critical);
  desktop.expectMessage("Orlena",
                        "Failed to start Orlena\r\n\r\nContact Velmondo customer support.",
                        Buttons::ok, Icon::critical);
  fresh->IAddInContract_Run(host->mainWindow());
  EXPECT_EQ(fresh->IAddInContract_HwndAddIn(), 0);
}

}  // namespace
