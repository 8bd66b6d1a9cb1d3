#pragma once

#include <filesystem>
#include <string>
#include <utility>

#include "answers/MadeFolders.h"
#include "answers/RunEnded.h"
#include "answers/UnattendedDesktop.h"
#include "base/Json.h"
#include "forms/Root.h"
#include "forms/User.h"
#include "host/Document.h"
#include "trellisar/window/Host.h"

namespace answers {

/// One answer on its way into the wizard: its place in the answers file, and its value.
struct Answer {
  std::string path;
  const base::Json& value;

  std::string text() const { return value.get<std::string>(); }
};

/// What the acts of a run reach besides the page that they work on.
struct Hands {
  forms::User& user;
  UnattendedDesktop& desktop;
  trellisar::Host& host;
  MadeFolders& made;
  bool mayReplace = false;
  /// The file of the system that was opened for the run; empty: the wizard makes a new one.
  std::filesystem::path onto = {};

  /// The system that the wizard works on.
  host::Document& document() const;
};

/// A page of the wizard under the hands of the run.
class Page {
 public:
  Page(Hands& hands, forms::Root& step, std::string name)
      : hands_(hands), step_(step), name_(std::move(name)) {}

  const std::string& name() const { return name_; }
  Hands& hands() const { return hands_; }
  forms::User& user() const { return hands_.user; }

  /// The control of this name, as it is, hidden or not.
  template <typename Kind>
  Kind& control(const std::string& name) const {
    return dynamic_cast<Kind&>(step_.control(name));
  }

  /// The control that an answer is for. Raises RunEnded, as wrong input, when it is hidden
  /// or disabled.
  template <typename Kind>
  Kind& usable(const std::string& name, const Answer& answer) const {
    Kind& found = control<Kind>(name);
    if (!found.isUsable()) refuseUnusable(found, answer);
    return found;
  }

  /// Raises RunEnded, as wrong input: the answer can't be given here.
  [[noreturn]] void refuse(const Answer& answer, const std::string& what) const {
    throw RunEnded(RunEnded::wrongInput, {base::Fault{what, answer.path}});
  }

 private:
  [[noreturn]] void refuseUnusable(const forms::Control& control, const Answer& answer) const;

  Hands& hands_;
  forms::Root& step_;
  std::string name_;
};

}  // namespace answers
