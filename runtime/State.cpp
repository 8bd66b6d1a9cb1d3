#include <functional>

#include "runtime/Machine.h"

namespace runtime {
namespace {

/// What makes a difference to how a machine goes on: times count from now, and what led to
/// something does not matter.
class Hash {
 public:
  void add(std::size_t value) {
    value_ = (value_ ^ value) * 0x9E3779B97F4A7C15U;
    value_ ^= value_ >> 29U;
  }
  void add(const void* place) { add(std::hash<const void*>{}(place)); }
  void add(std::string_view text) { add(std::hash<std::string_view>{}(text)); }
  void add(const std::vector<char>& flags) { add(std::string_view(flags.data(), flags.size())); }

  void add(const Run& run) {
    for (const Run::Frame& frame : run.frames) {
      add(frame.code);
      add(frame.next * 2 + (frame.isTurn ? 1 : 0));
    }
  }
  void add(const Begin& begin) { add(begin.event); }
  void add(const Release&) {}
  void add(const GoesOff& level) { add(static_cast<std::size_t>(level.signal)); }
  void add(const PortDue& port) { add(static_cast<std::size_t>(port.unit)); }

  std::size_t value() const { return value_; }

 private:
  std::size_t value_ = 0;
};

}  // namespace

std::size_t State::hash(const std::vector<char>& signalsThatMatter) const {
  Hash hash;
  for (std::size_t i = 0; i < levels.size(); ++i) {
    if (signalsThatMatter[i]) hash.add(static_cast<std::size_t>(levels[i]));
  }
  hash.add(switches);
  hash.add(static_cast<std::size_t>(isLocked));  // nothing depends on volume and mute
  for (const Deadline& deadline : deadlines) {
    if (std::holds_alternative<Release>(deadline.work.what)) continue;
    hash.add(static_cast<std::size_t>(deadline.at - now));
    hash.add(deadline.work.what.index());
    std::visit([&](const auto& what) { hash.add(what); }, deadline.work.what);
  }
  for (const Waiting& waiting : line) {
    hash.add(static_cast<std::size_t>(waiting.preset));
    hash.add(waiting.run);
  }
  hash.add(static_cast<std::size_t>(turn));
  return hash.value();
}

}  // namespace runtime
