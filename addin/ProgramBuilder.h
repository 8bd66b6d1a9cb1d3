#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/Object.h"
#include "host/clsErrorItem.h"

namespace addin {

using ErrorItems = std::vector<std::shared_ptr<host::clsErrorItem>>;

/// What the add-in needs of the generator. Created as "AddInOrlena.Generate", anew for each run.
class ProgramBuilder : public forms::Object {
 public:
  /// Writes the room's control program into the open document. False: it is not complete, and
  /// GetLastError may say why.
  [[nodiscard]] virtual bool Build() = 0;
  /// The text of the last failure; empty when there was none, or one without a text.
  virtual std::string GetLastError() const = 0;
  /// What the part of the program does that the last Build failed at; empty when it did not fail.
  virtual std::string GetFailedPart() const = 0;
  /// The warnings of the run in the order in which they came up; the list itself. The next Build
  /// begins another, and this one stays as it was.
  virtual std::shared_ptr<const ErrorItems> GetErrorItems() const = 0;
};

inline constexpr const char* progIDProgramBuilder = "AddInOrlena.Generate";

}  // namespace addin
