#include <functional>

#include "tests/forms/Desk.h"

namespace tests {
namespace {

using Act = std::function<void(Wizard&, forms::User&)>;
using Change = std::function<void(Wizard&)>;

class FocusTest : public Desk {
 protected:
  std::string focused(Wizard& wizard) {
    const forms::Control* control = wizard.focus().control();
    return control ? control->name() : "none";
  }
};

TEST_F(FocusTest, LeavingAControl) {
  struct Case {
    const char *situation, *refusing;
    Act act;
    Journal journal;
    const char* focus;
  };
  const Act check = [](Wizard& w, forms::User& u) { u.click(w.page.check); };
  const Act next = [](Wizard& w, forms::User& u) { u.click(w.next); };
  const Act accelerator = [](Wizard&, forms::User& u) { u.pressAccelerator(U'N'); };
  const Act tab = [](Wizard&, forms::User& u) { u.tab(); };
  const Act select = [](Wizard& w, forms::User& u) { u.select(w.page.selector.list, 1); };
  const Act header = [](Wizard& w, forms::User& u) { u.select(w.tabs.strip, 1); };
  const Act label = [](Wizard& w, forms::User& u) { u.click(w.page.label); };
  const Act name = [](Wizard& w, forms::User& u) { u.click(w.page.name); };
  const Act program = [](Wizard& w, forms::User&) { w.page.delay.setFocus(); };
  const Act container = [](Wizard& w, forms::User&) { w.page.selector.setFocus(); };
  const Act close = [](Wizard& w, forms::User& u) { u.close(w); };
  const Journal kept{"validate name (name)"};
  const Journal left{"validate name (none)", "validate first (none)", "lost name", "got next",
                     "click next"};
  const Journal ofList{"validate list (selector)", "validate selector (selector)"};

  const auto expect = [&](const Act& start, const std::vector<Case>& cases) {
    for (const Case& c : cases) {
      SCOPED_TRACE(c.situation);
      Wizard wizard;
      onForm(wizard, [&](forms::Form&) {
        start(wizard, user);
        wizard.journal.clear();
        wizard.refusing = c.refusing;
        c.act(wizard, user);
        EXPECT_EQ(wizard.journal, c.journal);
        EXPECT_EQ(focused(wizard), c.focus);
      });
    }
  };
  expect(
      name,
      {{"within the page", "", check, {kept[0], "lost name", "got check", "click check"}, "check"},
       {"within the page, refused: no click", "name", check, kept, "name"},
       {"out of the page: no active control then, never refused", "name", next, left, "next"},
       {"an accelerator is a move like a click", "name", accelerator, left, "next"},
       {"Tab within the page, refused", "name", tab, kept, "name"},
       {"into a selector", "name", select, kept, "name"},
       {"to the page's header", "name", header, {left[0], left[1], left[2], "got strip"}, "strip"},
       {"a click on a label moves nothing", "name", label, {"click label"}, "name"},
       {"a click on what has the focus moves nothing", "name", name, {}, "name"},
       {"the program validates nothing", "name", program, {"lost name", "got delay"}, "delay"},
       {"the first stop of a container", "", container, {"lost name", "got list"}, "list"},
       {"the close box validates nothing", "name", close, {}, "name"}});
  expect([](Wizard& w, forms::User& u) { u.moveFocus(w.page.selector.list); },
         {{"out of a selector: the selector refuses, not its own control",
           "list",
           name,
           {ofList[0], ofList[1], "lost list", "got name"},
           "name"},
          {"out of a selector, refused for the page", "selector", name, ofList, "list"}});
}

TEST_F(FocusTest, HandlersThatInterfereWithAMove) {
  Wizard wizard;
  onForm(wizard, [&](forms::Form&) {
    user.moveFocus(wizard.page.name);
    wizard.journal.clear();
    bool once = true;
    wizard.page.name.lostFocus.connect([&] {
      if (std::exchange(once, false)) wizard.page.name.setFocus();
    });
    user.click(wizard.next);
    EXPECT_EQ(wizard.journal.back(), "click next")
        << "a box that takes the focus back stops no click";
    EXPECT_EQ(focused(wizard), "name");

    wizard.page.name.validate.connect([&](bool&) { wizard.page.check.setEnabled(false); });
    wizard.journal.clear();
    user.click(wizard.page.check);
    EXPECT_EQ(wizard.journal, Journal{"validate name (name)"});
    EXPECT_EQ(focused(wizard), "name");
  });
}

TEST_F(FocusTest, TabOrder) {
  using Case = std::pair<Change, const char*>;
  for (const auto& [change, expected] :
       {Case{[](Wizard&) {}, "name delay check one list rows next "},
        Case{[](Wizard& w) { w.page.two.setChosen(true); }, "name delay check two list rows next "},
        Case{[](Wizard& w) {
               w.page.name.setVisible(false);
               w.page.delay.setEnabled(false);
               w.page.check.setTabStop(false);
             },
             "one list rows next "},
        Case{[](Wizard& w) { w.page.frame.setEnabled(false); }, "name delay check list rows next "},
        Case{[](Wizard& w) { w.page.selector.setTabStop(false); },
             "name delay check one rows next "},
        Case{[](Wizard& w) { w.tabs.strip.setTabStop(true); },
             "strip name delay check one list rows next "},
        Case{[](Wizard& w) {
               w.tabs.strip.setCurrentPage(1);
               w.tabs.second.name.setTabStop(false);
             },
             "delay check one list rows next "}}) {
    SCOPED_TRACE(expected);
    Wizard wizard;
    onForm(wizard, [&](forms::Form&) {
      change(wizard);
      wizard.next.setFocus();
      std::string walked;
      const auto order = wizard.focus().stops();
      for (std::size_t i = 0; i < order.size(); ++i) {
        user.tab();
        EXPECT_EQ(focused(wizard), order[i]->name());
        walked += focused(wizard) + " ";
      }
      EXPECT_EQ(walked, expected);
      user.shiftTab();
      EXPECT_EQ(focused(wizard), order[(2 * order.size() - 2) % order.size()]->name());
    });
  }
}

TEST_F(FocusTest, FocusThatCantStaySettlesBehindItsPlace) {
  using Case = std::pair<Change, const char*>;
  for (const auto& [change, focus] :
       {Case{[](Wizard& w) { w.page.delay.setEnabled(false); }, "check"},
        Case{[](Wizard& w) { w.page.setVisible(false); }, "next"},
        Case{[](Wizard& w) { w.tabs.strip.setCurrentPage(1); }, "name"},
        Case{[](Wizard& w) {
               w.tabs.setVisible(false);
               w.next.setEnabled(false);
             },
             "none"}}) {
    SCOPED_TRACE(focus);
    Wizard wizard;
    onForm(wizard, [&](forms::Form&) {
      user.moveFocus(wizard.page.delay);
      wizard.journal.clear();
      change(wizard);
      wizard.focus().settle();
      EXPECT_EQ(focused(wizard), focus);
      EXPECT_EQ(wizard.journal.front(), "lost delay") << "nothing is validated";
    });
  }
}

TEST_F(FocusTest, ProgramCantFocusWhatAUserCantReach) {
  Wizard wizard;
  wizard.page.delay.setEnabled(false);
  for (forms::Control* control : {static_cast<forms::Control*>(&wizard.page.delay),
                                  static_cast<forms::Control*>(&wizard.page.label),
                                  static_cast<forms::Control*>(&wizard.tabs.second.name)}) {
    EXPECT_EQ(raisedBy([&] { control->setFocus(); }).number(), forms::errors::invalidCall);
  }
}

TEST_F(FocusTest, AcceleratorsAndArrows) {
  Wizard wizard;
  onForm(wizard, [&](forms::Form&) {
    user.moveFocus(wizard.next);
    EXPECT_TRUE(user.pressAccelerator(U'm'));
    EXPECT_EQ(focused(wizard), "name") << "a label gives the focus to the control behind it";
    EXPECT_FALSE(user.pressAccelerator(U'x'));

    user.press('O', 4);
    EXPECT_TRUE(wizard.page.one.isChosen());

    wizard.page.two.setEnabled(false);
    user.press(forms::keys::down);
    EXPECT_EQ(focused(wizard), "three");
    EXPECT_TRUE(wizard.page.three.isChosen());
    user.press(forms::keys::right);
    EXPECT_EQ(focused(wizard), "one") << "round the end";
  });
}

TEST_F(FocusTest, DefaultAndCancelButtons) {
  struct Dialog : forms::Form {
    Dialog() : Form("dialog") {
      ok.setDefault(true);
      cancel.setCancel(true);
      box.validate.connect([](bool& refused) { refused = true; });
      ok.click.connect([this] { journal.push_back("ok"); });
      other.click.connect([this] { journal.push_back("other"); });
      cancel.click.connect([this] { journal.push_back("cancel"); });
    }
    forms::TextBox box{*this, "box"};
    forms::CommandButton other{*this, "other"};
    forms::CommandButton ok{*this, "ok"};
    forms::CommandButton cancel{*this, "cancel"};
    Journal journal;
  } dialog;
  onForm(dialog, [&](forms::Form&) {
    user.press(forms::keys::enter);
    EXPECT_EQ(dialog.journal, Journal{}) << "the box refuses";
    user.press(forms::keys::escape);
    EXPECT_EQ(dialog.journal, Journal{"cancel"}) << "nothing is validated";
    user.press(forms::keys::enter);
    dialog.other.setFocus();
    user.press(forms::keys::enter);
    EXPECT_EQ(dialog.journal, (Journal{"cancel", "cancel", "other"}));
    dialog.ok.setEnabled(false);
    dialog.box.setFocus();
    user.press(forms::keys::enter);
    EXPECT_EQ(dialog.journal.size(), 3U);
  });
}

TEST_F(FocusTest, LabelEditIsTakenBeforeTheFocusMovesOrThePageChanges) {
  const std::vector<Act> leaving{
      [](Wizard& w, forms::User& u) { u.click(w.next); },
      [](Wizard& w, forms::User& u) { u.select(w.page.rows, 1); },
      [](Wizard& w, forms::User&) { w.tabs.strip.setCurrentPage(1); },
      [](Wizard& w, forms::User&) { w.next.setFocus(); },
  };
  for (const Act& leave : leaving) {
    Wizard wizard;
    std::string atValidation;
    wizard.page.rows.validate.connect([&](bool&) { atValidation = wizard.page.rows.text(0, 0); });
    wizard.page.rows.afterLabelEdit.connect(
        [](bool&, std::string& text) { text = text.substr(0, 6); });
    onForm(wizard, [&](forms::Form&) {
      user.select(wizard.page.rows, 0);
      wizard.page.rows.startLabelEdit();
      user.labelText(wizard.page.rows, "Laptop left");
      leave(wizard, user);
      EXPECT_FALSE(wizard.page.rows.isEditing());
      EXPECT_EQ(wizard.page.rows.text(0, 0), "Laptop");
      EXPECT_TRUE(atValidation.empty() || atValidation == "Laptop") << atValidation;
    });
  }
}

TEST_F(FocusTest, UserIsRefusedWhatAPersonIsRefused) {
  Wizard wizard;
  EXPECT_THROW(user.click(wizard.next), forms::Refused) << "not shown";
  onForm(wizard, [&](forms::Form&) {
    EXPECT_THROW(user.click(wizard.tabs.second.check), forms::Refused) << "on another page";
    wizard.page.frame.setEnabled(false);
    EXPECT_THROW(user.click(wizard.page.one), forms::Refused);
    wizard.tabs.setVisible(false);
    EXPECT_THROW(user.type(wizard.page.name, "x"), forms::Refused);
    EXPECT_TRUE(wizard.page.one.isEnabled() && wizard.page.name.isVisible()) << "its own flags";

    forms::Form dialog("dialog");
    onForm(dialog, [&](forms::Form&) {
      EXPECT_THROW(user.click(wizard.next), forms::Refused);
      EXPECT_THROW(user.close(wizard), forms::Refused);
    });
  });
}

}  // namespace
}  // namespace tests
