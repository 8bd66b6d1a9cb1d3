#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "trellisar/settings/AddressBook.h"
#include "trellisar/settings/IPSettings.h"

namespace trellisar {

/// What the host keeps for its user, in a small JSON file that several hosts may share: a change is
/// made to what the file holds at that moment, so that none undoes what another one added.
///
/// A file that can't be read is never written over. It is moved aside, the user is told where, and
/// the preferences begin anew.
class Preferences {
 public:
  using Tell = std::function<void(const std::string& problem)>;

  /// Without a file nothing is kept. `tell` is called with a sentence for the user when the file
  /// can't be read, and when a change can't be kept, which then holds for this host alone.
  explicit Preferences(std::filesystem::path file = {}, Tell tell = {});

  /// What a file says now, for one who only looks: it is not moved aside, and changes are not kept.
  static Preferences lookedAt(const std::filesystem::path& file);

  /// The folder for new systems, with backslashes; empty: the usual one.
  const std::string& defaultFolder() const { return kept_.defaultFolder; }
  void setDefaultFolder(const std::string& folder);

  /// Whether the user sees what a save changes in a program that is built, before it is saved.
  bool showsChanges() const { return kept_.showsChanges; }
  void setShowsChanges(bool shows);

  /// The systems that were opened or saved, the last first; ten at most.
  const std::vector<std::string>& recentSystems() const { return kept_.recentSystems; }
  void remember(const std::string& system);
  void forget(const std::string& system);

  const AddressBook& addressBook() const { return kept_.addressBook; }
  /// Takes over what differs from `addressBook()`: what another host has added since stays.
  void setAddressBook(const AddressBook& book);
  const IPSettings& ipSettings() const { return kept_.ipSettings; }
  void setIPSettings(const IPSettings& settings);

  /// Where the user's preferences lie: below $XDG_CONFIG_HOME, or below ".config" in the home
  /// folder.
  static std::filesystem::path usualFile();

 private:
  struct Kept {
    std::string defaultFolder;
    bool showsChanges = false;
    std::vector<std::string> recentSystems;
    AddressBook addressBook;
    IPSettings ipSettings;

    bool operator==(const Kept&) const = default;
  };

  static Kept read(const std::filesystem::path& file);
  static void write(const std::filesystem::path& file, const Kept& kept);
  /// What the file holds; nothing once it had to be moved aside.
  Kept readOrMoveAside();
  void change(const std::function<void(Kept&)>& edit);
  void tell(const std::string& problem);

  std::filesystem::path file_;
  Tell tell_;
  std::string told_;  // the last problem: one that stays is told once
  Kept kept_;
};

}  // namespace trellisar
