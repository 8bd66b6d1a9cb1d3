#pragma once

#include <string>

namespace forms {

enum class Icon { none, information, question, exclamation, critical };

/// The first button of each set is the default one.
enum class Buttons { ok, okCancel, yesNo, yesNoCancel };

/// The numbers of the platform's answers.
enum class Answer { ok = 1, cancel = 2, yes = 6, no = 7 };

struct MessageBox {
  std::string text;
  std::string caption;
  Buttons buttons = Buttons::ok;
  Icon icon = Icon::none;
  bool operator==(const MessageBox&) const = default;
};

/// The default button's answer.
Answer defaultAnswer(Buttons buttons);

/// What Escape and the close box answer: Cancel, or OK where it stands alone. With Yes and No alone
/// they do nothing, and this is No for a front end that has to end the box.
Answer escapeAnswer(Buttons buttons);

/// The word for an icon or an answer, such as "critical" and "Yes"; "" for no icon.
std::string toText(Icon icon);
std::string toText(Answer answer);

}  // namespace forms
