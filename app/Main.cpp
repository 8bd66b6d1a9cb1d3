#include <algorithm>
#include <exception>
#include <string>

#include "answers/ErrorWords.h"
#include "app/CommandLine.h"
#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"

namespace {

int runOrTell(int argc, char** argv) {
  try {
    return app::run(argc, argv);
  } catch (const std::exception& error) {
    app::reportLine(answers::wordsOf(error));
    return app::exitStatus::refused;
  }
}

}  // namespace

int main(int argc, char** argv) {
  app::keepStandardStreams();
  const int status = runOrTell(argc, argv);
  const std::string failure = app::outputFailure();
  if (failure.empty()) return status;
  app::reportLine(failure);
  return std::max(status, app::exitStatus::refused);
}
