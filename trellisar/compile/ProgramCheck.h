#pragma once

#include <functional>
#include <string>
#include <vector>

#include "host/ProgramGuide.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/document/DocumentData.h"
#include "trellisar/document/Steps.h"

namespace trellisar {

struct ProgramError {
  std::string text;
  host::ProgramPlace place;
};

/// Looks through the whole program of a system for what names something that is not there: the
/// target, command or preset of a step, the signal that a condition tests, an event or source of a
/// signal that its device lacks, the command of a module's slot. It works part by part, so that its
/// progress can be shown:
///
///     ProgramCheck check(document);
///     while (check.next()) showProgress();
class ProgramCheck {
 public:
  /// The document outlives the check and stays as it is.
  explicit ProgramCheck(const DocumentData& document);

  /// How many times `next` checks something.
  std::size_t parts() const { return parts_.size(); }

  /// Checks the next preset, event, source or module; false when nothing is left.
  bool next();

  /// What was found so far, with its place, in the order of the program: `preset "System Power On",
  /// step 3.1: the device "Screen" has no command "Down".`
  const std::vector<ProgramError>& errors() const { return errors_; }

 private:
  void checkSteps(const PresetData& preset, const std::string& place, const std::string& number);
  /// Whether the device is there that the step is for.
  bool checkTarget(const StepData& step, const std::string& place);
  void checkCall(const CallStep& step, const std::string& place);
  void checkCommand(const CommandStep& step, const std::string& place);
  void checkCondition(const BranchStep& step, const std::string& place);
  void checkEvent(const ProgrammedEvent& event);
  void checkSource(const std::string& device, const SignalData& signal);
  void checkSlots(const DeviceData& module);
  /// `device`: the one that it is about; 0: none.
  void fail(const std::string& place, const std::string& what, std::int16_t device = 0);

  const DocumentData& document_;
  std::vector<std::function<void()>> parts_;
  std::size_t done_ = 0;
  std::string preset_;  // the one that is being checked; empty: none is
  std::vector<ProgramError> errors_;
};

/// All errors of a program.
std::vector<std::string> programErrors(const DocumentData& document);

}  // namespace trellisar
