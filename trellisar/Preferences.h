#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "trellisar/AddressBook.h"
#include "trellisar/IPSettings.h"

namespace trellisar {

/// What the host keeps for its user, in a small JSON file. A file that is missing, damaged or of
/// another version counts as none; the next change writes it anew.
class Preferences {
 public:
  /// Without a file nothing is kept.
  explicit Preferences(std::filesystem::path file = {});

  /// The folder for new systems, with backslashes; empty: the usual one.
  const std::string& defaultFolder() const { return defaultFolder_; }
  void setDefaultFolder(const std::string& folder);

  /// The systems that were opened or saved, the last first; ten at most.
  const std::vector<std::string>& recentSystems() const { return recentSystems_; }
  void remember(const std::string& system);
  void forget(const std::string& system);

  const AddressBook& addressBook() const { return addressBook_; }
  void setAddressBook(const AddressBook& book);
  const IPSettings& ipSettings() const { return ipSettings_; }
  void setIPSettings(const IPSettings& settings);

  /// Where the user's preferences lie: below $XDG_CONFIG_HOME, or below ".config" in the home
  /// folder.
  static std::filesystem::path usualFile();

 private:
  void read();
  void write() const;

  std::filesystem::path file_;
  std::string defaultFolder_;
  std::vector<std::string> recentSystems_;
  AddressBook addressBook_;
  IPSettings ipSettings_;
};

}  // namespace trellisar
