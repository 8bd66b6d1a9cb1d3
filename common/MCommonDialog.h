#pragma once

#include <cstdint>
#include <string>

namespace common {

struct SaveFileDialog {
  std::string sFileName{};   // in: what is proposed; out: the chosen path, empty when cancelled
  std::string sFileTitle{};  // out: its last part, empty when cancelled
  std::int32_t hwndOwner = 0;
  std::string
      sFilter{};  // pairs of a text and a pattern, all separated by "|"; all files are added
  std::string sInitialDir{};  // empty: the platform's choice
  std::string sDefaultExt{};  // without a point
  bool bNoOverwritePrompt = false;
};

/// Lets the user choose the file to save to. True when one was chosen. The current folder stays
/// what it was.
bool ShowSaveFileDialog(SaveFileDialog& dialog);

}  // namespace common
