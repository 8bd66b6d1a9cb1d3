#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>
#include <cstdlib>

/// The least that a window takes: an empty one of the wizard's size, until it has been drawn.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.resize(640, 480);
  window.show();
  QCoreApplication::processEvents();
  std::_Exit(0);
}
