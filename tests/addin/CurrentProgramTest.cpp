#include <gtest/gtest.h>

#include <iterator>
#include <random>

#include "forms/CheckBox.h"
#include "forms/OptionButton.h"
#include "forms/TextBox.h"
#include "host/Numbers.h"
#include "tests/wizard/Wizard.h"
#include "trellisar/compile/CompiledProgram.h"
#include "trellisar/document/ProgramFile.h"

namespace {

/// Somebody who tries everything: answers at random, saves, builds, and loses files.
class CurrentProgramTest : public testing::Test, public tests::Wizard {
 protected:
  std::size_t below(std::size_t limit) { return random_() % limit; }

  /// Ticks or chooses something on the current page, as far as there is anything.
  void tickSomething() {
    std::vector<forms::Control*> boxes;
    for (const auto& [name, box] : step(currentStep()).controls()) {
      const bool canBeTicked =
          dynamic_cast<forms::CheckBox*>(box) || dynamic_cast<forms::OptionButton*>(box);
      if (canBeTicked && box->isUsable()) boxes.push_back(box);
    }
    if (!boxes.empty()) user.click(*boxes[below(boxes.size())]);
  }
  void clickUsable(const char* button) {
    if (control(button).isUsable()) click(button);
  }
  void enterUsable(const char* box, const std::string& text) {
    if (control(box).isUsable()) enter(box, text);
  }
  void chooseAnyDisplay() {
    const char* displays[] = {"Bravonne P2200", "Orvistel F42", "Talmerick Nocturne"};
    chooseDisplay(displays[below(std::size(displays))]);
  }

  trellisar::DocumentData& data() { return host->document()->data(); }
  bool isCurrent() { return document().get_SystemInfo()->get_ProgramIsCurrent(); }
  void build() {
    bool cancelled = false;
    if (addIn->SaveSystem(false, true)) host->mainWindow()->ShowCreateProgramDialog(cancelled);
  }

  void act() {
    const std::pair<const char*, std::function<void()>> acts[] = {
        {"Display Device", [&] { chooseAnyDisplay(); }},
        {"Display Device", [&] { tickSomething(); }},
        {"Audio Control", [&] { tickSomething(); }},
        {"Power Control", [&] { tickSomething(); }},
        {"Power On/Off Lockout", [&] { tickSomething(); }},
        {"Power On/Off Lockout",
         [&] { enterUsable("txtPowerLockoutTime(1)", std::to_string(60 + below(3))); }},
        {"Orlena Transmitters", [&] { clickUsable("cmdAdd"); }},
        {"Orlena Transmitters", [&] { clickUsable("cmdUp"); }},
        {"Orlena Transmitters", [&] { clickUsable("cmdDelete"); }},
        {"Room Options", [&] { tickSomething(); }},
        {"Name and Location", [&] { enter("txtSystemName", "Room " + std::to_string(++rooms_)); }},
        {"Finish", [&] { clickInWindow("cmdSave"); }},
        {"Finish", [&] { std::filesystem::remove(trellisar::storedProgramFile(data())); }},
        {"Finish", [&] { data().devices.back()->address = std::to_string(below(2)); }},
    };
    const auto& [step, doIt] = acts[below(std::size(acts))];
    goTo(step);
    doIt();
    goTo("Finish");
  }

 private:
  std::mt19937 random_{1};
  int rooms_ = 0;
};

TEST_F(CurrentProgramTest, WhatIsSaidToBeCurrentIsWhatCompilingWouldGive) {
  run([&] {
    int timesCurrent = 0;
    for (int i = 0; i < 200; ++i) {
      if (!isCurrent()) build();
      ASSERT_TRUE(isCurrent()) << "after " << i;
      act();
      if (!isCurrent()) continue;
      ++timesCurrent;
      const std::string sent = trellisar::storedProgram(data());
      ASSERT_TRUE(addIn->SaveSystem(false, true));
      ASSERT_EQ(trellisar::compileProgram(data()), sent) << "after " << i;
    }
    EXPECT_GT(timesCurrent, 30);
  });
}

}  // namespace
