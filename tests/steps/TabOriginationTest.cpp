#include "host/Numbers.h"
#include "tests/steps/StepTest.h"

#include "forms/ListBox.h"
#include "forms/ListView.h"

namespace {

using forms::ListBox;
using forms::ListView;

constexpr const char* tooLong = "Transmitter names cannot be greater than 8 characters.";
constexpr const char* tooShort = "Transmitter names must be at least one character long.";

class TabOriginationTest : public tests::StepTest {
 protected:
  TabOriginationTest() : StepTest("Orlena Transmitters") {}

  ListBox& types() { return control<ListBox>("listDevices"); }
  ListView& list() { return control<ListView>("lvwTransmitters"); }
  /// The first word of a type is its short name here.
  std::int32_t placeOf(const std::string& type) {
    for (std::int32_t i = 0; i < types().count(); ++i) {
      if (types().text(i).starts_with(type)) return i;
    }
    return -1;
  }
  void add(const std::string& type) {
    user.select(types(), placeOf(type));
    click("cmdAdd");
  }
  void given(const std::vector<std::string>& rows) {
    while (list().rowCount() > 0) click("cmdDelete");
    for (const std::string& type : rows) add(type);
  }
  void rename(std::int32_t row, const std::string& label) { user.editLabel(list(), row, label); }
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
};

TEST_F(TabOriginationTest, AddingNumbersTheRowsUpToThree) {
  onStep([&] {
    const auto buttons = [&] { return states({"cmdRename", "cmdDelete", "cmdUp", "cmdDown"}); };
    EXPECT_EQ(types().selected(), 0);
    EXPECT_EQ(buttons(), "....");
    add("Wall");
    EXPECT_EQ(rows() + buttons(), "Input=Walloo..");
    EXPECT_TRUE(isModified());
    add("Table");
    EXPECT_EQ(rows(), "Input 1=Wall, Input 2=Table");
    user.doubleClick(types(), placeOf("Lectern"));
    EXPECT_EQ(rows(), "Input 1=Wall, Input 2=Table, Input 3=Lectern");
    EXPECT_EQ(list().selectedRow(), 2);
    EXPECT_FALSE(isEnabled("cmdAdd"));
    user.doubleClick(types(), placeOf("Lectern"));  // there is no room for a fourth

    given({"Wall"});
    rename(0, "Podium");
    add("Wall");
    EXPECT_EQ(rows(), "Podium=Wall, Input 2=Wall");
    EXPECT_FALSE(text("lblDescription").empty());
  });
}

TEST_F(TabOriginationTest, DefaultLabelsStayWithTheirPortsAndOwnOnesGoWithTheirRows) {
  struct Case {
    std::vector<std::string> types;
    std::int32_t renamed, selected;  // renamed -1: none
    const char *button, *rows;
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
  onStep([&] {
    for (const Case& it : cases) {
      given(it.types);
      if (it.renamed >= 0) rename(it.renamed, "Own");
      saveAndCompile();
      user.select(list(), it.selected);
      const std::string before = rows();
      click(it.button);
      const auto what = std::string(it.button) + " " + std::to_string(it.selected);
      EXPECT_EQ(rows(), it.rows) << what;
      EXPECT_EQ(list().selectedRow(), it.selectedAfter) << what;
      EXPECT_EQ(isModified(), rows() != before) << what;
      clickInWindow("cmdSave");
      EXPECT_EQ(document().get_SystemInfo()->get_ProgramIsCurrent(), rows() == before) << what;
    }
  });
}

TEST_F(TabOriginationTest, LabelIsTrimmedCutAndNeverEmpty) {
  struct Case {
    const char *typed, *label, *message;
  };
  onStep([&] {
    given({"Wall"});
    for (const auto& [typed, label, message] :
         {Case{" Rostrum ", "Rostrum", nullptr}, Case{"12345678", "12345678", nullptr},
          Case{"123456789", "12345678", tooLong}, Case{"Podium 1 2", "Podium 1", tooLong},
          Case{"Lectern 12", "Lectern", tooLong}, Case{"Stühle \u00fc", "Stühle \u00fc", nullptr},
          Case{"   ", "Stühle \u00fc", tooShort}, Case{"", "Stühle \u00fc", tooShort}}) {
      if (message) expectMessage(message, forms::Icon::information);
      rename(0, typed);
      EXPECT_EQ(list().text(0, 0), label) << typed;
    }
    click("cmdRename");
    EXPECT_TRUE(list().hasFocus());
    user.labelText(list(), "Cart");
    next();
    EXPECT_EQ(device("Wall Plate Transmitter OL1")->get_Label(), "Cart");
  });
}

TEST_F(TabOriginationTest, SystemFollowsTheListWhenTheStepIsLeft) {
  onStep([&] {
    given({"Wall", "Table"});
    EXPECT_FALSE(device("Wall Plate Transmitter OL1"));
    leave();
    const std::int16_t wall = device("Wall Plate Transmitter OL1")->get_ID();
    EXPECT_EQ(device("Table Box Transmitter OL2")->get_Label(), "Input 2");
    rename(0, "Desk");
    leave();
    EXPECT_EQ(addIn->get_OriginationPointID(1), wall);
    EXPECT_EQ(device("Wall Plate Transmitter OL1")->get_Label(), "Desk");

    click("cmdDown");
    leave();
    EXPECT_FALSE(device("Wall Plate Transmitter OL1"));
    EXPECT_EQ(device("Wall Plate Transmitter OL2")->get_Label(), "Desk");
    EXPECT_EQ(device("Table Box Transmitter OL1")->get_Label(), "Input 1");
    fill();
    EXPECT_EQ(rows(), "Input 1=Table, Desk=Wall");
    EXPECT_EQ(list().selectedRow(), 0);
    click("cmdDelete");
    click("cmdDelete");
    leave();
    EXPECT_TRUE(!device("Wall Plate Transmitter OL2") && addIn->get_OriginationPointID(1) == 0);
  });
}

TEST_F(TabOriginationTest, ReceiverFollowsTheNumberOfInputs) {
  const std::string one = "Receiver is OL-RX1/OL-RXV1/OL-RXV1-M";
  const std::string three = "Receiver is OL-RX3/OL-RXV3/OL-RXV3-M";
  onStep([&] {
    const auto expectReceiver = [&](const std::string& info, std::int16_t model) {
      EXPECT_EQ(text("lblInfo"), info);
      leave();
      EXPECT_EQ(document().get_ControlSystem()->get_ModelID(), model);
    };
    given({"Wall"});
    expectReceiver(one, host::modelReceiverOneInput);
    EXPECT_EQ(callsOf("ChangeControlSystem"), 0);
    add("Wall");
    expectReceiver(three, host::modelReceiverThreeInputs);
    EXPECT_EQ(callsOf("ChangeControlSystem"), 1);
    click("cmdDelete");
    document().MarkUnchanged();
    click("chkUse3OLReceiver");
    EXPECT_TRUE(isModified());
    expectReceiver(three, host::modelReceiverThreeInputs);
    EXPECT_EQ(callsOf("ChangeControlSystem"), 1);
    EXPECT_EQ(addIn->get_bUse3OLReceiver(), 0);  // the save alone writes it
    save();
    EXPECT_EQ(addIn->get_bUse3OLReceiver(), 1);
    click("chkUse3OLReceiver");
    expectReceiver(one, host::modelReceiverOneInput);
    fill();
    EXPECT_EQ(states({"chkUse3OLReceiver"}) + text("lblInfo"), "x" + three);
  });
}

}  // namespace
