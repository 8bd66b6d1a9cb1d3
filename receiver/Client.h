#pragma once

#include <string>

#include "receiver/Address.h"
#include "receiver/Messages.h"
#include "receiver/Outcome.h"

/// Short questions to a receiver. Each call waits for the answer, at most as long as both limits
/// together, and raises nothing: what goes wrong is in the outcome.
namespace receiver {

/// Sets the password of the user `userName`; an empty one clears it.
Outcome setPassword(const Address& address, const std::string& password, TimeLimits limits = {});

/// Done when it is the one that is set, or when none is set; otherwise failed.
Outcome checkPassword(const Address& address, const std::string& password, TimeLimits limits = {});

/// Changes these properties of the program and leaves the others. A name that did not come with the
/// program is refused, and nothing changes.
Outcome setProperties(const Address& address, const Properties& properties, TimeLimits limits = {});

/// `holdings` is set when the outcome is done.
Outcome query(const Address& address, Holdings& holdings, TimeLimits limits = {});

}  // namespace receiver
