#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>

#include "forms/Desktop.h"

namespace qt {

/// Forms on a screen. It draws every kind of control and reports what a person does with them
/// through `forms::User`; the forms decide what comes of it. One for each process, on the thread
/// that made it.
class QtDesktop : public forms::Desktop {
 public:
  /// Where no window can be opened `noDisplay` is called, which ends the process; without it Qt
  /// does.
  QtDesktop(int argc, char** argv, const std::function<void()>& noDisplay = {});
  ~QtDesktop() override;
  QtDesktop(const QtDesktop&) = delete;
  QtDesktop& operator=(const QtDesktop&) = delete;

  /// Writes a PNG of the contents of a form that is shown, as it looks now. False when it isn't
  /// shown or the file can't be written.
  bool saveScreenshot(const forms::Form& form, const std::filesystem::path& machineFile);

  /// From now on windows come back as the user left them, also in the next run.
  void keepWindowsIn(const std::filesystem::path& machineFile);

  /// Called when a form is on the screen and has done what it does on being activated.
  void whenShown(std::function<void()> formShown);

  /// What a system can ask of its windows. 0 points: its font as it is.
  struct Look {
    bool isDark = false;
    double fontPoints = 0;
  };
  /// For pictures of the windows: before the first one is shown.
  void wear(const Look& look);

  void runModal(forms::Form& form, forms::Form* owner) override;
  forms::Answer showMessage(const forms::MessageBox& message) override;
  std::string chooseFolder(const forms::FolderDialog& dialog) override;
  std::string chooseFileToSave(const forms::FileDialog& dialog) override;
  std::string chooseFileToOpen(const forms::FileDialog& dialog) override;
  std::int32_t showHelp(std::int32_t ownerHandle, const std::string& helpFile,
                        std::int16_t topic) override;
  void closeAllHelp() override;
  void copyText(const std::string& text) override;
  void processEvents() override;
  void runLater(std::function<void()> task) override;
  void runAfter(std::chrono::milliseconds wait, std::function<void()> task) override;
  void setMousePointer(forms::MousePointer pointer) override;
  forms::Size textSize(const std::string& text, const forms::Font& font,
                       forms::Twips width) const override;
  forms::Twips twipsPerPixelX() const override { return 15; }
  forms::Twips twipsPerPixelY() const override { return 15; }

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

/// The arguments are those of `main`, with a null behind the last one.
std::unique_ptr<QtDesktop> makeDesktop(int argc, char** argv);

}  // namespace qt
