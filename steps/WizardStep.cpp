#include "steps/WizardStep.h"

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Application.h"
#include "forms/Rows.h"
#include "forms/Text.h"
#include "host/UnsavedWork.h"

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

void WizardStep::MakeTitle(forms::Label& lblBanner) {
  lblBanner.setCaption(addin::gAddIn().IAddInContract_Title());
  lblBanner.setFont({.points = 20, .bold = true});
}

void WizardStep::FitTitle(forms::Label& lblBanner) {
  constexpr std::int32_t lLongTitle = 20;  // characters
  if (forms::length(lblBanner.caption()) <= lLongTitle) return;
  lblBanner.setBounds({lblBanner.bounds().left, 300, lblBanner.bounds().width, 1155});
}

const forms::Picture& WizardStep::LargePicture(std::int32_t iPicture) {
  return addin::frmImages().get_ImageListLarge().item(iPicture);
}

void WizardStep::OnEnter(forms::TextBox& box, const std::function<void()>& action) {
  box.keyDown.connect([action](forms::KeyDown& key) {
    if (key.code == forms::keys::enter) action();
  });
}

void WizardStep::KeepsUnsaved(std::function<UnsavedTexts()> Get,
                              std::function<void(const UnsavedTexts&)> Resume) {
  offer<host::UnsavedAnswers&>("TellUnsaved", [this, Get](host::UnsavedAnswers& unsaved) {
    if (auto colTexts = Get(); !colTexts.empty()) {
      unsaved.whereabouts.colOnPages[m_strTabName] = std::move(colTexts);
    }
  });
  offer<const host::Whereabouts&>("ResumeUnsaved",
                                  [this, Resume](const host::Whereabouts& whereabouts) {
                                    const auto found = whereabouts.colOnPages.find(m_strTabName);
                                    const bool bTold = found != whereabouts.colOnPages.end();
                                    if (bTold && !found->second.empty()) Resume(found->second);
                                  });
}

void WizardStep::Inform(const std::string& strText) {
  forms::Application::current().messageBox(strText, forms::Buttons::ok, forms::Icon::information);
}

std::shared_ptr<host::Device> WizardStep::FindDisplay() {
  return addin::gDocument().get_Devices()->ItemByID(addin::gAddIn().get_DisplayDeviceID());
}

}  // namespace steps
