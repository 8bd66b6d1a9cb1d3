#include "program/Cast.h"

#include <array>
#include <string_view>

namespace program {
namespace {

struct Part {
  std::string_view name;
  Role role;
};

constexpr std::array deviceParts{Part{"Power Relay", Role::powerRelay},
                                 Part{"Motion Detector", Role::motionDetector},
                                 Part{"Kestrum Interface", Role::monitoring},
                                 Part{"Display Device", Role::display},
                                 Part{"Screen", Role::screen},
                                 Part{"Lift", Role::lift}};

constexpr std::array moduleParts{Part{"PWRTIMEOUT", Role::lockout},
                                 Part{"PWRSENSE", Role::sensing}};

template <std::size_t size>
Role partNamed(const std::array<Part, size>& parts, std::string_view name) {
  for (const Part& part : parts) {
    if (part.name == name) return part.role;
  }
  return Role::other;
}

}  // namespace

Role roleOf(const Unit& unit) {
  const std::string_view name = unit.name;
  switch (unit.kind) {
    case Unit::Kind::receiver:
      return Role::receiver;
    case Unit::Kind::panel:
      return Role::panel;
    case Unit::Kind::module:
      return partNamed(moduleParts, name.substr(name.rfind('/') + 1));
    case Unit::Kind::device:
      break;
  }
  return name.starts_with("Digital Input ") ? Role::contact : partNamed(deviceParts, name);
}

}  // namespace program
