#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QDialog>
#include <cstdint>
#include <filesystem>

namespace qt {

/// Shows help topics: the file `help/<topic>.md` beside the help file.
class HelpViewer {
 public:
  ~HelpViewer();

  /// Above 0 when the topic is shown; 0 when there is no such topic.
  std::int32_t show(QWidget* parent, const std::filesystem::path& helpFile, std::int16_t topic);
  void closeAll();

 private:
  QPointer<QDialog> window_;
};

}  // namespace qt
