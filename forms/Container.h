#pragma once

#include <vector>

namespace forms {

class Control;
class Root;

/// What holds controls: a form, a frame, a tab strip, a user control.
class Container {
 public:
  /// Children that are still there go to their root.
  virtual ~Container();
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;

  /// The form or user control that the contents belong to.
  virtual Root& contentRoot() = 0;

  /// This container as a control; null for a form.
  virtual Control* asControl() { return nullptr; }

  /// Whether a child is on the part that shows; False on a page that lies behind another.
  virtual bool shows(const Control&) const { return true; }

  /// In the order of creation, which is the order of reading and of Tab.
  const std::vector<Control*>& children() const { return children_; }

  bool contains(const Control& control) const;

  /// Makes a child the last one in the order of reading.
  void readLast(Control& child);

 protected:
  Container() = default;

  /// A child came or went; the base does nothing.
  virtual void childAdded(Control&) {}
  virtual void childRemoved(Control&) {}

 private:
  friend class Control;
  void adopt(Control& child);
  void release(Control& child);

  std::vector<Control*> children_;
};

}  // namespace forms
