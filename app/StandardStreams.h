#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace app {

/// Writes to standard output at once. What can't be written is told by `outputFailure`, so that the
/// work itself goes on and what it saves stays saved.
void print(std::string_view text);

/// Why something could not be printed, as a sentence; empty: everything was.
std::string outputFailure();

/// All that standard input holds, or its first `most` bytes. Raises base::FileError when it can't
/// be read.
std::string readInput(std::size_t most);

/// Lets standard streams that the program was started without stand empty, so that no file that it
/// opens takes the place of one and is written over.
void keepStandardStreams();

}  // namespace app
