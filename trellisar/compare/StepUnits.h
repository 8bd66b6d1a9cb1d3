#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "trellisar/document/Steps.h"

/// The steps of a preset as they are compared: each with the delays before it, since it is by them
/// that it comes later.
namespace trellisar {

struct StepUnit {
  std::vector<DelayStep> delays = {};
  std::optional<Step> step = {};  // nothing: the delays at the end of a preset
  std::string name = {};  // what it sends to whom, or tests; by name, so that rooms can be compared
  std::string device = {};     // of a command, what it is sent to; empty: it is none
  std::string content = {};    // the value, or the whole branch
  std::string timing = {};     // the delays
  std::size_t occurrence = 1;  // 1 for the first under this name in its preset

  bool isSameAs(const StepUnit& other) const;
  /// Whether it is the other one with something changed. A branch is one whose condition or whose
  /// steps stay.
  bool isRelatedTo(const StepUnit& other) const;
  /// Whether both are commands of one device.
  bool isToSameDevice(const StepUnit& other) const;
};

std::vector<StepUnit> unitsOf(const DocumentData& document, const PresetData& preset);

/// The places of two steps that stand for one another, from the first; nothing where one has no
/// partner. As many steps as possible are the same; others are related as far as they can be, or
/// are commands of one device.
using Alignment = std::vector<std::pair<std::optional<std::size_t>, std::optional<std::size_t>>>;

Alignment align(const std::vector<StepUnit>& before, const std::vector<StepUnit>& after);

/// How steps are put into words.
class StepWords {
 public:
  explicit StepWords(const DocumentData& document) : document_(document) {}

  /// "Display Device's second Off", `the run of "System Lock"`, `"if Powered_On of Receiver is on"`
  std::string title(const StepUnit& unit) const;
  /// What it is sent with, or goes through: "(held 0.1 s)"; may be empty.
  std::string value(const StepUnit& unit) const;
  /// "3 s later"; empty without a delay.
  std::string timing(const StepUnit& unit) const;
  /// The two, as they stand behind the title.
  std::string details(const StepUnit& unit) const;
  /// All of a preset, in a line.
  std::string all(const PresetData& preset) const;

 private:
  const DocumentData& document_;
};

}  // namespace trellisar
