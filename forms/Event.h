#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "forms/Error.h"

namespace forms {

/// Shows the text of an error that left an event handler (critical, OK), or drops it where no
/// application runs.
void reportHandlerError(const Error& error);

/// Keeps one listener of an event connected; dropping it ends the connection.
class Subscription {
 public:
  Subscription() = default;
  explicit Subscription(std::shared_ptr<bool> connected) : connected_(std::move(connected)) {}
  ~Subscription() { end(); }
  Subscription(Subscription&& other) noexcept = default;
  Subscription& operator=(Subscription&& other) noexcept {
    end();
    connected_ = std::move(other.connected_);
    return *this;
  }
  Subscription(const Subscription&) = delete;
  Subscription& operator=(const Subscription&) = delete;

  void end() {
    if (connected_) *connected_ = false;
    connected_.reset();
  }

 private:
  std::shared_ptr<bool> connected_;
};

/// An event of a control, a form or a host object. Handlers run in the order in which they were
/// connected. An error that leaves one is shown to the user, and the next one runs: raising an
/// event never fails.
///
///     cmdNext.click.connect([this] { cmdNext_Click(); });
template <typename... Arguments>
class Event {
 public:
  using Handler = std::function<void(Arguments...)>;

  /// Connects for the life of the event: for a handler of the object that owns the control.
  void connect(Handler handler) { connections_.push_back({std::move(handler), nullptr}); }

  /// Connects until the subscription is dropped: for a listener that may go before the event does.
  [[nodiscard]] Subscription listen(Handler handler) {
    auto connected = std::make_shared<bool>(true);
    connections_.push_back({std::move(handler), connected});
    return Subscription(connected);
  }

  void raise(Arguments... arguments) {
    std::erase_if(connections_, [](const Connection& c) { return c.connected && !*c.connected; });
    const auto connections = connections_;  // a handler may connect, or end, another one
    for (const Connection& connection : connections) {
      if (connection.connected && !*connection.connected) continue;
      try {
        connection.handler(arguments...);
      } catch (const Error& error) {
        reportHandlerError(error);
      }
    }
  }

 private:
  struct Connection {
    Handler handler;
    std::shared_ptr<bool> connected;  // empty: for the life of the event
  };
  std::vector<Connection> connections_;
};

}  // namespace forms
