#include "trellisar/dialogs/Messages.h"

#include "forms/Application.h"

namespace trellisar {

void showFailure(const std::string& text) {
  forms::Application::current().messageBox(text, forms::Buttons::ok, forms::Icon::exclamation);
}

}  // namespace trellisar
