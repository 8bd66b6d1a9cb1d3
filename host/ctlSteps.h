#pragma once

#include <memory>
#include <vector>

#include "forms/CommandButton.h"
#include "forms/UserControl.h"

namespace host {

/// The list of a wizard's steps: all names, the current one in the selected font. Steps count from
/// 0. A user clicks a name, or goes to it with the arrows and presses Space or Enter.
class ctlSteps : public forms::UserControl {
 public:
  ctlSteps(forms::Container& container, std::string strName);

  /// How many steps there will be; a step beyond it is shown all the same once it has a text.
  void put_StepCount(std::int16_t iCount);
  void SetStepText(const std::string& strText, std::int16_t iStep);
  /// Raises Error 9 for a step that there is not.
  void SetCurrentStep(std::int16_t iStep);
  void SetSelectedFont(const forms::Font& font);
  void SetNormalFont(const forms::Font& font);

  forms::Event<std::int16_t&> OnStepClicked;

 private:
  void EnsureStep(std::int16_t iStep);
  void ShowCurrentStep();
  void cmdStep_KeyDown(std::int16_t iStep, forms::KeyDown& key);
  void LayOut();

  std::vector<std::unique_ptr<forms::CommandButton>> cmdStep;
  std::int16_t m_iCurrentStep = 0;
  forms::Font m_fntSelected;
  forms::Font m_fntNormal;
};

}  // namespace host
