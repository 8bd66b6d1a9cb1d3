#include "app/PagePrinter.h"

#include "app/WindowModule.h"

namespace app {
namespace {

class FrontEndPrinter : public trellisar::ReportPrinter {
 public:
  explicit FrontEndPrinter(forms::FrontEnd& frontEnd) : frontEnd_(frontEnd) {}

  void print(const std::string& title, const std::string& html) override {
    frontEnd_.printHtml(title, html);
  }
  void writePdf(const std::filesystem::path& file, const std::string& title,
                const std::string& html) override {
    frontEnd_.writePdf(file, title, html);
  }

 private:
  forms::FrontEnd& frontEnd_;
};

}  // namespace

trellisar::ReportPrinter* reportPrinter() {
  forms::FrontEnd* loaded = frontEnd();
  if (!loaded) return nullptr;
  static FrontEndPrinter printer(*loaded);
  return &printer;
}

}  // namespace app
