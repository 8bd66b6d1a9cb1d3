#pragma once

#include <string>
#include <utility>

#include "answers/Report.h"
#include "base/Fault.h"

namespace app {

/// What a run tells on standard error. Every line begins with the file that it is about, and then
/// the system that the file is answered onto, if any; the lines of one message stay together, also
/// when rooms are built side by side.
class RunReport : public answers::Report {
 public:
  explicit RunReport(std::string subject, const std::string& system = {})
      : subject_(std::move(subject)), system_(system.empty() ? "" : system + ": ") {}

  void line(const std::string& text) const override;
  /// A fault of the answers, behind its line in their file where that is known.
  void fault(const base::Fault& fault) const;

 private:
  std::string subject_;
  std::string system_;
};

/// A line of standard error that is about no file.
void reportLine(const std::string& text);

}  // namespace app
