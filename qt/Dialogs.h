#pragma once

#include <string>

#include "forms/Desktop.h"
#include "qt/WindowMemory.h"

class QWidget;

namespace qt {

/// Each opens over `parent` and returns when it is closed. One for a file to open begins in the
/// folder where the last one ended.
forms::Answer askMessage(QWidget* parent, const forms::MessageBox& message);
std::string askFolder(QWidget* parent, const forms::FolderDialog& wanted,
                      const WindowMemory& memory);
std::string askFileToSave(QWidget* parent, const forms::FileDialog& wanted,
                          const WindowMemory& memory);
std::string askFileToOpen(QWidget* parent, const forms::FileDialog& wanted,
                          const WindowMemory& memory);

}  // namespace qt
