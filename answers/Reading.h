#pragma once

#include <vector>

#include "answers/Wizard.h"
#include "base/Fault.h"
#include "base/Json.h"

namespace answers {

/// The answers that a system gives: what the wizard shows of it, every answer that it offers now.
struct Reading {
  /// In the form and the order of an answers file, without name and folder.
  base::Json answers = base::Json::object();
  /// What the wizard shows, and no answers file can say.
  std::vector<base::Fault> unsayable;
};

/// Goes through all steps and reads each page. Changes nothing; leaves the wizard at its last step.
/// Raises RunEnded, as refused, where a step can't be left.
Reading readAnswers(const Wizard& wizard);

}  // namespace answers
