#include "trellisar/settings/IPSettings.h"

#include <arpa/inet.h>

#include <bit>
#include <cstdint>
#include <optional>

#include "receiver/Address.h"
#include "receiver/Error.h"

namespace trellisar {
namespace {

using Place = IPSettingsFault::Place;

std::optional<std::uint32_t> readIPv4(const std::string& text) {
  in_addr address{};
  if (inet_pton(AF_INET, text.c_str(), &address) != 1) return std::nullopt;
  return ntohl(address.s_addr);
}

/// Whether one device can have the address: not "this network", a group of devices or all of them.
bool isOfOneDevice(std::uint32_t address) {
  constexpr std::uint32_t firstGroup = 224;
  const std::uint32_t network = address >> 24U;
  return network > 0 && network < firstGroup;
}

bool isMask(std::uint32_t mask) {
  return mask != 0 && std::countl_one(mask) == std::popcount(mask);
}

bool isHostName(const std::string& name) {
  try {
    return receiver::Address::parse(name).host == name;
  } catch (const receiver::Error&) {
    return false;
  }
}

IPSettingsFault badDeviceAddress(Place place, const std::string& what, const std::string& text) {
  return {place, "\"" + text + "\" is not " + what +
                     ". Type four numbers from 0 to 255 with points between them, such as "
                     "192.168.1.20."};
}

/// For settings with an address and a mask that can be read.
IPSettingsFault faultOfGateway(const IPSettings& settings, std::uint32_t address,
                               std::uint32_t mask) {
  const auto gateway = readIPv4(settings.gateway);
  if (!gateway || !isOfOneDevice(*gateway)) {
    return badDeviceAddress(Place::gateway, "the IP address of a gateway", settings.gateway);
  }
  if ((*gateway & mask) == (address & mask) && *gateway != address) return {};
  return {Place::gateway, "The receiver at " + settings.address + " does not reach the gateway " +
                              settings.gateway + " with the subnet mask " + settings.mask +
                              ". Type another address of the same network."};
}

IPSettingsFault faultOfNetwork(const IPSettings& settings) {
  if (settings.address.empty()) {
    return {Place::address,
            "A subnet mask or a gateway means nothing without the receiver's IP address. Type the "
            "address, or empty both boxes."};
  }
  const auto mask = readIPv4(settings.mask);
  if (!mask || !isMask(*mask)) {
    return {Place::mask, settings.mask.empty()
                             ? "The gateway needs the network's subnet mask. Type it, such as "
                               "255.255.255.0, or empty the gateway's box."
                             : "\"" + settings.mask +
                                   "\" is not a subnet mask. Type one such as 255.255.255.0."};
  }
  if (settings.gateway.empty()) return {};
  return faultOfGateway(settings, *readIPv4(settings.address), *mask);
}

}  // namespace

IPSettingsFault faultOf(const IPSettings& settings) {
  if (!settings.address.empty()) {
    const auto address = readIPv4(settings.address);
    if (!address || !isOfOneDevice(*address)) {
      return badDeviceAddress(Place::address, "the IP address of a receiver", settings.address);
    }
  }
  if (!settings.mask.empty() || !settings.gateway.empty()) {
    const IPSettingsFault fault = faultOfNetwork(settings);
    if (fault.place != Place::none) return fault;
  }
  if (settings.hostName.empty() || isHostName(settings.hostName)) return {};
  return {Place::hostName, "\"" + settings.hostName +
                               "\" is not a host name. Use letters, digits, hyphens and points."};
}

}  // namespace trellisar
