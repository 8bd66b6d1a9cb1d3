#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QMessageBox>

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/OptionButton.h"
#include "forms/TextBox.h"
#include "tests/qt/Screen.h"

namespace tests {
namespace {

struct Form : forms::Form {
  Form() : forms::Form("form") {
    setCaption("Focus");
    forms::Twips top = 0;
    for (forms::Control* control : std::initializer_list<forms::Control*>{
             &label, &box, &hidden, &grey, &check, &frame, &button}) {
      control->setBounds({0, top, 3000, 400});
      top += 500;
    }
    frame.setBounds({3500, 0, 1000, 3000});
    top = 0;
    for (auto* option : {&one, &two, &three}) option->setBounds({100, top += 400, 800, 300});
    hidden.setVisible(false);
    grey.setEnabled(false);
    two.setEnabled(false);
    one.setChosen(true);
    button.click.connect([this] { ++clicks; });
    check.click.connect([this] { ++clicks; });
  }
  forms::Label label{*this, "label", "&Name:"};
  forms::TextBox box{*this, "box"};
  forms::TextBox hidden{*this, "hidden"};
  forms::TextBox grey{*this, "grey"};
  forms::CheckBox check{*this, "check", "&Check"};
  forms::Frame frame{*this, "frame", "Group"};
  forms::OptionButton one{frame, "one", "One"};
  forms::OptionButton two{frame, "two", "Two"};
  forms::OptionButton three{frame, "three", "&Three"};
  forms::CommandButton button{*this, "button", "&Go"};
  int clicks = 0;
};

class FocusTest : public Screen {
 protected:
  static bool isOn(const forms::Control& control) {
    return widgetAs<QAbstractButton>(control).isChecked();
  }
  Form form;
};

TEST_F(FocusTest, TabArrowsAndAcceleratorsMoveAsTheFormSays) {
  show(form, [&] {
    std::string walk = focus(form);
    for (int i = 0; i < 4; ++i) {
      key(Qt::Key_Tab);
      walk += " " + focus(form);
    }
    EXPECT_EQ(walk, "box check one button box");
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focus(form), "button");

    click(form.one);
    key(Qt::Key_Down);
    EXPECT_EQ(focus(form), "three");
    EXPECT_TRUE(isOn(form.three) && !isOn(form.one));

    key(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(form.check.isChecked());
    key(Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(focus(form), "box");
    key(Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(form.clicks, 1) << "no accelerator";
  });
}

TEST_F(FocusTest, ARefusalKeepsTheFocusAndDropsTheClick) {
  form.box.validate.connect([](bool& cancel) { cancel = true; });
  show(form, [&] {
    click(form.check);
    EXPECT_FALSE(form.check.isChecked() || isOn(form.check));
    key(Qt::Key_Tab);
    EXPECT_EQ(focus(form), "box");
  });
}

TEST_F(FocusTest, AMessageOnTheWayDeliversTheClickOnceAllTheSame) {
  form.box.validate.connect([this](bool&) { application.messageBox("Not so."); });
  show(form, [&] {
    whenBoxOpens([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    click(form.button);
    EXPECT_EQ(focus(form), "button");
    EXPECT_EQ(form.clicks, 1);
    EXPECT_FALSE(widgetAs<QAbstractButton>(form.button).isDown());
  });
}

TEST_F(FocusTest, KeysAndTheButtonsOfTheMouseAreToldApart) {
  std::string pressed;
  form.button.setDefault(true);
  forms::CommandButton cancel(form, "cancel", "Cancel");
  cancel.setCancel(true);
  form.button.mouseDown.connect([&](forms::MouseButton button) {
    pressed += button == forms::MouseButton::left ? "left " : "right ";
  });
  form.button.click.connect([&] { pressed += "default "; });
  cancel.click.connect([&] { pressed += "cancel "; });
  show(form, [&] {
    QTest::mouseClick(&widget(form.button), Qt::RightButton);
    EXPECT_EQ(focus(form), "box");
    key(Qt::Key_Return);
    click(form.button);
    key(Qt::Key_Escape);
    EXPECT_EQ(pressed, "right default left default cancel ");
  });
}

}  // namespace
}  // namespace tests
