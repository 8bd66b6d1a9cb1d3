#pragma once

#include <cstdint>
#include <string>

#include "forms/Focus.h"
#include "forms/Picture.h"
#include "forms/Root.h"

namespace forms {

enum class UnloadMode : std::int16_t { closeBox = 0, program = 1 };

/// A window. Its life: constructed; loaded at the first `load` or `showModal`; shown; hidden, which
/// ends the modal wait; unloaded. A form that is never shown is one that is only loaded.
class Form : public Root {
 public:
  explicit Form(std::string name);
  ~Form() override;

  const std::string& name() const { return name_; }
  Form* ownerForm() override { return this; }
  FormView* formView() override { return view_; }

  const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption);

  /// The outer size in twips, and what is left of it inside the border and below the title.
  Size size() const { return size_; }
  void setSize(Size size);
  Size innerSize() const;
  bool isSizeable() const { return sizeable_; }
  void setSizeable(bool sizeable) { sizeable_ = sizeable; }
  /// What a user may not make it smaller than.
  Size minimumSize() const { return minimumSize_; }
  void setMinimumSize(Size size) { minimumSize_ = size; }

  Color backColor() const { return backColor_; }
  void setBackColor(Color color);
  /// Drawn at the upper left corner, behind all controls.
  const Picture& picture() const { return picture_; }
  void setPicture(const Picture& picture);
  std::int16_t helpContext() const { return helpContext_; }
  void setHelpContext(std::int16_t topic) { helpContext_ = topic; }

  /// The platform's number of the window; 0 while there is none.
  std::int32_t windowHandle() const { return windowHandle_; }
  void setWindowHandle(std::int32_t handle) { windowHandle_ = handle; }

  /// True until it is unloaded.
  bool isLoaded() const { return loaded_; }
  bool isVisible() const { return visible_; }

  /// Raises `loading`, once.
  void load();

  /// Loads the form if it isn't, shows it over `owner` (null: over the active form) and returns
  /// when it has been hidden or unloaded, also when that happens while it is loaded or activated.
  /// Raises Error 400 when it is shown already.
  void showModal(Form* owner);

  /// Ends the modal wait; the form stays loaded.
  void hide();

  /// Raises `queryUnload`; unless a handler cancels, hides the form and raises `unloading`. True
  /// when it is unloaded, or was not loaded. An `unload` from inside an `unload` is True and does
  /// nothing.
  bool unload(UnloadMode mode = UnloadMode::program);

  Focus& focus() { return focus_; }
  const Focus& focus() const { return focus_; }

  /// Whether `keyDown` of the form comes before that of the control with the focus. Without a focus
  /// it comes always.
  bool keyPreview() const { return keyPreview_; }
  void setKeyPreview(bool preview) { keyPreview_ = preview; }

  Event<> loading;
  /// The form was shown for the first time, or a form that stood over it has closed. Not raised for
  /// message boxes and common dialogs, and never while one of its activations is running.
  Event<> activated;
  Event<> resized;
  /// True in the first argument keeps the form.
  Event<bool&, UnloadMode> queryUnload;
  Event<> unloading;
  Event<KeyDown&> keyDown;

  /// For front ends: attaches what draws the form (null: nothing).
  void attach(FormView* view) { view_ = view; }
  /// For front ends: the form is on the screen and the user's. Gives the focus to the first control
  /// that takes it, and raises `activated`. A form that came back because the one over it closed
  /// has been told by then: a front end calls this once for each `Desktop::runModal`.
  void activateNow();

 private:
  friend class Focus;
  friend class Application;
  void activate();
  void changed();
  void focusMoved() { changed(); }

  std::string name_;
  std::string caption_;
  Size size_{4800, 3600};
  Size minimumSize_;
  bool sizeable_ = false;
  Color backColor_ = colors::buttonFace;
  Picture picture_;
  std::int16_t helpContext_ = 0;
  std::int32_t windowHandle_ = 0;
  bool loaded_ = false;
  bool visible_ = false;
  bool unloading_ = false;
  bool activating_ = false;
  bool keyPreview_ = false;
  FormView* view_ = nullptr;
  Focus focus_{*this};
};

}  // namespace forms
