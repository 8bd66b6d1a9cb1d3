#pragma once

namespace app {

/// What the program's commands end with. Of several rooms the highest counts.
namespace exitStatus {
inline constexpr int ok = 0;
inline constexpr int refused = 1;     // by the wizard, the generator or the save
inline constexpr int different = 1;   // what was compared is not the same
inline constexpr int wrongInput = 2;  // the command line, the answers file or a file to be read
}  // namespace exitStatus

}  // namespace app
