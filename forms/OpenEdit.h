#pragma once

#include <cstdint>
#include <string>

namespace forms {

class Control;
class Form;

/// A change that a user has begun in a control and that no handler has heard of yet: a text in a
/// box, or the label of a row in its editor.
struct OpenEdit {
  std::string control{};  // the names from the form down to it, with "/" between; empty: none
  std::int32_t row = -1;  // whose label it is; -1: none
  std::string text{};     // as it stands there

  bool operator==(const OpenEdit&) const = default;
};

/// The one that is open on the form.
OpenEdit openEditOf(const Form& form);

/// The control that the names lead to; null where there is none.
Control* controlAt(Form& form, const std::string& names);

}  // namespace forms
