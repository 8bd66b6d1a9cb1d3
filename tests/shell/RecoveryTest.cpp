#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <iomanip>
#include <random>
#include <thread>

#include "forms/ListView.h"
#include "forms/Listing.h"
#include "forms/TextBox.h"
#include "tests/support/Shipped.h"
#include "tests/support/Texts.h"
#include "tests/wizard/Wizard.h"
#include "trellisar/recovery/RecoveryFile.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using forms::Answer;
using forms::Buttons;
using forms::Icon;
using Clock = std::chrono::steady_clock;

/// 14:02 of a day in the zone of this machine.
std::time_t twoPastTwo() {
  std::tm time{};
  std::istringstream("2026-03-30 14:02") >> std::get_time(&time, "%Y-%m-%d %H:%M");
  time.tm_isdst = -1;
  return std::mktime(&time);
}

class Recovery : public testing::Test {
 protected:
  trellisar::RecoveryOptions options() const { return {folder / "recovery", twoPastTwo}; }

  /// What programs that have ended left.
  std::vector<fs::path> left() const {
    std::vector<fs::path> files;
    for (const auto& slot : trellisar::RecoverySlot::left(folder / "recovery")) {
      files.push_back(slot->file());
    }
    return files;
  }

  static void end(Wizard& wizard) {
    wizard.addIn.reset();
    wizard.host.reset();
  }
  /// Runs the wizard, which then ends as in a crash: nobody closes its system.
  void crash(Wizard& wizard, const std::function<void()>& script) const {
    wizard.run([&] {
      script();
      wizard.desktop.pass(1s);
    });
    end(wizard);
  }
  /// Longer than a minute for the program, and a second for its disk.
  static void passLong(Wizard& wizard) {
    for (int i = 0; i < 100; ++i) {
      wizard.desktop.pass(1s);
      std::this_thread::sleep_for(10ms);
    }
  }

  /// What the dialog says, which is answered by one of its buttons, or Escape without one.
  static std::string offer(Wizard& wizard, const std::string& button, bool restored,
                           const std::string& opened = {}) {
    std::string words;
    wizard.desktop.whenShown("RecoveryDialog", [&](forms::Form& dialog) {
      words = dialog.control("lblWhat").shownText() + " " + dialog.control("lblWhere").shownText();
      EXPECT_TRUE(dialog.control("cmdRestore").hasFocus()) << "Enter does no harm";
      button.empty() ? wizard.user.press(forms::keys::escape)
                     : wizard.user.click(dialog.control(button));
    });
    auto& window = *wizard.host->mainWindow();
    EXPECT_EQ(opened.empty() ? window.offerUnsaved() : window.FileOpen(opened, true) != nullptr,
              restored);
    return words;
  }
  static void restore(Wizard& wizard) {
    offer(wizard, "cmdRestore", true);
    wizard.givenOpenDocument();
  }

  TemporaryFolder folder;
};

void nameIt(Wizard& wizard) {
  wizard.goTo("Name and Location");
  wizard.enter("txtSystemName", "Lecture Hall");
}

using Act = std::function<void(Wizard&)>;

/// A room, act by act. Most leave their last box with the focus and its text untaken.
const std::vector<Act>& acts() {
  static const std::vector<Act> all{
      nameIt,
      [](Wizard& w) {
        w.goTo("Display Device");
        w.chooseDisplay("Bravonne P2200");
        w.click("chkPowerRelay");
        w.enter("txtDelay(0)", "5");
      },
      [](Wizard& w) {
        w.goTo("Audio Control");
        w.click("optVolumeKnob(1)");
        w.click("chkMuteOnDigInp3");
        w.goTo("Power Control");
        w.click("chkSecondOff");
        w.user.type(w.control<forms::TextBox>("txtSecondOff"), "3");
      },
      [](Wizard& w) {
        w.goTo("Power On/Off Lockout");
        w.click("chkContact");
        w.enter("txtPowerLockoutTime(1)", "45");
      },
      [](Wizard& w) {
        w.goTo("Display Options");
        w.click("chkInclude(0)");
        w.chooseDisplay("Fallowmere Roll 240", "cmdChoose(0)");
        w.enter("txtPulseTimeOn(0)", "20");
      },
      [](Wizard& w) {
        w.goTo("Orlena Transmitters");
        w.click("cmdAdd");
        w.click("cmdAdd");
        w.click("chkUse3OLReceiver");
        w.click("cmdRename");
        w.user.labelText(w.control<forms::ListView>("lvwTransmitters"), "Größe ½");
      },
      [](Wizard& w) {
        w.goTo("Room Options");
        w.click("chkInclude(0)");
        w.click("chkInclude(1)");
        w.click("chkOccupancy");
        w.click("chkPowerTimeout");
        w.enter("txtPowerOffTimeout", "15");
        w.enter("txtFenletPassword", "a \"b\" \\c");
      },
      [](Wizard& w) {
        w.goTo("Room Options");
        w.click("chkPowerTimeout");
      },
      [](Wizard& w) {
        w.goTo("Finish");
        w.clickInWindow("cmdSave");
      },
  };
  return all;
}

/// The page that shows, and those that do not wait until they are entered.
std::string pages(const Wizard& wizard) {
  std::string all = wizard.currentStep() + "\n" + forms::listing(wizard.step(wizard.currentStep()));
  for (const char* step : {"Name and Location", "Display Device", "Audio Control",
                           "Display Options", "Orlena Transmitters", "Room Options"}) {
    all += forms::listing(wizard.step(step));
  }
  return all;
}

TEST_F(Recovery, AfterACrashAnywhereThePagesAreTheSameAndASaveGivesTheSameBytes) {
  Wizard undisturbed;
  undisturbed.run([&] {
    for (const Act& act : acts()) act(undisturbed);
  });
  const std::string expected = fileText(undisturbed.systemFile("Lecture Hall"));
  ASSERT_NE(expected, "");

  for (std::size_t done = 1; done < acts().size(); ++done) {
    SCOPED_TRACE(done);
    Wizard crashed(options());
    std::string before;
    crash(crashed, [&] {
      for (std::size_t i = 0; i < done; ++i) acts()[i](crashed);
      before = pages(crashed);
    });
    Wizard next(options());
    restore(next);
    next.run([&] {
      EXPECT_TRUE(next.document().get_Modified());
      EXPECT_EQ(pages(next), before);
      EXPECT_TRUE(left().empty()) << "it belongs to this program now";
      for (std::size_t i = done; i < acts().size(); ++i) acts()[i](next);
      next.desktop.pass(2s);
      EXPECT_EQ(fileText(crashed.systemFile("Lecture Hall")), expected);
    });
    end(next);
    EXPECT_TRUE(left().empty()) << "saved";
  }
}

TEST_F(Recovery, IsOfferedUntilItIsSavedOrDiscardedAndNotByALivingProgram) {
  Wizard crashed(options());
  crash(crashed, [&] {
    nameIt(crashed);
    passLong(crashed);
    EXPECT_TRUE(left().empty()) << "its program lives";
  });
  ASSERT_EQ(left().size(), 1U);
  const std::string words =
      "The room \"Lecture Hall\" was not saved when the program ended at 14:02. It has never been "
      "saved.";
  Wizard next(options());
  EXPECT_EQ(offer(next, "", false), words) << "Escape discards nothing";
  EXPECT_FALSE(next.host->mainWindow()->offerUnsaved()) << "put off in this run";
  Wizard other(options());
  EXPECT_EQ(offer(other, "cmdDiscard", false), words);
  EXPECT_TRUE(folder.listing() == std::vector<std::string>{"recovery/"});
}

TEST_F(Recovery, OfASystemThatWasSavedOpensItAsChangedAndTellsWhatBecameOfItsFile) {
  Wizard crashed(options());
  crash(crashed, [&] {
    nameIt(crashed);
    crashed.clickInWindow("cmdSave");
    crashed.goTo("Audio Control");
    crashed.click("chkMuteOnDigInp3");
  });
  const fs::path file = crashed.systemFile("Lecture Hall");
  Wizard next(options());
  expectHas(offer(next, "cmdLater", false), "Its file is \"" + file.string() + "\".");
  const std::string changed = fileText(file) + "\n";
  writeFile(file, changed);
  Wizard last(options());
  expectHas(offer(last, "cmdRestore", true, forms::fromMachinePath(file)),
            "has been changed since");
  last.givenOpenDocument();
  last.run([&] {
    EXPECT_EQ(fileText(file), changed) << "untouched until it is saved";
    last.desktop.expectMessage(
        "Orlena",
        "Another program has changed the file \"" + file.string() +
            "\" since the system was opened.\r\n\r\nDo you want to keep that "
            "file? Yes keeps it and does not save; No replaces it.",
        Buttons::yesNo, Icon::question, Answer::no);
    last.clickInWindow("cmdSave");
    EXPECT_NE(fileText(file), changed);
  });
}

TEST_F(Recovery, GoesWithADiscardOnClosingButNotWithASaveThatFailed) {
  for (const Answer answer : {Answer::no, Answer::yes}) {
    Wizard wizard(options());
    wizard.run([&] {
      nameIt(wizard);
      wizard.goTo("Audio Control");
      wizard.desktop.pass(1s);
      const std::string file = writeFile(wizard.systemFile("Lecture Hall"), "").string();
      wizard.desktop.expectMessage("Orlena",
                                   "Do you wish to save the changes you made to the system?",
                                   Buttons::yesNoCancel, Icon::question, answer);
      if (answer == Answer::yes) {
        wizard.desktop.expectMessage(
            "Orlena",
            "Another system is in the file \"" + file +
                "\".\r\n\r\nDo you want to keep that system? Yes keeps it and does not save; No "
                "replaces it.",
            Buttons::yesNo, Icon::question, Answer::yes);
      }
      wizard.user.close(wizard.window());
    });
    EXPECT_EQ(left().size(), answer == Answer::yes ? 1U : 0U);
  }
}

TEST_F(Recovery, FilesThatAreDamagedOrOfAnotherVersionAreToldAndKeptAside) {
  Wizard crashed(options());
  crash(crashed, [&] { nameIt(crashed); });
  const fs::path slot = left().at(0);
  const std::string whole = fileText(slot);
  std::string later = whole;
  later.replace(later.find("\"version\":1"), 11, "\"version\":2");
  std::string flipped = whole;
  flipped[whole.size() - 40] ^= 1;
  std::size_t aside = 0;
  for (const auto& [content, reason] : {std::pair{later, "version 2"},
                                        {flipped, "damaged"},
                                        {whole.substr(0, whole.size() - 10), "damaged"},
                                        {whole.substr(0, 90), "recovery"},
                                        {std::string(), "recovery"},
                                        {"\n" + whole, ""}}) {
    writeFile(slot, content);
    Wizard next(options());
    next.desktop.expectMessageWith(Icon::exclamation, reason);
    EXPECT_FALSE(next.host->mainWindow()->offerUnsaved());
    EXPECT_TRUE(left().empty());
    ++aside;
    const auto kept = folder.listing();
    EXPECT_EQ(kept.size(), aside + 1) << "and the folder of all";
    EXPECT_TRUE(std::any_of(kept.begin(), kept.end(), [&](const std::string& name) {
      return !name.ends_with('/') && fileText(folder / name) == content;
    }));
  }
}

TEST_F(Recovery, ThatCantBeWrittenIsToldOnceAndNothingStops) {
  Wizard wizard(options());
  wizard.run([&] {
    nameIt(wizard);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit none{0, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &none);
    wizard.desktop.expectMessageWith(Icon::exclamation, "the file would be larger");
    passLong(wizard);
    setrlimit(RLIMIT_FSIZE, &before);
    const auto isKept = [&] { return folder.listing().back().ends_with("unsaved.tsr"); };
    for (int i = 0; i < 20 && !isKept(); ++i) passLong(wizard);
  });
  end(wizard);
  EXPECT_EQ(left().size(), 1U) << "there is room again";
}

/// A program that is killed at any moment: it names its system anew again and again, and tells each
/// name with its time to a file once it stands on the page.
[[noreturn]] void answerUntilKilled(const fs::path& folder, unsigned seed) {
  std::ofstream told(folder / "told");
  Wizard wizard({folder / "recovery"});
  fs::create_directory_symlink(wizard.systemsFolder(), folder / "systems");
  wizard.run([&] {
    std::minstd_rand random(seed);
    wizard.goTo("Name and Location");
    auto last = Clock::now();
    for (int number = 1;; ++number) {
      wizard.enter("txtSystemName", "Room " + std::to_string(number));
      told << number << " " << Clock::now().time_since_epoch().count() << std::endl;
      std::this_thread::sleep_for(std::chrono::milliseconds(random() % 120));
      const auto now = Clock::now();
      const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(now - last);
      wizard.desktop.pass(passed);
      last += passed;
    }
  });
  std::_Exit(1);
}

/// The last one that was told two seconds before the end.
int oldNumber(const fs::path& folder, Clock::time_point end) {
  std::ifstream told(folder / "told");
  int found = 0;
  int number = 0;
  for (Clock::rep time = 0; told >> number >> time;) {
    if (end - Clock::time_point(Clock::duration(time)) >= 2s) found = number;
  }
  return found;
}

/// The last one that is in a file, which is whole; 0 without a file.
int keptNumber(const fs::path& folder) {
  int number = 0;
  for (const auto& slot : trellisar::RecoverySlot::left(folder / "recovery")) {
    const auto unsaved = trellisar::readRecoveryFile(slot->file());
    const std::string name = trellisar::documentOf(unsaved, shippedLibrary())->name;
    number = std::max(number, std::stoi(name.substr(name.find(' ') + 1)));
  }
  return number;
}

TEST_F(Recovery, LosesAtMostTwoSecondsInTwoHundredKills) {
  constexpr unsigned together = 50;
  constexpr unsigned rounds = 4;
  shippedLibrary();
  std::minstd_rand random(1);
  int lostNothing = 0;
  for (unsigned round = 0; round < rounds; ++round) {
    std::vector<std::pair<pid_t, fs::path>> programs;
    for (unsigned i = 0; i < together; ++i) {
      const unsigned seed = round * together + i + 1;
      const fs::path own = folder / std::to_string(seed);
      fs::create_directory(own);
      const pid_t child = fork();
      if (child == 0) answerUntilKilled(own, seed);
      programs.emplace_back(child, own);
    }
    for (const auto& [program, own] : programs) {
      while (fileText(own / "told").empty()) std::this_thread::sleep_for(10ms);
    }
    std::this_thread::sleep_for(1500ms);
    for (const auto& [program, own] : programs) {
      std::this_thread::sleep_for(std::chrono::milliseconds(random() % 60));
      const auto end = Clock::now();
      kill(program, SIGKILL);
      int state = 0;
      waitpid(program, &state, 0);
      EXPECT_TRUE(WIFSIGNALED(state)) << own;
      const int old = oldNumber(own, end);
      EXPECT_GE(keptNumber(own), old) << own;
      if (old > 0) ++lostNothing;
      std::error_code none;
      fs::remove_all(fs::read_symlink(own / "systems", none), none);
    }
  }
  EXPECT_GT(lostNothing, 100) << "most have lived for more than two seconds";
}

}  // namespace
}  // namespace tests
