#pragma once

#include <cstdint>

/// The topics of the host's own windows.
namespace trellisar::help {

inline constexpr std::int16_t mainWindow = 900;
inline constexpr std::int16_t chooseDevice = 901;
inline constexpr std::int16_t deviceProperties = 902;
inline constexpr std::int16_t buildProgram = 903;
inline constexpr std::int16_t documentation = 904;
inline constexpr std::int16_t preferences = 905;
inline constexpr std::int16_t audioSettings = 906;
inline constexpr std::int16_t comparison = 907;
inline constexpr std::int16_t unsavedSystem = 908;

}  // namespace trellisar::help
