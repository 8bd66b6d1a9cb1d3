#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "forms/OpenEdit.h"

namespace host {

/// How far the user of an add-in's window has come.
struct Whereabouts {
  std::int16_t iPage = 0;       // from 0
  bool bFolderChecksOK = true;  // the system's folder has been accepted
  /// What stands on a page alone, by its name, as it tells it and takes it again.
  std::map<std::string, std::vector<std::string>> colOnPages{};
  forms::OpenEdit edit{};
};

/// What an add-in has been told and puts into the document only when it saves.
struct UnsavedAnswers {
  std::string strTitle{};     // under which the settings are stored
  std::string strSettings{};  // the settings text
  std::string strName{};      // of the system
  std::string strPath{};      // its folder, with backslashes
  Whereabouts whereabouts{};
};

/// What an add-in offers beside its contract, so that the host loses nothing of it where the
/// program ends before it is saved.
class UnsavedWork {
 public:
  virtual ~UnsavedWork() = default;

  /// While a system is open in the add-in. It changes nothing.
  virtual UnsavedAnswers GetUnsavedAnswers() const = 0;
  /// The system that the add-in is about to be given has such answers in it. Its window then goes
  /// on there.
  virtual void Resume(const Whereabouts& whereabouts) = 0;
};

}  // namespace host
