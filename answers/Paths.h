#pragma once

#include <string>
#include <utility>

#include "base/Json.h"

namespace answers {

/// The object that holds the key of a path such as "display.relay.on_delay", and the key. Objects
/// on the way that are missing are made.
std::pair<base::Json*, std::string> placeOf(base::Json& answers, std::string path);

/// Whether there is an answer at a path, which may name an element: "transmitters[1].label".
bool isAnswered(const base::Json& answers, const std::string& path);

/// Takes out the answer at a path, of an array the whole; where it is missing, the object that it
/// is missing in. False where that is missing too.
bool takeOut(base::Json& answers, const std::string& path);

}  // namespace answers
