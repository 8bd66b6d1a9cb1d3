#include "steps/TabOrigination.h"

#include <algorithm>

#include "addin/Cast.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "common/CommonFunctions.h"
#include "forms/Application.h"
#include "forms/Guard.h"
#include "forms/Numbers.h"
#include "forms/Rows.h"
#include "forms/Text.h"
#include "host/Numbers.h"

namespace steps {
namespace {

using addin::gAddIn;
using addin::gDocument;
using addin::IsInSystem;

constexpr std::int32_t lPorts = 3;
constexpr std::int32_t lLabelColumn = 0;
constexpr std::int32_t lTypeColumn = 1;
constexpr std::int32_t lPortColumn = 2;
constexpr std::int32_t lLabelLength = 8;
constexpr std::int32_t lPortSuffixLength = 4;  // " OL1" at the end of a device's name

constexpr const char* strOnlyLabel = "Input";

std::string NumberedLabel(std::int32_t lNumber) { return "Input " + forms::decimal(lNumber); }

std::string PortText(std::int32_t lNumber) { return "OL" + forms::decimal(lNumber); }

}  // namespace

TabOrigination::TabOrigination(forms::Container& container, std::string strName)
    : WizardStep(container, std::move(strName), "Orlena Transmitters",
                 host::helpOriginationPointTab) {
  MakeBanner(lblBanner);
  lvwTransmitters.setColumns({"Label", "Type", "Port"});
  lvwTransmitters.setLabelEditable(true);
  lvwTransmitters.setAccessibleName("Transmitters of the system");
  cmdUp.setToolTip("Move up");
  cmdUp.setAccessibleName("Move up");
  cmdDown.setToolTip("Move down");
  cmdDown.setAccessibleName("Move down");
  UpdateReceiverText();
  UpdateButtons();
  SetTabStops(false);
  ConnectEvents();
  LayOut();
}

void TabOrigination::ConnectEvents() {
  listDevices.click.connect([this] { listDevices_Click(); });
  listDevices.doubleClick.connect([this] {
    if (cmdAdd.isEnabled()) cmdAdd_Click();
  });
  cmdAdd.click.connect([this] { cmdAdd_Click(); });
  cmdRename.click.connect([this] { cmdRename_Click(); });
  cmdDelete.click.connect([this] { cmdDelete_Click(); });
  cmdUp.click.connect([this] { cmdMove_Click(-1); });
  cmdDown.click.connect([this] { cmdMove_Click(1); });
  lvwTransmitters.beforeLabelEdit.connect([this](bool&) { lvwTransmitters_BeforeLabelEdit(); });
  lvwTransmitters.afterLabelEdit.connect(
      [this](bool&, std::string& strLabel) { lvwTransmitters_AfterLabelEdit(strLabel); });
  chkUse3OLReceiver.click.connect([this] { chkUse3OLReceiver_Click(); });
  offer("SetData", [this] { SetData(); });
  offer("OtherTabClicked", [this] { OtherTabClicked(); });
  KeepsUnsaved([this] { return GetUnsaved(); },
               [this](const UnsavedTexts& colTexts) { ResumeUnsaved(colTexts); });
}

void TabOrigination::SetTabStops(bool bValue) {
  for (forms::Control* oControl :
       std::initializer_list<forms::Control*>{&listDevices, &cmdAdd, &lvwTransmitters, &cmdRename,
                                              &cmdDelete, &cmdUp, &cmdDown, &chkUse3OLReceiver}) {
    oControl->setTabStop(bValue);
  }
}

bool TabOrigination::SetData() {
  LoadTransmitters();
  UpdateButtons();
  {
    const forms::Guard loading(m_bLoading);
    chkUse3OLReceiver.setValue(gAddIn().get_bUse3OLReceiver());
  }
  UpdateReceiverText();
  LoadTypes();
  return true;
}

/// A port that is free between two others closes here; the next save moves the device.
void TabOrigination::LoadTransmitters() {
  lvwTransmitters.clear();
  if (!addin::IsDocumentSet()) return;
  for (std::int16_t iPort = 1; iPort <= lPorts; ++iPort) {
    const auto oDevice =
        gDocument().get_Devices()->ItemByID(gAddIn().get_OriginationPointID(iPort));
    if (!oDevice) continue;
    AddRow(oDevice->get_Label(), forms::withoutLast(oDevice->get_Name(), lPortSuffixLength));
  }
  SelectFirstRow();
}

void TabOrigination::LoadTypes() {
  if (!addin::IsDocumentSet()) return;
  listDevices.clear();
  m_colTypes =
      common::SortCollection(gAddIn().GetLibraryOriginationPoints(),
                             [](const host::LibraryDevice& oType) { return oType.get_Name(); });
  for (const auto& oType : m_colTypes) {
    listDevices.add(oType->get_Name(), oType->get_ControlEntryID());
  }
  if (listDevices.count() > 0) listDevices.setSelected(0);
}

/// The buttons that work on a row have one from the start.
void TabOrigination::SelectFirstRow() {
  if (lvwTransmitters.rowCount() > 0) lvwTransmitters.setSelectedRow(0);
}

void TabOrigination::AddRow(const std::string& strLabel, const std::string& strType) {
  lvwTransmitters.addRow({strLabel, strType, PortText(lvwTransmitters.rowCount() + 1)});
}

void TabOrigination::UpdateButtons() {
  const std::int32_t lRows = lvwTransmitters.rowCount();
  cmdAdd.setEnabled(lRows < lPorts);
  cmdDelete.setEnabled(lRows >= 1);
  cmdRename.setEnabled(lRows >= 1);
  cmdUp.setEnabled(lRows >= 2);
  cmdDown.setEnabled(lRows >= 2);
}

bool TabOrigination::NeedsThreeInputs() const {
  return lvwTransmitters.rowCount() >= 2 || chkUse3OLReceiver.isChecked();
}

void TabOrigination::UpdateReceiverText() {
  frameInfo.SetText(NeedsThreeInputs() ? "Receiver is OL-RX3/OL-RXV3/OL-RXV3-M"
                                       : "Receiver is OL-RX1/OL-RXV1/OL-RXV1-M");
}

std::shared_ptr<host::LibraryDevice> TabOrigination::FindType(const std::string& strName) const {
  const auto it = std::find_if(m_colTypes.begin(), m_colTypes.end(), [&](const auto& oType) {
    return forms::equalsIgnoringCase(oType->get_Name(), strName);
  });
  return it == m_colTypes.end() ? nullptr : *it;
}

void TabOrigination::listDevices_Click() {
  const auto oType = FindType(listDevices.shownText());
  if (!oType) {
    lblDescription.setCaption("No OL transmitter assigned to this input.");
    img.setVisible(false);
    return;
  }
  ShowPictureOf(oType->get_Name());
  lblDescription.setCaption(oType->get_Description());
}

/// A type without a picture shows none, and nobody is told.
void TabOrigination::ShowPictureOf(const std::string& strType) {
  img.setVisible(false);
  forms::ignoringErrors([&] {
    const std::string strFolder =
        common::AddBackslash(addin::gLibraryManager().get_PicturesFolder());
    img.setPicture(forms::Application::current().loadPicture(strFolder + strType + ".bmp"));
    img.setToolTip(strType);
    img.setVisible(true);
  });
}

void TabOrigination::cmdAdd_Click() {
  const std::int32_t lRows = lvwTransmitters.rowCount();
  const auto oType = lRows < lPorts ? FindType(listDevices.shownText()) : nullptr;
  if (!oType) return;
  if (lRows == 1 && lvwTransmitters.text(0, lLabelColumn) == strOnlyLabel) {
    lvwTransmitters.setText(0, lLabelColumn, NumberedLabel(1));
  }
  AddRow(lRows == 0 ? strOnlyLabel : NumberedLabel(lRows + 1), oType->get_Name());
  lvwTransmitters.setSelectedRow(lRows);
  gDocument().MarkChanged();
  UpdateButtons();
  UpdateReceiverText();
}

void TabOrigination::cmdDelete_Click() {
  if (lvwTransmitters.selectedRow() >= 0) {
    lvwTransmitters.removeRow(lvwTransmitters.selectedRow());
    for (std::int32_t i = 0; i < lvwTransmitters.rowCount(); ++i) RenumberRow(i);
    if (lvwTransmitters.selectedRow() < 0) SelectFirstRow();
    gDocument().MarkChanged();
  }
  UpdateButtons();
  UpdateReceiverText();
}

/// The label follows the new port only where it is the default of the old one.
void TabOrigination::RenumberRow(std::int32_t lRow) {
  const bool bOnly = lvwTransmitters.rowCount() == 1;
  if (IsDefaultLabel(lRow)) {
    lvwTransmitters.setText(lRow, lLabelColumn, bOnly ? strOnlyLabel : NumberedLabel(lRow + 1));
  }
  lvwTransmitters.setText(lRow, lPortColumn, PortText(lRow + 1));
}

/// The "Input" of a single row counts as the user's own.
bool TabOrigination::IsDefaultLabel(std::int32_t lRow) const {
  return lvwTransmitters.text(lRow, lLabelColumn) ==
         "Input " + forms::right(lvwTransmitters.text(lRow, lPortColumn), 1);
}

/// Labels and types change places; the ports stay, and a default label stays with its port.
void TabOrigination::cmdMove_Click(std::int32_t lOffset) {
  const std::int32_t lRow = lvwTransmitters.selectedRow();
  const std::int32_t lTarget = lRow + lOffset;
  if (lRow < 0 || lTarget < 0 || lTarget >= lvwTransmitters.rowCount()) return;
  const std::string strTargetLabel =
      IsDefaultLabel(lRow) ? NumberedLabel(lTarget + 1) : lvwTransmitters.text(lRow, lLabelColumn);
  const std::string strRowLabel = IsDefaultLabel(lTarget)
                                      ? NumberedLabel(lRow + 1)
                                      : lvwTransmitters.text(lTarget, lLabelColumn);
  lvwTransmitters.setText(lTarget, lLabelColumn, strTargetLabel);
  lvwTransmitters.setText(lRow, lLabelColumn, strRowLabel);
  const std::string strType = lvwTransmitters.text(lRow, lTypeColumn);
  lvwTransmitters.setText(lRow, lTypeColumn, lvwTransmitters.text(lTarget, lTypeColumn));
  lvwTransmitters.setText(lTarget, lTypeColumn, strType);
  lvwTransmitters.setSelectedRow(lTarget);
  gDocument().MarkChanged();
}

void TabOrigination::cmdRename_Click() {
  if (lvwTransmitters.selectedRow() < 0) return;
  lvwTransmitters.setFocus();
  lvwTransmitters.startLabelEdit();
}

void TabOrigination::lvwTransmitters_BeforeLabelEdit() {
  m_strOldLabel = lvwTransmitters.text(lvwTransmitters.selectedRow(), lLabelColumn);
}

void TabOrigination::lvwTransmitters_AfterLabelEdit(std::string& strLabel) const {
  strLabel = forms::trimmed(strLabel);
  if (forms::length(strLabel) > lLabelLength) {
    Inform("Transmitter names cannot be greater than " + forms::decimal(lLabelLength) +
           " characters.");
    strLabel = forms::trimmed(forms::left(strLabel, lLabelLength));
  }
  if (strLabel.empty()) {
    Inform("Transmitter names must be at least one character long.");
    strLabel = m_strOldLabel;
  }
  if (strLabel != m_strOldLabel) gDocument().MarkChangedButProgram();
}

void TabOrigination::chkUse3OLReceiver_Click() {
  if (m_bLoading) return;
  UpdateReceiverText();
  gDocument().MarkChanged();
}

void TabOrigination::OtherTabClicked() {
  SetTabStops(false);
  SaveOriginationPoints();
}

bool TabOrigination::iTab_SaveData() {
  validateActiveControl();
  SaveOriginationPoints();
  gAddIn().put_bUse3OLReceiver(chkUse3OLReceiver.value());
  return true;
}

/// The tick, and then label and type of each row.
TabOrigination::UnsavedTexts TabOrigination::GetUnsaved() const {
  UnsavedTexts colTexts{Tick(chkUse3OLReceiver)};
  for (std::int32_t lRow = 0; lRow < lvwTransmitters.rowCount(); ++lRow) {
    colTexts.push_back(lvwTransmitters.text(lRow, lLabelColumn));
    colTexts.push_back(lvwTransmitters.text(lRow, lTypeColumn));
  }
  return colTexts;
}

void TabOrigination::ResumeUnsaved(const UnsavedTexts& colTexts) {
  {
    const forms::Guard loading(m_bLoading);
    PutTick(chkUse3OLReceiver, colTexts.front());
  }
  lvwTransmitters.clear();
  for (std::size_t i = 1; i + 1 < colTexts.size() && lvwTransmitters.rowCount() < lPorts; i += 2) {
    AddRow(colTexts[i], colTexts[i + 1]);
  }
  SelectFirstRow();
  UpdateButtons();
  UpdateReceiverText();
}

void TabOrigination::SaveOriginationPoints() {
  for (std::int16_t iPort = 1; iPort <= lPorts; ++iPort) SavePort(iPort);
  SaveReceiver();
}

/// A type that the library no longer knows leaves its port as it is.
void TabOrigination::SavePort(std::int16_t iPort) const {
  const std::int32_t lRow = iPort - 1;
  if (lRow >= lvwTransmitters.rowCount()) {
    if (IsInSystem(gAddIn().get_OriginationPointID(iPort))) gAddIn().RemoveOriginationPoint(iPort);
    return;
  }
  const std::string& strType = lvwTransmitters.text(lRow, lTypeColumn);
  const auto oType = FindType(strType);
  if (!oType) return;
  gAddIn().AddOriginationPoint(iPort, strType + " " + lvwTransmitters.text(lRow, lPortColumn),
                               host::modelFromControlEntry, oType->get_ControlEntryID(),
                               lvwTransmitters.text(lRow, lLabelColumn));
}

/// The receiver with as many inputs as the list needs, and its row of the bill.
void TabOrigination::SaveReceiver() const {
  const std::int16_t iModelID =
      NeedsThreeInputs() ? host::modelReceiverThreeInputs : host::modelReceiverOneInput;
  const auto oReceiver = gDocument().get_Devices()->Item(gAddIn().get_ReceiverID());
  if (oReceiver->get_ModelID() == iModelID) return;
  const std::int32_t lPartID =
      addin::gLibraryManager().get_Models()->Item(0, iModelID)->get_PartID();
  std::string strMessage;
  gDocument().ChangeControlSystem(iModelID, "", 0, strMessage);

  const auto oBill = gDocument().get_Reports()->get_BillOfMaterials();
  if (const auto oEntry = oBill->Item(oReceiver->get_DeviceHandle())) {
    auto oItem = oEntry->get_MainItem();
    oItem.put_PartID(lPartID);
    oEntry->put_MainItem(oItem);
    oBill->UpdateItem(oEntry->get_Key());
  }
  if (!strMessage.empty()) Inform(strMessage);
}

void TabOrigination::LayOut() {
  using namespace forms;
  constexpr Size sizeOfTypes{2550, 1350};
  constexpr Size sizeOfTypePicture{960, 975};
  constexpr Size sizeOfArrow{510, 375};
  constexpr Twips lButtonWidth = 1110;
  constexpr Twips lTransmitters = 1275;
  listDevices.nameBy(lblOLTransmitter);
  layOut(pageArea,
         {
             rest(lblBanner),
             rest(lblOLTransmitter),
             row({
                 column({item(listDevices, sizeOfTypes), wide(cmdAdd, sizeOfTypes.width)}),
                 box(frmDescription, {row({item(img, sizeOfTypePicture),
                                           rest(lblDescription, sizeOfTypePicture.height)}),
                                      gap(390)}),
             }),
             gap(30),
             row({
                 rest(lvwTransmitters, lTransmitters),
                 column({
                     wide(cmdRename, lButtonWidth),
                     wide(cmdDelete, lButtonWidth),
                     row({item(cmdUp, sizeOfArrow), item(cmdDown, sizeOfArrow)}),
                 }),
             }),
             item(chkUse3OLReceiver),
             frameInfo.Place(),
         });
  frameInfo.PlaceBorder();
}

}  // namespace steps
