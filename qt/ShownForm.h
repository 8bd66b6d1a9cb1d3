#pragma once

#include <QtCore/QEventLoop>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "forms/Form.h"
#include "forms/User.h"
#include "qt/FormWindow.h"

namespace qt {

class Adapter;
struct Session;

/// A form while it is on the screen: its window, and a widget for each of its controls.
///
/// Widgets follow the forms. What is different is noted and drawn together, when an act of the user
/// has been dealt with, before anything else comes to the front, or when the event loop is reached.
/// So a widget never shows a state that a form was in only between two statements, and Qt's own
/// idea of focus, checks and texts is put right after each act.
class ShownForm : public forms::FormView {
 public:
  /// Over `owner`; null: over nothing.
  ShownForm(forms::Form& form, QWidget* owner, Session& session);
  ~ShownForm() override;
  ShownForm(const ShownForm&) = delete;
  ShownForm& operator=(const ShownForm&) = delete;

  /// Shows the form, activates it and returns when it is no longer visible.
  void run();

  FormWindow& window() { return window_; }
  const Session& session() const { return session_; }
  bool shows(const forms::Form& form) const { return form_ == &form; }

  /// Does what the user did, and shows what came of it. What the forms refuse does nothing.
  void act(const std::function<void(forms::User&)>& deed);

  /// A key, for the control with the focus or for the form.
  void press(const QKeyEvent& event);
  void close();
  void resized();

  /// Draws what is different, and gives Qt's focus to the widget of the control that has the
  /// form's.
  void refresh();
  void refreshLater();
  void note(Adapter& adapter);
  /// Notes all that a container holds.
  void noteContents(const forms::Container& container);

  /// The control is going: its widget goes too, what it holds stays.
  void forget(const forms::Control& control);

  void update() override;
  void detach() override;
  void childAdded(forms::Control& control) override;

 private:
  QWidget& contentsOf(const forms::Container& container);
  Adapter* adapterOf(const forms::Control* control) const;
  void addMissing(const forms::Container& container);
  void showForm();
  void showFocus();
  void settle();
  void restorePlace();
  void keepPlace();
  bool turnPage(const QKeyEvent& event);
  void helpOnFocus();

  forms::Form* form_;
  Session& session_;
  FormWindow window_;
  QEventLoop loop_;
  std::map<const forms::Control*, std::unique_ptr<Adapter>> adapters_;
  std::vector<std::unique_ptr<Adapter>> gone_;  // one may be in the middle of an event
  std::vector<Adapter*> noted_;
  int acts_ = 0;  // under way, one inside the other
  bool refreshing_ = false;
  bool refreshIsComing_ = false;
};

}  // namespace qt
