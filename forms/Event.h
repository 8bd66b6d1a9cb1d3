#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "forms/Error.h"

namespace forms {

/// Shows the text of an error that left an event handler (critical, OK), or drops it where no
/// application runs.
void reportHandlerError(const Error& error);

class EventBase;

/// What an event and the subscription of one of its listeners share; without an event the
/// connection has ended.
struct Connected {
  EventBase* event;
};

/// An event for those that do not know its arguments.
class EventBase {
 public:
  EventBase() = default;
  EventBase(const EventBase&) = delete;
  EventBase& operator=(const EventBase&) = delete;

 protected:
  ~EventBase() = default;
  /// Made in this library, so that nothing of a listener's library is left when it is unloaded.
  std::shared_ptr<Connected> makeConnected();

 private:
  friend class Subscription;
  virtual void drop(const std::shared_ptr<Connected>& connected) = 0;
};

/// Keeps one listener of an event connected; dropping it ends the connection, and the event keeps
/// nothing of the listener. It may outlive the event.
class Subscription {
 public:
  Subscription() = default;
  explicit Subscription(std::shared_ptr<Connected> connected) : connected_(std::move(connected)) {}
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
    const auto connected = std::exchange(connected_, nullptr);
    if (!connected) return;
    if (EventBase* event = std::exchange(connected->event, nullptr)) event->drop(connected);
  }

 private:
  std::shared_ptr<Connected> connected_;
};

/// An event of a control, a form or a host object. Handlers run in the order in which they were
/// connected. An error that leaves one is shown to the user, and the next one runs: raising an
/// event never fails.
///
///     cmdNext.click.connect([this] { cmdNext_Click(); });
template <typename... Arguments>
class Event : public EventBase {
 public:
  using Handler = std::function<void(Arguments...)>;

  Event() = default;
  ~Event() {
    for (const Connection& connection : connections_) {
      if (connection.connected) connection.connected->event = nullptr;
    }
  }

  /// Connects for the life of the event: for a handler of the object that owns the control.
  void connect(Handler handler) { connections_.push_back({std::move(handler), nullptr}); }

  /// Connects until the subscription is dropped: for a listener that may go before the event does.
  [[nodiscard]] Subscription listen(Handler handler) {
    auto connected = makeConnected();
    connections_.push_back({std::move(handler), connected});
    return Subscription(connected);
  }

  void raise(Arguments... arguments) {
    const auto connections = connections_;  // a handler may connect, or end, another one
    for (const Connection& connection : connections) {
      if (connection.connected && !connection.connected->event) continue;
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
    std::shared_ptr<Connected> connected;  // empty: for the life of the event
  };

  void drop(const std::shared_ptr<Connected>& connected) override {
    const auto place = std::find_if(connections_.begin(), connections_.end(),
                                    [&](const Connection& c) { return c.connected == connected; });
    if (place == connections_.end()) return;
    const Handler ended = std::move(place->handler);  // what goes with it may end others
    connections_.erase(place);
  }

  std::vector<Connection> connections_;
};

}  // namespace forms
