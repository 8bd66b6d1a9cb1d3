#include "trellisar/window/ComponentRegistration.h"

#include "trellisar/library/HostErrors.h"

#include "base/FileIO.h"
#include "base/Json.h"

namespace trellisar {
namespace {

constexpr const char* registrationFormat = "trellisar-components";
constexpr base::JsonLimits registrationLimits{1U << 20U, 10, 100};

}  // namespace

std::vector<RegisteredClass> readRegistration(const std::filesystem::path& registration) {
  return raisingHostErrors([&] {
    const std::string shown = registration.filename().string();
    const base::Json json =
        base::parseJson(base::readFile(registration), shown, registrationLimits);
    base::JsonReader reader(json, shown);
    if (reader.at("format").text() != registrationFormat) reader.fail("is another file");
    reader.at("version").integer(1, 1);
    std::vector<RegisteredClass> classes;
    reader.at("components").each([&](base::JsonReader item) {
      const std::string name = item.at("class").text();
      const std::string library = item.at("library").text();
      item.finish();
      if (name.empty()) item.fail("names no class");
      if (library.empty()) item.fail("names no library");
      for (const RegisteredClass& other : classes) {
        if (other.name == name) item.fail("the class \"" + name + "\" is registered twice");
      }
      classes.push_back({name, registration.parent_path() / library});
    });
    reader.finish();
    return classes;
  });
}

}  // namespace trellisar
