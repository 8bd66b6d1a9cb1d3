#include "steps/TabFinish.h"

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "common/CommonFunctions.h"
#include "forms/Application.h"
#include "forms/Rows.h"
#include "host/Numbers.h"

namespace steps {
namespace {

using addin::gAddIn;
using addin::gCommObject;
using addin::gDocument;
using addin::gOwnerForm;
using forms::Answer;
using forms::Buttons;
using forms::Icon;

/// The factory setting of a receiver.
constexpr const char* strDefaultAddress = "tcp 192.168.1.20";

constexpr const char* strMenuSettings = "Settings";
constexpr const char* strMenuIP = "IP";
constexpr const char* strMenuPassword = "Fenlet_Password";

forms::Application& App() { return forms::Application::current(); }

bool AskYes(const std::string& strText) {
  return App().messageBox(strText, Buttons::yesNo, Icon::question) == Answer::yes;
}

void TellOfPassword(bool bAccepted, bool bCleared) {
  const std::string strCaption = "Set/Clear Fenlet Password";
  if (bAccepted) {
    App().messageBox(std::string("Fenlet password successfully ") + (bCleared ? "cleared" : "set") +
                         " on the control processor.",
                     Buttons::ok, Icon::information, strCaption);
  } else {
    App().messageBox(std::string("Error ") + (bCleared ? "clearing" : "setting") +
                         " the Fenlet password on the control processor.\r\n\r\n"
                         "Please check communication settings and try again.",
                     Buttons::ok, Icon::exclamation, strCaption);
  }
}

}  // namespace

TabFinish::TabFinish(forms::Container& container, std::string strName)
    : WizardStep(container, std::move(strName), "Finish", host::helpFinishTab) {
  MakeTitle(lblBanner);
  gCommObject().SetDefaultAddress(strDefaultAddress);
  cmdUpload.setToolTip("Upload the current System to the Control System.");
  cmdExport.setToolTip("Export the current System to an Archive (.tsa) file.");
  cmdReports.setToolTip("Show/Print System Documentation.");
  cmdSettings.setToolTip("Configure the Audio.");
  cmdTestPattern.setToolTip("Configure the Video.");
  tbrComm.setMenu({{"Communication Settings...", strMenuSettings},
                   {"Set IP Information...", strMenuIP},
                   {"Set/Clear Fenlet Password", strMenuPassword}});
  SetPictures();
  ConnectEvents();
  LayOut();
}

void TabFinish::ConnectEvents() {
  const auto Connect = [this](forms::CommandButton& cmd, forms::Label& lbl,
                              void (TabFinish::*Act)()) {
    cmd.click.connect([this, Act] { (this->*Act)(); });
    lbl.click.connect([this, Act] { (this->*Act)(); });
  };
  Connect(cmdUpload, lblUpload, &TabFinish::cmdUpload_Click);
  Connect(cmdExport, lblExport, &TabFinish::cmdExport_Click);
  Connect(cmdReports, lblReports, &TabFinish::cmdReports_Click);
  Connect(cmdSettings, lblSettings, &TabFinish::cmdSettings_Click);
  Connect(cmdTestPattern, lblTestPattern, &TabFinish::cmdTestPattern_Click);
  cmdUpload.mouseDown.connect([this](forms::MouseButton eButton) { cmdUpload_MouseDown(eButton); });
  tbrComm.buttonClick.connect([this] { tbrComm_ButtonClick(); });
  lblComm.click.connect([this] { tbrComm_ButtonClick(); });
  tbrComm.menuClick.connect([this](const std::string& strTag) { tbrComm_ButtonMenuClick(strTag); });
  offer("SetData", [this] { SetData(); });
  offer("OtherTabClicked", [this] { OtherTabClicked(); });
}

void TabFinish::SetPictures() {
  const std::string strFolder = common::AddBackslash(App().folder()) + "pictures\\";
  const auto Show = [&](auto& control, const char* strFile) {
    forms::ignoringErrors([&] { control.setPicture(App().loadPicture(strFolder + strFile)); });
  };
  Show(cmdUpload, "upload.svg");
  Show(cmdExport, "export.svg");
  Show(cmdReports, "reports.svg");
  Show(cmdSettings, "audio.svg");
  Show(cmdTestPattern, "test-pattern-icon.svg");
  Show(tbrComm, "communication.svg");
}

void TabFinish::cmdUpload_Click() {
  std::int32_t hwnd = gAddIn().GetActiveWindowHandle();
  gAddIn().BuildAndUpload(hwnd);
}

/// What was compiled last goes to the receiver as it is.
void TabFinish::cmdUpload_MouseDown(forms::MouseButton eButton) {
  if (eButton != forms::MouseButton::right) return;
  std::int32_t hwnd = gAddIn().GetActiveWindowHandle();
  gAddIn().UploadProgram(hwnd);
}

void TabFinish::cmdExport_Click() {
  std::int32_t hwnd = gAddIn().GetActiveWindowHandle();
  gAddIn().ExportProgram(hwnd);
}

/// A save that fails says nothing here: the documentation then shows what stands on disk.
void TabFinish::cmdReports_Click() {
  if (gDocument().get_Modified()) gAddIn().SaveSystem(/*bShowWarnings=*/false, /*bSaveAs=*/false);
  const std::string strFolder = gDocument().get_Path();
  if (!common::FolderExists(strFolder)) {
    static_cast<void>(gOwnerForm().CreateProjectFolder(strFolder));
  }
  gAddIn().ShowReports();
}

void TabFinish::cmdSettings_Click() {
  const auto clsInfo = gDocument().get_SystemInfo();
  if (!common::FileExists(clsInfo->get_CompiledProgramFile())) {
    if (AskYes("This system must be built and uploaded first.\r\n\r\nWould you like to build and "
               "upload the system now?")) {
      cmdUpload_Click();
    }
    return;
  }
  if (!clsInfo->get_ProgramIsCurrent() &&
      !AskYes("You have modified the program since the last time the program was last "
              "built.\r\n\r\nIt is recommended that build and upload the system first.\r\n\r\n"
              "Would you like to continue with real-time anyway?")) {
    return;
  }
  std::int16_t iReceiverID = gAddIn().get_ReceiverID();
  gDocument().get_Devices()->Item(iReceiverID)->put_RealTimeProgID(host::progIDRealTimeAudio);
  gOwnerForm().ShowRealTimeDialog(iReceiverID);
}

void TabFinish::cmdTestPattern_Click() { gAddIn().ShowTestPattern(); }

void TabFinish::tbrComm_ButtonClick() {
  gOwnerForm().ShowAddressBook(gAddIn().GetActiveWindowHandle());
}

void TabFinish::tbrComm_ButtonMenuClick(const std::string& strTag) {
  if (strTag == strMenuSettings) {
    tbrComm_ButtonClick();
  } else if (strTag == strMenuIP) {
    std::int32_t hwnd = gAddIn().GetActiveWindowHandle();
    gCommObject().ShowSetIPDialog(hwnd);
  } else if (strTag == strMenuPassword) {
    SendFenletPassword();
  }
}

void TabFinish::SendFenletPassword() {
  const Answer eAnswer = App().messageBox(
      "The Fenlet password is automatically sent to the receiver after the Orlena system is "
      "uploaded.  \r\nTo send it now, click OK.  The Fenlet password can be configured on the Room "
      "Options tab.",
      Buttons::okCancel, Icon::none, "Set/Clear Fenlet Password");
  if (eAnswer == Answer::cancel) return;
  const std::string strPassword = gAddIn().get_FenletPassword();
  TellOfPassword(gCommObject().SetPassword(strPassword), strPassword.empty());
}

void TabFinish::LayOut() {
  using namespace forms;
  constexpr Size sizeOfButton{720, 720};
  const auto Action = [&](Control& cmd, Label& lbl) {
    lbl.setLink(true);
    return Pieces{item(cmd, sizeOfButton), names(lbl, cmd)};
  };
  const auto Beside = [&](Pieces left, Pieces right) {
    left.push_back(gap(300));
    left.insert(left.end(), right.begin(), right.end());
    return left;
  };
  layOut(pageArea,
         {
             rest(lblBanner),
             gap(120),
             rest(lblInstructions),
             gap(360),
             indented({columns({
                 Beside(Action(cmdUpload, lblUpload), Action(cmdSettings, lblSettings)),
                 Beside(Action(cmdExport, lblExport), Action(cmdTestPattern, lblTestPattern)),
                 Beside(Action(cmdReports, lblReports), Action(tbrComm, lblComm)),
             })}),
         });
  FitTitle(lblBanner);
}

}  // namespace steps
