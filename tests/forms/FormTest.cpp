#include "tests/forms/Desk.h"

namespace tests {
namespace {

/// A form that writes down what happens to it.
struct Window : forms::Form {
  Window(std::string name, Journal& events) : Form(std::move(name)), journal(events) {
    loading.connect([this] { note("load"); });
    activated.connect([this] { note("activate"); });
    resized.connect([this] { note("resize"); });
    queryUnload.connect([this](bool& cancel, forms::UnloadMode mode) {
      note(mode == forms::UnloadMode::closeBox ? "query close" : "query unload");
      cancel = keeps;
    });
    unloading.connect([this] { note("unload"); });
  }
  ~Window() override { note("end"); }

  void note(const std::string& event) { journal.push_back(name() + " " + event); }

  Journal& journal;
  bool keeps = false;
};

class FormTest : public Desk {
 protected:
  Journal journal;
};

TEST_F(FormTest, LifeOfAForm) {
  {
    Window window("main", journal);
    desktop.whenShown("main", [&](forms::Form&) {
      EXPECT_GT(window.windowHandle(), 0);
      EXPECT_EQ(application.activeForm(), &window);
      EXPECT_THROW(window.showModal(nullptr), forms::Error);
      window.setSize({9705, 7500});
      window.keeps = true;
      EXPECT_FALSE(user.close(window));
      EXPECT_TRUE(window.isVisible());
      window.keeps = false;
      EXPECT_TRUE(window.unload());
      EXPECT_EQ(application.activeForm(), nullptr);
    });
    window.showModal(nullptr);
    EXPECT_EQ(window.windowHandle(), 0);
    EXPECT_FALSE(window.isLoaded());
    EXPECT_TRUE(window.unload()) << "not loaded any more: nothing to do";
  }
  EXPECT_EQ(journal, (Journal{"main load", "main activate", "main resize", "main query close",
                              "main query unload", "main unload", "main end"}));
}

TEST_F(FormTest, ActivationComesAtEachShowAndWhenAFormOverItCloses) {
  Window window("main", journal);
  Window dialog("dialog", journal);
  desktop.whenShown("dialog", [&](forms::Form& form) {
    EXPECT_EQ(application.openForms(), (std::vector<forms::Form*>{&window, &dialog}));
    desktop.expectMessage("", "Really?", forms::Buttons::yesNo, forms::Icon::question);
    application.messageBox("Really?", forms::Buttons::yesNo, forms::Icon::question);
    user.close(form);
  });
  onForm(window, [&](forms::Form&) {
    desktop.expectMessage("", "Hello");
    application.messageBox("Hello");
    desktop.expectFolderDialog("Where?", "");
    desktop.chooseFolder({0, "Where?", ""});
    EXPECT_EQ(journal, (Journal{"main load", "main activate"})) << "not for boxes and dialogs";
    dialog.showModal(&window);
  });
  EXPECT_EQ(journal, (Journal{"main load", "main activate", "dialog load", "dialog activate",
                              "dialog query close", "dialog unload", "main activate"}));

  journal.clear();
  onForm(window, [](forms::Form&) {});
  EXPECT_EQ(journal, Journal{"main activate"}) << "hidden, it stayed loaded";
}

TEST_F(FormTest, NoActivationWhileOneRuns) {
  Window window("main", journal);
  Window dialog("dialog", journal);
  window.activated.connect([&] { onForm(dialog, [](forms::Form&) {}); });
  onForm(window, [](forms::Form&) {});
  EXPECT_EQ(journal, (Journal{"main load", "main activate", "dialog load", "dialog activate"}));
}

TEST_F(FormTest, EndOfTheWaitFromInside) {
  for (const std::string where : {"loading", "activation"}) {
    SCOPED_TRACE(where);
    Window window("main", journal);
    auto& event = where == "loading" ? window.loading : window.activated;
    event.connect([&] { where == "loading" ? window.hide() : void(window.unload()); });
    window.showModal(nullptr);  // a script would be missing if it were shown still
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(application.openForms().empty());
  }
}

TEST_F(FormTest, ErrorThatLeavesAHandlerIsShownAndTheProgramGoesOn) {
  forms::Form form("form");
  forms::CommandButton button(form, "button");
  int after = 0;
  button.click.connect([] { throw forms::Error(1004, "The device doesn't answer."); });
  button.click.connect([&] { ++after; });
  desktop.expectMessage("Wizard", "The device doesn't answer.", forms::Buttons::ok,
                        forms::Icon::critical);
  application.setTitle("Wizard");
  onForm(form, [&](forms::Form&) { user.click(button); });
  EXPECT_EQ(after, 1);
}

TEST_F(FormTest, ListenersMayEndAndConnectWhileTheyRun) {
  forms::Event<> event;
  Journal heard;
  forms::Subscription second;
  const forms::Subscription first = event.listen([&] {
    heard.push_back("first");
    second.end();
    event.connect([&] { heard.push_back("late"); });
  });
  second = event.listen([&] { heard.push_back("second"); });
  event.raise();
  EXPECT_EQ(heard, Journal{"first"});
}

TEST_F(FormTest, KeysOfAForm) {
  Window window("main", journal);
  forms::TextBox box(window, "box");
  bool kept = false;
  window.keyDown.connect([&](forms::KeyDown& key) {
    window.note("key " + std::to_string(key.code));
    if (kept) key.code = 0;
  });
  box.keyDown.connect([&](forms::KeyDown& key) { window.note("box " + std::to_string(key.code)); });
  onForm(window, [&](forms::Form&) {
    journal.clear();
    user.press(forms::keys::escape);
    EXPECT_EQ(journal, Journal{"main box 27"}) << "without preview";
    window.setKeyPreview(true);
    user.press(forms::keys::f1, 1);
    kept = true;
    user.press(forms::keys::f2);
    EXPECT_EQ(journal, (Journal{"main box 27", "main key 112", "main box 112", "main key 113"}));
    box.setEnabled(false);
    window.focus().settle();
    window.setKeyPreview(false);
    journal.clear();
    user.press(forms::keys::escape);
    EXPECT_EQ(journal, Journal{"main key 27"}) << "no control has the focus";
  });
}

}  // namespace
}  // namespace tests
