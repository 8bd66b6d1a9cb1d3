#pragma once

#include <filesystem>
#include <optional>

namespace app {

/// Opens the host's main window and answers the exit status when it has closed. A system that is
/// named, or the one in an archive, is opened there as by the user himself.
int openMainWindow(const std::optional<std::filesystem::path>& file);

/// Opens the wizard's window, on a new system or on a saved one, and answers the exit status when
/// it has closed.
int openWizard(const std::optional<std::filesystem::path>& systemFile);

}  // namespace app
