#include "forms/FrontEnd.h"

#include "qt/Printing.h"
#include "qt/QtDesktop.h"

namespace qt {
namespace {

class FrontEnd : public forms::FrontEnd {
 public:
  std::unique_ptr<forms::Desktop> makeDesktop(const Windows& windows) override {
    auto desktop = std::make_unique<QtDesktop>(1, arguments_, windows.noDisplay);
    desktop->keepWindowsIn(windows.memory);
    desktop->whenShown(windows.formShown);
    return desktop;
  }

  void printHtml(const std::string& title, const std::string& html) override {
    qt::printHtml(title, html);
  }

  void writePdf(const std::filesystem::path& file, const std::string& title,
                const std::string& html) override {
    qt::writePdf(file, title, html);
  }

 private:
  char name_[7] = "orlena";
  char* arguments_[2] = {name_, nullptr};
};

}  // namespace
}  // namespace qt

extern "C" forms::FrontEnd* orlenaFrontEnd() {
  static qt::FrontEnd frontEnd;
  return &frontEnd;
}
