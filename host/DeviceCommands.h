#pragma once

#include <string>

#include "forms/DropDownList.h"
#include "forms/ImageList.h"
#include "forms/UserControl.h"
#include "host/Device.h"

namespace host {

/// The third argument of LoadCommands, and the one that its callers give by name.
struct LoadCommandsFlags {
  bool bOfferEmpty;  // the first choice is "nothing assigned"
  bool bArgument3;   // this control has no use for it
};
inline constexpr LoadCommandsFlags commandsWithEmpty{true, true};
inline constexpr LoadCommandsFlags commandsForPower{true, false};

/// Lets a user choose one of a device's commands, or none.
class DeviceCommands : public forms::UserControl {
 public:
  DeviceCommands(forms::Container& container, std::string strName);

  /// The pictures that stand beside the commands; the list stays as long as the control.
  void SetImages(const forms::ImageList& images) { cboCommands.setImages(&images); }
  /// What stands for "nothing assigned". Raises nothing.
  void SetEmptyText(const std::string& strText);

  /// Offers the device's digital commands and selects one; empty selects nothing. A command that
  /// the device lacks is offered besides and selected, so that what was stored stays. Raises
  /// CommandChanged once, at its end, always.
  void LoadCommands(const Device& oDevice, const std::string& strSelected,
                    const LoadCommandsFlags& flags);

  /// Selects without an event; as in LoadCommands, a command that is not in the list is taken in.
  void SelectCommand(const std::string& strCommand);
  /// What the control shows. An empty text shows nothing, with nothing selected; putting it raises
  /// nothing.
  std::string get_Text() const { return cboCommands.shownText(); }
  void put_Text(const std::string& strText);

  /// Empty: nothing is assigned.
  std::string get_SelectedCommand() const;

  /// A member of a control array is told from the others where it is listened to.
  forms::Event<> CommandChanged;

 private:
  void cboCommands_Click();
  std::int32_t FirstCommand() const { return m_bOfferEmpty ? 1 : 0; }

  forms::DropDownList cboCommands{*this, "cboCommands"};
  std::string m_strEmptyText = "[ Unassigned ]";
  bool m_bOfferEmpty = false;
  bool m_bSilent = false;
};

}  // namespace host
