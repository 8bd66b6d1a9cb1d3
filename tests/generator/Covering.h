#pragma once

#include <vector>

namespace tests {

/// A choice for each of several factors, counted from 0.
using Choices = std::vector<unsigned>;

/// Rows in which any three choices of different factors are met together in one of them: far fewer
/// than all there are, and the same every time. `counts` says how many choices each factor has.
std::vector<Choices> coverThreefold(const std::vector<unsigned>& counts);

}  // namespace tests
