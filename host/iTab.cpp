#include "host/iTab.h"

#include "host/Error.h"

namespace host {

iTab& AsTab(forms::UserControl& oStep) {
  auto* oTab = dynamic_cast<iTab*>(&oStep);
  if (!oTab) {
    throw Error(forms::errors::typeMismatch,
                "Type mismatch: \"" + oStep.name() + "\" is no step of a wizard.");
  }
  return *oTab;
}

}  // namespace host
