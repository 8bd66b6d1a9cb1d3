#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <filesystem>
#include <fstream>

#include "forms/CommandButton.h"
#include "forms/Components.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/TextBox.h"
#include "forms/UserControl.h"
#include "tests/qt/Screen.h"

namespace tests {
namespace {

struct Form : forms::Form {
  explicit Form(const std::string& caption) : forms::Form("form") {
    setCaption(caption);
    label.setBounds({0, 0, 1500, 300});
    box.setBounds({1600, 0, 1500, 315});
    frame.setBounds({0, 500, 4000, 1500});
    button.setBounds({0, 2200, 1500, 375});
  }
  forms::Label label{*this, "label", "System &name:"};
  forms::TextBox box{*this, "box"};
  forms::Frame frame{*this, "frame", "Frame"};
  forms::CommandButton button{*this, "button", "&Open"};
};

struct Selector : forms::UserControl {
  Selector(forms::Container& container, const std::string& name)
      : forms::UserControl(container, name) {
    setBounds({100, 300, 2000, 600});
    inner.setBounds({0, 0, 2000, 315});
  }
  forms::TextBox inner{*this, "inner"};
};

class WindowTest : public Screen {
 protected:
  bool isSeen(const char* name) {
    const auto* found = window(form).findChild<QWidget*>(name);
    return found && found->isVisible();
  }
  Form form{"First"};
};

TEST_F(WindowTest, AModalFormOverAnotherEndsBeforeItAndActivatesItAgain) {
  Form second("Second");
  std::string journal;
  form.activated.connect([&] { journal += "first "; });
  second.activated.connect([&] { journal += "second "; });
  form.button.click.connect([&] {
    show(second, [&] {
      EXPECT_EQ(QApplication::activeModalWidget(), &window(second));
      EXPECT_NE(second.windowHandle(), 0);
      click(form.button);  // lies behind
      form.hide();         // waits for the one over it
      journal += "shown ";
    });
    journal += "closed ";
  });
  show(form, [&] { click(form.button); });
  EXPECT_EQ(journal, "first second shown closed ");
  EXPECT_EQ(second.windowHandle(), 0);
  EXPECT_FALSE(second.isVisible());
}

TEST_F(WindowTest, TheCloseBoxAsksTheForm) {
  int asked = 0;
  form.queryUnload.connect([&](bool& cancel, forms::UnloadMode mode) {
    EXPECT_EQ(mode, forms::UnloadMode::closeBox);
    cancel = ++asked == 1;
  });
  show(form, [&] {
    window(form).close();
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(window(form).isVisible());
    key(Qt::Key_Escape);
    EXPECT_EQ(asked, 1);
    window(form).close();
    EXPECT_FALSE(form.isVisible());
  });
  EXPECT_EQ(asked, 2);
  EXPECT_FALSE(form.isLoaded());
}

TEST_F(WindowTest, AFormThatIsHiddenWhileItIsActivatedComesBackAtOnce) {
  form.activated.connect([&] { form.hide(); });
  form.showModal(nullptr);
  EXPECT_FALSE(form.isVisible());
  form.showModal(nullptr);
  EXPECT_FALSE(form.isVisible());
}

TEST_F(WindowTest, SizesGoBothWays) {
  form.setSizeable(true);
  form.setMinimumSize({4500, 3000});
  int resizes = 0;
  form.resized.connect([&] { ++resizes; });
  show(form, [&] {
    window(form).resize(500, 400);
    settle();
    EXPECT_EQ(form.innerSize(), (forms::Size{7500, 6000}));
    EXPECT_EQ(resizes, 1);
    form.setSize({9000, 7500});
    settle();
    EXPECT_EQ(window(form).width(), form.innerSize().width / 15);
    EXPECT_EQ(resizes, 2);
    window(form).resize(10, 10);
    EXPECT_GE(form.size().width, 4500 - 15);
  });
}

TEST_F(WindowTest, MessagesAreAnsweredByTheirButtonsAndByEscapeWhereItMayAnswer) {
  struct Case {
    forms::Buttons buttons;
    Qt::Key key;
    forms::Answer answer;
  };
  const Case cases[] = {
      {forms::Buttons::ok, Qt::Key_Escape, forms::Answer::ok},
      {forms::Buttons::okCancel, Qt::Key_Escape, forms::Answer::cancel},
      {forms::Buttons::okCancel, Qt::Key_Return, forms::Answer::ok},
      {forms::Buttons::yesNoCancel, Qt::Key_Escape, forms::Answer::cancel},
      {forms::Buttons::yesNo, Qt::Key_Return, forms::Answer::yes},
  };
  show(form, [&] {
    for (const Case& one : cases) {
      whenBoxOpens([&](QMessageBox& box) { QTest::keyClick(box.defaultButton(), one.key); });
      EXPECT_EQ(application.messageBox("Text", one.buttons), one.answer);
    }
    whenBoxOpens([&](QMessageBox& box) {
      EXPECT_EQ(box.windowTitle(), "Program");
      EXPECT_EQ(box.text(), "<b>one</b>\n\ntwo");
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      QTest::keyClick(&box, Qt::Key_Escape);
      box.close();
      EXPECT_TRUE(box.isVisible());
      box.button(QMessageBox::No)->click();
    });
    EXPECT_EQ(application.messageBox("<b>one</b>\r\n\r\ntwo", forms::Buttons::yesNo),
              forms::Answer::no);
  });
}

TEST_F(WindowTest, AnErrorThatLeavesAHandlerIsAMessage) {
  form.button.click.connect([] { throw forms::Error(5, "No such device."); });
  show(form, [&] {
    QString text;
    whenBoxOpens([&](QMessageBox& box) {
      text = box.text();
      box.accept();
    });
    click(form.button);
    EXPECT_EQ(text, "No such device.");
    EXPECT_TRUE(form.isVisible());
  });
}

TEST_F(WindowTest, ControlsComeGoAndMoveWhileTheFormIsShown) {
  forms::registerControl("test.Selector", [](forms::Container& container, const std::string& name) {
    return std::make_unique<Selector>(container, name);
  });
  show(form, [&] {
    auto& added = dynamic_cast<Selector&>(form.addControl("test.Selector", "added"));
    settle();
    EXPECT_EQ(widget(added).parentWidget(), &window(form));
    added.setContainer(form.frame);
    added.inner.setFocus();
    settle();
    EXPECT_EQ(widget(added).parentWidget(), &widget(form.frame));
    EXPECT_EQ(focus(form), "inner");
    type("typed");
    EXPECT_EQ(added.inner.text(), "typed");
    form.removeControl("added");
    settle();
    EXPECT_FALSE(isSeen("inner"));
    EXPECT_EQ(focus(form), "box");
  });
  forms::unregister("test.Selector");
}

TEST_F(WindowTest, AClickMayEndWhatHadTheFocus) {
  auto frame = std::make_unique<forms::Frame>(form, "short", "Short");
  auto box = std::make_unique<forms::TextBox>(*frame, "inner");
  frame->setBounds({2000, 2200, 2000, 900});
  box->setBounds({100, 300, 1000, 315});
  form.button.click.connect([&] {
    box.reset();
    frame.reset();
  });
  show(form, [&] {
    box->setFocus();
    settle();
    type("x");
    click(form.button);
    EXPECT_FALSE(isSeen("short"));
    EXPECT_EQ(focus(form), "button");
  });
}

TEST_F(WindowTest, WhatAFrameHeldStaysWhenTheFrameGoes) {
  auto frame = std::make_unique<forms::Frame>(form, "short", "Short");
  forms::TextBox box(*frame, "inner");
  box.setBounds({2000, 2200, 1000, 315});
  show(form, [&] {
    frame.reset();
    settle();
    EXPECT_TRUE(isSeen("inner"));
    EXPECT_EQ(widget(box).parentWidget(), &window(form));
    click(box);
    type("x");
    EXPECT_EQ(box.text(), "x");
  });
}

TEST_F(WindowTest, ScreenReadersAreToldWhatIsWhat) {
  form.button.setCaption("");
  form.button.setToolTip("Open a system");
  show(form, [&] {
    EXPECT_EQ(widget(form.box).accessibleName(), "System name:");
    EXPECT_EQ(widget(form.button).accessibleName(), "Open a system");
    EXPECT_EQ(widget(form.frame).accessibleName(), "Frame");
    form.label.setCaption("Location:");
    form.button.setFocus();
    settle();
    form.box.setFocus();
    settle();
    EXPECT_EQ(widget(form.box).accessibleName(), "Location:");
  });
}

TEST_F(WindowTest, ATextHasRoomInTheSizeThatWasMeasuredForIt) {
  const forms::Font font;
  const std::string text = "The delay between the relay and the display, in seconds";
  const forms::Size line = desktop().textSize(text, font, 0);
  const forms::Size broken = desktop().textSize(text, font, line.width / 2);
  EXPECT_LE(broken.width, line.width / 2 + 30);
  EXPECT_GE(broken.height, 2 * line.height);
  EXPECT_EQ(desktop().textSize(text, font, line.width), line);
  EXPECT_EQ(desktop().textSize("one\r\ntwo", font, 0).height, 2 * line.height);
  EXPECT_GT(desktop().textSize(text, {"Tahoma", 8.25, true, false}, 0).width, line.width);
}

TEST_F(WindowTest, AScreenshotIsOfTheFormAsItIsNow) {
  const auto file = std::filesystem::temp_directory_path() / "screenshot-of-a-form.png";
  EXPECT_FALSE(desktop().saveScreenshot(form, file));
  show(form, [&] {
    form.setBackColor(0x000000FF);
    ASSERT_TRUE(desktop().saveScreenshot(form, file));
    const QImage image(QString::fromStdString(file.string()));
    EXPECT_EQ(image.size(), window(form).size());
    EXPECT_EQ(image.pixelColor(image.width() - 1, image.height() - 1), QColor(255, 0, 0));
  });
  std::filesystem::remove(file);
}

TEST_F(WindowTest, F1ShowsTheTopicOfWhatHasTheFocus) {
  const auto folder = std::filesystem::temp_directory_path() / "help-of-a-form";
  std::filesystem::create_directories(folder / "help");
  std::ofstream(folder / "help" / "12.md") << "# Names\n";
  std::string helpFile = (folder / "program.hlp").string();
  std::replace(helpFile.begin(), helpFile.end(), '/', '\\');
  form.frame.setHelpContext(7);
  form.box.setHelpContext(12);
  show(form, [&] {
    application.setHelpFile(helpFile);
    EXPECT_EQ(desktop().showHelp(0, helpFile, 7), 0);
    key(Qt::Key_F1);
    const auto windows = QApplication::topLevelWidgets();
    const auto isHelp = [](const QWidget* one) { return one->windowTitle() == "Help"; };
    EXPECT_EQ(std::count_if(windows.begin(), windows.end(), isHelp), 1);
    desktop().closeAllHelp();
  });
  std::filesystem::remove_all(folder);
}

TEST_F(WindowTest, TheProgramsArgumentsOutliveTheCall) {
  EXPECT_EQ(QCoreApplication::arguments(), QStringList{"test"});
}

TEST_F(WindowTest, TasksForLaterRunAfterWhatRunsNow) {
  std::string journal;
  desktop().runLater([&] { journal += "later "; });
  journal += "now ";
  desktop().processEvents();
  EXPECT_EQ(journal, "now later ");
}

}  // namespace
}  // namespace tests
