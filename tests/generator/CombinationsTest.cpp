#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <sstream>

#include "host/Numbers.h"
#include "tests/generator/Combination.h"
#include "tests/support/Golden.h"

namespace {

using tests::Combination;
using tests::Program;
using tests::Room;

const std::string file = std::string(ORLENA_SOURCE_FOLDER) + "/tests/generator/combinations.txt";

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

/// Builds again what was just built.
void expectSound(Room& room, const std::string& name) {
  const Program program = room.program();
  EXPECT_EQ(room.errors(), std::vector<std::string>{}) << name;
  ASSERT_TRUE(room.build()) << name;
  EXPECT_EQ(room.program(), program) << name << ": another second run";
}

TEST(CombinationsTest, haveTheirProgramsWithNothingUnknownAndCanBeBuiltAgain) {
  Book book;
  for (const Combination& combination : tests::variedCombinations()) {
    Room room;
    answer(room, combination);
    ASSERT_TRUE(room.build()) << combination.name() << ": " << room.builder().GetLastError();
    book.enter(combination.name(), room.program());
    expectSound(room, combination.name());
  }
  tests::expectGolden("combinations", file, book.text());
}

/// A place that keeps what an earlier run wrote, less what the new answers took of it, when the
/// room is answered anew.
struct KeptPlace {
  std::string place;  // its beginning
  std::function<bool(const Combination& before, const Combination& now)> keeps;
  std::string why;
};

bool keepsPresets(const Combination& c, unsigned command) {
  return c.power == host::powerNone || (c.power == host::powerDiscrete && !c.has(command));
}

const std::vector<KeptPlace>& keptPlaces() {
  const auto sensorLeft = [](const Combination& before, const Combination& now) {
    return before.sensor == Combination::withTimeout && now.sensor == Combination::withoutTimeout;
  };
  const auto detectorCame = [](const Combination& before, const Combination& now) {
    return before.sensor == Combination::noSensor && now.sensor != Combination::noSensor;
  };
  const auto sensingLeft = [](const Combination& before, const Combination& now) {
    return before.power == host::powerSensing && now.power != host::powerSensing;
  };
  const auto sensingCame = [](const Combination& before, const Combination& now) {
    return before.power != host::powerSensing && now.power == host::powerSensing;
  };
  static const std::vector<KeptPlace> places{
      {"Display Power On",
       [](const Combination&, const Combination& now) { return keepsPresets(now, 0); },
       "only a display whose power is controlled empties its presets"},
      {"Display Power Off",
       [](const Combination&, const Combination& now) { return keepsPresets(now, 1); }, "as above"},
      {"PWRTIMEOUT",
       [](const Combination& before, const Combination& now) {
         return before.hasLockout() && !now.hasLockout();
       },
       "nothing removes the lockout module, its times or its events"},
      {"PWRSENSE", sensingLeft, "nothing removes the sensing module"},
      {"Receiver.System_Ready_Pulse",
       [](const Combination& before, const Combination& now) {
         return before.contact != addin::contactUnused && now.contact == addin::contactUnused;
       },
       "an unused contact empties the events of digital input 2 only"},
      {"Digital Input 3.dig_input_1",
       [](const Combination& before, const Combination& now) { return before.mute && !now.mute; },
       "the events go when the wizard removes the input"},
      {"Motion Detector is Timeout", sensorLeft, "without a timeout the sensor keeps its property"},
      {"Motion Detector.Motion_Detected 1",
       [sensorLeft](const Combination& before, const Combination& now) {
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

/// Nothing when the place is as in a room that was never answered otherwise.
const KeptPlace* findKept(const std::string& place, const Combination& before,
                          const Combination& now) {
  const auto found = std::find_if(keptPlaces().begin(), keptPlaces().end(), [&](const auto& kept) {
    return place.starts_with(kept.place) && kept.keeps(before, now);
  });
  return found == keptPlaces().end() ? nullptr : &*found;
}

std::set<std::string> placesOf(const std::vector<Program>& programs) {
  std::set<std::string> places;
  for (const Program& program : programs) {
    for (const auto& [place, text] : program) places.insert(place);
  }
  return places;
}

/// A display whose power is not controlled appends the branches of its sources to what it keeps,
/// where they do not stand yet; one that lost its command gets it back.
std::string withSources(std::string text, const Combination& now, const Room& room) {
  struct Source {
    unsigned bit;
    std::int16_t command;
    const char* signal;
  };
  if (now.lockoutOn != 0) return text;
  for (const Source& source : {Source{2, host::scRGB1, "RGB_Selected"},
                               Source{3, host::scVideo1, "Composite_Video_Selected"}}) {
    if (!now.has(source.bit)) continue;
    const std::string test = std::string("if Receiver.") + source.signal + "=1 { ";
    const std::string branch =
        test + "Display Device." + room.display()->GetDefaultCommandName(source.command) + "~10 }";
    const std::string emptied = test + " }";
    const auto at = text.find(emptied);
    if (at != std::string::npos) text.replace(at, emptied.size(), branch);
    if (text.find(branch) == std::string::npos) text += (text.empty() ? "" : "; ") + branch;
  }
  return text;
}

std::string textAt(const Program& program, const std::string& place) {
  const auto found = program.find(place);
  return found == program.end() ? "" : found->second;
}

TEST(CombinationsTest, answeredAnewGiveTheProgramOfAFreshRoomButForKnownPlaces) {
  std::set<const KeptPlace*> met;
  std::minstd_rand random;  // the same pairs every time
  for (int pair = 0; pair < 1000; ++pair) {
    const Combination before = tests::anyCombination(random);
    const Combination now = tests::anyCombination(random);
    const std::string name = before.name() + " -> " + now.name();
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
    const Program left = room.program();
    ASSERT_TRUE(room.build()) << name;
    const Program anew = room.program();
    for (const std::string& place : placesOf({fresh, left, anew})) {
      std::string expected = textAt(fresh, place);
      if (const KeptPlace* kept = findKept(place, before, now)) {
        expected = textAt(left, place);
        if (place == "Display Power On") expected = withSources(expected, now, room);
        if (expected != textAt(fresh, place)) met.insert(kept);
      }
      EXPECT_EQ(textAt(anew, place), expected) << name << "\n  " << place;
    }
    expectSound(room, name);
  }
  for (const KeptPlace& kept : keptPlaces()) {
    EXPECT_TRUE(met.contains(&kept)) << kept.place << ": " << kept.why << ": not met";
  }
}

}  // namespace
