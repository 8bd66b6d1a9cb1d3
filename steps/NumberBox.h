#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "forms/TextBox.h"

namespace steps {

/// The whole numbers from 0 that a box takes.
struct NumberRange {
  std::string strLabel{};  // what a message calls the number
  std::int32_t iMax = 0;
  const bool* pSaving = nullptr;  // while True a number outside is reset wherever the focus is
};

/// The setting that a box is for.
struct NumberSetting {
  std::function<float()> Get;
  std::function<void(float)> Put;
  std::optional<NumberRange> range{};  // nothing: any number, which the setting may round
  bool bStoredByEnter = false;         // the key still does what it does elsewhere
  std::function<void()> Stored{};      // after each number taken, also one that was there before
};

/// A box of a step for a number that is a setting. The leading number of its text is stored when it
/// is left, and the box then shows what the setting holds. A number outside the range is told: it
/// is refused as long as the focus stays within the step, and else reset to 0.
class NumberBox : public forms::TextBox {
 public:
  using TextBox::TextBox;

  /// Called once, before the box is used.
  void Hold(NumberSetting setting);

  /// Stores what stands in the box, as if it was left for another step.
  void Store();
  void ShowStored();

 private:
  void Validate(bool& Cancel);
  void CheckRange(bool& Cancel);

  NumberSetting m_setting;
};

}  // namespace steps
