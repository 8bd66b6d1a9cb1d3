#include <algorithm>
#include <array>

#include "addin/IAddIn.h"
#include "addin/TouchpanelWindow.h"
#include "addin/modGlobals.h"
#include "forms/Application.h"
#include "forms/Components.h"
#include "forms/Error.h"
#include "forms/Text.h"

namespace addin {
namespace {

constexpr const char* strPagePrefix = "[Orlena]";
constexpr const char* strSelected = "\r\nSELECTED";

struct InputButton {
  const char* strText;
  std::int16_t iPort;
};

/// The buttons of the project templates that show a transmitter's label.
constexpr std::array inputButtons{InputButton{"INPUT", 1}, InputButton{"INPUT 1", 1},
                                  InputButton{"INPUT 2", 2}, InputButton{"INPUT 3", 3}};

/// The port whose label a button shows; 0: none.
std::int16_t PortOfButton(const std::string& strText) {
  const auto it = std::find_if(inputButtons.begin(), inputButtons.end(), [&](const auto& button) {
    return strText == std::string(button.strText) + strSelected;
  });
  return it == inputButtons.end() ? std::int16_t{0} : it->iPort;
}

bool Qualifies(const host::Touchpanel& oPanel) {
  return oPanel.get_IsProjectPanel() && !oPanel.get_ProjectBuilt();
}

void Warn(const std::string& strText) {
  forms::Application::current().messageBox(strText, forms::Buttons::ok, forms::Icon::exclamation);
}

std::shared_ptr<host::TessraApp> TessraApp() { return gOwnerForm().GetUIMgr()->get_TessraApp(); }

}  // namespace

bool IAddIn::BuildTouchpanels() {
  SetPagePrefix();  // the projects are made without a prefix as well
  gOwnerForm().GetUIMgr()->SetIncludeDefaultPages(false);
  gOwnerForm().GetUIMgr()->SetIncludeSharedPages(false);
  if (HasPanelsToBuild()) {
    const auto frmBuildPanels = forms::createObject<TouchpanelWindow>(progIDTouchpanelWindow);
    frmBuildPanels->ShowModal();
    frmBuildPanels->Unload();
  }
  return true;
}

bool IAddIn::SetPagePrefix() {
  try {
    gOwnerForm().GetUIMgr()->SetTemplatePrefix(strPagePrefix);
    return true;
  } catch (const forms::Error&) {
    Warn(std::string("Cannot build touchpanels because the page prefix could not be set: ") +
         strPagePrefix);
    return false;
  }
}

bool IAddIn::HasPanelsToBuild() const {
  const auto colPanels = gDocument().get_Touchpanels()->Items();
  return std::any_of(colPanels.begin(), colPanels.end(),
                     [](const auto& oPanel) { return Qualifies(*oPanel); });
}

bool IAddIn::CreateTouchpanelProjects() {
  for (auto oPanel : gDocument().get_Touchpanels()->Items()) {
    if (!Qualifies(*oPanel)) continue;
    if (!gOwnerForm().CreateTouchpanels(oPanel)) {
      Warn("Failed to create project: " + oPanel->get_Name());
      return false;
    }
    const auto oProject = TessraApp()->GetAssignedProject();
    TessraApp()->SetCurrentProject(oProject);
    const auto oReceiver = gDocument().get_Devices()->Item(m_cast.iReceiver);
    // A project without the page of the equipment room stays as it was made.
    if (TessraApp()->SetUsePage("[Equipment Room] [" + oReceiver->get_Name() + "]")) {
      LabelInputButtons(*TessraApp());
    }
    TessraApp()->SaveProject();
    TessraApp()->CloseCurrentProject();
  }
  return true;
}

void IAddIn::LabelInputButtons(host::TessraApp& oTessraApp) const {
  for (const auto& oObject : oTessraApp.GetPageObjectList()) {
    const std::int16_t iPort = PortOfButton(oObject->get_Text());
    if (iPort == 0 || !IsInSystem(get_OriginationPointID(iPort))) continue;
    const auto oTransmitter = gDocument().get_Devices()->Item(get_OriginationPointID(iPort));
    oTessraApp.EditObject(oObject->get_ID(),
                          forms::upperCase(oTransmitter->get_Label()) + strSelected);
  }
}

}  // namespace addin
