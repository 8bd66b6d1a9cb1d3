#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "base/FileIO.h"
#include "forms/Application.h"
#include "forms/Form.h"
#include "forms/User.h"
#include "host/Error.h"
#include "host/Numbers.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"
#include "tests/support/ScriptedDesktop.h"
#include "tests/support/Shipped.h"
#include "tests/support/Texts.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/window/Host.h"

namespace tests {

/// A control of a form or of a user control, as what it is.
template <typename Control, typename Container>
Control& in(Container& container, const std::string& name) {
  return dynamic_cast<Control&>(container.control(name));
}

/// A host with the shipped data, on a desktop that expects what a test says.
class HostTest : public testing::Test {
 protected:
  HostTest();

  /// Opens the template, which then is the host's document.
  trellisar::Document& openTemplate();
  trellisar::DocumentData& data() { return host.document()->data(); }

  /// Adds a device of the library below the receiver, as an add-in does, and answers its id.
  std::int16_t add(const std::string& name, std::int16_t entry);
  /// A chosen display, of type "Bravonne P2200".
  std::int16_t addDisplay() { return add("Display Device", 1101); }

  /// Names the system "Room" and saves it in a folder of that name.
  void saveAsRoom();

  std::shared_ptr<host::Preset> preset(const std::string& name);
  /// Appends a step; what Init answers is the result.
  bool append(host::Preset& preset, std::int16_t kind, std::int16_t targetType, std::int32_t target,
              const std::string& signal, const std::string& value = {});
  /// Appends a step that presses a command of a device.
  bool press(host::Preset& preset, std::int16_t device, const std::string& command,
             const std::string& value = {}) {
    return append(preset, host::stepDigital, host::targetDevice, device, command, value);
  }
  /// Appends a conditional step that tests a digital signal, and answers its branch.
  std::shared_ptr<host::Preset> branch(host::Preset& preset, std::int16_t device,
                                       const std::string& signal);

  trellisar::MainWindowOperations& window() { return *host.mainWindow(); }
  std::shared_ptr<host::Signal> signal(std::int16_t device, const std::string& output,
                                       const std::string& input = {}) {
    return host.document()->get_Signals()->Find(device, output, input, host::signalDigital);
  }

  ScriptedDesktop desktop;
  forms::Application application{desktop, "\\program"};
  forms::User user{application};
  trellisar::Host host;
  TemporaryFolder folder;
  std::string lastWords;  // of what was done last
};

}  // namespace tests
