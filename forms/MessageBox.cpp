#include "forms/MessageBox.h"

namespace forms {

Answer defaultAnswer(Buttons buttons) {
  return buttons == Buttons::ok || buttons == Buttons::okCancel ? Answer::ok : Answer::yes;
}

Answer escapeAnswer(Buttons buttons) {
  switch (buttons) {
    case Buttons::ok:
      return Answer::ok;
    case Buttons::yesNo:
      return Answer::no;
    case Buttons::okCancel:
    case Buttons::yesNoCancel:
      break;
  }
  return Answer::cancel;
}

std::string toText(Icon icon) {
  switch (icon) {
    case Icon::none:
      return "";
    case Icon::information:
      return "information";
    case Icon::question:
      return "question";
    case Icon::exclamation:
      return "exclamation";
    case Icon::critical:
      return "critical";
  }
  return "";
}

std::string toText(Answer answer) {
  switch (answer) {
    case Answer::ok:
      return "OK";
    case Answer::cancel:
      return "Cancel";
    case Answer::yes:
      return "Yes";
    case Answer::no:
      return "No";
  }
  return "";
}

}  // namespace forms
