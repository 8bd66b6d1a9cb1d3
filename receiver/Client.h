#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "receiver/Address.h"
#include "receiver/Messages.h"
#include "receiver/Outcome.h"

/// Short questions to a receiver, which raise nothing: what goes wrong is in the outcome. Each
/// function waits for the answer, at most as long as both limits together.
namespace receiver {

/// A question that goes on only while its owner calls `poll`, so that a window can follow its user
/// meanwhile.
class Request {
 public:
  Request(const Address& address, const Message& message, TimeLimits limits = {});
  /// Breaks off.
  ~Request();

  /// Waits at most so long. False once the outcome stands.
  bool poll(std::chrono::milliseconds wait);
  /// Breaks off; what the receiver has been told by then it may do all the same.
  void cancel();
  /// Polls to the end.
  Outcome wait();
  /// When the outcome is done.
  const Message& answer() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

/// As setPassword.
Request passwordRequest(const Address& address, const std::string& password,
                        TimeLimits limits = {});

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
