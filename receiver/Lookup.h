#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "receiver/Address.h"
#include "receiver/Network.h"

namespace receiver {

using Endpoints = std::vector<asio::ip::tcp::endpoint>;

/// Finds the endpoints of an address and calls `found` from the context, never from within: with
/// the endpoints, or with none and the reason. The machine's look-up of a name cannot be broken
/// off, so it has a thread of its own, which nobody waits for.
void lookUp(const std::shared_ptr<asio::io_context>& context, const Address& address,
            std::function<void(const Endpoints&, const std::string& reason)> found);

}  // namespace receiver
