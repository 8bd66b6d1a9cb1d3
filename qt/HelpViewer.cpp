#include "qt/HelpViewer.h"

#include <QtCore/QFile>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QVBoxLayout>

namespace qt {
namespace {

constexpr QSize windowSize{520, 420};
constexpr std::int32_t isShown = 1;

}  // namespace

HelpViewer::~HelpViewer() { closeAll(); }

std::int32_t HelpViewer::show(QWidget* parent, const std::filesystem::path& helpFile,
                              std::int16_t topic) {
  const auto path = helpFile.parent_path() / "help" / (std::to_string(topic) + ".md");
  QFile file(QString::fromStdString(path.string()));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  closeAll();
  window_ = new QDialog(parent);
  window_->setAttribute(Qt::WA_DeleteOnClose);
  window_->setWindowTitle(QStringLiteral("Help"));
  window_->resize(windowSize);
  auto* browser = new QTextBrowser(window_);
  browser->setSearchPaths({QString::fromStdString(path.parent_path().string())});
  browser->setOpenExternalLinks(true);
  browser->setMarkdown(QString::fromUtf8(file.readAll()));
  auto* layout = new QVBoxLayout(window_);
  layout->addWidget(browser);
  window_->show();
  return isShown;
}

void HelpViewer::closeAll() { delete window_.data(); }

}  // namespace qt
