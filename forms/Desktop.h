#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

#include "forms/Geometry.h"
#include "forms/MessageBox.h"

namespace forms {

class Form;

/// What a folder dialog is opened with. Paths have backslashes.
struct FolderDialog {
  std::int32_t ownerHandle = 0;
  std::string title;
  std::string initialFolder;
};

/// What a dialog for one file is opened with. The filter is pairs of a text and a pattern, all
/// separated by "|".
struct FileDialog {
  std::int32_t ownerHandle = 0;
  std::string title;
  std::string fileName;
  std::string filter;
  std::string initialFolder;
  std::string defaultExtension;  // without a point
  bool asksBeforeReplacing = true;
};

enum class MousePointer { standard, hourglass };

/// The one port through which forms reach a screen, or whatever stands in its place: a window
/// system, an unattended run, a test. It decides nothing: it shows, waits and reports.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// Shows the form over `owner` (null: over nothing), calls its `activateNow` once it is there,
  /// and returns when it is no longer visible.
  virtual void runModal(Form& form, Form* owner) = 0;

  virtual Answer showMessage(const MessageBox& message) = 0;

  /// Takes down what is worth a line in a record of the run, but no message box. Where there is a
  /// person instead of a record, it is dropped.
  virtual void note(const std::string&) {}

  /// The chosen folder or file, with backslashes; empty when it was cancelled.
  virtual std::string chooseFolder(const FolderDialog& dialog) = 0;
  virtual std::string chooseFileToSave(const FileDialog& dialog) = 0;
  virtual std::string chooseFileToOpen(const FileDialog& dialog) = 0;

  /// Shows a topic of a help file; above 0 when it is shown.
  virtual std::int32_t showHelp(std::int32_t ownerHandle, const std::string& helpFile,
                                std::int16_t topic) = 0;
  virtual void closeAllHelp() = 0;

  /// Puts a text where other programs can paste it from.
  virtual void copyText(const std::string& text) = 0;

  /// Deals with what is waiting: input, drawing, and what `runLater` left.
  virtual void processEvents() = 0;
  /// Runs the task on this thread, after what is running now.
  virtual void runLater(std::function<void()> task) = 0;
  /// As above, once so much time has passed, also while a modal form or a dialog is open.
  virtual void runAfter(std::chrono::milliseconds wait, std::function<void()> task) = 0;

  virtual void setMousePointer(MousePointer pointer) = 0;

  /// The size in twips that a text takes. Above a width of 0 it is broken at blanks to stay within
  /// that width, as far as its words allow.
  virtual Size textSize(const std::string& text, const Font& font, Twips width) const = 0;

  virtual Twips twipsPerPixelX() const = 0;
  virtual Twips twipsPerPixelY() const = 0;
};

}  // namespace forms
