#pragma once

namespace vmAOR {

/// Registers the classes that the add-in creates by program id: the steps, the windows, the picture
/// lists, the generator.
void registerClasses();
void unregisterClasses();

}  // namespace vmAOR
