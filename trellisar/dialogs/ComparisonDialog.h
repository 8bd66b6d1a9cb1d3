#pragma once

#include <filesystem>
#include <string>

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/TextView.h"
#include "trellisar/compare/Difference.h"
#include "trellisar/dialogs/HostForm.h"

namespace trellisar {

/// Shows in what two systems differ, in words that can be copied.
class ComparisonDialog : public HostForm {
 public:
  /// `systems` says which two they are.
  ComparisonDialog(const std::string& caption, const std::string& systems,
                   const std::string& words);

  /// Shows the window over the active form until the user closes it.
  void run();
  /// As above, with the words being what a save would change. True when the user saves.
  bool runBeforeSaving();

  forms::Label lblSystems{*this, "lblSystems"};
  forms::Label lblWords{*this, "lblWords", "&Differences:"};
  forms::TextView txtWords{*this, "txtWords"};
  forms::CommandButton cmdCopy{*this, "cmdCopy", "C&opy"};
  forms::CommandButton cmdSave{*this, "cmdSave", "&Save"};
  forms::CommandButton cmdClose{*this, "cmdClose", "Close"};

 private:
  void layOut();
  void show();

  bool saves_ = false;
};

/// Shows in what the system in `after` differs from the one in `before`, until the user closes it.
void showComparison(const std::filesystem::path& before, const std::filesystem::path& after,
                    const Differences& differences);

/// Shows what a save would change in a system whose program is built. True when the user saves.
bool confirmChanges(const std::string& system, const Differences& changes);

}  // namespace trellisar
