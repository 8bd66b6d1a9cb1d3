#include <cstdio>
#include <cstdlib>
#include <exception>

#include "app/AddIn.h"
#include "app/Environment.h"
#include "app/PagePrinter.h"
#include "app/WindowModule.h"
#include "forms/Application.h"
#include "forms/Paths.h"

namespace {

/// What `orlena wizard` does until its window has been drawn for the first time.
void openWizard() {
  forms::FrontEnd* windows = app::frontEnd();
  if (!windows) throw std::runtime_error("the windows are not built");
  forms::Desktop* desktop = nullptr;
  const auto opened = windows->makeDesktop({.memory = {},
                                            .formShown =
                                                [&] {
                                                  desktop->processEvents();
                                                  std::_Exit(0);
                                                },
                                            .noDisplay = {}});
  desktop = opened.get();
  forms::Application application(*desktop, forms::fromMachinePath(app::dataFolder()));
  trellisar::Host host({.dataFolder = app::dataFolder(), .printer = app::reportPrinter()});
  app::AddIn(host).runOnNewSystem();
}

}  // namespace

int main() {
  try {
    openWizard();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
  }
  return 1;
}
