#include "trellisar/compare/ProgramComparison.h"

#include <utility>

#include "trellisar/compare/Matching.h"
#include "trellisar/compare/PresetComparison.h"
#include "trellisar/compare/StepUnits.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/compile/Words.h"

namespace trellisar {
namespace {

using Part = Difference::Part;
using Change = Difference::Change;

std::vector<Named<const PresetData*>> namedPresets(const DocumentData& document) {
  std::vector<Named<const PresetData*>> presets;
  for (const auto& preset : document.presets) presets.emplace_back(preset->name, preset.get());
  return presets;
}

std::vector<Named<const PresetData*>> presetsOfEvents(const DocumentData& document) {
  std::vector<Named<const PresetData*>> presets;
  for (const ProgrammedEvent& event : programmedEvents(document)) {
    presets.emplace_back(words::eventOf(event), event.preset);
  }
  return presets;
}

struct Source {
  std::string text;
  Piece signal;
};

std::vector<Named<Source>> sources(const DocumentData& document) {
  std::vector<Named<Source>> fed;
  for (const auto& [device, signal] : fedSignals(document)) {
    fed.emplace_back(words::fedSignal(device, *signal),
                     Source{words::sourceOf(document, *signal), signal});
  }
  return fed;
}

std::string inOneLine(const std::string& text) {
  std::string line;
  for (const char each : text) {
    if (each == '\n')
      line += "\\n";
    else if (each != '\r')
      line += each;
  }
  return words::inQuotes(line);
}

void compareComments(const PresetData& before, const PresetData& after, Differences& differences) {
  if (before.comment == after.comment) return;
  Difference difference{Part::presets, Change::changed,           before.name,
                        "comment",     inOneLine(before.comment), inOneLine(after.comment)};
  difference.pieces = {&before};
  differences.push_back(difference);
}

class ProgramComparison {
 public:
  ProgramComparison(const DocumentData& before, const DocumentData& after, Differences& differences)
      : before_(before), after_(after), differences_(differences) {}

  void presets() {
    eachMatch(namedPresets(before_), namedPresets(after_),
              [&](const std::string& name, const auto* before, const auto* after) {
                if (before && after) compareComments(**before, **after, differences_);
                compare(Part::presets, name, before, after);
              });
  }

  void events() {
    eachMatch(presetsOfEvents(before_), presetsOfEvents(after_),
              [&](const std::string& name, const auto* before, const auto* after) {
                compare(Part::events, name, before, after);
              });
  }

  void fed() {
    eachMatch(sources(before_), sources(after_),
              [&](const std::string& name, const Source* before, const Source* after) {
                if (!before) return add(Change::isNew, name, "", after->text, {});
                if (!after) return add(Change::gone, name, before->text, "", {before->signal});
                if (before->text == after->text) return;
                add(Change::changed, name, before->text, after->text, {before->signal});
              });
  }

 private:
  void add(Change change, const std::string& place, const std::string& before,
           const std::string& after, const Pieces& pieces) {
    Difference difference{Part::sources, change, place, "source", before, after};
    difference.pieces = pieces;
    differences_.push_back(difference);
  }

  void compare(Part part, const std::string& name, const PresetData* const* before,
               const PresetData* const* after) {
    if (before && after) {
      comparePresets({before_, **before}, {after_, **after}, {part, name}, differences_);
    } else if (before) {
      Difference gone{part, Change::gone, name, "", StepWords(before_).all(**before), ""};
      gone.pieces = stepsOf(**before);
      gone.pieces.push_back(*before);
      differences_.push_back(gone);
    } else {
      differences_.push_back({part, Change::isNew, name, "", "", StepWords(after_).all(**after)});
    }
  }

  const DocumentData& before_;
  const DocumentData& after_;
  Differences& differences_;
};

}  // namespace

void compareProgram(const DocumentData& before, const DocumentData& after,
                    Differences& differences) {
  ProgramComparison comparison(before, after, differences);
  comparison.presets();
  comparison.events();
  comparison.fed();
}

}  // namespace trellisar
