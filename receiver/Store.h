#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

#include "base/FileIO.h"
#include "base/OutputFile.h"
#include "receiver/Messages.h"

namespace receiver {

/// What a receiver keeps, in a folder of its own: one program with its properties, and one
/// password, of which only a salted hash is stored. Each is written beside the old one, flushed and
/// renamed over it: whenever the process ends, the old or the new one is there whole.
///
/// The members can be called from any thread. They raise Error; nothing has changed then.
class Store {
 public:
  /// A program that comes in pieces. Without `commit` it leaves nothing. It belongs to one thread
  /// at a time and must not outlive its store.
  class Upload {
   public:
    Upload(Store& store, AnnounceProgram announced, const std::filesystem::path& file);
    ~Upload();

    /// Raises when more bytes come than were announced.
    void add(std::string_view bytes);
    /// The program takes the place of the one that the store holds, its properties too. Raises when
    /// bytes are missing or the hash is another one. No further call is made then.
    void commit();

   private:
    struct State;
    Store& store_;
    std::unique_ptr<State> state_;
  };

  /// Makes the folder when it is not there, and takes away what a process that was killed left
  /// beside the files. Raises when the folder cannot be used or another process uses it.
  explicit Store(std::filesystem::path folder);

  /// What was found damaged at the start, a sentence; empty: nothing. A damaged program was set
  /// aside and the store holds none; a damaged password counts as set and none is right.
  const std::string& warning() const { return warning_; }

  Holdings holdings() const;
  /// The bytes of the program; raises without one.
  std::string program() const;

  std::unique_ptr<Upload> begin(AnnounceProgram announced);
  /// Raises for a name that did not come with the program.
  void setProperties(const Properties& properties);

  /// An empty password clears the one that is set. The others take a noticeable time.
  void setPassword(const std::string& password);
  /// True for every password while none is set.
  bool accepts(const std::string& password) const;

 private:
  std::filesystem::path programFile() const;
  std::filesystem::path passwordFile() const;
  void removeLeftovers();
  void loadProgram();
  void loadPassword();
  void take(base::OutputFile& file, AnnounceProgram announced);

  std::filesystem::path folder_;
  std::optional<base::FolderLock> lock_;
  std::string warning_;
  mutable std::mutex change_;  // held while files are read or replaced
  mutable std::mutex state_;   // held for a moment, inside the other one at most
  std::optional<AnnounceProgram> program_;
  std::string passwordHash_;  // empty: none is set
  std::uint64_t uploads_ = 0;
};

}  // namespace receiver
