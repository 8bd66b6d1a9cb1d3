#include "forms/Application.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "forms/Error.h"
#include "forms/Event.h"
#include "forms/Form.h"
#include "forms/Paths.h"
#include "forms/Text.h"

namespace forms {
namespace {

thread_local Application* threadApplication = nullptr;

std::string withoutClosingBackslash(std::string folder) {
  if (folder.size() > 1 && folder.ends_with('\\')) folder.pop_back();
  return folder;
}

/// Takes a form off the list of those that run, however its wait ends.
class Running {
 public:
  Running(std::vector<Form*>& forms, Form& form) : forms_(forms), form_(form) {
    forms_.push_back(&form_);
  }
  ~Running() { std::erase(forms_, &form_); }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

 private:
  std::vector<Form*>& forms_;
  Form& form_;
};

/// A `*` takes as little as it can at first; where the rest then fails, the last one takes a
/// character more.
bool matches(std::u32string_view name, std::u32string_view pattern) {
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::u32string_view::npos;
  std::size_t taken = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == U'*') {
      star = p++;
      taken = n;
    } else if (p < pattern.size() && (pattern[p] == U'?' || pattern[p] == name[n])) {
      ++p;
      ++n;
    } else if (star != std::u32string_view::npos) {
      p = star + 1;
      n = ++taken;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(U'*', p) == std::u32string_view::npos;
}

bool anyFileMatches(const std::filesystem::path& path) {
  const std::u32string pattern = toCodePoints(path.filename().string());
  for (const auto& entry : std::filesystem::directory_iterator(path.parent_path())) {
    const std::u32string name = toCodePoints(entry.path().filename().string());
    if (entry.is_regular_file() && matches(name, pattern)) return true;
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
  if (!findsFolder(folder)) {
    const std::string machinePath = toMachinePath(folder).string();
    throw Error(errors::pathNotFound, "Path not found: " + machinePath);
  }
  currentFolder_ =
      withoutClosingBackslash(fromMachinePath(toMachinePath(folder).lexically_normal()));
}

std::vector<Form*> Application::openForms() const {
  std::vector<Form*> open = running_;
  std::erase_if(open, [](const Form* form) { return !form->isVisible(); });
  return open;
}

Form* Application::activeForm() const {
  const auto open = openForms();
  return open.empty() ? nullptr : open.back();
}

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
    return !path.empty() && std::filesystem::is_directory(toMachinePath(path));
  } catch (const std::exception&) {
    return false;
  }
}

Picture Application::loadPicture(std::string_view path) const {
  if (!findsFile(path)) {
    const std::string machinePath = toMachinePath(path).string();
    throw Error(errors::fileNotFound, "File not found: " + machinePath);
  }
  return Picture(toMachinePath(path));
}

void Application::runModal(Form& form, Form* owner) {
  Form* below = owner ? owner : activeForm();
  {
    const Running running(running_, form);
    desktop_.runModal(form, below);
  }
  if (Form* uncovered = activeForm()) uncovered->activate();
}

}  // namespace forms
