#pragma once

#include <memory>

#include "forms/Object.h"

/// The component's four standard entry points, under plain names, so that a host finds them after
/// it has loaded the component.
extern "C" {

/// Makes the add-in's classes known by their program ids. True.
bool DllRegisterServer();

/// Takes the program ids back. Objects that live go on living. True.
bool DllUnregisterServer();

/// Creates the class of this name ("AddInOrlena.IAddIn"), the only one that can be created from
/// outside. False, with `object` empty, for any other name.
bool DllGetClassObject(const char* className, std::shared_ptr<forms::Object>& object);

/// Whether none of the component's objects lives. A host unregisters the component before it
/// unloads it.
bool DllCanUnloadNow();

}  // extern "C"
