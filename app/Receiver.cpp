#include "app/Receiver.h"

#include <csignal>

#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "receiver/Error.h"
#include "receiver/Server.h"

namespace app {

int runReceiver(const ReceiverOptions& options) {
  try {
    // Whoever started it may have read the first line and gone.
    std::signal(SIGPIPE, SIG_IGN);
    receiver::Server::Options serving;
    if (!options.listen.empty()) {
      serving.listen = receiver::Address::parse(options.listen, receiver::Address::Zero::allowed);
    }
    serving.folder = options.folder;
    serving.stopOnSignals = true;
    serving.arrived = [](const std::string& line) { print(line + "\n"); };
    receiver::Server server(serving);
    if (!server.warning().empty()) reportLine(server.warning());
    print("listening on " + server.address().text() + "\n");
    server.run();
    return exitStatus::ok;
  } catch (const receiver::Error& error) {
    reportLine(error.what());
    return exitStatus::wrongInput;
  }
}

}  // namespace app
