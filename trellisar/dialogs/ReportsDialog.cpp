#include "trellisar/dialogs/ReportsDialog.h"
#include "trellisar/dialogs/Messages.h"

#include <utility>

#include "base/FileIO.h"
#include "forms/Application.h"
#include "forms/Paths.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "trellisar/dialogs/HelpTopics.h"
#include "trellisar/library/HostErrors.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 11400;
constexpr forms::Twips listHeight = 4500;

}  // namespace

ReportsDialog::ReportsDialog(std::vector<Report> reports, std::string folder,
                             ReportPrinter* printer)
    : HostForm("ReportsDialog", "System Documentation", help::documentation),
      reports_(std::move(reports)),
      folder_(std::move(folder)),
      printer_(printer) {
  for (const Report& report : reports_) cboReport.add(report.title);
  lvwReport.nameBy(cboReport);
  cboReport.click.connect([this] { show(); });
  cmdSave.click.connect([this] { save(); });
  cmdPrint.click.connect([this] { print(); });
  cmdPrint.setVisible(printer_ != nullptr);
  cmdClose.setCancel(true);
  cmdClose.setDefault(true);
  cmdClose.click.connect([this] { hide(); });
  layOutAbove({&cmdSave, &cmdPrint, &cmdClose}, dialogWidth,
              {forms::columns({{forms::names(lblReport, cboReport), forms::rest(cboReport)}}),
               forms::rest(lvwReport, listHeight)});
  cboReport.setSelected(0);
  show();
}

void ReportsDialog::run() {
  showModal(nullptr);
  unload();
}

const Report& ReportsDialog::shown() const {
  return reports_.at(static_cast<std::size_t>(cboReport.selected()));
}

void ReportsDialog::show() {
  lvwReport.clear();
  lvwReport.setColumns(shown().columns);
  for (const auto& row : shown().rows) lvwReport.addRow(row);
}

void ReportsDialog::save() {
  forms::FileDialog dialog;
  dialog.ownerHandle = windowHandle();
  dialog.title = "Save Report";
  dialog.filter = printer_ ? "PDF (*.pdf)|*.pdf|HTML (*.html)|*.html" : "HTML (*.html)|*.html";
  dialog.defaultExtension = printer_ ? "pdf" : "html";
  dialog.fileName = reportFileName(shown(), dialog.defaultExtension);
  dialog.initialFolder = folder_;
  const std::string file = forms::Application::current().desktop().chooseFileToSave(dialog);
  if (file.empty()) return;
  try {
    const bool isPdf = printer_ && forms::lowerCase(file).ends_with(".pdf");
    if (isPdf) {
      printer_->writePdf(forms::toMachinePath(file), shown().title, reportHtml(shown()));
    } else {
      raisingHostErrors(
          [&] { base::replaceFile(forms::toMachinePath(file), reportHtml(shown())); });
    }
  } catch (const host::Error& error) {
    showFailure("The report could not be saved.\r\n\r\n" + error.description());
  }
}

void ReportsDialog::print() {
  try {
    printer_->print(shown().title, reportHtml(shown()));
  } catch (const host::Error& error) {
    showFailure("The report could not be printed.\r\n\r\n" + error.description());
  }
}

}  // namespace trellisar
