#include "qt/Session.h"

#include "qt/FormWindow.h"
#include "qt/ShownForm.h"

namespace qt {

void Session::refreshAll() const {
  for (ShownForm* form : shown) form->refresh();
}

QWidget* Session::top() const { return shown.empty() ? nullptr : &shown.back()->window(); }

}  // namespace qt
