#include "trellisar/communication/AddressBookDialog.h"

#include <algorithm>
#include <utility>

#include "forms/Numbers.h"
#include "forms/Text.h"
#include "receiver/Address.h"
#include "receiver/Error.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 6600;
constexpr forms::Twips listHeight = 1900;
constexpr std::int32_t longestName = 50;
constexpr std::int32_t longestAddress = 270;

std::int32_t toRow(std::size_t place) { return forms::toInt32(static_cast<double>(place)); }

}  // namespace

AddressBookDialog::AddressBookDialog(Preferences& preferences, std::function<void()> help)
    : CommunicationDialog("AddressBookDialog", "Communication Settings", std::move(help)),
      preferences_(preferences),
      book_(preferences.addressBook()) {
  lvwReceivers.setColumns({"Name", "Address", "State"});
  txtName.setMaxLength(longestName);
  txtAddress.setMaxLength(longestAddress);
  lvwReceivers.itemClick.connect([this] { rowSelected(); });
  lvwReceivers.doubleClick.connect([this] { use(); });
  cmdAdd.click.connect([this] { add(); });
  cmdChange.click.connect([this] { change(); });
  cmdRemove.click.connect([this] { remove(); });
  cmdUse.click.connect([this] { use(); });
  // With the longest text that lblInUse gets.
  layOutAbove(dialogWidth,
              {forms::names(lblReceivers, lvwReceivers), forms::rest(lvwReceivers, listHeight),
               forms::rest(lblInUse),
               forms::columns({{forms::names(lblName, txtName), forms::rest(txtName)},
                               {forms::names(lblAddress, txtAddress), forms::rest(txtAddress)}}),
               forms::row({forms::spring(), forms::item(cmdAdd), forms::item(cmdChange),
                           forms::item(cmdRemove), forms::item(cmdUse)})});
  show(book_.receivers.empty() ? -1 : toRow(book_.current));
}

void AddressBookDialog::show(std::int32_t row) {
  lvwReceivers.clear();
  for (const NamedAddress& receiver : book_.receivers) {
    lvwReceivers.addRow(
        {receiver.name, receiver.address, &receiver == book_.inUse() ? "In use" : ""});
  }
  lvwReceivers.setSelectedRow(row);
  rowSelected();
  const NamedAddress* inUse = book_.inUse();
  lblInUse.setCaption(inUse ? "Systems are sent to \"" + inUse->name + "\"." : textOfEmptyBook);
}

void AddressBookDialog::rowSelected() {
  const NamedAddress* receiver = selected();
  txtName.setText(receiver ? receiver->name : "");
  txtAddress.setText(receiver ? receiver->address : "");
  cmdChange.setEnabled(receiver != nullptr);
  cmdRemove.setEnabled(receiver != nullptr);
  cmdUse.setEnabled(receiver != nullptr);
}

NamedAddress* AddressBookDialog::selected() {
  const std::int32_t row = lvwReceivers.selectedRow();
  return row < 0 ? nullptr : &book_.receivers[static_cast<std::size_t>(row)];
}

NamedAddress AddressBookDialog::typed() const {
  return {forms::trimmed(txtName.text()), forms::trimmed(txtAddress.text())};
}

bool AddressBookDialog::check(const NamedAddress* replaced) {
  const NamedAddress entry = typed();
  if (entry.name.empty()) {
    return refuse(txtName, "The receiver has no name. Type one, such as the room's.");
  }
  const bool isTaken = std::ranges::any_of(book_.receivers, [&](const NamedAddress& other) {
    return &other != replaced && forms::equalsIgnoringCase(other.name, entry.name);
  });
  if (isTaken) {
    return refuse(txtName, "A receiver with the name \"" + entry.name +
                               "\" is in the list already. Type another name, or select that "
                               "receiver and click Change.");
  }
  try {
    static_cast<void>(receiver::Address::parse(entry.address));
  } catch (const receiver::Error& error) {
    return refuse(txtAddress, error.what());
  }
  return true;
}

bool AddressBookDialog::add() {
  if (!check(nullptr)) return false;
  book_.receivers.push_back(typed());
  show(toRow(book_.receivers.size() - 1));
  return true;
}

void AddressBookDialog::change() {
  NamedAddress* receiver = selected();
  if (!check(receiver)) return;
  *receiver = typed();
  show(lvwReceivers.selectedRow());
}

/// Where the one in use is removed, the one that takes its place in the list is in use.
void AddressBookDialog::remove() {
  const auto place = static_cast<std::size_t>(lvwReceivers.selectedRow());
  book_.receivers.erase(book_.receivers.begin() + lvwReceivers.selectedRow());
  const std::size_t count = book_.receivers.size();
  if (book_.current > place || book_.current == count) {
    book_.current -= std::min<std::size_t>(book_.current, 1);
  }
  if (count == 0) txtName.setFocus();
  show(toRow(std::min(place + 1, count)) - 1);
}

void AddressBookDialog::use() {
  if (lvwReceivers.selectedRow() < 0) return;
  book_.current = static_cast<std::size_t>(lvwReceivers.selectedRow());
  show(lvwReceivers.selectedRow());
}

bool AddressBookDialog::accept() {
  const NamedAddress* receiver = selected();
  const NamedAddress wanted = typed();
  if (!receiver && wanted != NamedAddress() && !add()) return false;
  if (receiver && wanted != *receiver) {
    return refuse(txtName, "\"" + wanted.name +
                               "\" is not in the list yet. Click Add to put it there, or Change to "
                               "put it in the place of \"" +
                               receiver->name + "\".");
  }
  preferences_.setAddressBook(book_);
  return true;
}

}  // namespace trellisar
