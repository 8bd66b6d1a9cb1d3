#include "host/DeviceCommands.h"

#include "forms/Guard.h"
#include "host/Numbers.h"

namespace host {

DeviceCommands::DeviceCommands(forms::Container& container, std::string strName)
    : UserControl(container, std::move(strName)) {
  cboCommands.click.connect([this] { cboCommands_Click(); });
  resized.connect([this] { cboCommands.setBounds({0, 0, bounds().width, bounds().height}); });
}

void DeviceCommands::cboCommands_Click() {
  if (!m_bSilent) CommandChanged.raise();
}

void DeviceCommands::SetEmptyText(const std::string& strText) {
  m_strEmptyText = strText;
  if (m_bOfferEmpty) cboCommands.setText(0, strText);
}

void DeviceCommands::LoadCommands(const Device& oDevice, const std::string& strSelected,
                                  const LoadCommandsFlags& flags) {
  cboCommands.clear();
  m_bOfferEmpty = flags.bOfferEmpty;
  if (m_bOfferEmpty) cboCommands.add(m_strEmptyText);
  for (const auto& oCommand : oDevice.GetCommandList(directionInput, signalDigital)->Items()) {
    cboCommands.add(oCommand->get_Name(), pictureSmallCommand);
  }
  SelectCommand(strSelected);
  CommandChanged.raise();
}

void DeviceCommands::SelectCommand(const std::string& strCommand) {
  const forms::Guard guard(m_bSilent);
  if (strCommand.empty()) {
    cboCommands.setSelected(m_bOfferEmpty ? 0 : -1);
    return;
  }
  for (std::int32_t i = FirstCommand(); i < cboCommands.count(); ++i) {
    if (cboCommands.text(i) == strCommand) return cboCommands.setSelected(i);
  }
  cboCommands.add(strCommand, pictureSmallCommand);
  cboCommands.setSelected(cboCommands.count() - 1);
}

void DeviceCommands::put_Text(const std::string& strText) {
  const forms::Guard guard(m_bSilent);
  cboCommands.setSelected(cboCommands.find(strText));
}

std::string DeviceCommands::get_SelectedCommand() const {
  return cboCommands.selected() < FirstCommand() ? std::string() : cboCommands.shownText();
}

}  // namespace host
