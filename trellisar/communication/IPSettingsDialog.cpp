#include "trellisar/communication/IPSettingsDialog.h"

#include <utility>

#include "forms/Text.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 5400;
constexpr std::int32_t longestAddress = 15;
constexpr std::int32_t longestHostName = 253;

}  // namespace

IPSettingsDialog::IPSettingsDialog(Preferences& preferences, std::function<void()> help)
    : CommunicationDialog("IPSettingsDialog", "IP Information", std::move(help)),
      preferences_(preferences) {
  const IPSettings& settings = preferences.ipSettings();
  txtAddress.setText(settings.address);
  txtMask.setText(settings.mask);
  txtGateway.setText(settings.gateway);
  txtHostName.setText(settings.hostName);
  for (forms::TextBox* box : {&txtAddress, &txtMask, &txtGateway}) {
    box->setMaxLength(longestAddress);
  }
  txtHostName.setMaxLength(longestHostName);
  layOutAbove(dialogWidth,
              {forms::columns({{forms::names(lblAddress, txtAddress), forms::rest(txtAddress)},
                               {forms::names(lblMask, txtMask), forms::rest(txtMask)},
                               {forms::names(lblGateway, txtGateway), forms::rest(txtGateway)},
                               {forms::names(lblHostName, txtHostName), forms::rest(txtHostName)}}),
               forms::rest(lblMeaning)});
}

bool IPSettingsDialog::accept() {
  const IPSettings settings{forms::trimmed(txtAddress.text()), forms::trimmed(txtMask.text()),
                            forms::trimmed(txtGateway.text()), forms::trimmed(txtHostName.text())};
  const IPSettingsFault fault = faultOf(settings);
  switch (fault.place) {
    case IPSettingsFault::Place::address:
      return refuse(txtAddress, fault.message);
    case IPSettingsFault::Place::mask:
      return refuse(txtMask, fault.message);
    case IPSettingsFault::Place::gateway:
      return refuse(txtGateway, fault.message);
    case IPSettingsFault::Place::hostName:
      return refuse(txtHostName, fault.message);
    case IPSettingsFault::Place::none:
      break;
  }
  preferences_.setIPSettings(settings);
  return true;
}

}  // namespace trellisar
