#include "tests/generator/Covering.h"

#include <array>
#include <functional>
#include <random>
#include <set>
#include <utility>

namespace tests {
namespace {

/// Three factors, each with a choice.
using Triple = std::array<std::pair<std::size_t, unsigned>, 3>;

std::set<Triple> everyTriple(const std::vector<unsigned>& counts) {
  std::set<Triple> triples;
  for (std::size_t a = 0; a < counts.size(); ++a)
    for (std::size_t b = a + 1; b < counts.size(); ++b)
      for (std::size_t c = b + 1; c < counts.size(); ++c)
        for (unsigned x = 0; x < counts[a]; ++x)
          for (unsigned y = 0; y < counts[b]; ++y)
            for (unsigned z = 0; z < counts[c]; ++z)
              triples.insert(Triple{{{a, x}, {b, y}, {c, z}}});
  return triples;
}

void forEachTriple(const Choices& row, const std::function<void(const Triple&)>& visit) {
  for (std::size_t a = 0; a < row.size(); ++a)
    for (std::size_t b = a + 1; b < row.size(); ++b)
      for (std::size_t c = b + 1; c < row.size(); ++c)
        visit(Triple{{{a, row[a]}, {b, row[b]}, {c, row[c]}}});
}

}  // namespace

std::vector<Choices> coverThreefold(const std::vector<unsigned>& counts) {
  constexpr int candidates = 8;
  std::minstd_rand random;
  std::set<Triple> open = everyTriple(counts);
  std::vector<Choices> rows;
  // Each row begins with a triple that was not met yet; of some such rows the best is taken.
  while (!open.empty()) {
    Choices best;
    std::size_t most = 0;
    for (int i = 0; i < candidates; ++i) {
      Choices row;
      for (const unsigned count : counts) row.push_back(static_cast<unsigned>(random() % count));
      for (const auto& [factor, choice] : *open.begin()) row[factor] = choice;
      std::size_t met = 0;
      forEachTriple(row, [&](const Triple& triple) { met += open.count(triple); });
      if (met > most) best = std::move(row), most = met;
    }
    forEachTriple(best, [&](const Triple& triple) { open.erase(triple); });
    rows.push_back(std::move(best));
  }
  return rows;
}

}  // namespace tests
