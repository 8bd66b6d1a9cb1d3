#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "answers/Acts.h"
#include "answers/Shape.h"
#include "base/Json.h"

namespace answers {

/// What holds where an answer is left out: a value of its own kind, or what there is then, in
/// words. Nothing holds in the place of one that is required.
struct LeftOut {
  enum class Kind { words, value, required };

  LeftOut(const char* inWords) : words(inWords) {}
  LeftOut(std::string inWords) : words(std::move(inWords)) {}
  explicit LeftOut(Kind ofKind) : kind(ofKind) {}

  Kind kind = Kind::words;
  std::string words;
  base::Json value;
};

/// One answer: where it stands in the file, what it may be, and what a person would do for it.
struct Row {
  /// The path of its key; "transmitters[].label" is the label of each element of an array.
  std::string key;
  /// The words of one that is some words come from its act.
  Shape type;
  /// Those of the elements of an array are handed the array.
  Act act;
  LeftOut leftOut;
  /// What the control is for, which says what the answer means.
  std::string meaning;
  /// Where the page has another order than the file: the key of the answer whose control stands
  /// right before this one's.
  std::string behind = {};
};

/// A step that asks for something.
struct Step {
  std::string name;
  std::vector<Row> rows;  // in the order of the file
  /// What is looked at before the step is left; empty: nothing.
  std::function<void(const Page&)> beforeLeaving = {};

  /// The rows that have an act, from the top of the page to its bottom.
  std::vector<const Row*> onThePage() const;
};

/// All answers that there are: the one place in which they stand. The form of a file, the run of
/// the wizard, docs/answers.md and the schema are made from it.
const std::vector<Step>& table();

}  // namespace answers
