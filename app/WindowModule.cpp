#include "app/WindowModule.h"

#include <dlfcn.h>

#include "app/Environment.h"
#include "host/Error.h"

namespace app {
namespace {

namespace fs = std::filesystem;

constexpr const char* moduleFile = "liborlena-desktop.so";

/// It stays in memory: what it has started there ends with the process.
forms::FrontEnd* load(const fs::path& module) {
  void* handle = dlopen(module.c_str(), RTLD_LAZY | RTLD_LOCAL);
  void* address = handle ? dlsym(handle, forms::frontEndEntryPoint) : nullptr;
  if (!address) {
    throw host::Error(host::errCannotCreate, "The windows can't be loaded from \"" +
                                                 module.string() + "\": " + dlerror() + ".");
  }
  return reinterpret_cast<forms::FrontEndEntryPoint>(address)();
}

}  // namespace

forms::FrontEnd* frontEnd() {
  static forms::FrontEnd* const loaded = [] {
    const auto module = findProgramFile(moduleFile);
    return module ? load(*module) : nullptr;
  }();
  return loaded;
}

}  // namespace app
