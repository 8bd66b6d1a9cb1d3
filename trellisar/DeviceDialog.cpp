#include "trellisar/DeviceDialog.h"

#include <algorithm>
#include <utility>

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 6000;
constexpr forms::Twips listHeight = 3600;
constexpr forms::Twips descriptionHeight = 900;
constexpr const char* allMakers = "All makers";

}  // namespace

DeviceDialog::DeviceDialog(const std::string& title, std::vector<DefinitionPtr> offered,
                           const DefinitionPtr& current)
    : Dialog("DeviceDialog", title), offered_(std::move(offered)) {
  fillMakers();
  fillDevices();
  select(current);
  deviceSelected();
  cboMaker.click.connect([this] { fillDevices(); });
  lstDevices.click.connect([this] { deviceSelected(); });
  lstDevices.doubleClick.connect([this] { end(); });
  layOutAbove(dialogWidth, {forms::columns({{forms::item(lblMaker), forms::rest(cboMaker)}}),
                            forms::item(lblDevices), forms::rest(lstDevices, listHeight),
                            forms::rest(lblDescription, descriptionHeight)});
}

void DeviceDialog::fillMakers() {
  cboMaker.add(allMakers);
  for (const DefinitionPtr& device : offered_) {
    if (!device->maker.empty() && cboMaker.find(device->maker) < 0) cboMaker.add(device->maker);
  }
  cboMaker.setSelected(0);
}

void DeviceDialog::fillDevices() {
  lstDevices.clear();
  const bool isAll = cboMaker.selected() <= 0;
  for (std::size_t i = 0; i < offered_.size(); ++i) {
    const bool isShown = isAll || offered_[i]->maker == cboMaker.text(cboMaker.selected());
    if (isShown) lstDevices.add(offered_[i]->name, static_cast<std::int32_t>(i));
  }
  deviceSelected();
}

void DeviceDialog::select(const DefinitionPtr& device) {
  for (std::int32_t place = 0; device && place < lstDevices.count(); ++place) {
    if (lstDevices.text(place) == device->name) lstDevices.setSelected(place);
  }
}

void DeviceDialog::deviceSelected() {
  const DefinitionPtr device = chosen();
  lblDescription.setCaption(device ? device->description
                                   : "Select the device that stands in the room.");
  cmdOK.setEnabled(device != nullptr);
}

DefinitionPtr DeviceDialog::chosen() const {
  if (lstDevices.selected() < 0) return nullptr;
  return offered_[static_cast<std::size_t>(lstDevices.data(lstDevices.selected()))];
}

}  // namespace trellisar
