#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/Application.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/DropDownList.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "forms/OptionButton.h"
#include "forms/TabStrip.h"
#include "forms/TextBox.h"
#include "forms/User.h"
#include "forms/UserControl.h"
#include "tests/support/Errors.h"
#include "tests/support/ScriptedDesktop.h"

namespace tests {

using Journal = std::vector<std::string>;

/// An application with a person at it and nothing on the desk yet.
class Desk : public testing::Test {
 protected:
  /// Shows the form, runs the script on it and hides it again.
  void onForm(forms::Form& form, const ScriptedDesktop::Script& script) {
    desktop.whenShown(form.name(), [&](forms::Form& shown) {
      script(shown);
      if (shown.isVisible()) shown.hide();
    });
    form.showModal(nullptr);
  }

  ScriptedDesktop desktop;
  forms::Application application{desktop, "\\program"};
  forms::User user{application};
};

class Selector : public forms::UserControl {
 public:
  using UserControl::UserControl;
  forms::DropDownList list{*this, "list"};
};

/// A page with a control of most kinds, and a selector that is a user control itself.
class Page : public forms::UserControl {
 public:
  using UserControl::UserControl;
  forms::Label label{*this, "label", "Na&me:"};
  forms::TextBox name{*this, "name"};
  forms::TextBox delay{*this, "delay"};
  forms::CheckBox check{*this, "check"};
  forms::Frame frame{*this, "frame", "Fra&me"};
  forms::OptionButton one{frame, "one", "&One"};
  forms::OptionButton two{frame, "two"};
  forms::OptionButton three{frame, "three"};
  Selector selector{*this, "selector"};
  forms::ListView rows{*this, "rows"};
};

class Tabs : public forms::UserControl {
 public:
  Tabs(forms::Container& container, std::string name) : UserControl(container, std::move(name)) {
    strip.setCurrentPage(1);
    second.setContainer(strip);
    strip.setCurrentPage(0);
  }
  forms::TabStrip strip{*this, "strip"};
  Page first{strip, "first"};
  Page second{strip, "second"};
};

/// A wizard in small: two pages in a tab strip in a user control, and a button of the window. The
/// journal holds the focus events of the first page's boxes and of the button, and with a
/// validation the page's active control then.
class Wizard : public forms::Form {
 public:
  Wizard() : Form("frmWizard") {
    for (forms::Control* control : std::initializer_list<forms::Control*>{
             &page.name, &page.delay, &page.check, &page.one, &page.two, &page.selector,
             &page.selector.list, &page.rows, &tabs.strip, &tabs.first, &next}) {
      watch(*control);
    }
    page.check.click.connect([this] { journal.push_back("click check"); });
    page.label.click.connect([this] { journal.push_back("click label"); });
    next.click.connect([this] { journal.push_back("click next"); });
    page.selector.list.add("On");
    page.selector.list.add("Off");
    page.rows.addRow({"Input 1"});
    page.rows.addRow({"Input 2"});
    page.rows.setLabelEditable(true);
  }

  Tabs tabs{*this, "tabs"};
  forms::CommandButton next{*this, "next", "&Next >"};
  Page& page = tabs.first;

  Journal journal;
  /// The name of the control whose validation refuses.
  std::string refusing;

 private:
  void watch(forms::Control& control) {
    const std::string name = control.name();
    control.validate.connect([this, name](bool& cancel) {
      const forms::Control* active = page.activeControl();
      journal.push_back("validate " + name + " (" + (active ? active->name() : "none") + ")");
      cancel = name == refusing;
    });
    control.lostFocus.connect([this, name] { journal.push_back("lost " + name); });
    control.gotFocus.connect([this, name] { journal.push_back("got " + name); });
  }
};

}  // namespace tests
