#include "vmAOR/EntryPoints.h"

#include <string_view>

#include "addin/IAddIn.h"
#include "vmAOR/Classes.h"
#include "vmAOR/LivingObjects.h"

namespace {

constexpr std::string_view addInClass = "AddInOrlena.IAddIn";

}  // namespace

namespace vmAOR {

LivingObjects& livingObjects() {
  static LivingObjects objects;
  return objects;
}

}  // namespace vmAOR

bool DllRegisterServer() {
  vmAOR::registerClasses();
  return true;
}

bool DllUnregisterServer() {
  vmAOR::unregisterClasses();
  return true;
}

bool DllGetClassObject(const char* className, std::shared_ptr<forms::Object>& object) {
  object.reset();
  if (className != addInClass) return false;
  object = std::make_shared<addin::IAddIn>();
  vmAOR::livingObjects().add(object);
  return true;
}

bool DllCanUnloadNow() { return !vmAOR::livingObjects().any(); }
