#include "tests/qt/Screen.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

namespace tests {
namespace {

/// One for the whole process, as Qt has it, and gone before the process ends.
class OneDesktop : public testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    desktop_ = qt::makeDesktop(1, arguments_);
  }
  void TearDown() override { desktop_.reset(); }
  qt::QtDesktop& desktop() { return *desktop_; }

 private:
  char name_[5] = "test";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<qt::QtDesktop> desktop_;
};

auto* const oneDesktop = new OneDesktop;
const auto* const registered = testing::AddGlobalTestEnvironment(oneDesktop);

}  // namespace

Screen::Screen() { application.setTitle("Program"); }

qt::QtDesktop& Screen::desktop() { return oneDesktop->desktop(); }

void Screen::show(forms::Form& form, const std::function<void()>& script) {
  desktop().runLater([&] {
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window(form)));
    script();
    form.hide();
  });
  form.showModal(nullptr);
}

void Screen::whenBoxOpens(const std::function<void(QMessageBox&)>& script) {
  QTimer::singleShot(1, qApp, [this, script] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return whenBoxOpens(script);
    script(*box);
  });
}

void Screen::settle() { QCoreApplication::processEvents(); }

QWidget& Screen::window(const forms::Form& form) {
  for (QWidget* candidate : QApplication::topLevelWidgets()) {
    if (candidate->isVisible() && candidate->windowTitle().toStdString() == form.caption()) {
      return *candidate;
    }
  }
  throw std::runtime_error("no window shows " + form.name());
}

QWidget& Screen::widget(const forms::Control& control) {
  auto* found = window(*control.form()).findChild<QWidget*>(QString::fromStdString(control.name()));
  if (!found) throw std::runtime_error("no widget shows " + control.name());
  return *found;
}

void Screen::click(const forms::Control& control) {
  QTest::mouseClick(&widget(control), Qt::LeftButton, {}, widget(control).rect().center());
}

void Screen::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void Screen::type(const std::string& text) {
  QTest::keyClicks(QApplication::focusWidget(), QString::fromStdString(text));
}

std::string Screen::focus(forms::Form& form) {
  const forms::Control* control = form.focus().control();
  const std::string inForm = control ? control->name() : "none";
  const QWidget* focused = window(form).focusWidget();
  const std::string inQt = focused ? focused->objectName().toStdString() : "none";
  return inForm == inQt ? inForm : inForm + " but Qt " + inQt;
}

}  // namespace tests
