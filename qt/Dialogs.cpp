#include "qt/Dialogs.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QCloseEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>
#include <utility>

#include "forms/Application.h"
#include "forms/Paths.h"
#include "qt/Conversions.h"

namespace qt {
namespace {

/// With Yes and No alone, Escape and the close box do nothing: neither is the answer to give
/// unseen.
class Box : public QMessageBox {
 public:
  Box(QWidget* parent, bool canEscape) : QMessageBox(parent), canEscape_(canEscape) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (canEscape_ || event->key() != Qt::Key_Escape) QMessageBox::keyPressEvent(event);
  }
  void closeEvent(QCloseEvent* event) override {
    if (canEscape_) return QMessageBox::closeEvent(event);
    event->ignore();
  }

 private:
  bool canEscape_;
};

QMessageBox::Icon iconOf(forms::Icon icon) {
  switch (icon) {
    case forms::Icon::none:
      return QMessageBox::NoIcon;
    case forms::Icon::information:
      return QMessageBox::Information;
    case forms::Icon::question:
      return QMessageBox::Question;
    case forms::Icon::exclamation:
      return QMessageBox::Warning;
    case forms::Icon::critical:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttonsOf(forms::Buttons buttons) {
  switch (buttons) {
    case forms::Buttons::ok:
      return QMessageBox::Ok;
    case forms::Buttons::okCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case forms::Buttons::yesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case forms::Buttons::yesNoCancel:
      break;
  }
  return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
}

constexpr std::pair<forms::Answer, QMessageBox::StandardButton> answers[] = {
    {forms::Answer::ok, QMessageBox::Ok},
    {forms::Answer::cancel, QMessageBox::Cancel},
    {forms::Answer::yes, QMessageBox::Yes},
    {forms::Answer::no, QMessageBox::No}};

QMessageBox::StandardButton buttonOf(forms::Answer answer) {
  for (const auto& [candidate, button] : answers) {
    if (candidate == answer) return button;
  }
  return QMessageBox::NoButton;
}

/// "Systems|*.tsy|All files|*.*" as Qt has it: "Systems (*.tsy);;All files (*)".
QString filtersOf(const std::string& filter) {
  static const QRegularExpression patternInText(QStringLiteral("\\s*\\([^)]*\\)\\s*$"));
  const QStringList parts = toQt(filter).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString text = parts[i];
    QString patterns = parts[i + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '))
        .replace(QLatin1String("*.*"), QLatin1String("*"));
    filters << text.remove(patternInText) + QStringLiteral(" (") + patterns + QLatin1Char(')');
  }
  return filters.join(QStringLiteral(";;"));
}

QString machineFolder(const std::string& folder) {
  const std::string& from = folder.empty() ? forms::Application::current().currentFolder() : folder;
  return QString::fromStdString(forms::toMachinePath(from).string());
}

/// A folder that the program names belongs to what is being saved and wins over the last one.
QString folderOf(const std::string& named, const QString& last) {
  return named.empty() && !last.isEmpty() ? last : machineFolder(named);
}

std::string chosen(QFileDialog& dialog, const WindowMemory& memory) {
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  memory.keepFolder(dialog.windowTitle(), dialog.directory().absolutePath());
  return forms::fromMachinePath(dialog.selectedFiles().first().toStdString());
}

void prepare(QFileDialog& dialog, const forms::FileDialog& wanted) {
  if (!wanted.filter.empty())
    dialog.setNameFilters(filtersOf(wanted.filter).split(QStringLiteral(";;")));
  dialog.setDefaultSuffix(toQt(wanted.defaultExtension));
  if (!wanted.fileName.empty()) {
    dialog.selectFile(toQt(forms::fileNameOf(wanted.fileName)));
  }
}

}  // namespace

forms::Answer askMessage(QWidget* parent, const forms::MessageBox& message) {
  Box box(parent, message.buttons != forms::Buttons::yesNo);
  box.setWindowTitle(toQt(message.caption));
  box.setTextFormat(Qt::PlainText);
  box.setText(linesToQt(message.text));
  box.setIcon(iconOf(message.icon));
  box.setStandardButtons(buttonsOf(message.buttons));
  box.setDefaultButton(buttonOf(forms::defaultAnswer(message.buttons)));
  box.setEscapeButton(buttonOf(forms::escapeAnswer(message.buttons)));
  const int pressed = box.exec();
  for (const auto& [answer, button] : answers) {
    if (button == pressed) return answer;
  }
  return forms::escapeAnswer(message.buttons);
}

std::string askFolder(QWidget* parent, const forms::FolderDialog& wanted,
                      const WindowMemory& memory) {
  QFileDialog dialog(parent, toQt(wanted.title),
                     folderOf(wanted.initialFolder, memory.folder(toQt(wanted.title))));
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  return chosen(dialog, memory);
}

std::string askFileToSave(QWidget* parent, const forms::FileDialog& wanted,
                          const WindowMemory& memory) {
  QFileDialog dialog(parent, toQt(wanted.title),
                     folderOf(wanted.initialFolder, memory.folder(toQt(wanted.title))));
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, !wanted.asksBeforeReplacing);
  prepare(dialog, wanted);
  return chosen(dialog, memory);
}

std::string askFileToOpen(QWidget* parent, const forms::FileDialog& wanted,
                          const WindowMemory& memory) {
  const QString last = memory.folder(toQt(wanted.title));
  QFileDialog dialog(parent, toQt(wanted.title),
                     last.isEmpty() ? machineFolder(wanted.initialFolder) : last);
  dialog.setFileMode(QFileDialog::ExistingFile);
  prepare(dialog, wanted);
  return chosen(dialog, memory);
}

}  // namespace qt
