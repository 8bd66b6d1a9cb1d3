#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace receiver {

/// The port of a receiver whose address names none.
inline constexpr std::uint16_t defaultPort = 47210;

/// Where a receiver is reached, or where it listens.
struct Address {
  std::string host;  // a name, an IPv4 address, or an IPv6 address without brackets
  std::uint16_t port = defaultPort;

  /// Whether port 0 may stand in an address: it lets a receiver that listens take any free port.
  enum class Zero { refused, allowed };

  /// Reads `HOST` or `HOST:PORT`, with or without "tcp " in front; an IPv6 address stands in
  /// brackets. Blanks around it do not count. The host is not looked up. Raises Error for any other
  /// text.
  ///
  ///     Address::parse("tcp 192.168.1.20")  ->  192.168.1.20, defaultPort
  ///     Address::parse("[fe80::1]:5000")    ->  fe80::1, 5000
  static Address parse(std::string_view text, Zero zero = Zero::refused);

  /// `HOST:PORT`; parse gives it back.
  std::string text() const;

  bool operator==(const Address&) const = default;
};

}  // namespace receiver
