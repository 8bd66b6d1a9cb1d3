#include "base/Nearest.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace base {
namespace {

constexpr std::size_t shortList = 8;
constexpr std::size_t shownOfALongOne = 3;

char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// How many bytes must be put in, taken out or changed to make one text of the other, letters of
/// both cases being the same.
std::size_t distance(const std::string& from, const std::string& to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), 0U);
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t before = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < to.size(); ++j) {
      const std::size_t changed = before + (lowered(from[i]) == lowered(to[j]) ? 0 : 1);
      before = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, before + 1});
    }
  }
  return row.back();
}

bool isAlike(const std::string& text, const std::string& known) {
  return !known.empty() && distance(text, known) <= std::max<std::size_t>(1, known.size() / 3);
}

}  // namespace

std::string among(const std::string& text, const std::vector<std::string>& known) {
  std::vector<std::string> nearest = known;
  std::stable_sort(nearest.begin(), nearest.end(), [&](const auto& one, const auto& other) {
    return distance(text, one) < distance(text, other);
  });
  std::string meant;
  if (!nearest.empty() && isAlike(text, nearest.front())) {
    meant = "; did you mean \"" + nearest.front() + "\"?";
  }
  if (known.size() <= shortList) return quoted(known) + meant;
  nearest.resize(shownOfALongOne);
  return quoted(nearest) + " and " + std::to_string(known.size() - shownOfALongOne) + " more" +
         meant;
}

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

std::string quoted(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) all += (all.empty() ? "" : ", ") + quoted(text);
  return all;
}

}  // namespace base
