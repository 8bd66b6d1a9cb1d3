#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace trellisar {

struct NamedAddress {
  std::string name;
  std::string address;  // as receiver::Address reads it

  bool operator==(const NamedAddress&) const = default;
};

/// The receivers that a user sends systems to. While there are some, one of them is in use.
struct AddressBook {
  std::vector<NamedAddress> receivers;
  std::size_t current = 0;  // place of the one in use, from 0

  /// Null while the book is empty.
  const NamedAddress* inUse() const {
    return current < receivers.size() ? &receivers[current] : nullptr;
  }

  bool operator==(const AddressBook&) const = default;
};

}  // namespace trellisar
