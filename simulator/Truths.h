#pragma once

#include <optional>
#include <string>

#include "simulator/Act.h"
#include "simulator/Room.h"
#include "simulator/Trial.h"

namespace simulator {

/// What must be true of every room.
enum class Truth {
  nothingIsLost,        // no command to the display is lost
  mainsStay,            // the display's mains never go while it is on or cooling
  contactFrees,         // at rest, contact closed and no lock by the help desk: nothing is locked
  offIsOff,             // at rest, switched off: display off, relay open, screen and lift up
  onIsOn,               // at rest, switched on: display shows the source, screen and lift down
  contactForbids,       // what the contact forbids can't be switched on by buttons
  comesToRest,          // every act comes to rest within a day
  helpDeskIsToldRight,  // at rest, what the help desk was told agrees with the room
};

/// A truth in a sentence: `no command to the display is lost`.
std::string inWords(Truth truth);

/// What can't be seen in the room itself: what its help desk was told, and did.
struct HelpDeskView {
  enum class Told : char { nothing, yes, no };

  Told isOn = Told::nothing;
  Told isLocked = Told::nothing;
  int displayState = -1;  // 0 off, 1 on, 2 warming, 3 cooling; -1: was not told
  bool hasLocked = false;

  bool operator==(const HelpDeskView&) const = default;
};

/// What a fault is about, and so what mends it.
enum class Concern {
  warmUp,        // the display warms up when a command comes
  coolDown,      // or when its mains go
  mains,         // the display has none
  displayPower,  // it is off or on when it should not be
  relay,
  screen,
  lift,
  rgbSource,
  compositeSource,
  lock,
  endless,
  helpDesk,
};

/// A fault: which truth does not hold, and how it shows.
struct Fault {
  Fault(Truth itsTruth, Concern itsConcern, std::string itsWords);

  Truth truth;
  Concern concern;
  std::string what;  // `Display Device does not take On: it warms up`

  auto operator<=>(const Fault&) const = default;
};

/// The contact that may forbid to switch the room on.
inline constexpr std::string_view contactInput = "Digital Input 2";

/// What this room is made of, as far as the truths ask.
class Truths {
 public:
  /// Both outlive it.
  Truths(const runtime::Machine& machine, const Room& room);

  /// Takes note of what the lines from `first` on told the help desk, and of what it did.
  void watch(const runtime::Trace& trace, std::size_t first, HelpDeskView& view) const;
  void watch(const Act& act, HelpDeskView& view) const;
  /// Whether the help desk is told something by that command that the truths look at.
  static bool tells(std::string_view command);

  /// The fault that a line is; nothing for most lines.
  std::optional<Fault> faultOf(const runtime::Line& line) const;
  /// What does not hold now, at rest.
  std::vector<Fault> faultsAtRest(const HelpDeskView& view) const;
  /// Whether the contact forbids to switch the room on, now.
  bool isForbidden() const;
  bool isSwitchedOn() const { return machine_.level(wiring_.receiver().poweredOn); }

 private:
  void checkLocks(const HelpDeskView& view, std::vector<Fault>& faults) const;
  void checkOff(std::vector<Fault>& faults) const;
  void checkOn(std::vector<Fault>& faults) const;
  void checkSource(std::vector<Fault>& faults) const;
  void checkHelpDesk(const HelpDeskView& view, std::vector<Fault>& faults) const;
  bool isContactClosed() const { return machine_.level(contact_); }

  const runtime::Machine& machine_;
  const Room& room_;
  const runtime::Wiring& wiring_;
  Place monitoring_;
  Place relay_;
  runtime::SignalPlace contact_;  // that of digital input 2
  bool isContactUsed_;
};

}  // namespace simulator
