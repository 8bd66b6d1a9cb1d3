#include "qt/QtDesktop.h"

#include <QtCore/QTimer>
#include <QtGui/QClipboard>
#include <QtGui/QFontMetrics>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <algorithm>
#include <clocale>
#include <vector>

#include "forms/Application.h"
#include "forms/Paths.h"
#include "qt/Conversions.h"
#include "qt/Dialogs.h"
#include "qt/Display.h"
#include "qt/HelpViewer.h"
#include "qt/Session.h"
#include "qt/ShownForm.h"
#include "qt/Spoken.h"

namespace qt {
namespace {

constexpr int roomForAnyText = 1 << 20;
constexpr double usualPoints = 9;  // of the system's font, for which forms are measured
constexpr forms::Twips rounding = 15;
constexpr forms::Size commonWindow{9705, 7500};

/// Follows the system's font, as far as a window of the common size stays on the screen.
void followSystemFont() {
  const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size() - roomForFrame;
  setFormScale(1);
  const QSize common = pixels(commonWindow);
  const double largest =
      std::min(1.0 * screen.width() / common.width(), 1.0 * screen.height() / common.height());
  setFormScale(std::max(1.0, std::min(largest, QApplication::font().pointSizeF() / usualPoints)));
}

QPalette darkPalette() {
  QPalette palette(QColor(66, 66, 66), QColor(53, 53, 53));
  palette.setColor(QPalette::Base, QColor(35, 35, 35));
  palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(110, 175, 240));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, Qt::white);
    palette.setColor(QPalette::Disabled, role, QColor(127, 127, 127));
  }
  return palette;
}

/// A task that the event loop runs, which no error may leave.
std::function<void()> guarded(std::function<void()> task) {
  return [task = std::move(task)] {
    try {
      task();
    } catch (const forms::Error& error) {
      forms::reportHandlerError(error);
    }
  };
}

/// Boxes and dialogs are answered with the arrow, also while the program is busy.
class ArrowMeanwhile {
 public:
  ArrowMeanwhile() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
  ~ArrowMeanwhile() { QGuiApplication::restoreOverrideCursor(); }
  ArrowMeanwhile(const ArrowMeanwhile&) = delete;
  ArrowMeanwhile& operator=(const ArrowMeanwhile&) = delete;
};

}  // namespace

struct QtDesktop::Parts {
  Parts(int count, char** values, const std::function<void()>& noDisplay)
      : arguments(values, values + count + 1),
        argc(count),
        application(openDisplay(argc, arguments.data(), noDisplay)) {}

  /// Runs what stands over everything else for a while.
  template <typename Question>
  auto ask(Question question) {
    session.refreshAll();
    ++session.interruptions;
    const ArrowMeanwhile arrow;
    return question(session.top());
  }

  std::vector<char*> arguments;  // Qt reads them as long as it runs; the last one is null
  int argc;
  std::unique_ptr<QApplication> application;
  Session session;
  HelpViewer help;
  bool isWaiting = false;
};

QtDesktop::QtDesktop(int argc, char** argv, const std::function<void()>& noDisplay)
    : parts_(std::make_unique<Parts>(argc, argv, noDisplay)) {
  std::setlocale(LC_NUMERIC, "C");  // Qt takes over the user's; numbers have a point everywhere
  QApplication::setStyle(QStringLiteral("Fusion"));  // forms measure for it
  QApplication::setQuitOnLastWindowClosed(false);
  installSpoken();
  followSystemFont();
}

QtDesktop::~QtDesktop() = default;

void QtDesktop::keepWindowsIn(const std::filesystem::path& machineFile) {
  parts_->session.memory.keepIn(machineFile);
}

void QtDesktop::whenShown(std::function<void()> formShown) {
  parts_->session.formShown = std::move(formShown);
}

void QtDesktop::wear(const Look& look) {
  QFont font = QApplication::font();
  if (look.fontPoints > 0) font.setPointSizeF(look.fontPoints);
  QApplication::setFont(font);
  if (look.isDark) QApplication::setPalette(darkPalette());
  followSystemFont();
}

bool QtDesktop::saveScreenshot(const forms::Form& form, const std::filesystem::path& machineFile) {
  const auto& shown = parts_->session.shown;
  const auto found = std::find_if(shown.begin(), shown.end(),
                                  [&](const ShownForm* one) { return one->shows(form); });
  if (found == shown.end()) return false;
  (*found)->refresh();
  QApplication::setActiveWindow(&(*found)->window());  // so that the focus is seen
  return (*found)->window().grab().save(QString::fromStdString(machineFile.string()), "PNG");
}

void QtDesktop::runModal(forms::Form& form, forms::Form* owner) {
  Session& session = parts_->session;
  session.refreshAll();
  ++session.interruptions;
  const auto below =
      std::find_if(session.shown.begin(), session.shown.end(),
                   [&](const ShownForm* one) { return owner && one->shows(*owner); });
  QWidget* parent = below == session.shown.end() ? session.top() : &(*below)->window();
  ShownForm(form, parent, session).run();
}

forms::Answer QtDesktop::showMessage(const forms::MessageBox& message) {
  return parts_->ask([&](QWidget* parent) { return askMessage(parent, message); });
}

std::string QtDesktop::chooseFolder(const forms::FolderDialog& dialog) {
  return parts_->ask(
      [&](QWidget* parent) { return askFolder(parent, dialog, parts_->session.memory); });
}

std::string QtDesktop::chooseFileToSave(const forms::FileDialog& dialog) {
  return parts_->ask(
      [&](QWidget* parent) { return askFileToSave(parent, dialog, parts_->session.memory); });
}

std::string QtDesktop::chooseFileToOpen(const forms::FileDialog& dialog) {
  return parts_->ask(
      [&](QWidget* parent) { return askFileToOpen(parent, dialog, parts_->session.memory); });
}

std::int32_t QtDesktop::showHelp(std::int32_t, const std::string& helpFile, std::int16_t topic) {
  return parts_->help.show(parts_->session.top(), forms::toMachinePath(helpFile), topic);
}

void QtDesktop::closeAllHelp() { parts_->help.closeAll(); }

void QtDesktop::copyText(const std::string& text) {
  QGuiApplication::clipboard()->setText(toQt(text));
}

void QtDesktop::processEvents() {
  parts_->session.refreshAll();
  QCoreApplication::processEvents();
}

void QtDesktop::runLater(std::function<void()> task) {
  QMetaObject::invokeMethod(parts_->application.get(), guarded(std::move(task)),
                            Qt::QueuedConnection);
}

void QtDesktop::runAfter(std::chrono::milliseconds wait, std::function<void()> task) {
  QTimer::singleShot(wait, parts_->application.get(), guarded(std::move(task)));
}

void QtDesktop::setMousePointer(forms::MousePointer pointer) {
  const bool waits = pointer == forms::MousePointer::hourglass;
  if (waits == parts_->isWaiting) return;
  parts_->isWaiting = waits;
  if (waits) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

forms::Size QtDesktop::textSize(const std::string& text, const forms::Font& font,
                                forms::Twips width) const {
  const QFontMetrics metrics(toQt(font));
  const int room = width > 0 ? pixels(width) : roomForAnyText;
  const QRect bounds =
      metrics.boundingRect(QRect(0, 0, room, roomForAnyText),
                           Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, linesToQt(text));
  const QSize size(bounds.width() + 1, std::max(bounds.height(), metrics.height()));
  const forms::Size exact = twips(size);
  return formScale() == 1 ? exact : forms::Size{exact.width + rounding, exact.height};
}

std::unique_ptr<QtDesktop> makeDesktop(int argc, char** argv) {
  return std::make_unique<QtDesktop>(argc, argv);
}

}  // namespace qt
