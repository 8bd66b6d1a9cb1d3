#pragma once

#include <string>

#include "forms/Desktop.h"

class QWidget;

namespace qt {

/// Each opens over `parent` and returns when it is closed.
forms::Answer askMessage(QWidget* parent, const forms::MessageBox& message);
std::string askFolder(QWidget* parent, const forms::FolderDialog& dialog);
std::string askFileToSave(QWidget* parent, const forms::FileDialog& dialog);
std::string askFileToOpen(QWidget* parent, const forms::FileDialog& dialog);

}  // namespace qt
