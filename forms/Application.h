#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <typeindex>
#include <vector>

#include "forms/Desktop.h"
#include "forms/Event.h"
#include "forms/MessageBox.h"
#include "forms/Picture.h"

namespace forms {

class Form;

/// What the platform is for one thread. Everything that is not a registration hangs from it, so
/// that programs can run side by side in one process.
class Application {
 public:
  /// Becomes the thread's application until it ends. The desktop outlives it. `folder` is the
  /// program's own folder, with backslashes; the current folder is the machine's until
  /// `changeFolder`.
  Application(Desktop& desktop, std::string folder);
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// The thread's application. Raises Error 91 when there is none.
  static Application& current();
  static bool exists();

  Desktop& desktop() { return desktop_; }

  const std::string& title() const { return title_; }
  void setTitle(const std::string& title) { title_ = title; }
  /// Empty: the program has no help.
  const std::string& helpFile() const { return helpFile_; }
  void setHelpFile(const std::string& file) { helpFile_ = file; }
  /// The program's own folder, without a closing backslash.
  const std::string& folder() const { return folder_; }

  /// The folder that relative paths count from. Changing it raises Error 76 when there is no such
  /// folder.
  const std::string& currentFolder() const { return currentFolder_; }
  void changeFolder(const std::string& folder);

  /// The form that the user works on, the last one shown of those that still are; null when none
  /// is.
  Form* activeForm() const;
  /// All forms that are shown, the active one last. One that was hidden is none of them, also while
  /// its modal wait has still to end.
  std::vector<Form*> openForms() const;

  /// Shows a message and waits for its answer. Without a caption it takes the application's title.
  Answer messageBox(const std::string& text, Buttons buttons = Buttons::ok, Icon icon = Icon::none,
                    const std::string& caption = {});

  /// A value of the program's own, one of each type, made at the first call. It ends with the
  /// application: what others would keep in a global of the thread.
  template <typename T>
  T& local() {
    std::shared_ptr<void>& place = locals_[typeid(T)];
    if (!place) place = std::make_shared<T>();
    return *static_cast<T*>(place.get());
  }
  /// Ends the value of this type now; the next `local` makes another. Who may be unloaded before
  /// the application ends leaves none behind.
  template <typename T>
  void endLocal() {
    const auto place = locals_.extract(typeid(T));
  }

  /// A user has acted on a form, whatever came of it.
  Event<> acted;

  void processEvents() { desktop_.processEvents(); }
  void runLater(std::function<void()> task) { desktop_.runLater(std::move(task)); }
  void setMousePointer(MousePointer pointer) { desktop_.setMousePointer(pointer); }

  /// Whether a search for the path finds a file, or a folder; an empty path finds none. `*` and `?`
  /// are allowed in the last part of a file's. Every failure of the search is "no".
  bool findsFile(std::string_view path) const;
  bool findsFolder(std::string_view path) const;

  /// A picture from a file, which is read when it is drawn. Raises Error 53 when there is no such
  /// file.
  Picture loadPicture(std::string_view path) const;

 private:
  friend class Form;
  void runModal(Form& form, Form* owner);

  Desktop& desktop_;
  Application* before_;
  std::string title_;
  std::string helpFile_;
  std::string folder_;
  std::string currentFolder_;
  std::vector<Form*> running_;  // those with a modal wait, the last one on top
  std::map<std::type_index, std::shared_ptr<void>> locals_;
};

}  // namespace forms
