#pragma once

#include <filesystem>
#include <memory>

#include "addin/IAddIn.h"
#include "trellisar/window/Host.h"

namespace bench {

/// The answers of a room with everything on.
std::filesystem::path fullAnswers();

/// The system file of that room in a folder, built by the program itself. Raises
/// std::runtime_error.
std::filesystem::path buildFullRoom(const std::filesystem::path& folder);

/// A saved room, opened in a host of its own, with the answers of the wizard that it holds.
class Room {
 public:
  explicit Room(const std::filesystem::path& system);
  ~Room();
  Room(const Room&) = delete;
  Room& operator=(const Room&) = delete;

  /// Makes it the one that the add-in works on.
  void choose();
  /// Writes the program of the chosen room. Raises std::runtime_error.
  static void generate();
  trellisar::DocumentData& data() const { return host_.document()->data(); }

 private:
  trellisar::Host host_;
  std::shared_ptr<addin::IAddIn> addIn_ = std::make_shared<addin::IAddIn>();
};

}  // namespace bench
