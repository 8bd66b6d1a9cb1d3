#include <exception>

#include "app/CommandLine.h"
#include "app/ExitStatus.h"
#include "app/RunReport.h"

int main(int argc, char** argv) {
  try {
    return app::run(argc, argv);
  } catch (const std::exception& error) {
    app::reportLine(error.what());
    return app::exitStatus::refused;
  }
}
