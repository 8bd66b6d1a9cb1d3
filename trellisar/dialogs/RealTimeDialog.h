#pragma once

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "trellisar/dialogs/HostForm.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// Shows the audio settings of a receiver as they stand in the system.
class RealTimeDialog : public HostForm {
 public:
  explicit RealTimeDialog(const DeviceData& receiver);

  /// Shows the window over the active form until the user closes it.
  void run();

  forms::Label lblReceiver{*this, "lblReceiver"};
  forms::ListView lvwSettings{*this, "lvwSettings"};
  forms::CommandButton cmdClose{*this, "cmdClose", "Close"};
};

}  // namespace trellisar
