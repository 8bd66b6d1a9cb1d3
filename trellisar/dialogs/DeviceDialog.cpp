#include "trellisar/dialogs/DeviceDialog.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <utility>

#include "forms/Numbers.h"
#include "forms/Text.h"
#include "host/Numbers.h"
#include "trellisar/dialogs/HelpTopics.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 9000;
constexpr forms::Twips listHeight = 3600;
constexpr forms::Twips descriptionHeight = 600;
constexpr const char* allMakers = "All makers";
const std::vector<std::string> headings{"Device", "Maker", "Port", "Power control"};

/// The commands by which a program turns the device on and off, or moves it: "On, Off".
std::string powerControl(const Definition& device) {
  constexpr std::pair<std::int16_t, const char*> commands[] = {
      {host::scOn, "On"}, {host::scOff, "Off"}, {host::scDown, "Down"}, {host::scUp, "Up"}};
  std::string found;
  for (const auto& [id, name] : commands) {
    if (!device.defaultCommand(id).empty())
      found += (found.empty() ? "" : ", ") + std::string(name);
  }
  if (device.secondOff) found += ", second Off";
  return found.empty() ? "None" : found;
}

}  // namespace

DeviceDialog::DeviceDialog(const std::string& title, std::vector<DefinitionPtr> offered,
                           const DefinitionPtr& current)
    : Dialog("DeviceDialog", title, help::chooseDevice) {
  for (const DefinitionPtr& device : offered) {
    rows_.push_back(
        {device,
         {device->name, device->maker, connectionName(device->connection), powerControl(*device)}});
  }
  if (current) selected_ = current->name;
  lvwDevices.setColumns(headings);
  for (const std::string& heading : headings) cboSort.add(heading);
  cboSort.setSelected(0);
  fillMakers();
  sort();
  connect();
  layOutAbove(dialogWidth,
              {forms::columns({{forms::names(lblFind, txtFind), forms::rest(txtFind)}}),
               forms::row({forms::names(lblMaker, cboMaker), forms::rest(cboMaker),
                           forms::names(lblSort, cboSort), forms::item(cboSort)}),
               forms::names(lblDevices, lvwDevices), forms::rest(lvwDevices, listHeight),
               forms::rest(lblDescription, descriptionHeight)});
}

void DeviceDialog::connect() {
  txtFind.change.connect([this] { listFound(); });
  cboMaker.click.connect([this] { listFound(); });
  cboSort.click.connect([this] { sort(); });
  lvwDevices.headingClick.connect([this](std::int32_t column) {
    cboSort.setSelected(column);
    sort();
  });
  lvwDevices.itemClick.connect([this] {
    selected_ = lvwDevices.text(lvwDevices.selectedRow(), 0);
    deviceSelected();
  });
  lvwDevices.doubleClick.connect([this] { end(); });
}

void DeviceDialog::fillMakers() {
  cboMaker.add(allMakers);
  for (const Row& row : rows_) {
    const std::string& maker = row.device->maker;
    if (!maker.empty() && cboMaker.find(maker) < 0) cboMaker.add(maker);
  }
  cboMaker.setSelected(0);
}

void DeviceDialog::sort() {
  const auto column = static_cast<std::size_t>(cboSort.selected());
  std::ranges::stable_sort(rows_, [column](const Row& one, const Row& other) {
    const int order = forms::compareIgnoringCase(one.texts[column], other.texts[column]);
    return order != 0 ? order < 0 : forms::compareIgnoringCase(one.texts[0], other.texts[0]) < 0;
  });
  lvwDevices.setSortedColumn(cboSort.selected());
  listFound();
}

void DeviceDialog::listFound() {
  lvwDevices.clear();
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const auto& texts = rows_[i].texts;
    if (isLookedFor(rows_[i])) {
      lvwDevices.addRow({texts.begin(), texts.end()}, forms::toInt32(static_cast<double>(i)));
    }
  }
  selectAgain();
}

/// Each word is found somewhere, so that they can be typed in any order.
bool DeviceDialog::isLookedFor(const Row& row) const {
  if (cboMaker.selected() > 0 && row.device->maker != cboMaker.text(cboMaker.selected())) {
    return false;
  }
  std::string all = row.device->description;
  for (const std::string& text : row.texts) all += " " + text;
  std::istringstream words(forms::lowerCase(txtFind.text()));
  return std::all_of(std::istream_iterator<std::string>(words), {},
                     [text = forms::lowerCase(all)](const std::string& word) {
                       return text.find(word) != std::string::npos;
                     });
}

void DeviceDialog::selectAgain() {
  const bool isFinding = !forms::trimmed(txtFind.text()).empty();
  std::int32_t found = isFinding && lvwDevices.rowCount() > 0 ? 0 : -1;
  for (std::int32_t row = 0; row < lvwDevices.rowCount(); ++row) {
    if (lvwDevices.text(row, 0) == selected_) found = row;
  }
  const std::string kept = selected_;
  lvwDevices.setSelectedRow(found);
  selected_ = kept;
  deviceSelected();
}

void DeviceDialog::deviceSelected() {
  const DefinitionPtr device = chosen();
  lblDescription.setCaption(device ? device->description
                            : lvwDevices.rowCount() == 0
                                ? "No device has all of these words. Type fewer, or another maker."
                                : "Select the device that stands in the room.");
  cmdOK.setEnabled(device != nullptr);
}

DefinitionPtr DeviceDialog::chosen() const {
  const std::int32_t row = lvwDevices.selectedRow();
  return row < 0 ? nullptr : rows_[static_cast<std::size_t>(lvwDevices.data(row))].device;
}

}  // namespace trellisar
