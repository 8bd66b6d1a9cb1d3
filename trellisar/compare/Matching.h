#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace trellisar {

/// Something of a document under the name by which it is found in another one.
template <typename Item>
using Named = std::pair<std::string, Item>;

/// Calls `see` with each two items that have the same name, of `before` and of `after`, and with
/// null in the place of one that is missing: first those of `before` in their order, and then the
/// new ones.
template <typename Item, typename See>
void eachMatch(const std::vector<Named<Item>>& before, const std::vector<Named<Item>>& after,
               const See& see) {
  std::map<std::string, std::deque<std::size_t>> places;
  for (std::size_t i = 0; i < after.size(); ++i) places[after[i].first].push_back(i);
  std::vector<bool> isMatched(after.size());
  for (const auto& [name, item] : before) {
    std::deque<std::size_t>& found = places[name];
    const Item* partner = nullptr;
    if (!found.empty()) {
      partner = &after[found.front()].second;
      isMatched[found.front()] = true;
      found.pop_front();
    }
    see(name, &item, partner);
  }
  for (std::size_t i = 0; i < after.size(); ++i) {
    if (!isMatched[i]) see(after[i].first, static_cast<const Item*>(nullptr), &after[i].second);
  }
}

}  // namespace trellisar
