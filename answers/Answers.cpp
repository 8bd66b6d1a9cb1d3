#include "answers/Answers.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "answers/AnswersShape.h"
#include "answers/RunEnded.h"
#include "answers/Shape.h"

namespace answers {
namespace {

using base::Json;

constexpr base::JsonLimits limits{.bytes = Answers::mostBytes, .depth = 10, .keysOfObject = 100};

}  // namespace

Answers::Answers(std::string text) : file_(std::move(text), limits) {
  std::vector<base::Fault>& faults = file_.faults;
  if (!file_.value.is_discarded()) check(file_.value, answersShape(), faults);
  if (faults.empty()) return;
  for (base::Fault& fault : faults) fault = placed(std::move(fault));
  std::stable_sort(
      faults.begin(), faults.end(),
      [](const base::Fault& one, const base::Fault& other) { return one.line < other.line; });
  throw RunEnded(RunEnded::wrongInput, faults);
}

const Json* Answers::find(std::string_view path) const {
  const Json* value = &file_.value;
  while (!path.empty()) {
    const std::size_t point = path.find('.');
    const auto member = value->find(path.substr(0, point));
    if (member == value->end()) return nullptr;
    value = &*member;
    path = point == std::string_view::npos ? std::string_view() : path.substr(point + 1);
  }
  return value;
}

base::Fault Answers::placed(base::Fault fault) const {
  if (fault.line == 0 && !fault.path.empty()) fault.line = file_.lineOf(fault.path);
  return fault;
}

void Answers::setFolder(const std::filesystem::path& folder) {
  file_.value["folder"] = folder.string();
}

}  // namespace answers
