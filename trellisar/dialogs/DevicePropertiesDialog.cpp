#include "trellisar/dialogs/DevicePropertiesDialog.h"
#include "trellisar/dialogs/Messages.h"

#include <algorithm>

#include "forms/Application.h"
#include "host/Numbers.h"
#include "trellisar/dialogs/HelpTopics.h"
#include "trellisar/document/Provisioning.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 6600;
constexpr forms::Twips pagesHeight = 3900;
constexpr forms::Twips headerHeight = 420;
constexpr forms::Twips pageMargin = 150;
constexpr forms::Twips listHeight = 1900;
constexpr std::int16_t offeredPorts = 8;

struct PageOfDialog {
  const char* programId;
  const char* caption;
};
constexpr PageOfDialog pagesOfDialog[] = {{host::progIDPageBasic, "Basic"},
                                          {host::progIDPageIOAssignment, "IO Assignment"},
                                          {host::progIDPageProperties, "Properties"}};

std::string whatItTakes(const PropertyDefinition& property) {
  switch (property.type) {
    case PropertyDefinition::Type::text:
      return property.maxLength
                 ? "A text of at most " + std::to_string(*property.maxLength) + " characters."
                 : "Any text.";
    case PropertyDefinition::Type::integer:
      return "A whole number from " + std::to_string(property.minimum) + " to " +
             std::to_string(property.maximum) + ".";
    case PropertyDefinition::Type::constant:
      break;
  }
  std::string choices;
  for (const std::string& choice : property.choices) {
    choices += (choices.empty() ? "\"" : ", \"") + choice + "\"";
  }
  return "One of " + choices + ".";
}

}  // namespace

DevicePropertiesDialog::DevicePropertiesDialog(DocumentPtr document, DevicePtr device,
                                               const std::vector<std::string>& pages)
    : Dialog("DeviceProperties", "Properties of " + device->name, help::deviceProperties),
      document_(std::move(document)),
      device_(std::move(device)) {
  lvwProperties.setColumns({"Property", "Value"});
  lvwProperties.setAccessibleName("Properties");
  lvwProperties.itemClick.connect([this] { propertySelected(); });
  cmdSet.click.connect([this] {
    if (!takeValue()) txtValue.setFocus();
  });
  cboValue.nameBy(lblValue);
  cboValue.click.connect([this] {
    lvwProperties.setText(lvwProperties.selectedRow(), 1, cboValue.text(cboValue.selected()));
  });
  fill();
  fillPorts();
  showPages(pages);
  place();
}

void DevicePropertiesDialog::showPages(const std::vector<std::string>& pages) {
  tabPages.setTabStop(true);
  tabPages.setAccessibleName("Pages");
  forms::Frame* const frames[] = {&fraBasic, &fraAssignment, &fraProperties};
  std::int16_t first = -1;
  for (std::int16_t page = 0; page < forms::TabStrip::pageCount; ++page) {
    const auto place = static_cast<std::size_t>(page);
    bool isShown = false;
    if (place < std::size(pagesOfDialog)) {
      tabPages.setCurrentPage(page);
      tabPages.setPageCaption(page, pagesOfDialog[place].caption);
      frames[place]->setBorder(false);
      frames[place]->setContainer(tabPages);
      isShown =
          std::find(pages.begin(), pages.end(), pagesOfDialog[place].programId) != pages.end();
    }
    tabPages.setPageVisible(page, isShown);
    if (isShown && first < 0) first = page;
  }
  tabPages.setCurrentPage(std::max<std::int16_t>(0, first));
}

void DevicePropertiesDialog::place() {
  const forms::Rect page{pageMargin, headerHeight, dialogWidth - 2 * pageMargin, pagesHeight};
  forms::layOut(page, {forms::box(fraBasic, {forms::columns({
                                                {forms::item(lblName), forms::rest(lblNameText)},
                                                {forms::item(lblType), forms::rest(lblTypeText)},
                                                {forms::names(lblDescription, txtDescription),
                                                 forms::rest(txtDescription)},
                                            })})});
  forms::layOut(page,
                {forms::box(fraAssignment,
                            {forms::columns({
                                {forms::names(lblPort, cboPort), forms::rest(cboPort)},
                                {forms::names(lblAddress, txtAddress), forms::rest(txtAddress)},
                            })})});
  forms::layOut(
      page,
      {forms::box(
          fraProperties,
          {forms::rest(lvwProperties, listHeight),
           forms::row({forms::names(lblValue, txtValue),
                       forms::either({forms::row({forms::rest(txtValue), forms::item(cmdSet)}),
                                      forms::rest(cboValue)})}),
           forms::rest(lblTakes)})});
  layOutAbove(dialogWidth, {forms::rest(tabPages, pagesHeight)});
}

void DevicePropertiesDialog::fill() {
  const Definition& definition = *device_->definition;
  lblNameText.setCaption(device_->name);
  lblTypeText.setCaption(definition.name);
  txtDescription.setText(device_->description);
  const bool isOnNetwork = definition.connection == Definition::Connection::network;
  lblAddress.setVisible(isOnNetwork);
  txtAddress.setVisible(isOnNetwork);
  txtAddress.setText(device_->address);
  for (const PropertyDefinition& property : definition.properties) {
    if (property.advanced) continue;
    properties_.push_back(&property);
    lvwProperties.addRow({property.name, *device_->findProperty(property.name)});
  }
  if (!properties_.empty()) lvwProperties.setSelectedRow(0);
  propertySelected();
}

void DevicePropertiesDialog::fillPorts() {
  DeviceData trial = *device_;
  for (std::int16_t port = 1; port <= offeredPorts || port <= device_->port; ++port) {
    if (!canTakePort(*document_, *device_, port)) continue;
    trial.port = port;
    ports_.push_back(port);
    cboPort.add(portText(trial));
    if (port == device_->port) cboPort.setSelected(cboPort.count() - 1);
  }
  cboPort.setEnabled(!ports_.empty());
}

const PropertyDefinition* DevicePropertiesDialog::selectedProperty() const {
  const std::int32_t row = lvwProperties.selectedRow();
  return row < 0 ? nullptr : properties_[static_cast<std::size_t>(row)];
}

void DevicePropertiesDialog::propertySelected() {
  const PropertyDefinition* property = selectedProperty();
  txtValue.setEnabled(property != nullptr);
  cmdSet.setEnabled(property != nullptr);
  cboValue.setVisible(false);
  if (!property) return;
  lblTakes.setCaption(whatItTakes(*property));
  showValue(*property, lvwProperties.text(lvwProperties.selectedRow(), 1));
}

/// What is one of a few is chosen and lands at once; anything else is typed and set.
void DevicePropertiesDialog::showValue(const PropertyDefinition& property,
                                       const std::string& value) {
  const bool isChosen = property.type == PropertyDefinition::Type::constant;
  cboValue.setVisible(isChosen);
  txtValue.setVisible(!isChosen);
  cmdSet.setVisible(!isChosen);
  txtValue.setText(value);
  if (!isChosen) return;
  cboValue.clear();
  for (const std::string& choice : property.choices) cboValue.add(choice);
  if (cboValue.find(value) < 0) cboValue.add(value);
  cboValue.setSelected(cboValue.find(value));
}

bool DevicePropertiesDialog::takeValue() {
  const PropertyDefinition* property = selectedProperty();
  if (!property || !txtValue.isVisible()) return true;
  if (!property->takes(txtValue.text())) {
    showFailure("\"" + txtValue.text() + "\" is no value for \"" + property->name + "\". " +
                whatItTakes(*property));
    return false;
  }
  lvwProperties.setText(lvwProperties.selectedRow(), 1, txtValue.text());
  return true;
}

bool DevicePropertiesDialog::accept() {
  if (!takeValue()) return false;
  if (device_->description != txtDescription.text()) {
    device_->description = txtDescription.text();
    document_->markLabelChanged();
  }
  device_->address = txtAddress.text();
  if (cboPort.selected() >= 0) {
    const std::int16_t port = ports_[static_cast<std::size_t>(cboPort.selected())];
    if (std::exchange(device_->port, port) != port) document_->markStructureChanged();
  }
  for (std::size_t row = 0; row < properties_.size(); ++row) {
    const std::string& value = lvwProperties.text(static_cast<std::int32_t>(row), 1);
    std::string& stored = *device_->findProperty(properties_[row]->name);
    if (std::exchange(stored, value) != value) document_->markStructureChanged();
  }
  return true;
}

}  // namespace trellisar
