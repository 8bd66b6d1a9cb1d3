#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "addin/IAddIn.h"
#include "forms/Application.h"
#include "generator/Generate.h"
#include "host/Numbers.h"
#include "tests/generator/Program.h"
#include "tests/support/ScriptedDesktop.h"
#include "tests/support/Shipped.h"
#include "trellisar/compile/ProgramCheck.h"
#include "trellisar/window/Host.h"

namespace tests {

/// Copies what the host ships, with a text replaced in all files, one of which must hold it.
void copyData(const std::filesystem::path& folder, const std::string& text,
              const std::string& replacement);

/// A room whose program is built: the open system of a host of its own, and the add-in with the
/// answers. It begins as the template, without a display, and becomes the thread's current one when
/// it is made.
class Room {
 public:
  explicit Room(const std::filesystem::path& data = dataFolder());
  ~Room();

  // What is there already under the name of a display, screen or lift is removed before.

  /// The display of entry 1105 has discrete power, the command POWER, and both inputs.
  void givenDisplay(std::int16_t powerControl, std::int16_t controlEntry = 1105);
  /// Takes a standard command away from a device.
  void givenNoCommand(std::int16_t device, std::int16_t standardCommand);
  /// A touch panel without a project of its own.
  void givenPanel();
  /// Takes a device or panel away, if it is there, as the host does.
  void givenNo(const std::string& name);
  /// The library of the host has no modules.
  void givenNoModules();
  void givenRelay(std::int16_t onSeconds = 5, std::int16_t offSeconds = 90);
  void givenScreen(std::int16_t controlEntry, float onSeconds, float offSeconds);
  void givenLift(std::int16_t controlEntry, float onSeconds, float offSeconds);

  /// Runs a builder of its own.
  bool build();
  const generator::Generate& builder() const { return *builder_; }
  std::vector<std::string> warnings() const;

  std::shared_ptr<host::Preset> preset(const std::string& name) const;
  /// What the program holds at a place, which a Program names; empty: nothing.
  std::string at(const std::string& place) const;
  /// What is wrong with the program, as the host finds when it compiles.
  std::vector<std::string> errors() const { return trellisar::programErrors(data()); }
  Program program() const { return programOf(data()); }
  const trellisar::DocumentData& data() const { return host_.document()->data(); }

  addin::IAddIn& addIn() { return *addIn_; }
  host::Document& document() const { return *host_.document(); }
  std::shared_ptr<host::Device> display() const;

 private:
  std::int16_t addDevice(const std::string& name, std::int16_t controlEntry);

  ScriptedDesktop desktop_;
  forms::Application application_{desktop_, "\\program"};
  trellisar::Host host_;
  std::shared_ptr<addin::IAddIn> addIn_ = std::make_shared<addin::IAddIn>();
  std::unique_ptr<generator::Generate> builder_ = std::make_unique<generator::Generate>();
};

}  // namespace tests
