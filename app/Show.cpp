#include "app/Show.h"

#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "host/Error.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/document/SystemFile.h"

namespace app {

int show(const ShowOptions& options) {
  try {
    const auto document = trellisar::readSystemFile(options.systemFile, nullptr);
    print(options.asJson ? base::jsonText(trellisar::listing(*document))
                         : trellisar::readableText(*document));
    return exitStatus::ok;
  } catch (const host::Error& error) {
    reportLine(error.description());
    return exitStatus::wrongInput;
  }
}

}  // namespace app
