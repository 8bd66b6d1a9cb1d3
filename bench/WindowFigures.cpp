#include <cstdlib>

#include "bench/Figure.h"
#include "bench/Process.h"

namespace bench {
namespace {

std::vector<Side> firstFrame() {
  setenv("QT_QPA_PLATFORM", "offscreen", /*overwrite=*/1);
  return {{"the wizard until its first frame", [] { return costOfProcesses({{ORLENA_WIZARD}}); }},
          {"an empty window of its size", [] { return costOfProcesses({{ORLENA_EMPTY_WINDOW}}); }}};
}

}  // namespace

std::vector<Figure> windowFigures() {
  return {{"first frame", {Aim::Bound::atMost, 2}, 101, firstFrame}};
}

}  // namespace bench
