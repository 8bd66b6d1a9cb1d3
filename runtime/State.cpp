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
  void add(const Release& release) { add(release.send->to); }
  void add(const GoesOff& level) { add(static_cast<std::size_t>(level.signal)); }
  void add(const PortDue& port) { add(static_cast<std::size_t>(port.unit)); }

  std::size_t value() const { return value_; }

 private:
  std::size_t value_ = 0;
};

}  // namespace

std::size_t State::hash() const {
  Hash hash;
  hash.add(levels);
  hash.add(switches);
  hash.add(static_cast<std::size_t>(volume) * 4 + (isLocked ? 2U : 0U) + (isMuted ? 1U : 0U));
  for (const Deadline& deadline : deadlines) {
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
