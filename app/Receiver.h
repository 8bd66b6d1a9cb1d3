#pragma once

#include <filesystem>
#include <string>

namespace app {

struct ReceiverOptions {
  std::string listen;                         // HOST:PORT; empty: the receiver's own
  std::filesystem::path folder = "receiver";  // where it keeps what it is sent
};

/// The receiver stand-in. Prints where it listens, and serves until SIGTERM or SIGINT. Answers the
/// exit status.
int runReceiver(const ReceiverOptions& options);

}  // namespace app
