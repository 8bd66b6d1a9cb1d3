#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <sstream>

#include "forms/Application.h"
#include "tests/generator/Combination.h"
#include "tests/support/ScriptedDesktop.h"
#include "trellisar/ProgramCheck.h"

namespace {

using tests::Combination;
using tests::Program;
using tests::Room;

const std::string file = std::string(ORLENA_SOURCE_FOLDER) + "/tests/generator/combinations.txt";

class CombinationsTest : public testing::Test {
 protected:
  tests::ScriptedDesktop desktop;
  forms::Application application{desktop, "\\program"};
};

/// The programs of all combinations in a form that can be read. What a place can hold is told once,
/// under a number; a line for each combination names the numbers, each behind the letters of its
/// place. Places that always go together share their letters; an empty place is left out of a line,
/// and one that is the same everywhere stands in none.
class Book {
 public:
  void enter(const std::string& combination, const Program& program) {
    for (const auto& [place, text] : program) {
      Place& entered = places_[place];
      entered.numbers.resize(combinations_.size());
      const auto number = entered.texts.try_emplace(text, entered.texts.size() + 1).first->second;
      entered.numbers.push_back(number);
    }
    combinations_.push_back(combination);
  }

  std::string text() const {
    std::ostringstream legend;
    std::map<Column, std::string> codes;
    std::vector<std::string> lines = combinations_;
    for (const auto& [place, entered] : places_) {
      Column column = entered.numbers;
      column.resize(combinations_.size());
      const auto [code, isNew] = codes.try_emplace(column, nextCode(column, codes.size()));
      legend << code->second << " = " << place << "\n" << entered.contents();
      for (std::size_t i = 0; isNew && i < lines.size(); ++i) {
        if (column[i] != 0 && code->second != always) {
          lines[i] += " " + code->second + std::to_string(column[i]);
        }
      }
    }
    for (const std::string& line : lines) legend << line << "\n";
    return legend.str();
  }

 private:
  /// What a place holds in each combination, by number; 0: nothing.
  using Column = std::vector<std::size_t>;

  struct Place {
    std::map<std::string, std::size_t> texts;
    Column numbers;

    std::string contents() const {
      std::vector<std::string> inOrder(texts.size());
      for (const auto& [text, number] : texts) inOrder[number - 1] = text;
      std::string list;
      for (std::size_t i = 0; i < inOrder.size(); ++i) {
        list += "  " + std::to_string(i + 1) + "  " + inOrder[i] + "\n";
      }
      return list;
    }
  };

  static constexpr const char* always = "always";

  /// "a", "b", ... "z", "aa", ...
  static std::string nextCode(const Column& column, std::size_t number) {
    const auto isFirst = [](std::size_t text) { return text == 1; };
    if (std::all_of(column.begin(), column.end(), isFirst)) return always;
    std::string code;
    if (number >= 26) code += static_cast<char>('a' + number / 26 - 1);
    return code + static_cast<char>('a' + number % 26);
  }

  std::map<std::string, Place> places_;
  std::vector<std::string> combinations_;
};

std::string wholeFile() {
  std::stringstream text;
  text << std::ifstream(file).rdbuf();
  return text.str();
}

/// The first line in which two texts differ, of each.
std::string firstDifference(const std::string& one, const std::string& other) {
  std::istringstream left(one), right(other);
  std::string leftLine, rightLine;
  while (true) {
    const bool more = static_cast<bool>(std::getline(left, leftLine));
    const bool otherMore = static_cast<bool>(std::getline(right, rightLine));
    if (!more && !otherMore) return "";
    if (!more) leftLine = "(end)";
    if (!otherMore) rightLine = "(end)";
    if (leftLine != rightLine) return "expected " + leftLine + "\nbuilt    " + rightLine;
  }
}

std::string errorsOf(const Room& room) {
  std::string text;
  for (const auto& error : trellisar::programErrors(room.data())) text += error + "\n";
  return text;
}

TEST_F(CombinationsTest, haveTheirProgramsWithNothingUnknownAndCanBeBuiltAgain) {
  Book book;
  for (const Combination& combination : tests::everyCombination()) {
    Room room;
    answer(room, combination);
    ASSERT_TRUE(room.build()) << combination.name() << ": " << room.builder().GetLastError();
    const Program program = room.program();
    book.enter(combination.name(), program);
    EXPECT_EQ(errorsOf(room), "") << combination.name();
    ASSERT_TRUE(room.build()) << combination.name();
    EXPECT_EQ(room.program(), program) << combination.name() << ": another second run";
  }
  if (std::getenv("ORLENA_RENEW_GOLDENS")) std::ofstream(file) << book.text();
  EXPECT_EQ(firstDifference(wholeFile(), book.text()), "")
      << "renew with: tools/renew-goldens, and review the change";
}

/// A place that keeps what an earlier run wrote when the room is answered anew.
struct KeptPlace {
  std::string place;  // its beginning
  std::function<bool(const Combination& before, const Combination& now)> keeps;
  std::string why;
};

bool lacks(const Combination& c, unsigned command) {
  return c.power == host::powerDiscrete && !c.has(command);
}

/// In what a display without controlled power leaves in its presets.
bool differ(const Combination& before, const Combination& now) {
  return before.power != now.power || before.commands != now.commands ||
         before.lockoutOn != now.lockoutOn;
}

const std::vector<KeptPlace>& keptPlaces() {
  const auto lockoutGone = [](const Combination& before, const Combination& now) {
    return before.hasLockout() && !now.hasLockout();
  };
  const auto sensorLeft = [](const Combination& before, const Combination& now) {
    return before.sensor == Combination::withTimeout && now.sensor == Combination::withoutTimeout;
  };
  const auto detectorCame = [](const Combination& before, const Combination& now) {
    return before.sensor == Combination::none && now.sensor != Combination::none;
  };
  const auto sensingLeft = [](const Combination& before, const Combination& now) {
    return before.power == host::powerSensing && now.power != host::powerSensing;
  };
  const auto sensingCame = [](const Combination& before, const Combination& now) {
    return before.power != host::powerSensing && now.power == host::powerSensing;
  };
  static const std::vector<KeptPlace> places{
      {"Display Power On",
       [](const Combination& before, const Combination& now) {
         return (now.power == host::powerNone && differ(before, now)) || lacks(now, 0);
       },
       "only a display whose power is controlled empties its presets"},
      {"Display Power Off",
       [](const Combination& before, const Combination& now) {
         return (now.power == host::powerNone && before.power != host::powerNone) || lacks(now, 1);
       },
       "as above"},
      {"PWRTIMEOUT", lockoutGone, "nothing removes the lockout module, its times or its events"},
      {"PWRSENSE", sensingLeft, "nothing removes the sensing module"},
      {"Receiver.System_Ready_Pulse",
       [](const Combination& before, const Combination& now) {
         return before.contact != addin::contactUnused && now.contact == addin::contactUnused;
       },
       "an unused contact empties the events of digital input 2 only"},
      {"Motion Detector is Timeout", sensorLeft, "without a timeout the sensor keeps its property"},
      {"Motion Detector.Motion_Detected 1",
       [&, sensorLeft](const Combination& before, const Combination& now) {
         return sensorLeft(before, now) && !now.kestrum;
       },
       "without a timeout the sensor keeps what no motion does"},
      {"Kestrum Interface is Digital_Attribute_7_Name", detectorCame,
       "the custom signal of digital input 1 stays named when the motion detector takes it"},
      {"Kestrum Interface is Digital_Attribute_10_Name", sensingCame,
       "the custom signal of digital input 4 stays named when the power sensor takes it"},
      {"Kestrum Interface.Custom_Digital_Notify_10", sensingLeft,
       "nothing gives digital input 4 back"},
      {"Kestrum Interface is Digital_Attribute_10_Name", sensingLeft, "as above"},
  };
  return places;
}

/// Nothing when the place should not have kept anything.
const KeptPlace* findKept(const std::string& place, const Combination& before,
                          const Combination& now) {
  const auto found = std::find_if(keptPlaces().begin(), keptPlaces().end(), [&](const auto& kept) {
    return place.starts_with(kept.place) && kept.keeps(before, now);
  });
  return found == keptPlaces().end() ? nullptr : &*found;
}

std::vector<std::string> differingPlaces(const Program& one, const Program& other) {
  Program all = one;
  all.insert(other.begin(), other.end());
  std::vector<std::string> differing;
  for (const auto& [place, text] : all) {
    const auto left = one.find(place), right = other.find(place);
    if (left == one.end() || right == other.end() || left->second != right->second) {
      differing.push_back(place);
    }
  }
  return differing;
}

TEST_F(CombinationsTest, answeredAnewGiveTheProgramOfAFreshRoomButForKnownPlaces) {
  const std::vector<Combination> all = tests::everyCombination();
  std::set<const KeptPlace*> met;
  std::minstd_rand random;  // the same pairs every time
  for (int pair = 0; pair < 1000; ++pair) {
    const Combination& before = all[random() % all.size()];
    const Combination& now = all[random() % all.size()];
    Program fresh;
    {
      Room room;
      answer(room, now);
      ASSERT_TRUE(room.build()) << now.name();
      fresh = room.program();
    }
    Room room;
    answer(room, before);
    ASSERT_TRUE(room.build()) << before.name();
    answer(room, now);
    ASSERT_TRUE(room.build()) << before.name() << " -> " << now.name();
    const Program anew = room.program();
    for (const std::string& place : differingPlaces(fresh, anew)) {
      const KeptPlace* kept = findKept(place, before, now);
      EXPECT_TRUE(kept) << before.name() << " -> " << now.name() << "\n  " << place
                        << "\n  fresh: " << fresh[place] << "\n  anew:  " << room.at(place);
      met.insert(kept);
    }
  }
  for (const KeptPlace& kept : keptPlaces()) {
    EXPECT_TRUE(met.contains(&kept)) << kept.place << ": " << kept.why << ": not met";
  }
}

}  // namespace
