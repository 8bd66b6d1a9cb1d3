#pragma once

#include <memory>

#include "qt/Adapter.h"

namespace qt {

/// The widget of a control, by its kind, and what joins the two.
std::unique_ptr<Adapter> makeAdapter(forms::Control& control, const Place& place);

}  // namespace qt
