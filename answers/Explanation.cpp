#include "answers/Explanation.h"

#include <algorithm>
#include <exception>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <thread>
#include <unordered_set>
#include <vector>

#include "answers/Anew.h"
#include "answers/Batch.h"
#include "answers/Paths.h"
#include "answers/Table.h"
#include "trellisar/compare/Compare.h"

namespace answers {
namespace {

using base::Json;
using Lacking = std::unordered_set<trellisar::Piece>;

constexpr std::string_view each = "[]";

/// An answer that can be left out.
struct Leaving {
  std::string path;
  std::string key;          // of an element, that of its array
  std::string inside = {};  // of an element's answer, its key in the element
  std::size_t element = 0;

  bool isElement() const { return path.ends_with(']'); }

  /// An element's place in its array is its port, so those behind it go with it.
  void from(Json& answers) const {
    if (path == key) {
      takeOut(answers, path);
      return;
    }
    const auto [object, name] = placeOf(answers, key);
    Json& array = object->at(name);
    if (element >= array.size()) return;
    if (isElement()) {
      array.erase(array.begin() + static_cast<std::ptrdiff_t>(element), array.end());
    } else {
      array[element].erase(inside);
    }
  }
};

/// What says nothing, or what holds anyway, is not left out.
bool says(const Row& row, const Json& value) {
  return !value.is_null() && value != row.leftOut.value;
}

std::vector<Leaving> elementsOf(const Row& row, Json& answers) {
  const std::size_t place = row.key.find(each);
  const std::string key = row.key.substr(0, place);
  const std::string inside = place == std::string::npos ? "" : row.key.substr(place + 3);
  const auto [object, name] = placeOf(answers, key);
  std::vector<Leaving> leavings;
  if (!object->is_object() || !object->contains(name)) return leavings;
  const Json& array = object->at(name);
  for (std::size_t i = 0; i < array.size(); ++i) {
    const std::string path = key + "[" + std::to_string(i) + "]";
    if (inside.empty()) {
      leavings.push_back({path, key, inside, i});
    } else if (array[i].contains(inside) && says(row, array[i][inside])) {
      leavings.push_back({path + "." + inside, key, inside, i});
    }
  }
  return leavings;
}

/// All that can be left out of a room's answers, in the order of the table. What is required stands
/// and falls with what it is required in.
std::vector<Leaving> leavingsOf(Json answers) {
  std::vector<Leaving> leavings;
  for (const Step& step : table()) {
    for (const Row& row : step.rows) {
      const bool isPlace = row.key == "name" || row.key == "folder";
      if (isPlace || row.leftOut.kind == LeftOut::Kind::required) continue;
      if (row.type.kind == Shape::Kind::array || row.key.find(each) != std::string::npos) {
        for (Leaving& element : elementsOf(row, answers)) leavings.push_back(std::move(element));
        continue;
      }
      const auto [object, name] = placeOf(answers, row.key);
      if (!object->is_object() || !object->contains(name)) continue;
      if (says(row, object->at(name))) leavings.push_back({row.key, row.key});
    }
  }
  return leavings;
}

/// The places of the answers that are left out.
using Left = std::set<std::size_t>;

/// A room that is built without some of the answers.
struct Without {
  Lacking lacking;  // what the system has, and this one has not
  Left gone;  // what it was not built of: the answers, and those that can't stand without them
};

/// Each is built once.
class Rooms {
 public:
  Rooms(const trellisar::DocumentData& system, const Json& answers,
        const std::vector<Leaving>& leavings, const RoomOptions& options)
      : system_(system), answers_(answers), leavings_(leavings), options_(options) {}

  void buildSideBySide(const std::vector<Left>& rooms) {
    std::vector<Without> built(rooms.size());
    std::vector<std::exception_ptr> failures(rooms.size());
    std::vector<Batch::Job> jobs;
    for (std::size_t i = 0; i < rooms.size(); ++i) {
      jobs.push_back([&, i] {
        try {
          built[i] = build(rooms[i]);
        } catch (...) {
          failures[i] = std::current_exception();
        }
        return RoomResult();
      });
    }
    Batch([](const std::string&) {
    }).run(jobs, static_cast<int>(std::max(1U, std::thread::hardware_concurrency())));
    for (const std::exception_ptr& failure : failures) {
      if (failure) std::rethrow_exception(failure);
    }
    for (std::size_t i = 0; i < rooms.size(); ++i) built_[rooms[i]] = std::move(built[i]);
  }

  const Without& without(Left left) {
    for (const std::size_t place : Left(left)) {
      const auto single = built_.find({place});
      if (single != built_.end())
        left.insert(single->second.gone.begin(), single->second.gone.end());
    }
    const auto found = built_.find(left);
    return found == built_.end() ? built_[left] = build(left) : found->second;
  }

 private:
  Without build(const Left& left) const {
    Json answers = answers_;
    for (const std::size_t place : left) leavings_[place].from(answers);
    const trellisar::DocumentPtr anew = buildOfWhatHolds(answers, options_);
    Without without;
    for (std::size_t i = 0; i < leavings_.size(); ++i) {
      if (!isAnswered(answers, leavings_[i].path)) without.gone.insert(i);
    }
    for (const trellisar::Difference& difference : trellisar::compare(system_, *anew)) {
      without.lacking.insert(difference.pieces.begin(), difference.pieces.end());
    }
    return without;
  }

  const trellisar::DocumentData& system_;
  const Json& answers_;
  const std::vector<Leaving>& leavings_;
  const RoomOptions& options_;
  std::map<Left, Without> built_;
};

class Explanation {
 public:
  Explanation(const trellisar::DocumentData& system, const Json& answers,
              const RoomOptions& options)
      : leavings_(leavingsOf(answers)), rooms_(system, answers, leavings_, options) {
    Left all;
    for (std::size_t i = 0; i < leavings_.size(); ++i) all.insert(all.end(), i);
    std::vector<Left> rooms{{}, all};
    for (const std::size_t place : all) rooms.push_back({place});
    rooms_.buildSideBySide(rooms);
    for (const std::size_t place : all) findWithout(place);
    findWithoutSeveral(all);
  }

  trellisar::Reasons reasons() {
    trellisar::Reasons reasons;
    for (const auto& [piece, places] : found_) {
      trellisar::Reason& reason = reasons[piece];
      for (const std::size_t place : places) {
        reason.answers.push_back(leavings_[place].path);
        if (isNearest(place, places)) reason.nearest.push_back(leavings_[place].path);
      }
    }
    for (const trellisar::Piece piece : leftOver()) reasons[piece] = {.isLeftOver = true};
    return reasons;
  }

 private:
  const Lacking& leftOver() { return rooms_.without({}).lacking; }
  const Without& withoutOne(std::size_t place) { return rooms_.without({place}); }

  /// An element takes those behind it away, but is no reason for what they bring.
  void findWithout(std::size_t place) {
    static const Lacking nothing;
    const bool hasNext = leavings_[place].isElement() && place + 1 < leavings_.size() &&
                         leavings_[place + 1].isElement();
    const Lacking& ofNext = hasNext ? withoutOne(place + 1).lacking : nothing;
    for (const trellisar::Piece piece : withoutOne(place).lacking) {
      if (!ofNext.contains(piece)) found_[piece].insert(place);
    }
  }

  /// What stays without any one of the answers, and goes without some of them together.
  void findWithoutSeveral(const Left& all) {
    for (const trellisar::Piece piece : rooms_.without(all).lacking) {
      if (found_.contains(piece)) continue;
      Left fewest = all;
      keepIfPossible(piece, 0, all.size(), fewest);
      found_[piece] = fewest;
    }
  }

  /// Takes those of the places from `first` to before `end` out of `left` without which the piece
  /// is lacking all the same.
  void keepIfPossible(trellisar::Piece piece, std::size_t first, std::size_t end, Left& left) {
    Left fewer = left;
    fewer.erase(fewer.lower_bound(first), fewer.lower_bound(end));
    if (rooms_.without(fewer).lacking.contains(piece)) {
      left = fewer;
    } else if (end - first > 1) {
      const std::size_t middle = first + (end - first) / 2;
      keepIfPossible(piece, middle, end, left);
      keepIfPossible(piece, first, middle, left);
    }
  }

  bool needs(std::size_t place, std::size_t other) {
    return withoutOne(other).gone.contains(place);
  }

  /// Whether none of the others needs it, without being needed itself.
  bool isNearest(std::size_t place, const Left& places) {
    return std::none_of(places.begin(), places.end(), [&](std::size_t other) {
      return other != place && needs(other, place) && !needs(place, other);
    });
  }

  std::vector<Leaving> leavings_;
  Rooms rooms_;
  std::map<trellisar::Piece, Left> found_;
};

}  // namespace

trellisar::Reasons explain(const trellisar::DocumentData& system, const Json& answers,
                           const RoomOptions& options) {
  return Explanation(system, answers, options).reasons();
}

}  // namespace answers
