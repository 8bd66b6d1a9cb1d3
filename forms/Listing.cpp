#include "forms/Listing.h"

#include "forms/CheckBox.h"
#include "forms/Container.h"
#include "forms/OptionButton.h"
#include "forms/Text.h"

namespace forms {
namespace {

std::string state(const Control& control) {
  std::string words;
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) {
    words += box->isChecked() ? ", checked" : "";
  }
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
    words += option->isChosen() ? ", chosen" : "";
  }
  if (!control.isVisible()) words += ", hidden";
  if (!control.isEnabled()) words += ", disabled";
  if (control.takesFocus() && control.tabStop()) words += ", tab stop";
  return words;
}

void append(const Container& container, const std::string& indentation, std::string& text) {
  for (Control* child : container.children()) {
    text += indentation + child->name() + ": " + toText(child->kind());
    const std::string shown = replacedAll(child->shownText(), "\r\n", " ");
    if (!shown.empty()) text += " \"" + shown + "\"";
    text += state(*child) + "\n";
    if (const Container* inner = child->asContainer()) append(*inner, indentation + "  ", text);
  }
}

}  // namespace

std::string listing(const Container& page) {
  std::string text;
  append(page, "", text);
  return text;
}

}  // namespace forms
