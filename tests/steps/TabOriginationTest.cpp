#include <gtest/gtest.h>

#include <filesystem>

#include "forms/CheckBox.h"
#include "forms/ListBox.h"
#include "forms/ListView.h"
#include "forms/Paths.h"
#include "host/Numbers.h"
#include "host/iTab.h"
#include "tests/wizard/Wizard.h"

namespace {

using forms::CheckBox;
using forms::Icon;
using forms::ListBox;
using forms::ListView;
using tests::Wizard;

constexpr const char* stepName = "Orlena Transmitters";
constexpr const char* tooLong = "Transmitter names cannot be greater than 8 characters.";
constexpr const char* tooShort = "Transmitter names must be at least one character long.";

class TabOriginationTest : public testing::Test {
 protected:
  void run(const std::function<void()>& script) {
    wizard.run([&] {
      wizard.goTo(stepName);
      script();
    });
  }

  ListBox& types() { return wizard.control<ListBox>("listDevices"); }
  ListView& list() { return wizard.control<ListView>("lvwTransmitters"); }
  /// The first word of a type is its short name here.
  std::int32_t placeOf(const std::string& type) {
    for (std::int32_t i = 0; i < types().count(); ++i) {
      if (types().text(i).starts_with(type)) return i;
    }
    return -1;
  }
  void add(const std::string& type) {
    wizard.user.select(types(), placeOf(type));
    wizard.click("cmdAdd");
  }
  void given(const std::vector<std::string>& rows) {
    while (list().rowCount() > 0) wizard.click("cmdDelete");
    for (const std::string& type : rows) add(type);
  }
  void rename(std::int32_t row, const std::string& label) {
    wizard.user.editLabel(list(), row, label);
  }
  /// The rows as "label=type", in the order of their ports, which are checked.
  std::string rows() {
    std::string all;
    for (std::int32_t i = 0; i < list().rowCount(); ++i) {
      const std::string& type = list().text(i, 1);
      EXPECT_EQ(list().text(i, 2), "OL" + std::to_string(i + 1));
      all += (i ? ", " : "") + list().text(i, 0) + "=" + type.substr(0, type.find(' '));
    }
    return all;
  }
  void leave() {
    wizard.clickInWindow("cmdNext");
    wizard.clickInWindow("cmdBack");
  }
  std::int16_t receiverModel() { return wizard.document().get_ControlSystem()->get_ModelID(); }
  std::int32_t receiverPart() {
    const auto bill = wizard.document().get_Reports()->get_BillOfMaterials();
    return bill->Item(wizard.document().get_ControlSystem()->get_DeviceHandle())
        ->get_MainItem()
        .get_PartID();
  }
  long callsOf(const std::string& operation) {
    const auto& calls = wizard.host->journal().calls();
    return std::count_if(calls.begin(), calls.end(),
                         [&](const auto& call) { return call.starts_with(operation); });
  }

  Wizard wizard;
};

TEST_F(TabOriginationTest, AddingNumbersTheRowsUpToThree) {
  run([&] {
    EXPECT_EQ(types().text(0), "Floor Box Transmitter");
    EXPECT_EQ(types().selected(), 0);
    for (const char* button : {"cmdRename", "cmdDelete", "cmdUp", "cmdDown"}) {
      EXPECT_FALSE(wizard.control(button).isEnabled()) << button;
    }
    add("Wall");
    EXPECT_EQ(rows(), "Input=Wall");
    EXPECT_TRUE(wizard.control("cmdDelete").isEnabled());
    EXPECT_FALSE(wizard.control("cmdUp").isEnabled());
    EXPECT_TRUE(wizard.document().get_Modified());
    add("Table");
    EXPECT_EQ(rows(), "Input 1=Wall, Input 2=Table");
    wizard.user.doubleClick(types(), placeOf("Lectern"));
    EXPECT_EQ(rows(), "Input 1=Wall, Input 2=Table, Input 3=Lectern");
    EXPECT_EQ(list().selectedRow(), 2);
    EXPECT_FALSE(wizard.control("cmdAdd").isEnabled());
    wizard.user.doubleClick(types(), placeOf("Lectern"));
    EXPECT_EQ(list().rowCount(), 3);

    given({"Wall"});
    rename(0, "Podium");
    add("Wall");
    EXPECT_EQ(rows(), "Podium=Wall, Input 2=Wall");
  });
}

TEST_F(TabOriginationTest, DefaultLabelsStayWithTheirPortsAndOwnOnesGoWithTheirRows) {
  struct Case {
    std::vector<std::string> types;
    std::int32_t renamed;  // -1: none
    std::int32_t selected;
    const char* button;
    const char* rows;
    std::int32_t selectedAfter;
  };
  const std::vector<std::string> two{"Wall", "Table"};
  const std::vector<std::string> three{"Wall", "Table", "Floor"};
  const std::vector<Case> cases{
      {two, -1, 0, "cmdDelete", "Input=Table", 0},
      {two, 1, 0, "cmdDelete", "Own=Table", 0},
      {three, 2, 0, "cmdDelete", "Input 1=Table, Own=Floor", 0},
      {three, -1, 2, "cmdDelete", "Input 1=Wall, Input 2=Table", 1},
      {two, -1, 0, "cmdUp", "Input 1=Wall, Input 2=Table", 0},
      {two, -1, 1, "cmdDown", "Input 1=Wall, Input 2=Table", 1},
      {two, -1, 0, "cmdDown", "Input 1=Table, Input 2=Wall", 1},
      {two, 0, 0, "cmdDown", "Input 1=Table, Own=Wall", 1},
      {two, 0, 1, "cmdUp", "Input 1=Table, Own=Wall", 0},
      {three, 2, 2, "cmdUp", "Input 1=Wall, Own=Floor, Input 3=Table", 1},
  };
  run([&] {
    for (const Case& it : cases) {
      given(it.types);
      if (it.renamed >= 0) rename(it.renamed, "Own");
      wizard.user.select(list(), it.selected);
      wizard.document().MarkUnchanged();
      wizard.click(it.button);
      const auto what = std::string(it.button) + " " + std::to_string(it.selected);
      EXPECT_EQ(rows(), it.rows) << what;
      EXPECT_EQ(list().selectedRow(), it.selectedAfter) << what;
      EXPECT_EQ(wizard.document().get_Modified(), std::string(it.button) == "cmdDelete") << what;
    }
    given({"Wall"});
    wizard.click("cmdDelete");
    EXPECT_FALSE(wizard.control("cmdDelete").isEnabled());
  });
}

TEST_F(TabOriginationTest, LabelIsTrimmedCutAndNeverEmpty) {
  struct Case {
    const char* typed;
    const char* label;
    const char* message;
  };
  run([&] {
    given({"Wall"});
    for (const auto& [typed, label, message] :
         {Case{" Rostrum ", "Rostrum", nullptr}, Case{"12345678", "12345678", nullptr},
          Case{"123456789", "12345678", tooLong}, Case{"Stühle \u00fc", "Stühle \u00fc", nullptr},
          Case{"   ", "Stühle \u00fc", tooShort}, Case{"", "Stühle \u00fc", tooShort}}) {
      if (message) {
        wizard.desktop.expectMessage("Orlena", message, forms::Buttons::ok, Icon::information);
      }
      rename(0, typed);
      EXPECT_EQ(list().text(0, 0), label) << typed;
    }
    wizard.click("cmdRename");
    EXPECT_TRUE(list().isEditing());
    EXPECT_TRUE(list().hasFocus());
    wizard.user.labelText(list(), "Cart");
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(wizard.device("Wall Plate Transmitter OL1")->get_Label(), "Cart");
  });
}

TEST_F(TabOriginationTest, SystemFollowsTheListWhenTheStepIsLeft) {
  run([&] {
    given({"Wall", "Table"});
    EXPECT_FALSE(wizard.device("Wall Plate Transmitter OL1"));
    leave();
    const std::int16_t wall = wizard.addIn->get_OriginationPointID(1);
    EXPECT_EQ(wizard.device("Wall Plate Transmitter OL1")->get_ID(), wall);
    EXPECT_EQ(wizard.device("Table Box Transmitter OL2")->get_Label(), "Input 2");
    rename(0, "Desk");
    leave();
    EXPECT_EQ(wizard.addIn->get_OriginationPointID(1), wall);
    EXPECT_EQ(wizard.device("Wall Plate Transmitter OL1")->get_Label(), "Desk");

    wizard.click("cmdDown");
    leave();
    EXPECT_FALSE(wizard.device("Wall Plate Transmitter OL1"));
    EXPECT_EQ(wizard.device("Wall Plate Transmitter OL2")->get_Label(), "Desk");
    EXPECT_EQ(wizard.device("Table Box Transmitter OL1")->get_Label(), "Input 1");
    wizard.document().MarkUnchanged();
    wizard.step(stepName).call("SetData");
    EXPECT_EQ(rows(), "Input 1=Table, Desk=Wall");
    EXPECT_EQ(list().selectedRow(), 0);
    EXPECT_FALSE(wizard.document().get_Modified());
    wizard.click("cmdDelete");
    wizard.click("cmdDelete");
    leave();
    for (std::int16_t port = 1; port <= 3; ++port) {
      EXPECT_EQ(wizard.addIn->get_OriginationPointID(port), 0);
    }
    EXPECT_FALSE(wizard.device("Wall Plate Transmitter OL2"));
  });
}

TEST_F(TabOriginationTest, ReceiverFollowsTheNumberOfInputs) {
  const std::string one = "Receiver is OL-RX1/OL-RXV1/OL-RXV1-M";
  const std::string three = "Receiver is OL-RX3/OL-RXV3/OL-RXV3-M";
  run([&] {
    const auto expectReceiver = [&](const std::string& text, std::int16_t model) {
      EXPECT_EQ(wizard.text("lblInfo"), text);
      leave();
      EXPECT_EQ(receiverModel(), model);
      const auto models = wizard.host->libraryManager()->get_Models();
      EXPECT_EQ(receiverPart(), models->Item(0, model)->get_PartID());
    };
    given({"Wall"});
    expectReceiver(one, host::modelReceiverOneInput);
    EXPECT_EQ(callsOf("ChangeControlSystem"), 0);
    add("Wall");
    expectReceiver(three, host::modelReceiverThreeInputs);
    EXPECT_EQ(callsOf("ChangeControlSystem"), 1);
    wizard.click("cmdDelete");
    wizard.document().MarkUnchanged();
    wizard.click("chkUse3OLReceiver");
    EXPECT_TRUE(wizard.document().get_Modified());
    expectReceiver(three, host::modelReceiverThreeInputs);
    EXPECT_EQ(callsOf("ChangeControlSystem"), 1);
    EXPECT_EQ(wizard.addIn->get_bUse3OLReceiver(), 0);  // the save alone writes it
    host::AsTab(wizard.step(stepName)).iTab_SaveData();
    EXPECT_EQ(wizard.addIn->get_bUse3OLReceiver(), 1);
    wizard.click("chkUse3OLReceiver");
    expectReceiver(one, host::modelReceiverOneInput);
    wizard.document().MarkUnchanged();
    wizard.step(stepName).call("SetData");
    EXPECT_TRUE(wizard.control<CheckBox>("chkUse3OLReceiver").isChecked());
    EXPECT_EQ(wizard.text("lblInfo"), three);
    EXPECT_FALSE(wizard.document().get_Modified());
  });
}

TEST_F(TabOriginationTest, TypeShowsItsDescriptionAndThePictureThatIsThere) {
  run([&] {
    const auto folder = forms::toMachinePath(wizard.host->libraryManager()->get_PicturesFolder());
    for (std::int32_t i = 0; i < types().count(); ++i) {
      wizard.user.select(types(), i);
      EXPECT_FALSE(wizard.text("lblDescription").empty());
      EXPECT_EQ(wizard.control("img").isVisible(),
                std::filesystem::exists(folder / (types().text(i) + ".bmp")))
          << types().text(i);
    }
    types().add("Withdrawn Transmitter");
    wizard.user.select(types(), types().count() - 1);
    EXPECT_EQ(wizard.text("lblDescription"), "No OL transmitter assigned to this input.");
    EXPECT_FALSE(wizard.control("img").isVisible());
    wizard.click("cmdAdd");
    EXPECT_EQ(list().rowCount(), 0);
  });
}

}  // namespace
