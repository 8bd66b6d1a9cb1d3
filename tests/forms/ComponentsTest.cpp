#include "forms/Components.h"

#include "forms/ControlArray.h"
#include "forms/Listing.h"
#include "tests/forms/Desk.h"

namespace tests {
namespace {

struct Builder : forms::Object {};
struct Other : forms::Object {};

struct Step : forms::UserControl {
  Step(forms::Container& container, std::string name) : UserControl(container, std::move(name)) {
    resized.connect([this] { ++resizes; });
  }
  void initProperties() override {
    if (name() == "broken") throw forms::Error(7, "No memory for the step.");
    initialised = true;
  }
  forms::TextBox box{*this, "box"};
  bool initialised = false;
  int resizes = 0;
};

class ComponentsTest : public Desk {
 protected:
  ComponentsTest() {
    forms::registerObject("tests.Builder", [] { return std::make_shared<Builder>(); });
    forms::registerControl("tests.Step", [](forms::Container& container, const std::string& name) {
      return std::make_unique<Step>(container, name);
    });
  }
  ~ComponentsTest() override {
    forms::unregister("tests.Builder");
    forms::unregister("tests.Step");
  }

  forms::Form form{"form"};
};

TEST_F(ComponentsTest, CreationFromProgramIds) {
  EXPECT_NE(forms::createObject<Builder>("tests.Builder"), nullptr);
  EXPECT_EQ(raisedBy([] { forms::createObject<Other>("tests.Builder"); }).number(), 13);
  EXPECT_EQ(raisedBy([] { forms::createAnyObject("tests.Nothing"); }).number(), 429);

  EXPECT_EQ(raisedBy([&] { form.addControl("tests.Nothing", "ctl0"); }).number(), 429);
  EXPECT_EQ(raisedBy([&] { form.addControl("tests.Step", "broken"); }).number(), 7);
  EXPECT_TRUE(form.controls().empty() && form.children().empty()) << "nothing half made stays";

  auto& step = dynamic_cast<Step&>(form.addControl("tests.Step", "ctl0"));
  EXPECT_TRUE(step.initialised);
  EXPECT_EQ(&form.control("ctl0"), &step);
  EXPECT_EQ(raisedBy([&] { form.addControl("tests.Step", "ctl0"); }).number(), 457);
  EXPECT_EQ(&form.control("ctl0"), &step) << "the first one stays";

  form.removeControl("ctl0");
  EXPECT_EQ(form.find("ctl0"), nullptr);
  EXPECT_EQ(raisedBy([&] { form.removeControl("ctl0"); }).number(), 344);
  forms::TextBox own(form, "own");
  EXPECT_EQ(raisedBy([&] { form.removeControl("own"); }).number(), 344) << "not made by addControl";
}

TEST_F(ComponentsTest, SizeAndContainer) {
  Step step(form, "step");
  step.setBounds({100, 350, 4000, 3000});
  step.move(-9000, 350);
  EXPECT_EQ(step.resizes, 1);

  forms::Frame outer(form, "outer");
  forms::Frame inner(outer, "inner");
  forms::TextBox box(form, "box");
  box.setContainer(inner);
  EXPECT_TRUE(outer.contains(box));
  EXPECT_EQ(raisedBy([&] { outer.setContainer(inner); }).number(), 5);
  EXPECT_EQ(raisedBy([&] { inner.setContainer(inner); }).number(), 5);
  EXPECT_EQ(raisedBy([&] { box.setContainer(step); }).number(), 5) << "another root";
  EXPECT_EQ(&box.container(), &inner);
}

TEST_F(ComponentsTest, ControlArraysAndTheListingOfAPage) {
  forms::Frame frame(form, "frame", "&Power && more");
  const forms::ControlArray<forms::OptionButton> options{
      "optPower", {{2, frame, "&Discrete"}, {0, frame, "N&one"}}};
  forms::CheckBox check(form, "chk", "Relay");
  options(0).setChosen(true);
  options(2).setEnabled(false);
  check.setChecked(true);
  check.setVisible(false);
  EXPECT_EQ(raisedBy([&] { options(1).setChosen(true); }).number(), 9);
  EXPECT_EQ(forms::listing(form),
            "frame: frame \"Power & more\"\n"
            "  optPower(2): option button \"Discrete\", disabled, tab stop\n"
            "  optPower(0): option button \"None\", chosen, tab stop\n"
            "chk: check box \"Relay\", checked, hidden, tab stop\n");
  std::string indexes;
  options.each([&](std::int16_t index, auto&) { indexes += std::to_string(index); });
  EXPECT_EQ(indexes, "02");
}

}  // namespace
}  // namespace tests
