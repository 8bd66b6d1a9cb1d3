#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/CheckBox.h"
#include "forms/Geometry.h"
#include "forms/Label.h"
#include "forms/Picture.h"
#include "forms/TextBox.h"
#include "forms/UserControl.h"
#include "host/Device.h"
#include "host/iTab.h"

namespace steps {

/// The part of a step that the window shows, in twips from the step's own corner: the strip's
/// headers hide what is above, the window's edge what is at the right.
inline constexpr forms::Rect pageArea{60, 340, 6900, 5500};

/// The size at which a page shows a picture of the large list, and a box for a number.
inline constexpr forms::Size sizeOfPicture{480, 480};
inline constexpr forms::Twips lNumberBoxWidth = 570;

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

  /// What Enter does in a box; the key still does what it does elsewhere.
  static void OnEnter(forms::TextBox& box, const std::function<void()>& action);

 protected:
  /// What a step holds that is stored only later, in texts of its own.
  using UnsavedTexts = std::vector<std::string>;
  /// For a step that holds any: how it tells it, empty for none, and takes it again.
  void KeepsUnsaved(std::function<UnsavedTexts()> Get,
                    std::function<void(const UnsavedTexts&)> Resume);
  static std::string Tick(const forms::CheckBox& box) { return box.isChecked() ? "1" : "0"; }
  static void PutTick(forms::CheckBox& box, const std::string& strTick) {
    box.setChecked(strTick == "1");
  }

  /// The heading at the top of a page.
  static void MakeBanner(forms::Label& lblBanner);
  /// The heading of the first and the last page, which is the add-in's title.
  static void MakeTitle(forms::Label& lblBanner);
  /// After the page was laid out: a long title takes two lines.
  static void FitTitle(forms::Label& lblBanner);

  /// A picture of the large list by its number.
  static const forms::Picture& LargePicture(std::int32_t iPicture);

  /// A message that informs and refuses nothing.
  static void Inform(const std::string& strText);

  /// The display; nothing while none is chosen.
  static std::shared_ptr<host::Device> FindDisplay();

  /// From a save until the step is filled again.
  bool m_bSaving = false;

 private:
  std::string m_strTabName;
  std::int16_t m_iHelpContextID;
};

}  // namespace steps
