#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "addin/IAddIn.h"
#include "generator/Generate.h"
#include "host/Numbers.h"
#include "tests/generator/Program.h"
#include "trellisar/Host.h"

namespace tests {

/// The template that the host ships.
std::filesystem::path templateSystem();
/// The template with something in it under another name.
std::filesystem::path templateWithout(const std::string& name);

/// A room whose program is built: the open system of a host of its own, and the add-in with the
/// answers. It begins as the template, without a display, and becomes the thread's current one when
/// it is made.
class Room {
 public:
  explicit Room(const std::filesystem::path& system = templateSystem());
  ~Room();

  /// A display with discrete power, the command POWER, and both inputs.
  void givenDisplay(std::int16_t powerControl, std::int16_t controlEntry = 1105);
  /// Takes a standard command away from a device.
  void givenNoCommand(std::int16_t device, std::int16_t standardCommand);
  /// The library of the host has no modules.
  void givenNoModules();
  /// On after 5 s, off after 90 s.
  void givenRelay();
  /// The command RGB_1, of all things, after 3 s.
  void givenSecondPowerOff();
  void givenScreen(std::int16_t controlEntry, float onSeconds, float offSeconds);
  void givenLift(std::int16_t controlEntry, float onSeconds, float offSeconds);

  /// Runs a builder of its own.
  bool build();
  const generator::Generate& builder() const { return *builder_; }
  std::vector<std::string> warnings() const;

  std::shared_ptr<host::Preset> preset(const std::string& name) const;
  /// What the program holds at a place, which a Program names; empty: nothing.
  std::string at(const std::string& place) const;
  Program program() const { return programOf(data()); }
  const trellisar::DocumentData& data() const { return host_.document()->data(); }
  /// How many of the part the receiver's bill entry names.
  std::int32_t parts(std::int32_t part) const;

  addin::IAddIn& addIn() { return *addIn_; }
  host::Document& document() const { return *host_.document(); }
  trellisar::Host& host() { return host_; }
  std::shared_ptr<host::Device> display() const;

 private:
  std::int16_t addDevice(const std::string& name, std::int16_t controlEntry);

  trellisar::Host host_;
  std::shared_ptr<addin::IAddIn> addIn_ = std::make_shared<addin::IAddIn>();
  std::unique_ptr<generator::Generate> builder_ = std::make_unique<generator::Generate>();
};

}  // namespace tests
