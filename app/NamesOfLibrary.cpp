#include "app/NamesOfLibrary.h"

#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "base/Error.h"
#include "base/FileIO.h"
#include "host/Error.h"
#include "trellisar/library/DeviceLibrary.h"

namespace app {

int listNames(const LibraryOptions& options) {
  using trellisar::NameListFor;
  try {
    const trellisar::DeviceLibrary library(options.folder);
    library.check();
    const auto file = trellisar::nameListFile(library.folder());
    base::replaceFile(file, trellisar::nameListText(
                                library.folder(),
                                options.forCopies ? NameListFor::copies : NameListFor::thisPlace));
    print(file.string() + "\n");
    return exitStatus::ok;
  } catch (const host::Error& error) {
    reportLine(error.description());
    return exitStatus::wrongInput;
  } catch (const base::Error& error) {
    reportLine(error.what());
    return exitStatus::refused;
  }
}

}  // namespace app
