#pragma once

#include <cstdint>

#include "forms/Error.h"

namespace host {

/// What a host object raises when it fails: a number and a text that says what happened, to what,
/// and what to do.
using forms::Error;

enum enumHostError : std::int32_t {
  errBadArgument = 5,       // an argument that the operation can't take
  errUnknownKey = 9,        // a list has no item under the key
  errFile = 57,             // a file that can't be read or written
  errBadFile = 321,         // a file whose content is damaged, foreign or of another version
  errDocumentClosed = 424,  // the object belongs to a document or device that is gone
  errCannotCreate = 429,    // a class that can't be created by its program id
};

}  // namespace host
