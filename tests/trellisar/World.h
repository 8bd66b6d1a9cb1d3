#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "forms/Application.h"
#include "host/Numbers.h"
#include "tests/support/ScriptedDesktop.h"
#include "trellisar/Host.h"
#include "trellisar/Listing.h"
#include "trellisar/SystemFile.h"

namespace tests {

/// The repository's folder of shipped data.
std::filesystem::path dataFolder();

/// The shipped device library, read once.
std::shared_ptr<const trellisar::DeviceLibrary> shippedLibrary();

/// A folder that goes with its owner.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  const std::filesystem::path& path() const { return path_; }
  /// A path in the folder, with backslashes.
  std::string inside(const std::string& name) const;

 private:
  std::filesystem::path path_;
};

void writeFile(const std::filesystem::path& file, const std::string& content);

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

  std::shared_ptr<host::Preset> preset(const std::string& name);
  /// Appends a step; what Init answers is the result.
  bool append(host::Preset& preset, std::int16_t kind, std::int16_t targetType, std::int32_t target,
              const std::string& signal, const std::string& value = {});
  /// Appends a conditional step that tests a digital signal, and answers its branch.
  std::shared_ptr<host::Preset> branch(host::Preset& preset, std::int16_t device,
                                       const std::string& signal);

  ScriptedDesktop desktop;
  forms::Application application{desktop, "\\program"};
  trellisar::Host host;
  TemporaryFolder folder;
};

}  // namespace tests
