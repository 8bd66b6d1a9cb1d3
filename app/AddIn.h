#pragma once

#include <memory>

#include "host/IAddInContract.h"
#include "trellisar/window/Host.h"

namespace app {

/// The add-in, as a host has it: created by its class name and handed what the host offers.
class AddIn {
 public:
  /// Raises forms::Error when its component is missing, is none, or has no such class.
  explicit AddIn(trellisar::Host& host);

  /// Runs the wizard on a new system and returns when its window has closed.
  void runOnNewSystem();
  /// As above, on the system that is open in the host.
  void runOnOpenSystem();

 private:
  trellisar::Host& host_;
  std::shared_ptr<host::IAddInContract> contract_;
};

/// Runs the wizard in a host that nobody watches: on its open system or, where none is, on a new
/// one. The default folder comes from the preferences, in which no trace is left.
void openUnattended(trellisar::Host& host);

}  // namespace app
