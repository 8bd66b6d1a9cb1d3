#pragma once

#include <string>
#include <vector>

namespace forms {

/// An entry of a menu: what it shows, and the word by which the program tells it from the others.
struct MenuEntry {
  std::string text;
  std::string tag;
  bool enabled = true;
  bool operator==(const MenuEntry&) const = default;
};

using Menu = std::vector<MenuEntry>;

}  // namespace forms
