#pragma once

namespace vmAOR {

/// Registers every class of the add-in under its program id: the steps, the windows, the picture
/// lists, the generator.
void registerClasses();
void unregisterClasses();

}  // namespace vmAOR
