#include <utility>

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"

namespace addin {

host::UnsavedAnswers IAddIn::GetUnsavedAnswers() const {
  host::UnsavedAnswers unsaved{.strTitle = IAddInContract_Title(),
                               .strSettings = WriteSettingsBlock(m_settings),
                               .strName = gDocument().get_Name(),
                               .strPath = gDocument().get_Path()};
  if (!m_frmAddIn) return unsaved;
  unsaved.whereabouts.bFolderChecksOK = m_bFolderChecksOK;
  m_frmAddIn->TellUnsaved(unsaved);
  return unsaved;
}

void IAddIn::ResumeInWindow() {
  const auto resumed = std::exchange(m_resumed, std::nullopt);
  if (!resumed) return;
  m_bFolderChecksOK = resumed->bFolderChecksOK;
  m_frmAddIn->ResumeWork(*resumed);
}

}  // namespace addin
