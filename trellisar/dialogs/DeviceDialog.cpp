#include "trellisar/dialogs/DeviceDialog.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <unordered_set>
#include <utility>

#include "forms/Text.h"
#include "trellisar/dialogs/HelpTopics.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 9000;
constexpr forms::Twips listHeight = 3600;
constexpr forms::Twips descriptionHeight = 600;
constexpr const char* allMakers = "All makers";
constexpr std::int32_t columnCount = 4;
const std::vector<std::string> headings{"Device", "Maker", "Port", "Power control"};

/// "On, Off": the commands by which a program turns the device on and off, or moves it.
std::string powerText(const PowerControl& power) {
  const std::pair<bool, const char*> words[] = {{power.on, "On"},
                                                {power.off, "Off"},
                                                {power.down, "Down"},
                                                {power.up, "Up"},
                                                {power.secondOff, "second Off"}};
  std::string found;
  for (const auto& [has, word] : words) {
    if (!has) continue;
    if (!found.empty()) found += ", ";
    found += word;
  }
  return found.empty() ? "None" : found;
}

std::string textOf(const ListedDefinition& device, std::int32_t column) {
  switch (column) {
    case 0:
      return std::string(device.name);
    case 1:
      return std::string(device.maker);
    case 2:
      return connectionName(device.connection);
    default:
      return powerText(device.power);
  }
}

/// The ranks stand beside one another, since there may be many devices.
void sortByName(std::vector<const ListedDefinition*>& devices) {
  std::vector<std::pair<std::int32_t, const ListedDefinition*>> ranked;
  ranked.reserve(devices.size());
  for (const ListedDefinition* device : devices) ranked.emplace_back(device->rank, device);
  std::ranges::sort(ranked, {}, [](const auto& each) { return each.first; });
  std::ranges::transform(ranked, devices.begin(), [](const auto& each) { return each.second; });
}

}  // namespace

DeviceDialog::DeviceDialog(const std::string& title, const DeviceLibrary& library,
                           std::vector<const ListedDefinition*> offered,
                           const DefinitionPtr& current)
    : Dialog("DeviceDialog", title, help::chooseDevice),
      library_(library),
      devices_(std::move(offered)) {
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
  std::unordered_set<std::string_view> added;
  for (const ListedDefinition* device : devices_) {
    const std::string_view maker = device->maker;
    if (!maker.empty() && added.insert(maker).second) cboMaker.add(std::string(maker));
  }
  cboMaker.setSelected(0);
}

void DeviceDialog::sort() {
  const std::int32_t column = cboSort.selected();
  sortByName(devices_);
  if (column != 0) {
    std::ranges::stable_sort(
        devices_, [column](const ListedDefinition* one, const ListedDefinition* other) {
          return forms::compareIgnoringCase(textOf(*one, column), textOf(*other, column)) < 0;
        });
  }
  lvwDevices.setSortedColumn(column);
  listFound();
}

void DeviceDialog::listFound() {
  std::vector<std::int32_t> found;
  for (std::size_t i = 0; i < devices_.size(); ++i) {
    if (isLookedFor(*devices_[i])) found.push_back(static_cast<std::int32_t>(i));
  }
  lvwDevices.setRows(found, [this](std::int32_t device, std::int32_t column) {
    return textOf(*devices_[static_cast<std::size_t>(device)], column);
  });
  selectAgain();
}

/// Each word is found somewhere, so that they can be typed in any order.
bool DeviceDialog::isLookedFor(const ListedDefinition& device) const {
  if (cboMaker.selected() > 0 && device.maker != cboMaker.text(cboMaker.selected())) return false;
  if (txtFind.text().empty()) return true;
  std::string all = library_.definition(device)->description;
  for (std::int32_t i = 0; i < columnCount; ++i) all.append(" ").append(textOf(device, i));
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
    if (deviceAt(row).name == selected_) found = row;
  }
  const std::string kept = selected_;
  lvwDevices.setSelectedRow(found);
  selected_ = kept;
  deviceSelected();
}

void DeviceDialog::deviceSelected() {
  const ListedDefinition* device = selectedDevice();
  lblDescription.setCaption(device ? library_.definition(*device)->description
                            : lvwDevices.rowCount() == 0
                                ? "No device has all of these words. Type fewer, or another maker."
                                : "Select the device that stands in the room.");
  cmdOK.setEnabled(device != nullptr);
}

const ListedDefinition& DeviceDialog::deviceAt(std::int32_t row) const {
  return *devices_[static_cast<std::size_t>(lvwDevices.data(row))];
}

const ListedDefinition* DeviceDialog::selectedDevice() const {
  const std::int32_t row = lvwDevices.selectedRow();
  return row < 0 ? nullptr : &deviceAt(row);
}

DefinitionPtr DeviceDialog::chosen() const {
  const ListedDefinition* device = selectedDevice();
  return device ? library_.definition(*device) : nullptr;
}

}  // namespace trellisar
