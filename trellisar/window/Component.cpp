#include "trellisar/window/Component.h"

#include <dlfcn.h>

#include <system_error>

#include "host/Error.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& library, const std::string& what) {
  throw host::Error(host::errCannotCreate,
                    "The component \"" + library.string() + "\" can't be used: " + what);
}

std::string lastReason() {
  const char* reason = dlerror();
  return reason ? reason : "the system gives no reason";
}

void* load(const fs::path& library) {
  std::error_code failure;
  if (!fs::exists(library, failure)) {
    fail(library, "there is no such file. Build or install it again, or correct its registration.");
  }
  void* handle = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!handle) fail(library, "it can't be loaded (" + lastReason() + ").");
  return handle;
}

}  // namespace

void Component::Unload::operator()(void* handle) const { dlclose(handle); }

template <typename Function>
Function Component::entryPoint(const char* name) const {
  void* address = dlsym(handle_.get(), name);
  if (!address) {
    fail(library_,
         "it is a library but no component, for it has no entry point " + std::string(name) + ".");
  }
  return reinterpret_cast<Function>(address);
}

Component::Component(const fs::path& library)
    : library_(library),
      handle_(load(library)),
      registerServer_(entryPoint<Registering>("DllRegisterServer")),
      unregisterServer_(entryPoint<Registering>("DllUnregisterServer")),
      getClassObject_(entryPoint<GetClassObject>("DllGetClassObject")),
      canUnloadNow_(entryPoint<bool (*)()>("DllCanUnloadNow")) {
  if (!registerServer_()) fail(library_, "it could not make its classes known.");
}

Component::~Component() { unregisterServer_(); }

std::shared_ptr<host::IAddInContract> Component::create(const std::string& className) const {
  std::shared_ptr<forms::Object> object;
  if (!getClassObject_(className.c_str(), object)) {
    fail(library_, "it has no class \"" + className + "\".");
  }
  auto addIn = std::dynamic_pointer_cast<host::IAddInContract>(object);
  if (!addIn) fail(library_, "its class \"" + className + "\" is no add-in.");
  return addIn;
}

}  // namespace trellisar
