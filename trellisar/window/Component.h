#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "host/IAddInContract.h"

namespace trellisar {

/// A component in memory: loaded and registered when it is constructed, unregistered and unloaded
/// at its end, which must not come while `canUnload` is False.
class Component {
 public:
  /// Raises host::Error errCannotCreate with what is wrong: no such file, no library, no component.
  explicit Component(const std::filesystem::path& library);
  ~Component();
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;

  /// A new object of the class. Raises host::Error errCannotCreate when the component has no such
  /// class, or one that is no add-in.
  std::shared_ptr<host::IAddInContract> create(const std::string& className) const;

  /// False while an object of the component lives.
  bool canUnload() const { return canUnloadNow_(); }

 private:
  struct Unload {
    void operator()(void* handle) const;
  };
  using Registering = bool (*)();
  using GetClassObject = bool (*)(const char* className, std::shared_ptr<forms::Object>& object);

  template <typename Function>
  Function entryPoint(const char* name) const;

  std::filesystem::path library_;
  std::unique_ptr<void, Unload> handle_;
  Registering registerServer_;
  Registering unregisterServer_;
  GetClassObject getClassObject_;
  bool (*canUnloadNow_)();
};

}  // namespace trellisar
