#include "trellisar/objects/DeviceLists.h"
#include "trellisar/operations/MainWindowOperations.h"
#include "trellisar/operations/UIManagerObject.h"

namespace trellisar {

const std::shared_ptr<UIManagerObject>& MainWindowOperations::uiManager() {
  if (!uiManager_) uiManager_ = std::make_shared<UIManagerObject>(session_);
  return uiManager_;
}

std::shared_ptr<host::UIManager> MainWindowOperations::GetUIMgr() { return uiManager(); }

bool MainWindowOperations::CreateTouchpanels(std::shared_ptr<host::Touchpanel>& oPanel) {
  note("CreateTouchpanels " + (oPanel ? oPanel->get_Name() : std::string()));
  const DocumentPtr& document = session_->data();
  const DevicePtr panel =
      oPanel ? document->find(oPanel->get_ID(), DeviceData::Kind::panel) : nullptr;
  if (!panel || !uiManager()->makeProject(panel)) return false;
  oPanel = makeTouchpanel(document, panel);
  return true;
}

}  // namespace trellisar
