#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/CommandButton.h"
#include "forms/DropDownList.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "forms/TabStrip.h"
#include "forms/TextBox.h"
#include "trellisar/dialogs/Dialog.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// The properties of a device, on up to three pages: Basic shows it and changes its description, IO
/// Assignment its port, Properties the values of its driver. Nothing is changed before OK.
class DevicePropertiesDialog : public Dialog {
 public:
  /// `pages` are program ids of host/Numbers.h; others are passed over.
  DevicePropertiesDialog(DocumentPtr document, DevicePtr device,
                         const std::vector<std::string>& pages);

  forms::TabStrip tabPages{*this, "tabPages"};
  forms::Frame fraBasic{*this, "fraBasic"};
  forms::Frame fraAssignment{*this, "fraAssignment"};
  forms::Frame fraProperties{*this, "fraProperties"};

  forms::Label lblName{fraBasic, "lblName", "Name:"};
  forms::Label lblNameText{fraBasic, "lblNameText"};
  forms::Label lblType{fraBasic, "lblType", "Type:"};
  forms::Label lblTypeText{fraBasic, "lblTypeText"};
  forms::Label lblDescription{fraBasic, "lblDescription", "&Description:"};
  forms::TextBox txtDescription{fraBasic, "txtDescription"};

  forms::Label lblPort{fraAssignment, "lblPort", "&Port:"};
  forms::DropDownList cboPort{fraAssignment, "cboPort"};
  forms::Label lblAddress{fraAssignment, "lblAddress", "IP &address:"};
  forms::TextBox txtAddress{fraAssignment, "txtAddress"};

  forms::ListView lvwProperties{fraProperties, "lvwProperties"};
  forms::Label lblValue{fraProperties, "lblValue", "&Value:"};
  forms::TextBox txtValue{fraProperties, "txtValue"};
  forms::DropDownList cboValue{fraProperties, "cboValue"};
  forms::CommandButton cmdSet{fraProperties, "cmdSet", "&Set"};
  forms::Label lblTakes{fraProperties, "lblTakes"};

 protected:
  bool accept() override;

 private:
  void showPages(const std::vector<std::string>& pages);
  void place();
  void fill();
  void fillPorts();
  void propertySelected();
  void showValue(const PropertyDefinition& property, const std::string& value);
  /// Puts the typed value into the list; false, with a message, when the property does not take it.
  bool takeValue();
  const PropertyDefinition* selectedProperty() const;

  DocumentPtr document_;
  DevicePtr device_;
  std::vector<std::int16_t> ports_;                    // as in the list
  std::vector<const PropertyDefinition*> properties_;  // as in the list
};

}  // namespace trellisar
