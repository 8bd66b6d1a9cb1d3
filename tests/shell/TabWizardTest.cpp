#include "shell/TabWizard.h"

#include <gtest/gtest.h>

#include "forms/Application.h"
#include "forms/Components.h"
#include "host/iTab.h"
#include "tests/support/ScriptedDesktop.h"

namespace {

using tests::ScriptedDesktop;

std::vector<std::string>* journal = nullptr;

void note(const std::string& call) { journal->push_back(call); }

/// A step that notes what is called on it. "refusing" refuses to be left; "plain" has no members by
/// name.
class ProbeStep : public forms::UserControl, public host::iTab {
 public:
  ProbeStep(forms::Container& container, const std::string& name, std::string sort)
      : UserControl(container, name), sort_(std::move(sort)) {
    if (sort_ == "plain") return;
    offer("SetData", [this] { note("SetData " + this->name()); });
    offer("OtherTabClicked", [this] { note("OtherTabClicked " + this->name()); });
    offer<bool&>("BeforeTabChange", [this](bool& cancel) {
      note("BeforeTabChange " + this->name());
      cancel = sort_ == "refusing";
    });
  }

  std::string iTab_GetTabName() const override { return "Page " + name(); }
  std::string iTab_GetName() const override { return ""; }
  std::int16_t iTab_GetTabIcon() const override { return 0; }
  std::int16_t iTab_GetIcon() const override { return 0; }
  std::int16_t iTab_GetHelpContextID() const override { return 7; }
  void iTab_SetID(std::int32_t) override {}
  bool iTab_SaveData() override { return true; }
  bool iTab_VerifyData(bool) override { return true; }
  void iTab_TabClicked() override { note("iTab_TabClicked " + name()); }

 private:
  std::string sort_;
};

class TabWizardTest : public testing::Test {
 protected:
  TabWizardTest() {
    journal = &calls;
    for (const std::string sort : {"probe", "refusing", "plain"}) {
      forms::registerControl("test." + sort,
                             [sort](forms::Container& container, const std::string& name) {
                               return std::make_unique<ProbeStep>(container, name, sort);
                             });
    }
    form.load();
    tabs.initProperties();
    tabs.OnTabChanged.connect([](std::int16_t& previous, std::int16_t& current) {
      note("OnTabChanged " + std::to_string(previous) + "," + std::to_string(current));
    });
  }

  void givenSteps(const std::vector<std::string>& sorts) {
    int place = 0;
    for (const auto& sort : sorts) tabs.AddTab("test." + sort, "ctl" + std::to_string(place++));
    calls.clear();
  }

  std::vector<std::string> calls;
  ScriptedDesktop desktop;
  forms::Application application{desktop, "\\program"};
  forms::Form form{"form"};
  shell::TabWizard tabs{form, "tabs"};
};

using Calls = std::vector<std::string>;

TEST_F(TabWizardTest, AcceptedChangeCallsInOrderAndLeavesOutTheLastTwoOnTheFirstStep) {
  givenSteps({"probe", "probe", "probe"});
  tabs.SetCurrentTab(1);
  tabs.SetCurrentTab(2);
  tabs.SetCurrentTab(0);
  EXPECT_EQ(calls, (Calls{"BeforeTabChange ctl0", "OnTabChanged 0,1", "OtherTabClicked ctl0",
                          "iTab_TabClicked ctl1", "BeforeTabChange ctl1", "OnTabChanged 1,2",
                          "OtherTabClicked ctl1", "iTab_TabClicked ctl2", "BeforeTabChange ctl2",
                          "OnTabChanged 2,0"}));
}

TEST_F(TabWizardTest, StepWithoutMembersByNameIsLeftWithoutAnErrorAndARefusalLeavesAllAsItWas) {
  givenSteps({"plain", "plain", "refusing"});
  for (const auto page : std::initializer_list<std::int16_t>{1, 2, 0}) tabs.SetCurrentTab(page);
  EXPECT_EQ(calls, (Calls{"OnTabChanged 0,1", "iTab_TabClicked ctl1", "OnTabChanged 1,2",
                          "iTab_TabClicked ctl2", "BeforeTabChange ctl2"}));
  EXPECT_EQ(tabs.GetCurrentTab(), 2);
}

TEST_F(TabWizardTest, StepThatCannotBeAddedIsToldAndLeftOut) {
  desktop.expectMessage("",
                        "Can't create \"test.unknown\": no component is registered under this id.",
                        forms::Buttons::ok, forms::Icon::critical);
  EXPECT_EQ(tabs.AddTab("test.unknown", "ctl0"), nullptr);
}

TEST_F(TabWizardTest, OnlyTheStepEnteredLastIsHeard) {
  givenSteps({"probe", "probe", "probe"});
  tabs.SetCurrentTab(1);
  tabs.GetControls()[2]->objectEvent.raise({"JumpToTab", {std::string("Page ctl2")}});
  EXPECT_EQ(tabs.GetCurrentTab(), 1);
  tabs.GetControls()[1]->objectEvent.raise({"JumpToTab", {std::string("PAGE CTL2")}});
  EXPECT_EQ(tabs.GetCurrentTab(), 2);
}

TEST_F(TabWizardTest, PagesAreFoundByCaptionInAnyCase) {
  givenSteps({"probe", "probe"});
  EXPECT_EQ(tabs.SetCurrentTabText("page CTL1"), 1);
  EXPECT_EQ(tabs.GetCurrentTabText(), "Page ctl1");
  EXPECT_EQ(tabs.SetCurrentTabText("nowhere"), 0);
  EXPECT_EQ(tabs.GetCurrentTab(), 1);
  EXPECT_FALSE(tabs.SetTabVisible("nowhere", false));
  EXPECT_TRUE(tabs.SetTabVisible("page ctl0", false));
}

}  // namespace
