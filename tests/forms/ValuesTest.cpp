#include <functional>

#include "forms/ListBox.h"
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
  Counted c;
  onForm(c, [&](forms::Form&) {
    const auto eventsOf = [&](const std::function<void()>& act) {
      c.events = 0;
      act();
      return c.events;
    };
    EXPECT_EQ(eventsOf([&] { c.check.setValue(1); }), 1);
    EXPECT_EQ(eventsOf([&] { c.check.setValue(2); }), 0) << "any number is 1";
    EXPECT_EQ(eventsOf([&] { user.click(c.check); }), 1);
    EXPECT_EQ(eventsOf([&] { c.one.setChosen(true); }), 1);
    EXPECT_EQ(eventsOf([&] { user.click(c.one); }), 0) << "it is chosen already";
    bool otherChosen = true;
    c.two.click.connect([&] { otherChosen = c.one.isChosen(); });
    EXPECT_EQ(eventsOf([&] { user.click(c.two); }), 1) << "not for the one that it takes from";
    EXPECT_FALSE(otherChosen);
    EXPECT_EQ(eventsOf([&] { c.box.setText("old"); }), 1);
    EXPECT_EQ(eventsOf([&] { c.box.setText("old"); }), 0);
    EXPECT_EQ(eventsOf([&] { user.type(c.box, "xy"); }), 2) << "each character";
    EXPECT_EQ(eventsOf([&] { user.replaceText(c.box, "pasted"); }), 1);

    const auto select = [&] {
      c.list.setSelected(1);
      c.dropDown.setSelected(1);
      c.rows.setSelectedRow(1);
    };
    EXPECT_EQ(eventsOf(select), 3);
    EXPECT_EQ(eventsOf(select), 0);
    EXPECT_EQ(eventsOf([&] { user.select(c.list, 1); }), 1) << "also a click on the selected one";
    EXPECT_EQ(eventsOf([&] { user.select(c.rows, 1); }), 1);
    EXPECT_EQ(eventsOf([&] { user.select(c.dropDown, 1); }), 0);
    EXPECT_EQ(eventsOf([&] {
                for (int i = 0; i < 3; ++i) user.press(forms::keys::down);
              }),
              1)
        << "arrows stop at the end";
    EXPECT_EQ(eventsOf([&] { c.rows.removeRow(1); }), 0);
    EXPECT_EQ(eventsOf([&] { c.list.clear(); }), 0);
  });
}

TEST_F(ValuesTest, EditingABox) {
  struct Case {
    const char *situation, *text;
    int start, count, maximum;
    std::function<void(forms::TextBox&)> act;
    const char* after;
    int caret;
  };
  const auto type = [this](const char* text) {
    return [=, this](forms::TextBox& box) { user.type(box, text); };
  };
  const auto paste = [this](const char* text) {
    return [=, this](forms::TextBox& box) { user.replaceText(box, text); };
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
      {"pasting is cut", "", 0, 0, 3, paste("abcde"), "abc", 3},
      {"only the first line is pasted", "", 0, 0, 0, paste("ab\r\ncd"), "ab", 2},
      {"pasting asks no filter", "", 0, 0, 0, paste("a\\b"), "a\\b", 3},
      {"the filter drops a key", "", 0, 0, 0, type("a\\b"), "ab", 2},
      {"an edit in the middle is cut where it was made", "ad", 1, 0, 3, edit("abcd", 3), "abd", 2},
      {"a caret told wrong cuts nothing that was there", "ad", 1, 0, 3, edit("abcd", 0), "acd", 1},
      {"backspace", "ab\u20ac", 3, 0, 0, press(forms::keys::backspace), "ab", 2},
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

TEST_F(ValuesTest, TypingEndsWhereTheFocusIsTaken) {
  forms::Form form("form");
  forms::TextBox box(form, "box");
  forms::TextBox other(form, "other");
  box.change.connect([&] { other.setFocus(); });
  onForm(form, [&](forms::Form&) { user.type(box, "ab"); });
  EXPECT_EQ(box.text(), "a");
}

TEST_F(ValuesTest, SelectionFollowsRemovedRows) {
  struct Case {
    int selected, removed, after;
  };
  for (const Case& c :
       {Case{1, 0, 0}, Case{1, 1, 1}, Case{2, 2, 1}, Case{0, 2, 0}, Case{-1, 0, -1}}) {
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
    EXPECT_EQ(raisedBy(act).number(), forms::errors::indexOutOfRange);
  }
}

TEST_F(ValuesTest, MenusAndPagesOfferWhatIsThereAlone) {
  forms::Form form("form");
  forms::ToolBar reports(form, "reports");
  forms::TabStrip strip(form, "strip");
  std::string heard;
  reports.menuClick.connect([&](const std::string& tag) { heard += tag; });
  reports.setMenu({{"Bill of Materials", "bill"}, {"Wiring", "wiring", false}});
  strip.pageChanged.connect([&](std::int16_t page) { heard += " " + std::to_string(page); });
  for (std::int16_t page = 2; page < forms::TabStrip::pageCount; ++page) {
    strip.setPageVisible(page, page == 9);
  }
  onForm(form, [&](forms::Form&) {
    user.choose(reports, "bill");
    EXPECT_THROW(user.choose(reports, "wiring"), forms::Refused);
    strip.setFocus();
    for (int i = 0; i < 3; ++i) user.press(forms::keys::right);
    EXPECT_EQ(strip.currentPage(), 9) << "pages without a header are passed";
    EXPECT_THROW(user.select(strip, 3), forms::Refused);
    for (int i = 0; i < 2; ++i) strip.setCurrentPage(3);
  });
  EXPECT_EQ(heard, "bill 0 1 9");
}

TEST_F(ValuesTest, AScreenReaderIsToldTheWordsThatAreSeen) {
  struct Named : forms::Form {
    Named() : Form("named") {}
    forms::Label label{*this, "label", "&Lock  for"};
    forms::Label unit{*this, "unit", "seconds"};
    forms::TextBox box{*this, "box"};
    Selector selector{*this, "selector"};
    forms::CommandButton button{*this, "button", "&Open"};
  } form;
  form.box.nameBy(form.label);
  form.box.nameBy(form.unit);
  form.box.nameBy(form.label);
  form.selector.nameBy(form.unit);
  form.button.setToolTip("Open a system");
  EXPECT_EQ(form.box.nameForReaders(), "Lock for seconds");
  EXPECT_EQ(form.selector.list.nameForReaders(), "seconds") << "what fills a composed control";
  EXPECT_EQ(form.button.nameForReaders(), "Open");
  form.label.setVisible(false);
  form.button.setCaption("");
  EXPECT_EQ(form.box.nameForReaders(), "seconds");
  EXPECT_EQ(form.button.nameForReaders(), "Open a system");
  form.box.setAccessibleName("Lock time");
  EXPECT_EQ(form.box.nameForReaders(), "Lock time");
}

}  // namespace
}  // namespace tests
