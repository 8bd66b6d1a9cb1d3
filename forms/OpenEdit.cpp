#include "forms/OpenEdit.h"

#include "forms/Form.h"
#include "forms/ListView.h"
#include "forms/TextBox.h"

namespace forms {
namespace {

constexpr char separator = '/';

std::string namesOf(const Control& control) {
  const Control* around = control.root().asControl();
  return around ? namesOf(*around) + separator + control.name() : control.name();
}

}  // namespace

OpenEdit openEditOf(const Form& form) {
  const Control* control = form.focus().control();
  if (!control || !control->hasOpenEdit()) return {};
  if (const auto* box = dynamic_cast<const TextBox*>(control)) {
    return {.control = namesOf(*box), .text = box->text()};
  }
  const auto* list = dynamic_cast<const ListView*>(control);
  if (!list) return {};
  return {.control = namesOf(*list), .row = list->selectedRow(), .text = list->editedText()};
}

Control* controlAt(Form& form, const std::string& names) {
  Root* root = &form;
  std::size_t from = 0;
  while (root) {
    const std::size_t end = names.find(separator, from);
    Control* control = root->find(names.substr(from, end - from));
    if (end == std::string::npos) return control;
    root = dynamic_cast<Root*>(control);
    from = end + 1;
  }
  return nullptr;
}

}  // namespace forms
