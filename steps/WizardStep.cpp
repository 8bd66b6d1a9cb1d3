#include "steps/WizardStep.h"

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Rows.h"

namespace steps {

WizardStep::WizardStep(forms::Container& container, std::string strName, std::string strTabName,
                       std::int16_t iHelpContextID)
    : UserControl(container, std::move(strName)),
      m_strTabName(std::move(strTabName)),
      m_iHelpContextID(iHelpContextID) {
  setHelpContext(iHelpContextID);
}

void WizardStep::MakeBanner(forms::Label& lblBanner) {
  lblBanner.setFont({.points = 12, .bold = true});
  lblBanner.setForeColor(forms::colors::highlightText);
  lblBanner.setBackColor(forms::colors::highlight);
}

std::shared_ptr<host::Device> WizardStep::FindDisplay() {
  return addin::gDocument().get_Devices()->ItemByID(addin::gAddIn().get_DisplayDeviceID());
}

TabEmpty::TabEmpty(forms::Container& container, std::string strName, std::string strTabName,
                   std::int16_t iHelpContextID)
    : WizardStep(container, std::move(strName), std::move(strTabName), iHelpContextID) {
  lblBanner.setCaption(" " + iTab_GetTabName());
  MakeBanner(lblBanner);
  forms::layOut(pageArea, {forms::rest(lblBanner)});
  offer("SetData", [] {});
}

}  // namespace steps
