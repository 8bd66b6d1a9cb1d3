#include "host/DeviceCommands.h"

#include "tests/trellisar/World.h"

namespace tests {
namespace {

/// The selector over a real driver.
class DeviceCommandsTest : public HostTest {
 protected:
  DeviceCommandsTest() {
    openTemplate();
    display = host.document()->get_Devices()->Item(addDisplay());
    selector.CommandChanged.connect([this] { ++changes; });
  }

  forms::Form form{"Form"};
  host::DeviceCommands selector{form, "ctlCommands"};
  std::shared_ptr<host::Device> display;
  int changes = 0;
};

TEST_F(DeviceCommandsTest, LoadingTellsOnceAtItsEndWhateverItSelected) {
  std::string selectedThen;
  selector.CommandChanged.connect([&] { selectedThen = selector.get_SelectedCommand(); });
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
}

TEST_F(DeviceCommandsTest, OnlyTheUserAndLoadingAreHeard) {
  selector.LoadCommands(*display, "Menu", host::commandsWithEmpty);
  changes = 0;
  selector.SelectCommand("Freeze");
  EXPECT_EQ(selector.get_SelectedCommand(), "Freeze");
  selector.SetEmptyText("[ None ]");
  selector.put_Text("");
  EXPECT_EQ(selector.get_SelectedCommand(), "");
  EXPECT_EQ(changes, 0);

  auto& list = in<forms::DropDownList>(selector, "cboCommands");
  EXPECT_EQ(list.text(0), "[ None ]");
  desktop.whenShown("Form", [&](forms::Form& shown) {
    user.select(list, 1);
    shown.hide();
  });
  form.showModal(nullptr);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(selector.get_SelectedCommand(), list.text(1));
}

}  // namespace
}  // namespace tests
