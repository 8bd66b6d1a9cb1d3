#pragma once

#include <string>

namespace trellisar {

/// How a receiver stands in its network. Each text may be empty: it is not known.
struct IPSettings {
  std::string address;  // IPv4, like the next two
  std::string mask;     // of the network that the address is in
  std::string gateway;
  std::string hostName;

  /// Where these settings say that the receiver is: at its address or else under its name; empty:
  /// they say nothing.
  const std::string& place() const { return address.empty() ? hostName : address; }

  bool operator==(const IPSettings&) const = default;
};

/// What is wrong with settings: a sentence for a user, and the text that it is about.
struct IPSettingsFault {
  enum class Place { none, address, mask, gateway, hostName };

  Place place = Place::none;
  std::string message;
};

/// The first fault; one at no place when there is none.
IPSettingsFault faultOf(const IPSettings& settings);

}  // namespace trellisar
