#include "host/ctlSteps.h"

#include "forms/Form.h"

namespace host {
namespace {

constexpr forms::Twips lTop = 300;
constexpr forms::Twips lMargin = 60;
constexpr forms::Twips lStepHeight = 390;

}  // namespace

ctlSteps::ctlSteps(forms::Container& container, std::string strName)
    : UserControl(container, std::move(strName)) {
  setAccessibleName("Steps");
  m_fntSelected.bold = true;
  resized.connect([this] { LayOut(); });
}

void ctlSteps::put_StepCount(std::int16_t iCount) {
  if (iCount > 0) EnsureStep(static_cast<std::int16_t>(iCount - 1));
}

void ctlSteps::EnsureStep(std::int16_t iStep) {
  while (static_cast<std::int16_t>(cmdStep.size()) <= iStep) {
    const auto i = static_cast<std::int16_t>(cmdStep.size());
    cmdStep.push_back(
        std::make_unique<forms::CommandButton>(*this, "cmdStep(" + std::to_string(i) + ")"));
    forms::CommandButton& cmdNew = *cmdStep.back();
    cmdNew.setFlat(true);
    cmdNew.click.connect([this, i] {
      std::int16_t iClicked = i;
      OnStepClicked.raise(iClicked);
    });
    cmdNew.keyDown.connect([this, i](forms::KeyDown& key) { cmdStep_KeyDown(i, key); });
  }
  LayOut();
  ShowCurrentStep();
}

void ctlSteps::SetStepText(const std::string& strText, std::int16_t iStep) {
  EnsureStep(iStep);
  cmdStep.at(static_cast<std::size_t>(iStep))->setCaption(strText);
}

void ctlSteps::SetCurrentStep(std::int16_t iStep) {
  if (iStep < 0 || iStep >= static_cast<std::int16_t>(cmdStep.size())) {
    throw forms::Error(forms::errors::indexOutOfRange,
                       "The list of steps has no step " + std::to_string(iStep) + ".");
  }
  m_iCurrentStep = iStep;
  ShowCurrentStep();
}

void ctlSteps::SetSelectedFont(const forms::Font& font) {
  m_fntSelected = font;
  ShowCurrentStep();
}

void ctlSteps::SetNormalFont(const forms::Font& font) {
  m_fntNormal = font;
  ShowCurrentStep();
}

/// The list is one stop of Tab, at the current step; the arrows go on from there.
void ctlSteps::ShowCurrentStep() {
  for (std::size_t i = 0; i < cmdStep.size(); ++i) {
    const bool bCurrent = static_cast<std::int16_t>(i) == m_iCurrentStep;
    cmdStep[i]->setFont(bCurrent ? m_fntSelected : m_fntNormal);
    cmdStep[i]->setTabStop(bCurrent);
  }
}

void ctlSteps::cmdStep_KeyDown(std::int16_t iStep, forms::KeyDown& key) {
  if (key.code != forms::keys::up && key.code != forms::keys::down) return;
  const int iNext = iStep + (key.code == forms::keys::down ? 1 : -1);
  key.code = 0;
  if (iNext < 0 || iNext >= static_cast<int>(cmdStep.size()) || !form()) return;
  form()->focus().moveByUser(*cmdStep[static_cast<std::size_t>(iNext)]);
}

void ctlSteps::LayOut() {
  forms::Twips lNext = lTop;
  for (const auto& cmdOne : cmdStep) {
    cmdOne->setBounds({lMargin, lNext, bounds().width - 2 * lMargin, lStepHeight});
    lNext += lStepHeight;
  }
}

}  // namespace host
