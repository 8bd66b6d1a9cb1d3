#pragma once

#include "forms/Error.h"

namespace tests {

/// The error that an act raises; number 0 without a description when it raises none.
template <typename Act>
forms::Error raisedBy(Act&& act) {
  try {
    act();
  } catch (const forms::Error& error) {
    return error;
  }
  return {0, ""};
}

}  // namespace tests
