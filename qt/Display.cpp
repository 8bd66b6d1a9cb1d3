#include "qt/Display.h"

#include <QtCore/QLatin1String>
#include <QtCore/QtGlobal>

namespace qt {
namespace {

bool isNamed() {
  for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
    if (!qEnvironmentVariableIsEmpty(name)) return true;
  }
  return false;
}

/// Hears what Qt says while it looks for a display: that it can't go on, before it ends the
/// process, and the reasons, which are dropped.
class Listening {
 public:
  explicit Listening(const std::function<void()>& noDisplay) {
    noDisplay_ = &noDisplay;
    before_ = qInstallMessageHandler(hear);
  }
  ~Listening() { qInstallMessageHandler(before_); }
  Listening(const Listening&) = delete;
  Listening& operator=(const Listening&) = delete;

 private:
  static void hear(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) (*noDisplay_)();
    if (!QLatin1String(context.category).startsWith(QLatin1String("qt.qpa"))) {
      before_(type, context, text);
    }
  }

  static inline const std::function<void()>* noDisplay_ = nullptr;
  static inline QtMessageHandler before_ = nullptr;
};

}  // namespace

std::unique_ptr<QApplication> openDisplay(int& count, char** values,
                                          const std::function<void()>& noDisplay) {
  if (!noDisplay) return std::make_unique<QApplication>(count, values);
  if (!isNamed()) noDisplay();
  const Listening listening(noDisplay);
  return std::make_unique<QApplication>(count, values);
}

}  // namespace qt
