#include "forms/Application.h"

#include <algorithm>

#include "forms/Error.h"
#include "forms/Event.h"
#include "forms/Form.h"
#include "forms/Paths.h"

namespace forms {
namespace {

thread_local Application* threadApplication = nullptr;

std::string withoutClosingBackslash(std::string folder) {
  if (folder.size() > 1 && folder.ends_with('\\')) folder.pop_back();
  return folder;
}

/// Takes a form off the list of those that are shown, however its wait ends.
class Shown {
 public:
  Shown(std::vector<Form*>& forms, Form& form) : forms_(forms), form_(form) {
    forms_.push_back(&form_);
  }
  ~Shown() { std::erase(forms_, &form_); }
  Shown(const Shown&) = delete;
  Shown& operator=(const Shown&) = delete;

 private:
  std::vector<Form*>& forms_;
  Form& form_;
};

bool matches(std::string_view name, std::string_view pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern.front() == '*') {
    return matches(name, pattern.substr(1)) || (!name.empty() && matches(name.substr(1), pattern));
  }
  if (name.empty() || (pattern.front() != '?' && pattern.front() != name.front())) return false;
  return matches(name.substr(1), pattern.substr(1));
}

bool anyFileMatches(const std::filesystem::path& pattern) {
  std::error_code failure;
  for (const auto& entry : std::filesystem::directory_iterator(pattern.parent_path(), failure)) {
    if (entry.is_regular_file(failure) &&
        matches(entry.path().filename().string(), pattern.filename().string())) {
      return true;
    }
  }
  return false;
}

}  // namespace

void reportHandlerError(const Error& error) {
  if (!Application::exists()) return;
  Application::current().messageBox(error.description(), Buttons::ok, Icon::critical);
}

Application::Application(Desktop& desktop, std::string folder)
    : desktop_(desktop),
      before_(std::exchange(threadApplication, this)),
      folder_(withoutClosingBackslash(std::move(folder))),
      currentFolder_(fromMachinePath(std::filesystem::current_path())) {}

Application::~Application() { threadApplication = before_; }

bool Application::exists() { return threadApplication != nullptr; }

Application& Application::current() {
  if (!threadApplication) throw Error(errors::objectNotSet, "No application runs on this thread.");
  return *threadApplication;
}

void Application::changeFolder(const std::string& folder) {
  const std::filesystem::path path = toMachinePath(folder);
  std::error_code failure;
  if (!std::filesystem::is_directory(path, failure)) {
    throw Error(errors::pathNotFound, "Path not found: " + folder);
  }
  currentFolder_ = fromMachinePath(path);
}

Form* Application::activeForm() const { return shown_.empty() ? nullptr : shown_.back(); }

Answer Application::messageBox(const std::string& text, Buttons buttons, Icon icon,
                               const std::string& caption) {
  return desktop_.showMessage({text, caption.empty() ? title_ : caption, buttons, icon});
}

bool Application::findsFile(std::string_view path) const {
  try {
    const std::filesystem::path file = toMachinePath(path);
    if (path.find_first_of("*?") != std::string_view::npos) return anyFileMatches(file);
    return std::filesystem::is_regular_file(file);
  } catch (const std::exception&) {
    return false;
  }
}

bool Application::findsFolder(std::string_view path) const {
  try {
    return std::filesystem::is_directory(toMachinePath(path));
  } catch (const std::exception&) {
    return false;
  }
}

Picture Application::loadPicture(std::string_view path) const {
  if (!findsFile(path)) {
    throw Error(errors::fileNotFound, "File not found: " + std::string(path));
  }
  return Picture(toMachinePath(path));
}

void Application::runModal(Form& form, Form* owner) {
  Form* below = owner ? owner : activeForm();
  {
    const Shown shown(shown_, form);
    desktop_.runModal(form, below);
  }
  if (Form* uncovered = activeForm()) uncovered->activateNow();
}

}  // namespace forms
