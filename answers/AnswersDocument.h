#pragma once

#include <string>

namespace answers {

/// The table of docs/answers.md: a row for each answer, in the order of the file.
std::string documentedAnswers();

}  // namespace answers
