#include "trellisar/compare/PresetComparison.h"

#include <algorithm>
#include <map>
#include <utility>

#include "trellisar/compare/StepUnits.h"
#include "trellisar/compile/Words.h"

namespace trellisar {
namespace {

using Change = Difference::Change;
using Units = std::vector<StepUnit>;
using Conditions = std::vector<std::string>;

/// A difference, and what the step is that came or went; empty: none did.
struct Found {
  Difference difference;
  std::string step = {};
};

std::string identity(const StepUnit& unit) {
  return unit.name + "\n" + unit.content + "\n" + unit.timing;
}

/// The step of a unit that has one.
Piece own(const StepUnit& unit) { return pieceOf(*unit.step); }

Pieces delaysOf(const StepUnit& unit) {
  Pieces pieces;
  for (const DelayStep& delay : unit.delays) pieces.push_back(&delay.data);
  return pieces;
}

/// The unit's steps, with those of its branch.
Pieces piecesOf(const StepUnit& unit) {
  Pieces pieces = delaysOf(unit);
  if (!unit.step) return pieces;
  pieces.push_back(own(unit));
  if (const auto* branch = std::get_if<BranchStep>(&*unit.step)) {
    const Pieces inside = stepsOf(branch->branch());
    pieces.insert(pieces.end(), inside.begin(), inside.end());
  }
  return pieces;
}

std::string orElse(const std::string& text, const char* other) {
  return text.empty() ? other : text;
}

class PresetComparison {
 public:
  PresetComparison(const PresetIn& before, const PresetIn& after, const PresetPlace& place)
      : before_(before.document), after_(after.document), place_(place) {
    compare(before.preset, after.preset, {});
    joinMoved();
  }

  const std::vector<Found>& found() const { return found_; }

 private:
  void compare(const PresetData& before, const PresetData& after, const Conditions& within) {
    const Units was = unitsOf(before_, before);
    const Units is = unitsOf(after_, after);
    for (const auto& [from, to] : align(was, is)) {
      if (from && to) {
        compare(was[*from], is[*to], within);
      } else if (from) {
        add(Change::gone, StepWords(before_), was, *from, within);
      } else {
        add(Change::isNew, StepWords(after_), is, *to, within);
      }
    }
  }

  void add(Change change, const StepWords& words, const Units& units, std::size_t place,
           const Conditions& within) {
    const StepUnit& unit = units[place];
    Difference difference{place_.part, change, place_.name, words.title(unit)};
    (change == Change::gone ? difference.before : difference.after) = words.details(unit);
    difference.within = within;
    if (place > 0) difference.behind = words.title(units[place - 1]);
    if (change == Change::gone) difference.pieces = piecesOf(unit);
    found_.push_back({difference, identity(unit)});
  }

  void compare(const StepUnit& before, const StepUnit& after, const Conditions& within) {
    const StepWords was(before_);
    const StepWords is(after_);
    const std::string title = was.title(before);
    if (!before.isRelatedTo(after)) {
      addChange(before.device + "'s command", signalOf(before), signalOf(after), within,
                {own(before)});
    }
    if (before.timing != after.timing) {
      addChange(title, orElse(was.timing(before), "at once"), orElse(is.timing(after), "at once"),
                within, delaysOf(before));
    }
    if (branchOf(before) && branchOf(after)) return compareBranches(before, after, within);
    if (before.content == after.content) return;
    addChange(title, orElse(was.value(before), "not held"), orElse(is.value(after), "not held"),
              within, {own(before)});
  }

  void compareBranches(const StepUnit& before, const StepUnit& after, const Conditions& within) {
    const BranchStep& from = *branchOf(before);
    const BranchStep& to = *branchOf(after);
    const std::string condition = words::conditionOf(before_, from);
    if (before.name != after.name) {
      addChange("condition", condition, words::conditionOf(after_, to), within, {own(before)});
    }
    Conditions inside = within;
    inside.push_back(condition);
    compare(from.branch(), to.branch(), inside);
  }

  static const std::string& signalOf(const StepUnit& command) {
    return std::get<CommandStep>(*command.step).data.signal;
  }

  static const BranchStep* branchOf(const StepUnit& unit) {
    return unit.step ? std::get_if<BranchStep>(&*unit.step) : nullptr;
  }

  /// Values that read the same differ in how they are written down.
  void addChange(const std::string& what, const std::string& before, const std::string& after,
                 const Conditions& within, const Pieces& pieces) {
    const bool readSame = before == after;
    Difference difference{place_.part, Change::changed,
                          place_.name, what,
                          before,      readSame ? after + ", written in another form" : after};
    difference.within = within;
    difference.pieces = pieces;
    found_.push_back({difference});
  }

  /// Makes one difference of a step that is gone and the same step that is new elsewhere.
  void joinMoved() {
    std::map<std::string, std::vector<Found*>> gone;
    for (Found& each : found_) {
      if (each.difference.change == Change::gone) gone[each.step].push_back(&each);
    }
    for (Found& each : found_) {
      if (each.difference.change != Change::isNew) continue;
      std::vector<Found*>& candidates = gone[each.step];
      if (candidates.empty()) continue;
      Found& from = *candidates.front();
      candidates.erase(candidates.begin());
      const bool staysWithin = from.difference.within == each.difference.within;
      each.difference.change = Change::moved;
      each.difference.before = standing(from.difference, staysWithin);
      each.difference.after = standing(each.difference, staysWithin);
      each.difference.behind.clear();
      if (!staysWithin) each.difference.within.clear();
      from.step.clear();
    }
    std::erase_if(found_, [](const Found& each) {
      return each.difference.change == Change::gone && each.step.empty();
    });
  }

  /// "after Lift's UP", "first in \"if System_Lock of Receiver is on\""
  static std::string standing(const Difference& difference, bool staysWithin) {
    const std::string& behind = difference.behind;
    std::string text = behind.empty() ? "first" : "after " + behind;
    if (staysWithin) return text;
    if (difference.within.empty()) return text + " outside";
    for (const std::string& condition : difference.within) {
      text += " in " + words::inQuotes("if " + condition);
    }
    return text;
  }

  const DocumentData& before_;
  const DocumentData& after_;
  const PresetPlace& place_;
  std::vector<Found> found_;
};

}  // namespace

Pieces stepsOf(const PresetData& preset) {
  Pieces pieces;
  everyStep(preset, [&](const Step& step) { pieces.push_back(pieceOf(step)); });
  return pieces;
}

void comparePresets(const PresetIn& before, const PresetIn& after, const PresetPlace& place,
                    Differences& differences) {
  const PresetComparison comparison(before, after, place);
  for (const Found& each : comparison.found()) {
    differences.push_back(each.difference);
  }
}

}  // namespace trellisar
