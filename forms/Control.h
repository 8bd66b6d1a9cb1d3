#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/Event.h"
#include "forms/Geometry.h"

namespace forms {

class Container;
class Form;
class Root;

/// What a front end attaches to a control to draw it.
class View {
 public:
  virtual ~View() = default;

  /// Something about the control is different: read it again.
  virtual void update() = 0;

  /// The control is going. It must not be read again.
  virtual void detach() = 0;
};

namespace keys {
inline constexpr std::int16_t backspace = 8;
inline constexpr std::int16_t tab = 9;
inline constexpr std::int16_t enter = 13;
inline constexpr std::int16_t escape = 27;
inline constexpr std::int16_t space = 32;
inline constexpr std::int16_t left = 37;
inline constexpr std::int16_t up = 38;
inline constexpr std::int16_t right = 39;
inline constexpr std::int16_t down = 40;
inline constexpr std::int16_t del = 46;
inline constexpr std::int16_t f1 = 112;
inline constexpr std::int16_t f2 = 113;
}  // namespace keys

/// A key that goes down. A handler that sets `code` to 0 keeps it from doing anything more.
struct KeyDown {
  std::int16_t code = 0;   // one of `keys`, or the code of a letter's upper case
  std::int16_t shift = 0;  // 1 Shift, 2 Control, 4 Alt, added up
};

/// A character that is typed. A handler that sets it to 0 drops it.
struct KeyPress {
  char32_t character = 0;
};

enum class MouseButton : std::int16_t { left = 1, right = 2 };

enum class Kind {
  label,
  textBox,
  checkBox,
  optionButton,
  commandButton,
  frame,
  line,
  image,
  listBox,
  dropDownList,
  listView,
  textView,
  progressBar,
  toolBar,
  tabStrip,
  userControl
};

/// The word for a kind in a listing, such as "text box".
std::string toText(Kind kind);

/// A control: state and events, and nothing drawn. It belongs to the container that it was created
/// in and to that container's root; both outlive it, or it tells them that it goes.
///
/// What the program sets and what a user does are different calls. A setter never looks at
/// `enabled`, `visible` or the focus and raises exactly what its contract says; what a user does
/// goes through `User`, which obeys all three.
class Control {
 public:
  Control(Container& container, std::string name);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  virtual Kind kind() const = 0;

  /// Unique within the root: a second control of a name raises Error 457. A member of a control
  /// array is named with its index: "txtDelay(0)".
  const std::string& name() const { return name_; }

  /// This control as what holds others; null for one that holds none.
  virtual Container* asContainer() { return nullptr; }

  Container& container() const { return *container_; }
  Root& root() const { return *root_; }
  /// The form that it stands on, through all user controls; null for a user control that is on
  /// none.
  Form* form() const;

  /// Moves it into another container of the same root, to the end of its children. Raises Error 5
  /// for a container of another root, and for one within the control itself.
  void setContainer(Container& container);

  /// The control's own flags. What holds it does not change them: read back, they are what was set.
  bool isVisible() const { return visible_; }
  void setVisible(bool visible);
  bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled);

  /// Whether it is visible together with all that holds it, and on the page that shows.
  bool isShown() const;
  /// Whether a user can act on it: shown, and enabled together with all that holds it.
  bool isUsable() const;

  /// Whether Tab comes by it; a control that takes no focus may have it set and Tab still passes
  /// it. The False one of a user control keeps Tab from all that it holds.
  bool tabStop() const { return tabStop_; }
  void setTabStop(bool tabStop);
  /// Whether its kind can have the focus at all.
  virtual bool takesFocus() const { return false; }
  /// Whether Tab may stop here now: of a group of option buttons only one is a stop.
  virtual bool isStop() const { return tabStop_ && takesFocus(); }
  bool hasFocus() const;
  /// Whether a user has begun a change here that no handler has heard of: a text typed since the
  /// focus came, a label in its editor.
  virtual bool hasOpenEdit() const { return false; }

  /// Gives it the focus for the program: no validation runs. Raises Error 5 when a user couldn't
  /// reach it.
  void setFocus();

  /// In twips, from the inner corner of the container.
  const Rect& bounds() const { return bounds_; }
  void setBounds(const Rect& bounds);
  void move(Twips left, Twips top) { setBounds({left, top, bounds_.width, bounds_.height}); }

  const std::string& tag() const { return tag_; }
  void setTag(const std::string& tag) { tag_ = tag; }
  const std::string& toolTip() const { return toolTip_; }
  void setToolTip(const std::string& toolTip) { set(toolTip_, toolTip); }
  const Font& font() const { return font_; }
  void setFont(const Font& font) { set(font_, font); }
  Color backColor() const { return backColor_; }
  void setBackColor(Color color) { set(backColor_, color); }
  Color foreColor() const { return foreColor_; }
  void setForeColor(Color color) { set(foreColor_, color); }
  std::int16_t helpContext() const { return helpContext_; }
  void setHelpContext(std::int16_t topic) { helpContext_ = topic; }

  /// What a screen reader calls it where no text that is seen does; empty: what those texts say.
  void setAccessibleName(const std::string& name) { set(accessibleName_, name); }
  /// The text of another control names this one for screen readers, as that of the label before a
  /// box does. Several name it together, in the order of the calls: "Lock for ... seconds". They
  /// stay as long as this control is shown.
  void nameBy(const Control& words);
  /// What a screen reader calls it: the name that was set, the texts that name it, its caption, or
  /// what names the composed control that it fills; else its tool tip.
  std::string nameForReaders() const;

  /// The text that it shows, for a listing.
  virtual std::string shownText() const { return {}; }

  Event<> gotFocus;
  Event<> lostFocus;
  /// The focus is about to leave; True refuses, as long as it stays within the root.
  Event<bool&> validate;
  Event<KeyDown&> keyDown;

  /// One front end at a time. Null detaches; the control never owns its view.
  void attach(View* view) { view_ = view; }

 protected:
  /// Tells the view that something is different.
  void changed() {
    if (view_) view_->update();
  }

  template <typename Value>
  bool set(Value& place, const Value& value) {
    if (place == value) return false;
    place = value;
    changed();
    return true;
  }

 private:
  friend class Container;
  friend class Focus;
  friend class User;

  /// The place or the size is different; the base does nothing.
  virtual void boundsChanged(const Rect& /*before*/) {}

  /// What the key does to this control when no handler took it; False when it does nothing here.
  virtual bool userKey(const KeyDown&) { return false; }
  virtual void userClick() {}
  /// The focus is about to leave, before anything is validated: an editor that is open is taken.
  virtual void endEditing() {}
  /// A text that names the control by itself; the base has none.
  virtual std::string ownWords() const { return {}; }
  std::string wordsOfOthers() const;

  std::string name_;
  Container* container_;
  Root* root_;
  View* view_ = nullptr;
  bool visible_ = true;
  bool enabled_ = true;
  bool tabStop_ = true;
  Rect bounds_;
  std::string tag_;
  std::string toolTip_;
  std::string accessibleName_;
  std::vector<const Control*> namedBy_;
  Font font_;
  Color backColor_ = colors::buttonFace;
  Color foreColor_ = colors::buttonText;
  std::int16_t helpContext_ = 0;
};

/// A control with a caption, in which "&" marks the accelerator and "&&" is an ampersand.
class Captioned : public Control {
 public:
  Captioned(Container& container, std::string name, std::string caption)
      : Control(container, std::move(name)), caption_(std::move(caption)) {}

  const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption) { set(caption_, caption); }
  std::string shownText() const override;

  /// The letter behind the first single "&", in lower case; 0 when there is none.
  char32_t accelerator() const;

 private:
  std::string ownWords() const override { return shownText(); }

  std::string caption_;
};

/// A caption as it is read: single ampersands dropped, doubled ones halved.
std::string withoutAccelerator(const std::string& caption);

}  // namespace forms
