#pragma once

#include <exception>
#include <string>

namespace answers {

/// What an error says to the user, also one of the standard library, which says it to programmers.
std::string wordsOf(const std::exception& error);

}  // namespace answers
