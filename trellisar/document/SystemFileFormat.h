#pragma once

namespace trellisar {

inline constexpr const char* systemFileFormat = "trellisar-system";
inline constexpr int systemFileVersion = 1;

}  // namespace trellisar
