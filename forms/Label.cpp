#include "forms/Label.h"

namespace forms {

bool Label::userKey(const KeyDown& key) {
  if (!link_ || (key.code != keys::enter && key.code != keys::space)) return false;
  click.raise();
  return true;
}

}  // namespace forms
