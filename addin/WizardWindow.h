#pragma once

#include <cstdint>
#include <vector>

#include "forms/Form.h"
#include "forms/Object.h"
#include "forms/UserControl.h"
#include "host/UnsavedWork.h"

namespace addin {

/// What the add-in needs of the wizard's main window. Created as "AddInOrlena.frmAddIn".
class WizardWindow : public forms::Object {
 public:
  /// Shows the window over its owner (null: over nothing) and returns when it has closed.
  virtual void ShowModal(forms::Form* oOwner) = 0;
  /// 0 while the window isn't on a screen.
  virtual std::int32_t Hwnd() const = 0;

  /// The enabled state of the Finish button.
  virtual bool get_CanFinish() const = 0;
  virtual void put_CanFinish(bool bCanFinish) = 0;

  /// The steps in their order; the window owns them.
  virtual const std::vector<forms::UserControl*>& GetControls() const = 0;

  /// Whether the user has begun an edit that no step has been given yet.
  virtual bool HasOpenEdit() const = 0;
  /// Gives such an edit to its step, with all messages, as if the user had gone to the save button.
  virtual void TakeOpenEdit() = 0;

  /// Adds what the steps hold that a save would store, where the user is, and such an edit.
  virtual void TellUnsaved(host::UnsavedAnswers& unsaved) const = 0;
  /// Gives the steps back what they told, and goes on where the user was.
  virtual void ResumeWork(const host::Whereabouts& whereabouts) = 0;

  /// Goes to a step, which counts from 0, as a click on its name does.
  virtual void ShowStep(std::int16_t iStep) = 0;

  /// Calls `iTab_SaveData` on every step in order and looks at no result. Always True.
  virtual bool SaveData() = 0;
};

inline constexpr const char* progIDWizardWindow = "AddInOrlena.frmAddIn";

}  // namespace addin
