#pragma once

#include <cstdint>
#include <string>

#include "forms/UserControl.h"

namespace host {

/// The typed contract of a wizard step. A step also has members that are called by name, any of
/// which it may lack: SetData, SetEnabled, BeforeTabChange(bCancel), OtherTabClicked, SetContainer.
class iTab {
 public:
  virtual ~iTab() = default;
  /// The caption of the step's page, and its text in the list of steps.
  virtual std::string iTab_GetTabName() const = 0;
  virtual std::string iTab_GetName() const = 0;
  /// The number of the page's picture; 0: none.
  virtual std::int16_t iTab_GetTabIcon() const = 0;
  virtual std::int16_t iTab_GetIcon() const = 0;
  virtual std::int16_t iTab_GetHelpContextID() const = 0;
  virtual void iTab_SetID(std::int32_t lID) = 0;
  /// The system is about to be saved. The result is not looked at.
  virtual bool iTab_SaveData() = 0;
  virtual bool iTab_VerifyData(bool bShowMessage) = 0;
  /// The step was entered.
  virtual void iTab_TabClicked() = 0;
};

/// The typed contract of a step. Raises Error 13 for a control that is no step.
iTab& AsTab(forms::UserControl& oStep);

}  // namespace host
