#pragma once

#include "forms/Object.h"

namespace addin {

/// The window that makes the projects of the touch panels while it is shown, by
/// IAddIn::CreateTouchpanelProjects.
class TouchpanelWindow : public forms::Object {
 public:
  /// Shows the window over the active form and returns when its work is done and its messages have
  /// been seen.
  virtual void ShowModal() = 0;
  virtual void Unload() = 0;
};

inline constexpr const char* progIDTouchpanelWindow = "AddInOrlena.frmBuildPanels";

}  // namespace addin
