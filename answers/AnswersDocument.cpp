#include "answers/AnswersDocument.h"

#include "answers/Table.h"

namespace answers {
namespace {

std::string inCode(const std::string& text) { return "`" + text + "`"; }

std::string described(const LeftOut& leftOut) {
  switch (leftOut.kind) {
    case LeftOut::Kind::words:
      return leftOut.words;
    case LeftOut::Kind::value:
      return inCode(leftOut.value.dump());
    case LeftOut::Kind::required:
      return "required";
  }
  return {};
}

}  // namespace

std::string documentedAnswers() {
  std::string lines =
      "| key | value | left out | step | control |\n"
      "|---|---|---|---|---|\n";
  for (const Step& step : table()) {
    for (const Row& row : step.rows) {
      lines += "| " + inCode(row.key) + " | " + described(row.type) + " | " +
               described(row.leftOut) + " | " + step.name + " | " + row.meaning + " |\n";
    }
  }
  return lines;
}

}  // namespace answers
