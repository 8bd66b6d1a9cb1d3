#include "app/StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <system_error>

#include "base/Error.h"

namespace app {
namespace {

std::atomic<int> failure = 0;  // the number of the system's first error

std::string reason(int errorNumber) { return std::system_category().message(errorNumber) + "."; }

/// How many bytes were written; below 0: none, and errno says why.
ssize_t writeSome(std::string_view text) {
  ssize_t written = -1;
  do {
    written = ::write(STDOUT_FILENO, text.data(), text.size());
  } while (written < 0 && errno == EINTR);
  return written;
}

}  // namespace

void print(std::string_view text) {
  while (!text.empty() && failure == 0) {
    const ssize_t written = writeSome(text);
    if (written < 0) {
      failure = errno;
    } else {
      text.remove_prefix(static_cast<std::size_t>(written));
    }
  }
}

std::string outputFailure() {
  return failure == 0 ? "" : "standard output can't be written: " + reason(failure);
}

std::string readInput(std::size_t most) {
  std::string all(most, '\0');
  std::size_t length = 0;
  while (length < most) {
    const ssize_t got = read(STDIN_FILENO, all.data() + length, most - length);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) throw base::FileError("it can't be read: " + reason(errno));
    if (got == 0) break;
    length += static_cast<std::size_t>(got);
  }
  all.resize(length);
  return all;
}

void keepStandardStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(stream, F_GETFD) >= 0) continue;
    // The lowest free number is this one. Opened the wrong way round, so that its use still fails.
    static_cast<void>(open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
  }
}

}  // namespace app
