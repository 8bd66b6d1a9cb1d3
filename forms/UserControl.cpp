#include "forms/UserControl.h"

namespace forms {

UserControl::UserControl(Container& container, std::string name)
    : Control(container, std::move(name)) {}

const std::any& UserControl::findMember(std::string_view member) const {
  const auto found = members_.find(member);
  if (found != members_.end()) return found->second;
  throw Error(errors::noSuchMember,
              "\"" + name() + "\" doesn't support the member " + std::string(member) + ".");
}

void UserControl::boundsChanged(const Rect& before) {
  if (before.width != bounds().width || before.height != bounds().height) resized.raise();
}

}  // namespace forms
