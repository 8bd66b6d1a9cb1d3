#include "app/Schema.h"

#include "answers/Schema.h"
#include "app/Environment.h"
#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "base/Json.h"
#include "host/Error.h"

namespace app {

int printSchema(const SchemaOptions& options) {
  try {
    const trellisar::DeviceLibrary library(options.library.value_or(dataFolder() / "library"));
    print(base::jsonText(answers::schema(library)));
    return exitStatus::ok;
  } catch (const host::Error& error) {
    reportLine(error.description());
    return exitStatus::wrongInput;
  }
}

}  // namespace app
