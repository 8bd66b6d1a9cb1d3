#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <type_traits>

#include "forms/Container.h"
#include "forms/Error.h"

namespace forms {

/// Controls of one kind under one name, told apart by an index that need not begin at 0 or be
/// without gaps:
///
///     forms::ControlArray<forms::TextBox> txtDelay{"txtDelay", {{0, frameCommand}, {1,
///     frameCommand}}};
template <typename ControlType>
class ControlArray {
 public:
  struct Member {
    std::int16_t index;
    Container& container;
    std::string caption = {};
  };

  ControlArray(const std::string& name, std::initializer_list<Member> members) {
    for (const Member& member : members) {
      const std::string full = name + "(" + std::to_string(member.index) + ")";
      if constexpr (std::is_constructible_v<ControlType, Container&, std::string, std::string>) {
        members_[member.index] =
            std::make_unique<ControlType>(member.container, full, member.caption);
      } else {
        members_[member.index] = std::make_unique<ControlType>(member.container, full);
      }
    }
  }

  /// Raises Error 9 for an index that the array does not have.
  ControlType& operator()(std::int16_t index) const {
    const auto found = members_.find(index);
    if (found == members_.end()) {
      throw Error(errors::indexOutOfRange,
                  "The control array has no index " + std::to_string(index) + ".");
    }
    return *found->second;
  }

  /// Calls `action(index, control)` for each member, by rising index.
  template <typename Action>
  void each(Action action) const {
    for (const auto& [index, control] : members_) action(index, *control);
  }

 private:
  std::map<std::int16_t, std::unique_ptr<ControlType>> members_;
};

}  // namespace forms
