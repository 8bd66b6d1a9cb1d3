#pragma once

#include <utility>

#include "base/Error.h"
#include "host/Error.h"

namespace trellisar {

/// Does the work, and raises as host::Error, errFile or errBadFile, what `base/` raises in it.
template <typename Work>
auto raisingHostErrors(Work&& work) {
  try {
    return std::forward<Work>(work)();
  } catch (const base::FileError& error) {
    throw host::Error(host::errFile, error.what());
  } catch (const base::ContentError& error) {
    throw host::Error(host::errBadFile, error.what());
  }
}

}  // namespace trellisar
