#include "qt/Printing.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QTextDocument>
#include <optional>

#include "forms/Error.h"

namespace qt {
namespace {

constexpr int dotsPerInch = 300;
// A document that is printed leaves two centimetres of its own, with its page numbers in them.
constexpr qreal marginMillimetres = 0;

QString text(const std::string& utf8) { return QString::fromStdString(utf8); }

void preparePage(QPagedPaintDevice& paper) {
  paper.setPageSize(QPageSize(QPageSize::A4));
  paper.setPageOrientation(QPageLayout::Landscape);  // the tables have many columns
  paper.setPageMargins(
      QMarginsF(marginMillimetres, marginMillimetres, marginMillimetres, marginMillimetres),
      QPageLayout::Millimeter);
}

void draw(const std::string& html, QPagedPaintDevice& paper) {
  QTextDocument document;
  document.documentLayout()->setPaintDevice(&paper);
  document.setHtml(text(html));
  document.print(&paper);
}

/// What texts need to be laid out where nothing is shown; nothing where a desktop runs.
class OffscreenApplication {
 public:
  OffscreenApplication() {
    if (QCoreApplication::instance()) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_.emplace(count_, arguments_);
  }

 private:
  int count_ = 1;
  char name_[7] = "orlena";
  char* arguments_[2] = {name_, nullptr};
  std::optional<QGuiApplication> application_;
};

}  // namespace

void printHtml(const std::string& title, const std::string& html) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(text(title));
  preparePage(printer);
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  if (dialog.exec() != QDialog::Accepted) return;
  draw(html, printer);
  if (printer.printerState() == QPrinter::Error) {
    throw forms::Error(forms::errors::invalidCall, "The printer \"" +
                                                       printer.printerName().toStdString() +
                                                       "\" did not take \"" + title + "\".");
  }
}

void writePdf(const std::filesystem::path& path, const std::string& title,
              const std::string& html) {
  const OffscreenApplication application;
  QSaveFile file(text(path.string()));
  bool isWritten = file.open(QIODevice::WriteOnly);
  if (isWritten) {
    QPdfWriter paper(&file);
    paper.setTitle(text(title));
    paper.setResolution(dotsPerInch);
    preparePage(paper);
    draw(html, paper);
    isWritten = file.commit();
  }
  if (!isWritten) {
    throw forms::Error(
        forms::errors::invalidCall,
        "The file \"" + path.string() + "\" can't be written: " + file.errorString().toStdString());
  }
}

}  // namespace qt
