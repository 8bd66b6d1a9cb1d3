#include "app/QtReportPrinter.h"

#ifdef ORLENA_QT

#include "qt/Printing.h"

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

class OffscreenReportPrinter : public QtReportPrinter {
  qt::OffscreenApplication application_;
};

}  // namespace

trellisar::ReportPrinter* reportPrinter() {
  static QtReportPrinter printer;
  return &printer;
}

std::unique_ptr<trellisar::ReportPrinter> offscreenReportPrinter() {
  return std::make_unique<OffscreenReportPrinter>();
}

}  // namespace app

#else

namespace app {

trellisar::ReportPrinter* reportPrinter() { return nullptr; }

std::unique_ptr<trellisar::ReportPrinter> offscreenReportPrinter() { return nullptr; }

}  // namespace app

#endif
