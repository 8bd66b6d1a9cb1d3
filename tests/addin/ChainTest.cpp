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
class ChainTest : public testing::Test, public tests::Wizard {
 protected:
  void onLastPage(const std::function<void()>& script) {
    desktop.wheneverShown("DoneDialog", [this](forms::Form& form) {
      lastWords = form.control("lblState").shownText();
      user.click(form.control("cmdClose"));
    });
    run([&] {
      host->communication()->setAddress(receiver.address().text());
      goTo("Display Device");
      chooseDisplay("Bravonne P2200");
      goTo("Orlena Transmitters");
      click("cmdAdd");
      user.editLabel(control<forms::ListView>("lvwTransmitters"), 0, "Podium");
      goTo("Room Options");
      click("chkInclude(1)");
      enter("txtFenletPassword", "lantern");
      goTo("Finish");
      script();
    });
  }

  /// The first words of the host's calls since the last time.
  Calls calls() {
    Calls words;
    for (const std::string& call : host->journal().calls()) {
      words.push_back(call.substr(0, call.find_first_of(" ,")));
    }
    host->journal().clear();
    return words;
  }
  Calls callsOf(const std::string& button) {
    calls();
    click(button);
    application.processEvents();
    EXPECT_TRUE(inWindow("cmdFinish").isEnabled());
    return calls();
  }
  receiver::Holdings holdings() {
    receiver::Holdings held;
    EXPECT_TRUE(receiver::query(receiver.address(), held));
    return held;
  }
  bool programIsCurrent() { return document().get_SystemInfo()->get_ProgramIsCurrent(); }

  tests::TemporaryFolder place;
  tests::Running receiver{tests::optionsFor(place)};
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
  onLastPage([&] {
    EXPECT_EQ(callsOf("cmdUpload"), Calls{"FileSaveAs"} + pages + panel + compile + upload);
    EXPECT_TRUE(programIsCurrent());
    EXPECT_EQ(lastWords, "Sent to the receiver at " + receiver.address().text() + ", running.");
    EXPECT_EQ(holdings().program->name, "My Orlena System");
    EXPECT_TRUE(holdings().passwordSet);
    EXPECT_TRUE(receiver::checkPassword(receiver.address(), "lantern"));
    const auto project = systemFile("My Orlena System").replace_filename("Fenlet.tpj");
    EXPECT_NE(tests::fileText(project).find("\"PODIUM\\r\\nSELECTED\""), std::string::npos);
    EXPECT_EQ(callsOf("lblUpload"), pages + upload);
  });
}

TEST_F(ChainTest, RightButtonSendsWhatWasCompiledLastAndNothingElse) {
  onLastPage([&] {
    callsOf("cmdUpload");
    addIn->AddPowerRelay();
    calls();
    user.press(control<forms::CommandButton>("cmdUpload"), forms::MouseButton::right);
    application.processEvents();
    EXPECT_EQ(calls(), upload);
    EXPECT_FALSE(programIsCurrent());
  });
}

TEST_F(ChainTest, RefusedSaveEndsTheChainBeforeThePanels) {
  onLastPage([&] {
    std::filesystem::remove_all(systemsFolder());
    std::ofstream(systemsFolder()) << "no folder";
    desktop.expectMessageWith(Icon::critical, "could not be saved");
    EXPECT_EQ(callsOf("cmdExport"), Calls{"FileSaveAs"});
    std::filesystem::remove(systemsFolder());
  });
}

TEST_F(ChainTest, PreflightRefusesBeforeTheCompile) {
  onLastPage([&] {
    goTo("Orlena Transmitters");
    click("cmdDelete");
    goTo("Finish");
    desktop.expectMessage("Orlena", noTransmitter, Buttons::ok, Icon::exclamation);
    const Calls unlabelled{"CreateTouchpanels", "SetUsePage", "SaveProject", "FileSaveAs"};
    EXPECT_EQ(callsOf("cmdUpload"), Calls{"FileSaveAs"} + pages + unlabelled);
  });
}

TEST_F(ChainTest, CancelledCompileSendsNothing) {
  onLastPage([&] {
    callsOf("cmdUpload");
    addIn->AddPowerRelay();
    application.runLater([&] { user.click(application.activeForm()->control("cmdCancel")); });
    EXPECT_EQ(callsOf("cmdUpload"), Calls{"FileSaveAs"} + pages + compile);
    EXPECT_FALSE(programIsCurrent());
  });
}

TEST_F(ChainTest, SecondPowerOffMayNotComeAfterTheLockout) {
  struct Case {
    std::int16_t flag, delay, lockout;
    bool isRefused;
  };
  onLastPage([&] {
    clickInWindow("cmdSave");
    for (const Case& c : {Case{1, 60, 59, true}, Case{1, 60, 60, false}, Case{1, 60, 0, false},
                          Case{0, 60, 59, false}, Case{1, 0, 59, false}}) {
      addIn->put_bSecondPowerOff(c.flag);
      addIn->put_iSecondPowerOff(c.delay);
      addIn->put_PowerOffLockoutTime(c.lockout);
      document().MarkChanged();
      if (c.isRefused) {
        desktop.expectMessage("Orlena", lockoutTooShort, Buttons::ok, Icon::exclamation);
      }
      EXPECT_EQ(addIn->CreateProgram(), !c.isRefused) << c.delay << " " << c.lockout;
      EXPECT_EQ(programIsCurrent(), !c.isRefused);
    }
  });
}

TEST_F(ChainTest, ExportEndsInTheHostsExport) {
  onLastPage([&] {
    const auto archive = systemsFolder() / "room.tsa";
    desktop.expectSaveDialog("Export System", forms::fromMachinePath(archive));
    EXPECT_EQ(callsOf("cmdExport"),
              Calls{"FileSaveAs"} + pages + panel + compile + Calls{"Export"});
    EXPECT_TRUE(std::filesystem::exists(archive));
    EXPECT_EQ(lastWords, "Exported to \"" + archive.string() + "\".");
  });
}

TEST_F(ChainTest, PanelThatCantBeMadeStopsUploadAndExport) {
  onLastPage([&] {
    callsOf("cmdUpload");
    const auto project = systemsFolder() / "My Orlena System" / "Fenlet.tpj";
    std::filesystem::remove(project);
    std::filesystem::create_directories(project / "in the way");
    for (const char* button : {"cmdUpload", "cmdExport"}) {
      desktop.expectMessage("Orlena", "Failed to create project: Fenlet", Buttons::ok,
                            Icon::exclamation);
      desktop.whenShown("frmBuildPanels",
                        [&](forms::Form& window) { user.click(window.control("cmdClose")); });
      if (button == std::string("cmdExport")) {
        desktop.expectSaveDialog("Export System",
                                 forms::fromMachinePath(systemsFolder() / "a.tsa"));
      }
      desktop.expectMessageWith(Icon::critical, "The touch panel \"Fenlet\" has no project");
      callsOf(button);
    }
    EXPECT_FALSE(std::filesystem::exists(systemsFolder() / "a.tsa"));
  });
}

TEST_F(ChainTest, PasswordGoesToTheReceiverOnDemandWithItsMessage) {
  const std::string caption = "Set/Clear Fenlet Password";
  const std::string question =
      "The Fenlet password is automatically sent to the receiver after the Orlena system is "
      "uploaded.  \r\nTo send it now, click OK.  The Fenlet password can be configured on the Room "
      "Options tab.";
  onLastPage([&] {
    const auto choose = [&] { user.choose(control<forms::ToolBar>("tbrComm"), "Fenlet_Password"); };
    const auto expect = [&](const std::string& text, Icon icon) {
      desktop.expectMessage(caption, question, Buttons::okCancel, Icon::none);
      desktop.expectMessage(caption, text, Buttons::ok, icon);
    };
    desktop.expectMessage(caption, question, Buttons::okCancel, Icon::none, Answer::cancel);
    choose();
    EXPECT_FALSE(holdings().passwordSet);
    expect("Fenlet password successfully set on the control processor.", Icon::information);
    choose();
    EXPECT_TRUE(holdings().passwordSet);
    addIn->put_FenletPassword("");
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
  onLastPage([&] {
    desktop.expectMessage(
        "Orlena",
        "This system must be built and uploaded first.\r\n\r\nWould you like to build and upload "
        "the system now?",
        Buttons::yesNo, Icon::question, Answer::yes);
    EXPECT_EQ(callsOf("cmdSettings").back(), "SetPassword") << "and no dialog after the build";
    desktop.whenShown("RealTimeDialog", [](forms::Form& dialog) { dialog.hide(); });
    EXPECT_EQ(callsOf("lblSettings"), Calls{"ShowRealTimeDialog"});
    addIn->AddPowerRelay();
    desktop.expectMessage(
        "Orlena",
        "You have modified the program since the last time the program was last built.\r\n\r\nIt "
        "is recommended that build and upload the system first.\r\n\r\nWould you like to continue "
        "with real-time anyway?",
        Buttons::yesNo, Icon::question, Answer::no);
    EXPECT_EQ(callsOf("cmdSettings"), Calls{});
  });
}

TEST_F(ChainTest, DocumentationSavesAChangedSystemAlone) {
  onLastPage([&] {
    clickInWindow("cmdSave");
    for (const bool isChanged : {false, true, false}) {
      if (isChanged) document().MarkChangedButProgram();
      desktop.whenShown("ReportsDialog", [](forms::Form& dialog) { dialog.hide(); });
      const Calls saved = isChanged ? Calls{"Save"} : Calls{};
      EXPECT_EQ(callsOf("cmdReports"), saved + Calls{"ShowReportsDialog"});
    }
  });
}

TEST_F(ChainTest, PanelWindowStaysOpenWhileItWorks) {
  onLastPage([&] {
    std::string kept;
    application.runLater([&] {
      forms::Form& window = *application.activeForm();
      if (!user.close(window)) kept = window.name();
    });
    EXPECT_EQ(callsOf("cmdUpload").back(), "SetPassword");
    EXPECT_EQ(kept, "frmBuildPanels");
  });
}

TEST_F(ChainTest, PanelWarningsStayInTheWindowUntilTheyAreSeen) {
  onLastPage([&] {
    goTo("Display Device");
    chooseDisplay("Talmerick Nocturne");
    goTo("Finish");
    desktop.whenShown("frmBuildPanels", [&](forms::Form& window) {
      EXPECT_EQ(window.control("lblPleaseWait").shownText(), "Interface Creation Complete");
      EXPECT_TRUE(window.control("frameInfo").isVisible());
      const auto log = systemsFolder() / "LogFile.txt";
      desktop.expectSaveDialog("", forms::fromMachinePath(log));
      user.click(window.control("cmdSave"));
      EXPECT_FALSE(tests::fileText(log).empty());
      user.click(window.control("cmdClose"));
    });
    EXPECT_EQ(callsOf("cmdUpload").back(), "SetPassword");
  });
}

}  // namespace
