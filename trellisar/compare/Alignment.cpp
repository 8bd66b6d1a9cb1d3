#include <algorithm>
#include <cstdint>

#include "trellisar/compare/StepUnits.h"

namespace trellisar {
namespace {

using Units = std::vector<StepUnit>;

// Two of a kind weigh less than one of the kind above.
constexpr std::uint32_t sameWeight = 11;
constexpr std::uint32_t relatedWeight = 5;
constexpr std::uint32_t sameDeviceWeight = 2;

/// Beyond it steps are paired place by place: no program is written that long, but a file may be.
constexpr std::size_t mostCells = 4'000'000;

std::uint32_t weight(const StepUnit& before, const StepUnit& after) {
  if (before.isSameAs(after)) return sameWeight;
  if (before.isRelatedTo(after)) return relatedWeight;
  return before.isToSameDevice(after) ? sameDeviceWeight : 0;
}

/// What stands between the steps that begin, and those that end, both presets.
struct Middle {
  std::size_t first = 0;
  std::size_t beforeEnd;
  std::size_t afterEnd;

  std::size_t rows() const { return beforeEnd - first; }
  std::size_t columns() const { return afterEnd - first; }
};

Middle middleOf(const Units& before, const Units& after) {
  Middle middle{.beforeEnd = before.size(), .afterEnd = after.size()};
  const std::size_t shorter = std::min(before.size(), after.size());
  while (middle.first < shorter && before[middle.first].isSameAs(after[middle.first])) {
    ++middle.first;
  }
  while (middle.rows() > 0 && middle.columns() > 0 &&
         before[middle.beforeEnd - 1].isSameAs(after[middle.afterEnd - 1])) {
    --middle.beforeEnd;
    --middle.afterEnd;
  }
  return middle;
}

/// The best weight that is still ahead of each two places.
class Weights {
 public:
  Weights(const Units& before, const Units& after, const Middle& middle)
      : columns_(middle.columns() + 1), ahead_((middle.rows() + 1) * columns_) {
    for (std::size_t i = middle.rows(); i-- > 0;) {
      for (std::size_t j = middle.columns(); j-- > 0;) {
        const std::uint32_t own = weight(before[middle.first + i], after[middle.first + j]);
        const std::uint32_t paired = own == 0 ? 0 : own + at(i + 1, j + 1);
        ahead_[i * columns_ + j] = std::max({paired, at(i + 1, j), at(i, j + 1)});
      }
    }
  }

  std::uint32_t at(std::size_t i, std::size_t j) const { return ahead_[i * columns_ + j]; }

 private:
  std::size_t columns_;
  std::vector<std::uint32_t> ahead_;
};

void alignBest(const Units& before, const Units& after, const Middle& middle, Alignment& pairs) {
  const Weights weights(before, after, middle);
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < middle.rows() || j < middle.columns()) {
    const std::size_t a = middle.first + i;
    const std::size_t b = middle.first + j;
    const bool both = i < middle.rows() && j < middle.columns();
    const std::uint32_t own = both ? weight(before[a], after[b]) : 0;
    if (own > 0 && weights.at(i, j) == own + weights.at(i + 1, j + 1)) {
      pairs.emplace_back(a, b);
      ++i, ++j;
    } else if (j == middle.columns() ||
               (i < middle.rows() && weights.at(i, j) == weights.at(i + 1, j))) {
      pairs.emplace_back(a, std::nullopt);
      ++i;
    } else {
      pairs.emplace_back(std::nullopt, b);
      ++j;
    }
  }
}

void alignByPlace(const Units& before, const Units& after, const Middle& middle, Alignment& pairs) {
  for (std::size_t i = 0; i < std::max(middle.rows(), middle.columns()); ++i) {
    const std::size_t place = middle.first + i;
    const bool isBefore = i < middle.rows();
    const bool isAfter = i < middle.columns();
    if (isBefore && isAfter && weight(before[place], after[place]) > 0) {
      pairs.emplace_back(place, place);
      continue;
    }
    if (isBefore) pairs.emplace_back(place, std::nullopt);
    if (isAfter) pairs.emplace_back(std::nullopt, place);
  }
}

}  // namespace

Alignment align(const Units& before, const Units& after) {
  const Middle middle = middleOf(before, after);
  Alignment pairs;
  for (std::size_t i = 0; i < middle.first; ++i) pairs.emplace_back(i, i);
  const bool isSmall = middle.columns() < mostCells / (middle.rows() + 1);
  (isSmall ? alignBest : alignByPlace)(before, after, middle, pairs);
  for (std::size_t i = 0; middle.beforeEnd + i < before.size(); ++i) {
    pairs.emplace_back(middle.beforeEnd + i, middle.afterEnd + i);
  }
  return pairs;
}

}  // namespace trellisar
