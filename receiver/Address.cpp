#include "receiver/Address.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "receiver/Error.h"
#include "receiver/Network.h"

namespace receiver {
namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr std::size_t longestName = 253;

[[noreturn]] void refuse(std::string_view text, const std::string& why) {
  throw Error("\"" + std::string(text) + "\" is not the address of a receiver: " + why +
              " Write it as 192.168.1.20, 192.168.1.20:" + std::to_string(defaultPort) +
              " or [fe80::1]:" + std::to_string(defaultPort) + ".");
}

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool isLetterOrDigit(char c) {
  return (lower(c) >= 'a' && lower(c) <= 'z') || (c >= '0' && c <= '9');
}

std::string_view withoutKind(std::string_view text) {
  constexpr std::string_view kind = "tcp";
  const bool named = text.size() > kind.size() &&
                     blanks.find(text[kind.size()]) != std::string_view::npos &&
                     std::equal(kind.begin(), kind.end(), text.begin(),
                                [](char a, char b) { return a == lower(b); });
  return named ? trimmed(text.substr(kind.size())) : text;
}

bool isIpv4(const std::string& host) {
  asio::error_code error;
  asio::ip::make_address_v4(host, error);
  return !error;
}

bool isIpv6(const std::string& host) {
  asio::error_code error;
  asio::ip::make_address_v6(host, error);
  return !error;
}

bool isName(std::string_view host) {
  return host.size() <= longestName && isLetterOrDigit(host.front()) &&
         std::ranges::all_of(
             host, [](char c) { return isLetterOrDigit(c) || c == '-' || c == '.' || c == '_'; });
}

bool isNumeric(std::string_view host) {
  return host.find_first_not_of("0123456789.") == std::string_view::npos;
}

std::uint16_t readPort(std::string_view digits, std::string_view text, Address::Zero zero) {
  std::uint16_t port = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), port);
  const bool whole = error == std::errc() && end == digits.data() + digits.size();
  if (!whole || (port == 0 && zero == Address::Zero::refused)) {
    refuse(text, "the port must be a number from " +
                     std::string(zero == Address::Zero::refused ? "1" : "0") + " to " +
                     std::to_string(std::numeric_limits<std::uint16_t>::max()) + ".");
  }
  return port;
}

void checkHost(const std::string& host, std::string_view text) {
  if (host.empty()) refuse(text, "it names no host.");
  if (isNumeric(host) ? !isIpv4(host) : !isName(host)) {
    refuse(text, "\"" + host + "\" is neither a host's name nor an IPv4 address.");
  }
}

}  // namespace

Address Address::parse(std::string_view text, Zero zero) {
  const std::string_view place = withoutKind(trimmed(text));
  Address address;
  std::string_view rest;
  if (place.starts_with('[')) {
    const auto end = place.find(']');
    if (end == std::string_view::npos) refuse(text, "the closing bracket is missing.");
    address.host = place.substr(1, end - 1);
    if (!isIpv6(address.host)) refuse(text, "what stands in brackets is not an IPv6 address.");
    rest = place.substr(end + 1);
    if (!rest.empty() && rest.front() != ':') refuse(text, "a colon must follow the bracket.");
  } else {
    if (std::ranges::count(place, ':') > 1) refuse(text, "an IPv6 address stands in brackets.");
    const auto colon = std::min(place.find(':'), place.size());
    address.host = place.substr(0, colon);
    checkHost(address.host, text);
    rest = place.substr(colon);
  }
  if (!rest.empty()) address.port = readPort(rest.substr(1), text, zero);
  return address;
}

std::string Address::text() const {
  const bool brackets = host.find(':') != std::string::npos;
  return (brackets ? "[" + host + "]" : host) + ":" + std::to_string(port);
}

}  // namespace receiver
