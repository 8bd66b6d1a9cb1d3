#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <random>
#include <regex>
#include <set>

#include "answers/AnswersShape.h"
#include "answers/Explanation.h"
#include "answers/Room.h"
#include "answers/RunEnded.h"
#include "app/AddIn.h"
#include "app/Environment.h"
#include "host/Numbers.h"
#include "tests/app/Program.h"
#include "tests/generator/Covering.h"
#include "trellisar/compare/Compare.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/document/SystemFile.h"

namespace app {
namespace {

namespace fs = std::filesystem;
using answers::Shape;
using base::Json;
using trellisar::Definition;

/// Tells nobody.
struct Silence : answers::Report {
  void line(const std::string&) const override {}
};

class AnswersOfASystem : public testing::Test {
 protected:
  fs::path build(Json answers, const std::string& name) {
    answers["name"] = name;
    answers["folder"] = folder.path().string();
    answers::MadeFolders made;
    return answers::buildRoom(answers::Answers(answers.dump()), {}, options, silence, made);
  }

  /// Builds a room of the answers that it can be given: what the wizard does not ask for is left
  /// out of them.
  fs::path buildPossible(Json& answers, const std::string& name) {
    while (true) {
      try {
        return build(answers, name);
      } catch (const answers::RunEnded& ended) {
        leaveOut(answers, ended.faults().front().path);
      }
    }
  }

  answers::Reading read(const fs::path& system) {
    return answers::readRoom(system, options, silence);
  }

  /// All that a listing holds, but where the system lies.
  static std::string listing(const fs::path& system) {
    Json listing = trellisar::listing(*trellisar::readSystemFile(system, nullptr));
    listing.erase("name");
    listing.erase("folder");
    return base::jsonText(listing);
  }

  /// The answers that a system gives build its like, which gives them again.
  void expectRoundTrip(Json answers) {
    const fs::path original = buildPossible(answers, "Original");
    const answers::Reading reading = read(original);
    EXPECT_TRUE(reading.unsayable.empty()) << answers.dump(2);
    const fs::path copy = build(reading.answers, "Copy");
    EXPECT_EQ(listing(copy), listing(original)) << answers.dump(2) << reading.answers.dump(2);
    EXPECT_EQ(base::jsonText(read(copy).answers), base::jsonText(reading.answers));
    fs::remove_all(folder / "Original");
    fs::remove_all(folder / "Copy");
  }

  static void leaveOut(Json& answers, const std::string& path) {
    std::string pointer = "/" + path;
    std::replace(pointer.begin(), pointer.end(), '.', '/');
    pointer = pointer.substr(0, pointer.find('['));
    const Json::json_pointer place(pointer);
    ASSERT_TRUE(answers.contains(place)) << path << " of " << answers.dump();
    answers[place.parent_pointer()].erase(place.back());
  }

  TemporaryFolder folder;
  Silence silence;
  answers::RoomOptions options{
      .dataFolder = dataFolder(),
      .openWizard = openUnattended,
      .library = std::make_shared<trellisar::DeviceLibrary>(dataFolder() / "library")};
};

/// Answers a file's shape with whatever it takes.
class Chance {
 public:
  Chance(unsigned seed, const trellisar::DeviceLibrary& library)
      : random_(seed), library_(library) {}

  Json answer(const Shape& shape) {
    switch (shape.kind) {
      case Shape::Kind::text:
        return text(shape);
      case Shape::Kind::word:
        return oneOf(shape.words);
      case Shape::Kind::integer:
        return isChosen() ? shape.minimum
                          : shape.minimum + below(shape.maximum - shape.minimum + 1);
      case Shape::Kind::boolean:
        return isChosen();
      case Shape::Kind::object:
        return object(shape);
      case Shape::Kind::array:
        return array(shape);
      case Shape::Kind::anything:
        break;
    }
    return nullptr;
  }

 private:
  std::int64_t below(std::int64_t limit) {
    return std::uniform_int_distribution<std::int64_t>(0, limit - 1)(random_);
  }
  bool isChosen() { return below(2) == 0; }
  std::string oneOf(const std::vector<std::string>& words) {
    return words[static_cast<std::size_t>(below(static_cast<std::int64_t>(words.size())))];
  }

  std::string text(const Shape& shape) {
    if (shape.names == Shape::Names::command) return oneOf(commands_);
    if (shape.names == Shape::Names::nothing) return oneOf({"Lectern", "ä b", "0"});
    std::vector<std::string> names;
    for (const auto& device : library_.all(Definition::Form::device)) {
      const bool isMeant = shape.names == Shape::Names::slotDevice
                               ? device->kind == host::kindUsable
                               : device->category == shape.category;
      if (isMeant) names.push_back(device->name);
    }
    const std::string name = oneOf(names);
    commands_ = {""};
    for (const auto& row : library_.findDevice(name)->signalTable()) {
      if (!row.input.empty()) commands_.push_back(row.input);
    }
    return name;
  }

  Json object(const Shape& shape) {
    Json object = Json::object();
    for (const answers::Key& key : shape.keys) {
      const bool isPlace = key.name == "name" || key.name == "folder";
      const bool isLikely = key.isRequired || key.name == "device" || !key.shape.keys.empty();
      if (!isPlace && (isLikely || isChosen())) object[key.name] = answer(key.shape);
    }
    return object;
  }

  Json array(const Shape& shape) {
    Json array = Json::array();
    for (auto left = below(shape.maximum + 1); left > 0; --left) {
      array.push_back(answer(shape.keys.front().shape));
    }
    return array;
  }

  std::minstd_rand random_;
  const trellisar::DeviceLibrary& library_;
  std::vector<std::string> commands_{""};
};

/// What a room's program depends on, each with the ways to answer it.
const std::vector<std::vector<const char*>> discreteAnswers{
    {R"({"display": {"device": "Bravonne P2200"}})", R"({"display": {"device": "Quenlowe K32"}})",
     R"({"display": {"device": "Zephrant Zolt 2"}})", "{}"},
    {R"({"power": {"control": "none"}})", R"({"power": {"control": "sensing"}})",
     R"({"power": {"control": "discrete"}})",
     R"({"power": {"control": "discrete", "second_off": {"delay": 3}}})"},
    {"{}", R"({"display": {"relay": {}}})",
     R"({"display": {"relay": {"on_delay": 5, "off_delay": 0}}})"},
    {"{}", R"({"lockout": {"on": 0, "off": 0}})"},
    {"{}", R"({"lockout": {"contact": "power off"}})", R"({"lockout": {"contact": "continue"}})"},
    {"{}", R"({"screen": {"device": "Fallowmere Roll 180"}})",
     R"({"screen": {"device": "Drapewick Trigger 220"}})"},
    {"{}", R"({"lift": {"device": "Hoistrel HL-30"}})"},
    {"{}", R"({"transmitters": [{"type": "Table Box Transmitter"}]})",
     R"({"transmitters": [{"type": "Guest Transmitter", "label": "PC"},
                          {"type": "Table Box Transmitter"}]})",
     R"({"transmitters": [{"type": "Lectern Transmitter"}], "three_input_receiver": true})"},
    {"{}", R"({"room": {"kestrum": true}})"},
    {"{}", R"({"room": {"fenlet": true}})", R"({"room": {"fenlet": true, "fenlet_password": ""}})"},
    {"{}", R"({"room": {"occupancy": true}})",
     R"({"room": {"occupancy": true, "power_off_after": 20}})"},
    {"{}", R"({"audio": {"mute_on_input_3": true}})",
     R"({"audio": {"volume_knob": "master", "microphone": "always"}})"},
};

TEST_F(AnswersOfASystem, buildItsLikeForAnyThreeAnswers) {
  std::vector<unsigned> counts;
  for (const auto& ways : discreteAnswers) counts.push_back(static_cast<unsigned>(ways.size()));
  for (const tests::Choices& choices : tests::coverThreefold(counts)) {
    Json answers = Json::object();
    for (std::size_t i = 0; i < choices.size(); ++i) {
      answers.merge_patch(Json::parse(discreteAnswers[i][choices[i]]));
    }
    expectRoundTrip(answers);
    if (HasFailure()) break;
  }
}

TEST_F(AnswersOfASystem, buildItsLikeForTheGoldens) {
  for (const auto& golden : fs::directory_iterator(ORLENA_SOURCE_FOLDER "/tests/golden")) {
    if (golden.is_directory()) {
      expectRoundTrip(Json::parse(fileText(golden.path() / "answers.json")));
    }
  }
}

/// In parts, which can run side by side.
class AnswersOfAnySystem : public AnswersOfASystem, public testing::WithParamInterface<unsigned> {};

TEST_P(AnswersOfAnySystem, buildItsLike) {
  constexpr unsigned rooms = 60;
  for (unsigned seed = GetParam() * rooms; seed < (GetParam() + 1) * rooms; ++seed) {
    SCOPED_TRACE(seed);
    expectRoundTrip(Chance(seed, *options.library).answer(answers::answersShape()));
    if (HasFailure()) break;
  }
}
INSTANTIATE_TEST_SUITE_P(Part, AnswersOfAnySystem, testing::Range(0U, 5U));

/// The pieces of a system that one built of these answers has not.
std::set<trellisar::Piece> lackingIn(const trellisar::DocumentData& system, const fs::path& other) {
  std::set<trellisar::Piece> lacking;
  for (const auto& each : trellisar::compare(system, *trellisar::readSystemFile(other, nullptr))) {
    lacking.insert(each.pieces.begin(), each.pieces.end());
  }
  return lacking;
}

Json without(Json answers, const std::vector<std::string>& paths) {
  // From the last, so that the places of transmitters hold.
  for (auto path = paths.rbegin(); path != paths.rend(); ++path) {
    const Json::json_pointer place("/" +
                                   std::regex_replace(*path, std::regex(R"(\]?[.[]|\])"), "/"));
    const auto element = path->ends_with(']') ? place.parent_pointer() : place;
    if (!answers.contains(element)) continue;
    Json& parent = answers[element.parent_pointer()];
    if (parent.is_array()) {
      parent.erase(parent.begin() + std::stoi(element.back()), parent.end());
    } else {
      parent.erase(element.back());
    }
  }
  return answers;
}

TEST_F(AnswersOfASystem, explainWhatIsGoneWithoutThem) {
  for (unsigned seed = 1000; seed < 1006 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    Json given = Chance(seed, *options.library).answer(answers::answersShape());
    const fs::path original = buildPossible(given, "Original");
    const auto system = trellisar::readSystemFile(original, nullptr);
    const Json all = read(original).answers;
    std::map<std::vector<std::string>, std::set<trellisar::Piece>> pieces;
    for (const auto& [piece, reason] : answers::explain(*system, all, options)) {
      EXPECT_FALSE(reason.isLeftOver || reason.nearest.empty());
      pieces[reason.answers].insert(piece);
    }
    std::set<trellisar::Piece> explained;
    for (const auto& [answers, there] : pieces) {
      Json fewer = without(all, answers);
      const auto lacking = lackingIn(*system, buildPossible(fewer, "Fewer"));
      EXPECT_TRUE(std::ranges::includes(lacking, there)) << Json(answers) << all.dump(2);
      explained.insert(there.begin(), there.end());
      fs::remove_all(folder / "Fewer");
    }
    const auto lacking = lackingIn(*system, build(Json::object(), "Bare"));
    EXPECT_TRUE(std::ranges::includes(explained, lacking)) << all.dump(2);
    fs::remove_all(folder / "Original");
    fs::remove_all(folder / "Bare");
  }
}

}  // namespace
}  // namespace app
