#include <gtest/gtest.h>

#include "tests/support/Golden.h"
#include "tests/support/Shipped.h"
#include "trellisar/document/SystemFile.h"

namespace tests {
namespace {

using Form = trellisar::Definition::Form;

trellisar::DefinitionPtr shippedNow(const trellisar::Definition& stored) {
  const auto library = shippedLibrary();
  if (stored.form == Form::receiver) return library->findReceiver(stored.modelId);
  return stored.controlEntry != 0 ? library->findEntry(stored.controlEntry)
                                  : library->findInterface(stored.modelId);
}

/// A change of the system file's form or of what the library says of their devices is renewed like
/// a golden.
TEST(TemplateSystems, AreWrittenAsTheyLieThereWithTheDevicesOfTheLibrary) {
  for (const std::string name : {"Orlena TEMPLATE", "Orlena EXAMPLE"}) {
    const auto file = dataFolder() / "TemplateSystems" / name / (name + ".tsy");
    const auto system = trellisar::readSystemFile(file, shippedLibrary());
    for (const auto& device : system->everyDevice()) {
      device->definition = shippedNow(*device->definition);
      ASSERT_NE(device->definition, nullptr) << device->name;
    }
    expectGolden("templates", file, trellisar::systemFileText(*system));
  }
}

}  // namespace
}  // namespace tests
