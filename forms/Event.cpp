#include "forms/Event.h"

namespace forms {

std::shared_ptr<Connected> EventBase::makeConnected() {
  return std::make_shared<Connected>(Connected{this});
}

}  // namespace forms
