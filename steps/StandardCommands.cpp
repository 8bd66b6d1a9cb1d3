#include "steps/StandardCommands.h"

#include <algorithm>

#include "addin/modGlobals.h"
#include "forms/Numbers.h"

namespace steps {
namespace {

std::int16_t GetStandardID(const host::DeviceCommands& ctlSelector) {
  return forms::toInt16(forms::leadingNumber(ctlSelector.tag()));
}

}  // namespace

void SetStandardID(host::DeviceCommands& ctlSelector, std::int16_t iStandardID) {
  ctlSelector.setTag(forms::decimal(iStandardID));
}

void LoadStandardCommand(host::DeviceCommands& ctlSelector, const host::Device& oDevice) {
  ctlSelector.SetEmptyText("[ Unassigned ]");
  const std::string strID = forms::decimal(GetStandardID(ctlSelector));
  ctlSelector.LoadCommands(oDevice, oDevice.GetCommandName(strID), host::commandsWithEmpty);
}

bool StoreStandardCommand(const host::DeviceCommands& ctlSelector, const host::Device& oDevice) {
  const std::int16_t iStandardID = GetStandardID(ctlSelector);
  const auto colCommands = oDevice.get_StandardCommands();
  const auto it = std::find_if(colCommands.begin(), colCommands.end(), [&](const auto& oCommand) {
    return oCommand->get_StandardID() == iStandardID ||
           oCommand->get_Name() == forms::decimal(iStandardID);
  });
  if (it == colCommands.end()) return false;
  const std::string strSelected = ctlSelector.get_SelectedCommand();
  if (strSelected != (*it)->get_CommandName()) {
    (*it)->put_CommandName(strSelected);
    addin::gDocument().MarkChanged();
  }
  return true;
}

}  // namespace steps
