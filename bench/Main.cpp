#include <benchmark/benchmark.h>

#include <cstdio>
#include <exception>

#include "answers/UnattendedDesktop.h"
#include "app/Environment.h"
#include "app/RunReport.h"
#include "bench/Figure.h"
#include "forms/Application.h"
#include "forms/Paths.h"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  try {
    const app::RunReport report("bench");
    answers::UnattendedDesktop desktop(report);
    const forms::Application application(desktop, forms::fromMachinePath(app::dataFolder()));
    bench::registerFigures(bench::generatorFigures());
    bench::registerFigures(bench::fileFigures());
    bench::registerFigures(bench::processFigures());
#ifdef ORLENA_WIZARD
    bench::registerFigures(bench::windowFigures());
#endif
    return bench::runFigures() ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
