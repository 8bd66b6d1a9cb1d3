#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tests {

/// What is fed with any bytes: it may refuse them with the error that its callers expect, and with
/// nothing else.
using FuzzTarget = void (*)(std::string_view bytes);

/// By name: settings, system, library, answers, archive, protocol, project, preferences, table,
/// program, and structure, which changes a valid file of one of the others by what the bytes
/// decide.
const std::map<std::string, FuzzTarget>& fuzzTargets();

}  // namespace tests
