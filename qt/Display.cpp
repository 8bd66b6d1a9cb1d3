#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QtCore/QByteArray>
#include <QtGui/QGuiApplication>
#include <cstdio>

#include "qt/QtDesktop.h"

namespace qt {
namespace {

/// Qt ends a process that can't open its display, so another one tries it first, without a word.
bool childOpensDisplay() {
  const pid_t child = fork();
  if (child < 0) return false;
  if (child == 0) {
    const rlimit noCoreFile{0, 0};
    setrlimit(RLIMIT_CORE, &noCoreFile);
    if (!std::freopen("/dev/null", "w", stderr)) _exit(1);
    int argc = 1;
    char name[] = "display";
    char* argv[] = {name, nullptr};
    { const QGuiApplication application(argc, argv); }
    _exit(0);
  }
  int status = 0;
  return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

bool hasDisplay() {
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  if (platform.startsWith("offscreen") || platform.startsWith("minimal")) return true;
  const bool named = !platform.isEmpty() || !qEnvironmentVariableIsEmpty("DISPLAY") ||
                     !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  return named && childOpensDisplay();
}

}  // namespace qt
