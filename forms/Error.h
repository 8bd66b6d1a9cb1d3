#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

namespace forms {

/// What an operation raises that cannot do what it was asked: a number for programs and a
/// description for people. Event dispatch shows the description of an error that leaves a handler,
/// and goes on.
class Error : public std::runtime_error {
 public:
  Error(std::int32_t number, const std::string& description)
      : std::runtime_error(description), number_(number) {}

  std::int32_t number() const { return number_; }
  std::string description() const { return what(); }

 private:
  std::int32_t number_;
};

/// The numbers of the errors that this layer raises itself.
namespace errors {
inline constexpr std::int32_t invalidCall = 5;
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t indexOutOfRange = 9;
inline constexpr std::int32_t typeMismatch = 13;
inline constexpr std::int32_t fileNotFound = 53;
inline constexpr std::int32_t pathNotFound = 76;
inline constexpr std::int32_t objectNotSet = 91;
inline constexpr std::int32_t controlNotFound = 344;
inline constexpr std::int32_t cannotCreateObject = 429;
inline constexpr std::int32_t noSuchMember = 438;
inline constexpr std::int32_t nameInUse = 457;
}  // namespace errors

/// Runs one statement and drops the error that it raises. Errors are ignored statement by
/// statement: what stands behind the one that failed still runs, so each statement has its own
/// call.
template <typename Statement>
void ignoringErrors(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
  } catch (const Error&) {
  }
}

}  // namespace forms
