#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "forms/Error.h"
#include "forms/Object.h"

namespace forms {

class Container;
class UserControl;

using ObjectFactory = std::function<std::shared_ptr<Object>()>;
using ControlFactory = std::function<std::unique_ptr<UserControl>(Container&, const std::string&)>;

/// Registers a class under its program id ("vmDocument.Step"). Registering an id again replaces its
/// factory. The registrations are the only thing that is shared by all threads of the process.
void registerObject(const std::string& programId, ObjectFactory factory);

/// Registers a user control under its program id, for its creation at run time by
/// `Root::addControl`.
void registerControl(const std::string& programId, ControlFactory factory);

/// Removes the id, of either sort. An unknown one changes nothing.
void unregister(const std::string& programId);

/// A new object of the class. Raises Error 429 with the id in its text when nothing is registered
/// under it.
std::shared_ptr<Object> createAnyObject(std::string_view programId);

/// A new user control in `container`, named `name`. Raises Error 429 as above.
std::unique_ptr<UserControl> createControl(std::string_view programId, Container& container,
                                           const std::string& name);

/// A new object of the class, as the `Interface` that the caller needs of it. Raises Error 429 when
/// the id is unknown, and Error 13 when its class is no `Interface`.
template <typename Interface>
std::shared_ptr<Interface> createObject(std::string_view programId) {
  auto object = std::dynamic_pointer_cast<Interface>(createAnyObject(programId));
  if (!object) throw Error(errors::typeMismatch, "Type mismatch: " + std::string(programId));
  return object;
}

}  // namespace forms
