#include "app/AddIn.h"

#include "app/Environment.h"
#include "trellisar/window/AddIns.h"

namespace app {
namespace {

constexpr const char* className = "AddInOrlena.IAddIn";

}  // namespace

AddIn::AddIn(trellisar::Host& host)
    : host_(host), contract_(trellisar::createAddIn(componentsFile(), className)) {}

void openUnattended(trellisar::Host& host) {
  host.preferences() = readOnlyPreferences();
  AddIn addIn(host);
  if (host.document()) {
    addIn.runOnOpenSystem();
  } else {
    addIn.runOnNewSystem();
  }
}

void AddIn::runOnNewSystem() { trellisar::runOnNewSystem(*contract_, host_); }

void AddIn::runOnOpenSystem() { trellisar::runOnOpenSystem(*contract_, host_); }

}  // namespace app
