#include "trial/Play.h"

namespace trial {

Ending play(const Script& script, simulator::Trial& trial) {
  try {
    for (const auto& [at, act] : script.acts) trial.act(at, act);
    return {trial.runToRest(), {}};
  } catch (const runtime::EndlessLoop& loop) {
    return {false, loop.what()};
  }
}

}  // namespace trial
