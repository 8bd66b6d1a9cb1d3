#pragma once

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

}  // namespace forms
