#include "steps/NumberBox.h"

#include "addin/modGlobals.h"
#include "common/CommonFunctions.h"
#include "forms/Numbers.h"
#include "steps/WizardStep.h"

namespace steps {

void NumberBox::Hold(NumberSetting setting) {
  m_setting = std::move(setting);
  validate.connect([this](bool& Cancel) { Validate(Cancel); });
  if (m_setting.bStoredByEnter) WizardStep::OnEnter(*this, [this] { Store(); });
}

void NumberBox::Store() {
  bool Cancel = false;  // no focus moves, so there is nothing to refuse
  Validate(Cancel);
}

void NumberBox::ShowStored() { setText(forms::decimal(m_setting.Get())); }

void NumberBox::Validate(bool& Cancel) {
  if (m_setting.range) CheckRange(Cancel);
  if (Cancel) return;
  const auto sngNumber = static_cast<float>(forms::leadingNumber(text()));
  if (sngNumber != m_setting.Get()) {
    m_setting.Put(sngNumber);
    addin::gDocument().MarkChanged();
  }
  ShowStored();
  if (m_setting.Stored) m_setting.Stored();
}

void NumberBox::CheckRange(bool& Cancel) {
  common::ValueRange range;
  range.sLabel = m_setting.range->strLabel;
  range.iMax = m_setting.range->iMax;
  range.bReset = root().activeControl() != this || *m_setting.range->pSaving;
  setText(common::CheckValueRange(text(), range, Cancel));
}

}  // namespace steps
