#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/ListView.h"
#include "forms/Paths.h"
#include "forms/ToolBar.h"
#include "tests/receiver/Running.h"
#include "tests/wizard/Wizard.h"

namespace {

using forms::Answer;
using forms::Buttons;
using forms::Icon;
using Calls = std::vector<std::string>;

constexpr const char* noTransmitter =
    "No OL transmitters have been added to the project.\r\n\r\nYou must add at least one OL "
    "transmitter to this project in order to build the system.";
constexpr const char* lockoutTooShort =
    "The Power Off Lockout time cannot be less than the second Power Off command delay "
    "time.\r\n\r\nYou must adjust these values in order to build the system.";

/// The wizard on its last page, with a room that can be built.
class ChainTest : public testing::Test {
 protected:
  void run(const std::function<void()>& script) {
    wizard.desktop.wheneverShown("DoneDialog", [this](forms::Form& form) {
      lastWords = form.control("lblState").shownText();
      wizard.user.click(form.control("cmdClose"));
    });
    wizard.run([&] {
      wizard.host->communication()->setAddress(receiver.address().text());
      wizard.goTo("Display Device");
      wizard.chooseDisplay("Bravonne P2200");
      wizard.goTo("Orlena Transmitters");
      wizard.click("cmdAdd");
      wizard.user.editLabel(wizard.control<forms::ListView>("lvwTransmitters"), 0, "Podium");
      wizard.goTo("Room Options");
      wizard.click("chkInclude(1)");
      wizard.enter("txtFenletPassword", "lantern");
      wizard.goTo("Finish");
      script();
    });
  }

  /// The first words of the host's calls since the last time.
  Calls calls() {
    Calls words;
    for (const std::string& call : wizard.host->journal().calls()) {
      words.push_back(call.substr(0, call.find_first_of(" ,")));
    }
    wizard.host->journal().clear();
    return words;
  }
  Calls callsOf(const std::string& button) {
    calls();
    wizard.click(button);
    wizard.application.processEvents();
    EXPECT_TRUE(wizard.inWindow("cmdFinish").isEnabled());
    return calls();
  }
  receiver::Holdings holdings() {
    receiver::Holdings held;
    EXPECT_TRUE(receiver::query(receiver.address(), held));
    return held;
  }
  bool programIsCurrent() { return wizard.document().get_SystemInfo()->get_ProgramIsCurrent(); }

  tests::TemporaryFolder place;
  tests::Running receiver{tests::optionsFor(place)};
  tests::Wizard wizard;
  std::string lastWords;
};

const Calls pages{"SetTemplatePrefix", "SetIncludeDefaultPages", "SetIncludeSharedPages"};
const Calls panel{"CreateTouchpanels", "SetUsePage", "EditObject", "SaveProject"};
const Calls compile{"FileSaveAs", "ShowCreateProgramDialog"};
const Calls upload{"SetupSystemManager", "SetQueryResponse",   "SetQueryResponse",
                   "StartTransfer",      "OnTransferComplete", "SetPassword"};

Calls operator+(Calls one, const Calls& other) {
  one.insert(one.end(), other.begin(), other.end());
  return one;
}

TEST_F(ChainTest, UploadSavesMakesPanelsCompilesAndSendsAndThenOnlySends) {
  run([&] {
    EXPECT_EQ(callsOf("cmdUpload"), Calls{"FileSaveAs"} + pages + panel + compile + upload);
    EXPECT_TRUE(programIsCurrent());
    EXPECT_EQ(lastWords, "Sent to the receiver at " + receiver.address().text() + ", running.");
    EXPECT_EQ(holdings().program->name, "My Orlena System");
    EXPECT_TRUE(holdings().passwordSet);
    EXPECT_TRUE(receiver::checkPassword(receiver.address(), "lantern"));
    const auto project = wizard.systemFile("My Orlena System").replace_filename("Fenlet.tpj");
    EXPECT_NE(tests::fileText(project).find("\"PODIUM\\r\\nSELECTED\""), std::string::npos);
    EXPECT_EQ(callsOf("lblUpload"), pages + upload);
  });
}

TEST_F(ChainTest, RightButtonSendsWhatWasCompiledLastAndNothingElse) {
  run([&] {
    callsOf("cmdUpload");
    wizard.addIn->AddPowerRelay();
    calls();
    wizard.user.press(wizard.control<forms::CommandButton>("cmdUpload"), forms::MouseButton::right);
    wizard.application.processEvents();
    EXPECT_EQ(calls(), upload);
    EXPECT_FALSE(programIsCurrent());
  });
}

TEST_F(ChainTest, RefusedSaveEndsTheChainBeforeThePanels) {
  run([&] {
    std::filesystem::remove_all(wizard.systemsFolder());
    std::ofstream(wizard.systemsFolder()) << "no folder";
    wizard.desktop.expectMessageWith(Icon::critical, "could not be saved");
    EXPECT_EQ(callsOf("cmdExport"), Calls{"FileSaveAs"});
    std::filesystem::remove(wizard.systemsFolder());
  });
}

TEST_F(ChainTest, PreflightRefusesBeforeTheCompile) {
  run([&] {
    wizard.goTo("Orlena Transmitters");
    wizard.click("cmdDelete");
    wizard.goTo("Finish");
    wizard.desktop.expectMessage("Orlena", noTransmitter, Buttons::ok, Icon::exclamation);
    const Calls unlabelled{"CreateTouchpanels", "SetUsePage", "SaveProject", "FileSaveAs"};
    EXPECT_EQ(callsOf("cmdUpload"), Calls{"FileSaveAs"} + pages + unlabelled);
  });
}

TEST_F(ChainTest, CancelledCompileSendsNothing) {
  run([&] {
    callsOf("cmdUpload");
    wizard.addIn->AddPowerRelay();
    wizard.application.runLater(
        [&] { wizard.user.click(wizard.application.activeForm()->control("cmdCancel")); });
    EXPECT_EQ(callsOf("cmdUpload"), Calls{"FileSaveAs"} + pages + compile);
    EXPECT_FALSE(programIsCurrent());
  });
}

TEST_F(ChainTest, SecondPowerOffMayNotComeAfterTheLockout) {
  struct Case {
    std::int16_t flag, delay, lockout;
    bool isRefused;
  };
  run([&] {
    wizard.clickInWindow("cmdSave");
    for (const Case& c : {Case{1, 60, 59, true}, Case{1, 60, 60, false}, Case{1, 60, 0, false},
                          Case{0, 60, 59, false}, Case{1, 0, 59, false}}) {
      wizard.addIn->put_bSecondPowerOff(c.flag);
      wizard.addIn->put_iSecondPowerOff(c.delay);
      wizard.addIn->put_PowerOffLockoutTime(c.lockout);
      wizard.document().MarkChanged();
      if (c.isRefused) {
        wizard.desktop.expectMessage("Orlena", lockoutTooShort, Buttons::ok, Icon::exclamation);
      }
      EXPECT_EQ(wizard.addIn->CreateProgram(), !c.isRefused) << c.delay << " " << c.lockout;
      EXPECT_EQ(programIsCurrent(), !c.isRefused);
    }
  });
}

TEST_F(ChainTest, ExportEndsInTheHostsExport) {
  run([&] {
    const auto archive = wizard.systemsFolder() / "room.tsa";
    wizard.desktop.expectSaveDialog("Export System", forms::fromMachinePath(archive));
    EXPECT_EQ(callsOf("cmdExport"),
              Calls{"FileSaveAs"} + pages + panel + compile + Calls{"Export"});
    EXPECT_TRUE(std::filesystem::exists(archive));
    EXPECT_EQ(lastWords, "Exported to \"" + archive.string() + "\".");
  });
}

TEST_F(ChainTest, PanelFollowsTheRoomAndItsName) {
  run([&] {
    callsOf("cmdUpload");
    const auto makesPanel = [&](const std::string& button) {
      const Calls made = callsOf(button);
      return std::ranges::count(made, "CreateTouchpanels") == 1;
    };
    EXPECT_FALSE(makesPanel("cmdUpload"));
    wizard.goTo("Display Device");
    wizard.chooseDisplay("Orvistel F42");
    wizard.goTo("Finish");
    EXPECT_TRUE(makesPanel("cmdUpload")) << "the display has other commands";

    wizard.goTo("Orlena Transmitters");
    wizard.click("cmdAdd");
    wizard.goTo("Finish");
    EXPECT_TRUE(makesPanel("cmdUpload"));
    const auto project = wizard.systemsFolder() / "My Orlena System" / "Fenlet.tpj";
    EXPECT_NE(tests::fileText(project).find("Select_Input_2"), std::string::npos);

    wizard.goTo("Name and Location");
    wizard.enter("txtSystemName", "Hall");
    wizard.goTo("Finish");
    EXPECT_TRUE(makesPanel("cmdUpload"));
    EXPECT_TRUE(std::filesystem::exists(wizard.systemsFolder() / "Hall" / "Fenlet.tpj"));
  });
}

TEST_F(ChainTest, PanelThatCantBeMadeStopsUploadAndExport) {
  run([&] {
    callsOf("cmdUpload");
    const auto project = wizard.systemsFolder() / "My Orlena System" / "Fenlet.tpj";
    std::filesystem::remove(project);
    std::filesystem::create_directories(project / "in the way");
    for (const char* button : {"cmdUpload", "cmdExport"}) {
      wizard.desktop.expectMessage("Orlena", "Failed to create project: Fenlet", Buttons::ok,
                                   Icon::exclamation);
      wizard.desktop.whenShown("frmBuildPanels", [&](forms::Form& window) {
        wizard.user.click(window.control("cmdClose"));
      });
      if (button == std::string("cmdExport")) {
        wizard.desktop.expectSaveDialog("Export System",
                                        forms::fromMachinePath(wizard.systemsFolder() / "a.tsa"));
      }
      wizard.desktop.expectMessageWith(Icon::critical, "The touch panel \"Fenlet\" has no project");
      callsOf(button);
    }
    EXPECT_FALSE(std::filesystem::exists(wizard.systemsFolder() / "a.tsa"));
  });
}

TEST_F(ChainTest, ReceiverThatIsGoneIsToldAndTheNextUploadWorks) {
  run([&] {
    callsOf("cmdUpload");
    receiver.stop();
    wizard.desktop.expectMessageWith(Icon::exclamation, "could not be sent");
    EXPECT_EQ(callsOf("cmdUpload").back(), "StartTransfer") << "and no password";
    const tests::Running another(tests::optionsFor(place));
    wizard.host->communication()->setAddress(another.address().text());
    EXPECT_EQ(callsOf("cmdUpload").back(), "SetPassword");
  });
}

TEST_F(ChainTest, PasswordGoesToTheReceiverOnDemandWithItsMessage) {
  const std::string caption = "Set/Clear Fenlet Password";
  const std::string question =
      "The Fenlet password is automatically sent to the receiver after the Orlena system is "
      "uploaded.  \r\nTo send it now, click OK.  The Fenlet password can be configured on the Room "
      "Options tab.";
  run([&] {
    const auto choose = [&] {
      wizard.user.choose(wizard.control<forms::ToolBar>("tbrComm"), "Fenlet_Password");
    };
    const auto expect = [&](const std::string& text, Icon icon) {
      wizard.desktop.expectMessage(caption, question, Buttons::okCancel, Icon::none);
      wizard.desktop.expectMessage(caption, text, Buttons::ok, icon);
    };
    wizard.desktop.expectMessage(caption, question, Buttons::okCancel, Icon::none, Answer::cancel);
    choose();
    EXPECT_FALSE(holdings().passwordSet);
    expect("Fenlet password successfully set on the control processor.", Icon::information);
    choose();
    EXPECT_TRUE(holdings().passwordSet);
    wizard.addIn->put_FenletPassword("");
    expect("Fenlet password successfully cleared on the control processor.", Icon::information);
    choose();
    EXPECT_FALSE(holdings().passwordSet);
    receiver.stop();
    expect(
        "Error clearing the Fenlet password on the control processor.\r\n\r\nPlease check "
        "communication settings and try again.",
        Icon::exclamation);
    choose();
  });
}

TEST_F(ChainTest, AudioSettingsNeedABuiltSystem) {
  run([&] {
    wizard.desktop.expectMessage(
        "Orlena",
        "This system must be built and uploaded first.\r\n\r\nWould you like to build and upload "
        "the system now?",
        Buttons::yesNo, Icon::question, Answer::yes);
    EXPECT_EQ(callsOf("cmdSettings").back(), "SetPassword") << "and no dialog after the build";
    wizard.desktop.whenShown("RealTimeDialog", [](forms::Form& dialog) { dialog.hide(); });
    EXPECT_EQ(callsOf("lblSettings"), Calls{"ShowRealTimeDialog"});
    wizard.addIn->AddPowerRelay();
    wizard.desktop.expectMessage(
        "Orlena",
        "You have modified the program since the last time the program was last built.\r\n\r\nIt "
        "is recommended that build and upload the system first.\r\n\r\nWould you like to continue "
        "with real-time anyway?",
        Buttons::yesNo, Icon::question, Answer::no);
    EXPECT_EQ(callsOf("cmdSettings"), Calls{});
  });
}

TEST_F(ChainTest, DocumentationSavesAChangedSystemAlone) {
  run([&] {
    wizard.clickInWindow("cmdSave");
    for (const bool isChanged : {false, true, false}) {
      if (isChanged) wizard.document().MarkChangedButProgram();
      wizard.desktop.whenShown("ReportsDialog", [](forms::Form& dialog) { dialog.hide(); });
      const Calls saved = isChanged ? Calls{"Save"} : Calls{};
      EXPECT_EQ(callsOf("cmdReports"), saved + Calls{"ShowReportsDialog"});
    }
  });
}

TEST_F(ChainTest, PanelWindowStaysOpenWhileItWorks) {
  run([&] {
    std::string kept;
    wizard.application.runLater([&] {
      forms::Form& window = *wizard.application.activeForm();
      if (!wizard.user.close(window)) kept = window.name();
    });
    EXPECT_EQ(callsOf("cmdUpload").back(), "SetPassword");
    EXPECT_EQ(kept, "frmBuildPanels");
  });
}

TEST_F(ChainTest, PanelWarningsStayInTheWindowUntilTheyAreSeen) {
  run([&] {
    wizard.goTo("Display Device");
    wizard.chooseDisplay("Talmerick Nocturne");
    wizard.goTo("Finish");
    wizard.desktop.whenShown("frmBuildPanels", [&](forms::Form& window) {
      EXPECT_EQ(window.control("lblPleaseWait").shownText(), "Interface Creation Complete");
      EXPECT_TRUE(window.control("frameInfo").isVisible());
      const auto log = wizard.systemsFolder() / "LogFile.txt";
      wizard.desktop.expectSaveDialog("", forms::fromMachinePath(log));
      wizard.user.click(window.control("cmdSave"));
      EXPECT_FALSE(tests::fileText(log).empty());
      wizard.user.click(window.control("cmdClose"));
    });
    EXPECT_EQ(callsOf("cmdUpload").back(), "SetPassword");
  });
}

}  // namespace
