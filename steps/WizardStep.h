#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "forms/Geometry.h"
#include "forms/Label.h"
#include "forms/UserControl.h"
#include "host/Device.h"
#include "host/iTab.h"

namespace steps {

/// The part of a step that the window shows, in twips from the step's own corner: the strip's
/// headers hide what is above, the window's edge what is at the right.
inline constexpr forms::Rect pageArea{60, 340, 6900, 5500};

/// What all steps answer alike. A step shows an icon nowhere and stores no id.
class WizardStep : public forms::UserControl, public host::iTab {
 public:
  WizardStep(forms::Container& container, std::string strName, std::string strTabName,
             std::int16_t iHelpContextID);

  std::string iTab_GetTabName() const override { return m_strTabName; }
  std::string iTab_GetName() const override { return ""; }
  std::int16_t iTab_GetTabIcon() const override { return 0; }
  std::int16_t iTab_GetIcon() const override { return 0; }
  std::int16_t iTab_GetHelpContextID() const override { return m_iHelpContextID; }
  void iTab_SetID(std::int32_t) override {}

 protected:
  /// The heading at the top of a page.
  static void MakeBanner(forms::Label& lblBanner);

  /// The display; nothing while none is chosen.
  static std::shared_ptr<host::Device> FindDisplay();

 private:
  std::string m_strTabName;
  std::int16_t m_iHelpContextID;
};

/// A step that asks nothing.
class TabEmpty : public WizardStep {
 public:
  TabEmpty(forms::Container& container, std::string strName, std::string strTabName,
           std::int16_t iHelpContextID);

  bool iTab_SaveData() override { return false; }
  bool iTab_VerifyData(bool) override { return true; }
  void iTab_TabClicked() override {}

 private:
  forms::Label lblBanner{*this, "lblBanner"};
};

}  // namespace steps
