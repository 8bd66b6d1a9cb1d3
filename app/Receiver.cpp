#include "app/Receiver.h"

#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "receiver/Error.h"
#include "receiver/Server.h"

namespace app {

int runReceiver(const ReceiverOptions& options) {
  try {
    receiver::Server::Options serving;
    if (!options.listen.empty()) {
      serving.listen = receiver::Address::parse(options.listen, receiver::Address::Zero::allowed);
    }
    serving.folder = options.folder;
    serving.stopOnSignals = true;
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
