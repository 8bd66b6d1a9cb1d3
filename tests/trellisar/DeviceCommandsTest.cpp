#include "host/DeviceCommands.h"

#include "tests/trellisar/World.h"

namespace tests {
namespace {

using DeviceCommandsTest = HostTest;

TEST_F(DeviceCommandsTest, LoadingTellsOnceAtItsEndWhateverItSelected) {
  openTemplate();
  const auto display = host.document()->get_Devices()->Item(addDisplay());
  forms::Form form("Form");
  host::DeviceCommands selector(form, "ctlCommands");
  int changes = 0;
  std::string selectedThen;
  selector.CommandChanged.connect([&] {
    ++changes;
    selectedThen = selector.get_SelectedCommand();
  });
  selector.LoadCommands(*display, "Menu", host::commandsWithEmpty);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(selectedThen, "Menu");
  selector.LoadCommands(*display, "", host::commandsWithEmpty);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(selector.get_SelectedCommand(), "");

  selector.LoadCommands(*display, "No_Such_Command", host::commandsWithEmpty);
  EXPECT_EQ(selector.get_SelectedCommand(), "No_Such_Command");
  selector.LoadCommands(*display, "Menu", host::commandsForPower);
  const auto& list = in<forms::DropDownList>(selector, "cboCommands");
  EXPECT_EQ(list.find("No_Such_Command"), -1) << "the next loading forgets it";

  changes = 0;
  selector.SelectCommand("Freeze");
  EXPECT_EQ(selector.get_SelectedCommand(), "Freeze");
  EXPECT_EQ(changes, 0) << "what the program selects is not told";
}

}  // namespace
}  // namespace tests
