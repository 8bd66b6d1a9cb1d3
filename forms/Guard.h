#pragma once

#include <utility>

namespace forms {

/// Holds a flag True for as long as it lives, and puts back what it was before:
///
///     const forms::Guard loading(m_bLoading);
class Guard {
 public:
  explicit Guard(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
  ~Guard() { flag_ = before_; }
  Guard(const Guard&) = delete;
  Guard& operator=(const Guard&) = delete;

 private:
  bool& flag_;
  bool before_;
};

/// Runs an action at the end of a block, however it is left. The action raises nothing.
template <typename Action>
class AtEnd {
 public:
  explicit AtEnd(Action action) : action_(std::move(action)) {}
  ~AtEnd() { action_(); }
  AtEnd(const AtEnd&) = delete;
  AtEnd& operator=(const AtEnd&) = delete;

 private:
  Action action_;
};

}  // namespace forms
