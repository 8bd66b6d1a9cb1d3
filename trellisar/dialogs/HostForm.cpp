#include "trellisar/dialogs/HostForm.h"

#include <utility>

#include "forms/Application.h"

namespace trellisar {
namespace {

constexpr forms::Twips margin = 150;
constexpr forms::Twips anyHeight = 1000;

}  // namespace

HostForm::HostForm(std::string name, const std::string& caption, std::int16_t helpTopic)
    : Form(std::move(name)) {
  setCaption(caption);
  setHelpContext(helpTopic);
  cmdHelp.setVisible(helpTopic != 0);
  cmdHelp.click.connect([this] { showHelp(); });
}

void HostForm::showHelp() {
  forms::Application& application = forms::Application::current();
  application.desktop().showHelp(windowHandle(), application.helpFile(), helpContext());
}

void HostForm::layOutAbove(const std::vector<forms::Control*>& buttons, forms::Twips width,
                           forms::Pieces pieces) {
  forms::Pieces last;
  if (helpContext() != 0) last.push_back(forms::item(cmdHelp));
  last.push_back(forms::spring());
  for (forms::Control* button : buttons) last.push_back(forms::item(*button));
  pieces.push_back(forms::gap(margin));
  pieces.push_back(forms::row(std::move(last)));
  const forms::Twips height =
      forms::layOut({margin, margin, width, anyHeight}, std::move(pieces)) + 2 * margin;
  const forms::Size frame{size().width - innerSize().width, size().height - innerSize().height};
  setSize({width + 2 * margin + frame.width, height + frame.height});
}

}  // namespace trellisar
