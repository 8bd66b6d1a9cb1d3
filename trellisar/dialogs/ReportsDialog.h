#pragma once

#include <string>
#include <vector>

#include "forms/CommandButton.h"
#include "forms/DropDownList.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "trellisar/dialogs/HostForm.h"
#include "trellisar/reports/Report.h"
#include "trellisar/reports/ReportPrinter.h"

namespace trellisar {

/// Shows the documentation of a system, report by report, and saves or prints the one that is
/// shown.
class ReportsDialog : public HostForm {
 public:
  /// `folder`, with backslashes, is where saving begins. Without a printer (null) the window has no
  /// button to print, and saves HTML alone.
  ReportsDialog(std::vector<Report> reports, std::string folder, ReportPrinter* printer);

  /// Shows the window over the active form until the user closes it.
  void run();

  forms::Label lblReport{*this, "lblReport", "&Report:"};
  forms::DropDownList cboReport{*this, "cboReport"};
  forms::ListView lvwReport{*this, "lvwReport"};
  forms::CommandButton cmdSave{*this, "cmdSave", "&Save As..."};
  forms::CommandButton cmdPrint{*this, "cmdPrint", "&Print..."};
  forms::CommandButton cmdClose{*this, "cmdClose", "Close"};

 private:
  const Report& shown() const;
  void show();
  void save();
  void print();

  std::vector<Report> reports_;
  std::string folder_;
  ReportPrinter* printer_;
};

}  // namespace trellisar
