#include "app/Page.h"

#include "app/Shape.h"

namespace app {

host::Document& Hands::document() const {
  const auto document = host.document();
  if (!document) throw RunEnded(exitStatus::refused, "no system is open");
  return *document;
}

void Page::refuseUnusable(const forms::Control& control, const Answer& answer) const {
  refuse(answer, "is not asked for in this room: on the step " + quoted(name_) + " the control " +
                     quoted(control.name()) + " is " + (control.isShown() ? "disabled" : "hidden"));
}

}  // namespace app
