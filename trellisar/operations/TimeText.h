#pragma once

#include <cstdint>
#include <string_view>

namespace trellisar {

/// A time text in hundredths of a second: a decimal number of seconds with or without an "s" behind
/// it, such as "0.1s" or " 120s". Half a hundredth goes to the even one; what does not fit is held
/// at the limits. A text that is none gives 0.
std::int32_t hundredthsOfSecond(std::string_view text);

}  // namespace trellisar
