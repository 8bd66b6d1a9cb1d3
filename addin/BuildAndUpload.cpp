#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Application.h"
#include "forms/Guard.h"
#include "host/Numbers.h"

namespace addin {
namespace {

void Warn(const std::string& strText, const std::string& strCaption = {}) {
  forms::Application::current().messageBox(strText, forms::Buttons::ok, forms::Icon::exclamation,
                                           strCaption);
}

}  // namespace

bool IAddIn::CreateProgram() {
  if (!IsDocumentSet()) return false;
  if (gDocument().get_SystemInfo()->get_ProgramIsCurrent()) return true;
  // What the save answers is not looked at: the compile tells what stands on disk.
  static_cast<void>(gOwnerForm().FileSaveAs(gDocument().get_Path() + gDocument().get_Name(),
                                            GetApplicationName()));
  if (!IsInSystem(get_OriginationPointID(1))) {
    Warn(
        "No OL transmitters have been added to the project.\r\n\r\nYou must add at least one OL "
        "transmitter to this project in order to build the system.",
        "Orlena");
    return false;
  }
  if (get_bSecondPowerOff() == 1 && m_settings.iSecondPowerOff >= 1 &&
      m_settings.iPowerOffLockoutTime > 0 &&
      m_settings.iPowerOffLockoutTime < m_settings.iSecondPowerOff) {
    Warn(
        "The Power Off Lockout time cannot be less than the second Power Off command delay "
        "time.\r\n\r\nYou must adjust these values in order to build the system.",
        "Orlena");
    return false;
  }
  bool bCancelled = false;
  return gOwnerForm().ShowCreateProgramDialog(bCancelled);
}

void IAddIn::BuildAnd(const std::function<void()>& Send) {
  m_frmAddIn->put_CanFinish(false);
  const forms::AtEnd ended([this] { m_frmAddIn->put_CanFinish(true); });
  if (!gDocument().get_SystemInfo()->get_ProgramIsCurrent() &&
      !SaveSystem(/*bShowWarnings=*/true, /*bSaveAs=*/true)) {
    return;
  }
  BuildTouchpanels();
  if (CreateProgram()) Send();
}

void IAddIn::BuildAndUpload(std::int32_t& hwnd) {
  BuildAnd([&] { UploadProgram(hwnd); });
}

void IAddIn::ExportProgram(std::int32_t& hwnd) {
  BuildAnd([&] { gOwnerForm().Export(hwnd); });
}

void IAddIn::UploadProgram(std::int32_t& hwnd) {
  gOwnerForm().SetupSystemManager(hwnd, {});
  // Answers that the host gets in advance.
  gOwnerForm().SetQueryResponse(host::queryResponseYes);
  gOwnerForm().SetQueryResponse(host::queryResponseRetry);
  gCommObject().StartTransfer(host::transferAll, gDocument().get_SystemInfo()->get_UploadHandle(),
                              host::transferProgram);
}

/// The password goes to the receiver after every transfer, also when there is none to set.
void IAddIn::m_clsComm_OnTransferComplete(std::int16_t) {
  if (m_clsComm->SetPassword(m_settings.strFenletPassword)) return;
  Warn(std::string("Error ") + (m_settings.strFenletPassword.empty() ? "clearing" : "setting") +
       " the Fenlet password on the control processor.\r\n\r\nPlease check communication settings "
       "and try again.");
}

void IAddIn::ShowReports() { gOwnerForm().ShowReportsDialog(host::reportsAll); }

}  // namespace addin
