#pragma once

#include <vector>

#include "runtime/Wiring.h"
#include "simulator/Act.h"

namespace simulator {

/// What of a program can have a part in whether the truths hold. The rest (volume and mute, buttons
/// without an effect, contacts that are only passed on) is left out of a search for faults, which
/// finds the same ones without it.
class Influence {
 public:
  /// The wiring outlives it.
  explicit Influence(const runtime::Wiring& wiring);

  bool matters(const Act& act) const;
  /// By signal, as runtime::State::hash takes it.
  const std::vector<char>& signals() const { return signals_; }

 private:
  void findPresets();
  bool findSignals();
  void addTested(const runtime::Code& code);
  bool matters(const runtime::Delivery& command) const;
  bool matters(const runtime::Code& code) const;
  bool matters(runtime::SignalPlace signal) const;

  const runtime::Wiring& wiring_;
  std::vector<char> presets_;
  std::vector<char> signals_;
};

}  // namespace simulator
