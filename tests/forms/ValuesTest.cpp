#include <functional>

#include "forms/ListBox.h"
#include "forms/ProgressBar.h"
#include "forms/ToolBar.h"
#include "tests/forms/Desk.h"

namespace tests {
namespace {

/// Controls whose events are counted.
struct Counted : forms::Form {
  Counted() : Form("counted") {
    for (const char* text : {"a", "b", "c"}) {
      list.add(text);
      dropDown.add(text);
      rows.addRow({text});
    }
    const auto count = [this] { ++events; };
    check.click.connect(count);
    one.click.connect(count);
    two.click.connect(count);
    box.change.connect(count);
    list.click.connect(count);
    dropDown.click.connect(count);
    rows.itemClick.connect(count);
  }

  forms::TextBox box{*this, "box"};
  forms::CheckBox check{*this, "check"};
  forms::OptionButton one{*this, "one"};
  forms::OptionButton two{*this, "two"};
  forms::ListBox list{*this, "list"};
  forms::DropDownList dropDown{*this, "dropDown"};
  forms::ListView rows{*this, "rows"};
  int events = 0;
};

class ValuesTest : public Desk {};

TEST_F(ValuesTest, EventsOfAValue) {
  struct Case {
    const char* situation;
    std::function<void(Counted&)> before;
    std::function<void(Counted&, forms::User&)> act;
    int events;
  };
  const auto nothing = [](Counted&) {};
  const auto chosen = [](Counted& c) {
    c.box.setText("old");
    c.check.setValue(1);
    c.one.setChosen(true);
    c.list.setSelected(1);
    c.dropDown.setSelected(1);
    c.rows.setSelectedRow(1);
  };
  const std::vector<Case> cases{
      {"check box set", nothing, [](Counted& c, forms::User&) { c.check.setValue(1); }, 1},
      {"check box cleared", chosen, [](Counted& c, forms::User&) { c.check.setValue(0); }, 1},
      {"check box, any number is 1", chosen, [](Counted& c, forms::User&) { c.check.setValue(2); },
       0},
      {"check box clicked", chosen, [](Counted& c, forms::User& u) { u.click(c.check); }, 1},
      {"option chosen", nothing, [](Counted& c, forms::User&) { c.one.setChosen(true); }, 1},
      {"option not chosen", chosen, [](Counted& c, forms::User&) { c.one.setChosen(false); }, 0},
      {"option, the other chosen", chosen, [](Counted& c, forms::User& u) { u.click(c.two); }, 1},
      {"option, click on the chosen one", chosen,
       [](Counted& c, forms::User& u) { u.click(c.one); }, 0},
      {"same text", chosen, [](Counted& c, forms::User&) { c.box.setText("old"); }, 0},
      {"another text", chosen, [](Counted& c, forms::User&) { c.box.setText("Old"); }, 1},
      {"typed, each character", chosen, [](Counted& c, forms::User& u) { u.type(c.box, "xy"); }, 2},
      {"pasted", chosen, [](Counted& c, forms::User& u) { u.replaceText(c.box, "xy"); }, 1},
      {"pasted the same", chosen, [](Counted& c, forms::User& u) { u.replaceText(c.box, "old"); },
       0},
      {"selection set", nothing,
       [](Counted& c, forms::User&) {
         c.list.setSelected(0);
         c.dropDown.setSelected(0);
         c.rows.setSelectedRow(0);
       },
       3},
      {"selection set to the same", chosen,
       [](Counted& c, forms::User&) {
         c.list.setSelected(1);
         c.dropDown.setSelected(1);
         c.rows.setSelectedRow(1);
       },
       0},
      {"lists, click on the selected one", chosen,
       [](Counted& c, forms::User& u) {
         u.select(c.list, 1);
         u.select(c.dropDown, 1);
         u.select(c.rows, 1);
       },
       2},
      {"lists, arrows stop at the end", chosen,
       [](Counted& c, forms::User& u) {
         u.moveFocus(c.dropDown);
         for (int i = 0; i < 3; ++i) u.press(forms::keys::down);
       },
       1},
      {"lists emptied", chosen,
       [](Counted& c, forms::User&) {
         c.list.clear();
         c.dropDown.clear();
         c.rows.clear();
       },
       0},
      {"selected row removed", chosen, [](Counted& c, forms::User&) { c.rows.removeRow(1); }, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.situation);
    Counted form;
    onForm(form, [&](forms::Form&) {
      c.before(form);
      form.events = 0;
      c.act(form, user);
      EXPECT_EQ(form.events, c.events);
    });
  }
}

TEST_F(ValuesTest, OthersOfAGroupAreNotChosenWhenTheClickComes) {
  Counted form;
  form.one.setChosen(true);
  bool otherChosen = true;
  form.two.click.connect([&] { otherChosen = form.one.isChosen(); });
  form.two.setChosen(true);
  EXPECT_FALSE(otherChosen);
}

TEST_F(ValuesTest, EditingABox) {
  struct Case {
    const char* situation;
    const char* text;
    int start;
    int count;
    int maximum;
    std::function<void(forms::TextBox&)> act;
    const char* after;
    int caret;
  };
  const auto type = [this](const char* text) {
    return [=, this](forms::TextBox& box) { user.type(box, text); };
  };
  const auto press = [this](std::int16_t key) {
    return [=, this](forms::TextBox&) { user.press(key); };
  };
  const auto edit = [this](const char* text, int caret) {
    return [=, this](forms::TextBox& box) { user.edit(box, text, caret); };
  };
  const std::vector<Case> cases{
      {"typing at the caret", "ad", 1, 0, 0, type("bc"), "abcd", 3},
      {"typing over a selection", "axd", 1, 1, 0, type("bc"), "abcd", 3},
      {"typing stops at the maximum", "ab", 2, 0, 3, type("cd"), "abc", 3},
      {"typing into a full box", "abc", 1, 0, 3, type("x"), "abc", 1},
      {"characters, not bytes", "\u00e4\u00f6", 2, 0, 3, type("\u20acx"), "\u00e4\u00f6\u20ac", 3},
      {"setting goes over the maximum", "", 0, 0, 3,
       [](forms::TextBox& box) { box.setText("abcde"); }, "abcde", 0},
      {"a text over the maximum takes no more", "abcde", 5, 0, 3, type("x"), "abcde", 5},
      {"pasting is cut", "", 0, 0, 3,
       [this](forms::TextBox& box) { user.replaceText(box, "abcde"); }, "abc", 3},
      {"only the first line is pasted", "", 0, 0, 0,
       [this](forms::TextBox& box) { user.replaceText(box, "ab\r\ncd"); }, "ab", 2},
      {"pasting asks no filter", "", 0, 0, 0,
       [this](forms::TextBox& box) { user.replaceText(box, "a\\b"); }, "a\\b", 3},
      {"the filter drops a key", "", 0, 0, 0, type("a\\b"), "ab", 2},
      {"an edit in the middle is cut where it was made", "ad", 1, 0, 3, edit("abcd", 3), "abd", 2},
      {"a caret told wrong cuts nothing that was there", "ad", 1, 0, 3, edit("abcd", 0), "acd", 1},
      {"backspace", "ab\u20ac", 3, 0, 0, press(forms::keys::backspace), "ab", 2},
      {"backspace in front", "ab", 0, 0, 0, press(forms::keys::backspace), "ab", 0},
      {"delete takes the selection", "abcd", 1, 2, 0, press(forms::keys::del), "ad", 1},
      {"delete at the end", "ab", 2, 0, 0, press(forms::keys::del), "ab", 2},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.situation);
    forms::Form form("form");
    forms::TextBox box(form, "box");
    box.keyPress.connect([](forms::KeyPress& key) {
      if (key.character == U'\\') key.character = 0;
    });
    onForm(form, [&](forms::Form&) {
      box.setText(c.text);
      box.setMaxLength(c.maximum);
      user.moveFocus(box);
      box.select(c.start, c.count);
      c.act(box);
      EXPECT_EQ(box.text(), c.after);
      EXPECT_EQ(box.selectionStart(), c.caret);

      const std::string before = box.text();
      box.setReadOnly(true);
      user.type(box, "x");
      user.press(forms::keys::del);
      EXPECT_EQ(box.text(), before) << "read-only";
    });
  }
}

TEST_F(ValuesTest, ChangeHandlerThatPutsTheOldTextBackShowsItsMessageOnce) {
  forms::Form form("form");
  forms::TextBox box(form, "box");
  std::string last = "ac";
  box.setText(last);
  box.change.connect([&] {
    if (box.text().find('1') != std::string::npos) {
      application.messageBox("No digits.");
      const std::int32_t caret = box.selectionStart();
      box.setText(last);
      box.select(caret - 1, 0);
    }
    last = box.text();
  });
  desktop.expectMessage("", "No digits.");
  onForm(form, [&](forms::Form&) {
    user.moveFocus(box);
    box.select(1, 0);
    user.type(box, "1b");
  });
  EXPECT_EQ(box.text(), "abc");
}

TEST_F(ValuesTest, TypingEndsWhereTheFocusIsTaken) {
  forms::Form form("form");
  forms::TextBox box(form, "box");
  forms::TextBox other(form, "other");
  box.change.connect([&] { other.setFocus(); });
  onForm(form, [&](forms::Form&) { user.type(box, "ab"); });
  EXPECT_EQ(box.text(), "a");
}

TEST_F(ValuesTest, LabelEdits) {
  struct Case {
    const char* situation;
    const char* typed;
    const char* label;
  };
  const std::vector<Case> cases{{"taken", "Camera", "Camera"},
                                {"changed by the program", "Laptop left", "Laptop"},
                                {"refused", "", "b"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.situation);
    Counted form;
    form.rows.afterLabelEdit.connect([](bool& cancel, std::string& text) {
      cancel = text.empty();
      text = text.substr(0, 6);
    });
    onForm(form, [&](forms::Form&) {
      EXPECT_THROW(user.editLabel(form.rows, 1, c.typed), forms::Refused) << "not editable";
      form.rows.setLabelEditable(true);
      user.editLabel(form.rows, 1, c.typed);
      EXPECT_EQ(form.rows.text(1, 0), c.label);

      user.press(forms::keys::f2);
      ASSERT_TRUE(form.rows.isEditing());
      user.labelText(form.rows, "given up");
      user.press(forms::keys::escape);
      EXPECT_EQ(form.rows.text(1, 0), c.label);
    });
  }

  Counted form;
  form.rows.setLabelEditable(true);
  form.rows.afterLabelEdit.connect([&](bool&, std::string&) { form.rows.clear(); });
  onForm(form, [&](forms::Form&) { user.editLabel(form.rows, 2, "x"); });
  EXPECT_EQ(form.rows.rowCount(), 0);
}

TEST_F(ValuesTest, SelectionFollowsRemovedRows) {
  struct Case {
    int selected, removed, after;
  };
  for (const Case& c : {Case{1, 0, 0}, {1, 1, 1}, {2, 2, 1}, {0, 2, 0}, {-1, 0, -1}}) {
    Counted form;
    form.rows.setSelectedRow(c.selected);
    form.rows.removeRow(c.removed);
    EXPECT_EQ(form.rows.selectedRow(), c.after) << c.selected << " without " << c.removed;
  }
}

TEST_F(ValuesTest, PlacesOutsideRaise) {
  Counted form;
  for (const auto& act : std::vector<std::function<void()>>{
           [&] { form.list.setSelected(3); }, [&] { form.dropDown.setSelected(-2); },
           [&] { form.rows.setText(0, 1, "x"); }, [&] { form.rows.removeRow(3); }}) {
    try {
      act();
      ADD_FAILURE();
    } catch (const forms::Error& error) {
      EXPECT_EQ(error.number(), forms::errors::indexOutOfRange);
    }
  }
}

TEST_F(ValuesTest, MouseButtonsOnAButtonAndMenus) {
  struct Buttons : forms::Form {
    Buttons() : Form("buttons") {
      upload.mouseDown.connect([this](forms::MouseButton button) {
        journal.push_back(button == forms::MouseButton::left ? "left" : "right");
      });
      upload.click.connect([this] { journal.push_back("click"); });
      reports.buttonClick.connect([this] { journal.push_back("reports"); });
      reports.menuClick.connect([this](const std::string& tag) { journal.push_back(tag); });
      reports.setMenu({{"Bill of Materials", "bill"}, {"Wiring", "wiring", false}});
    }
    forms::TextBox box{*this, "box"};
    forms::CommandButton upload{*this, "upload"};
    forms::ToolBar reports{*this, "reports"};
    Journal journal;
  } form;
  onForm(form, [&](forms::Form&) {
    user.press(form.upload, forms::MouseButton::right);
    EXPECT_TRUE(form.box.hasFocus());
    user.click(form.upload);
    user.press(forms::keys::space);
    user.click(form.reports);
    user.choose(form.reports, "bill");
    EXPECT_THROW(user.choose(form.reports, "wiring"), forms::Refused);
  });
  EXPECT_EQ(form.journal, (Journal{"right", "left", "click", "click", "reports", "bill"}));
}

TEST_F(ValuesTest, TabStripPages) {
  forms::Form form("form");
  forms::TabStrip strip(form, "strip");
  std::vector<int> left;
  strip.pageChanged.connect([&](std::int16_t page) { left.push_back(page); });
  for (std::int16_t page = 2; page < forms::TabStrip::pageCount; ++page) {
    strip.setPageVisible(page, page == 9);
  }
  onForm(form, [&](forms::Form&) {
    strip.setFocus();
    for (int i = 0; i < 3; ++i) user.press(forms::keys::right);
    EXPECT_EQ(strip.currentPage(), 9) << "pages without a header are passed";
    EXPECT_THROW(user.select(strip, 3), forms::Refused);
    strip.setCurrentPage(3);
    strip.setCurrentPage(3);
  });
  EXPECT_EQ(left, (std::vector<int>{0, 1, 9}));
  EXPECT_THROW(strip.setCurrentPage(16), forms::Error);
}

TEST_F(ValuesTest, ProgressStaysWithinItsMaximum) {
  forms::Form form("form");
  forms::ProgressBar bar(form, "bar");
  bar.setValue(120);
  EXPECT_EQ(bar.value(), 100);
  bar.setMaximum(40);
  EXPECT_EQ(bar.value(), 40);
  bar.setValue(-1);
  EXPECT_EQ(bar.value(), 0);
}

}  // namespace
}  // namespace tests
