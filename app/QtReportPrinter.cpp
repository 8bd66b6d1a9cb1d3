#include "app/QtReportPrinter.h"

#ifdef ORLENA_QT

#include "qt/Printing.h"
#include "trellisar/Report.h"

namespace app {
namespace {

class QtReportPrinter : public trellisar::ReportPrinter {
 public:
  void print(const std::string& title, const std::string& html) override {
    qt::printHtml(title, html);
  }
  void writePdf(const std::filesystem::path& file, const std::string& title,
                const std::string& html) override {
    qt::writePdf(file, title, html);
  }
};

}  // namespace

trellisar::ReportPrinter* reportPrinter() {
  static QtReportPrinter printer;
  return &printer;
}

std::vector<std::filesystem::path> writePdfReports(const trellisar::DocumentData& document,
                                                   const std::filesystem::path& folder) {
  const qt::OffscreenApplication application;
  std::vector<std::filesystem::path> files;
  for (const auto& report :
       {trellisar::billOfMaterials(document), trellisar::connectionSheet(document)}) {
    files.push_back(folder / (report.title + ".pdf"));
    qt::writePdf(files.back(), report.title, trellisar::reportHtml(report));
  }
  return files;
}

}  // namespace app

#else

namespace app {

trellisar::ReportPrinter* reportPrinter() { return nullptr; }

std::vector<std::filesystem::path> writePdfReports(const trellisar::DocumentData&,
                                                   const std::filesystem::path&) {
  return {};
}

}  // namespace app

#endif
