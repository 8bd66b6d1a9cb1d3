#include "answers/Page.h"

#include "base/Nearest.h"

namespace answers {

host::Document& Hands::document() const {
  const auto document = host.document();
  if (!document) throw RunEnded(RunEnded::refused, "no system is open");
  return *document;
}

void Page::refuseUnusable(const forms::Control& control, const Answer& answer) const {
  refuse(answer, "is not asked for in this room: the step " + base::quoted(name_) +
                     (control.isShown() ? " has it disabled" : " does not show it") +
                     "; leave it out");
}

}  // namespace answers
