#include "vmAOR/EntryPoints.h"

#include <algorithm>
#include <mutex>
#include <string_view>
#include <vector>

#include "addin/IAddIn.h"
#include "vmAOR/Classes.h"

namespace {

constexpr std::string_view className = "AddInOrlena.IAddIn";

/// The add-in objects that were handed out, over all threads. All else of the component hangs from
/// one of them or from the application of its thread.
class LivingObjects {
 public:
  void add(const std::shared_ptr<forms::Object>& object) {
    const std::lock_guard lock(mutex_);
    objects_.push_back(object);
  }

  bool any() {
    const std::lock_guard lock(mutex_);
    std::erase_if(objects_, [](const auto& object) { return object.expired(); });
    return !objects_.empty();
  }

 private:
  std::mutex mutex_;
  std::vector<std::weak_ptr<forms::Object>> objects_;
};

LivingObjects& livingObjects() {
  static LivingObjects objects;
  return objects;
}

}  // namespace

bool DllRegisterServer() {
  vmAOR::registerClasses();
  return true;
}

bool DllUnregisterServer() {
  vmAOR::unregisterClasses();
  return true;
}

bool DllGetClassObject(const char* name, std::shared_ptr<forms::Object>& object) {
  object.reset();
  if (name != className) return false;
  object = std::make_shared<addin::IAddIn>();
  livingObjects().add(object);
  return true;
}

bool DllCanUnloadNow() { return !livingObjects().any(); }
