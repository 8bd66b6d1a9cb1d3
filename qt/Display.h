#pragma once

#include <QtWidgets/QApplication>
#include <functional>
#include <memory>

namespace qt {

/// Qt on the screen, or on whatever stands in its place. Where there is none, `noDisplay` is
/// called, which ends the process; without it Qt does, in words of its own. `count` and `values`
/// live as long as it does.
std::unique_ptr<QApplication> openDisplay(int& count, char** values,
                                          const std::function<void()>& noDisplay);

}  // namespace qt
