#pragma once

#include <string>
#include <vector>

#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// What hangs on one terminal of the receiver: a port, a relay, an input, a link or an address in
/// the network.
struct Wire {
  enum class Side { source, target };  // what the room is told by, and what it acts on

  Definition::Connection connection = Definition::Connection::none;
  std::int16_t port = 0;  // 0: none that the receiver has
  std::string terminal;   // "Relay 2"; empty: none
  std::int16_t device = 0;
  std::string name;      // of the device
  std::string type;      // as the library calls it
  std::string label;     // the user's
  std::string use;       // what the wire is for: "Down", "closes: Volume_Mute_On"; empty: nothing
  std::string settings;  // "9600 baud", "10.0.0.9"
  std::string picture;   // a file of the host's pictures
  Side side = Side::target;
};

/// All wires of the room in the order of the receiver's back: links, network, ports, relays,
/// inputs. A device that takes several terminals has a wire for each, one behind the other.
std::vector<Wire> wiringOf(const DocumentData& document);

}  // namespace trellisar
