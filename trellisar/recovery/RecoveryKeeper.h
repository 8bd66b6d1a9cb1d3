#pragma once

#include <chrono>
#include <ctime>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "forms/Event.h"
#include "host/UnsavedWork.h"
#include "trellisar/document/DocumentData.h"
#include "trellisar/recovery/BackgroundWriter.h"
#include "trellisar/recovery/RecoverySlot.h"

namespace trellisar {

struct RecoveryOptions {
  /// Where recovery files lie; empty: none is written and none is looked for.
  std::filesystem::path folder = {};
  std::function<std::time_t()> clock = [] { return std::time(nullptr); };
};

/// Keeps a recovery file of the open system for as long as it has answers that are not saved: it is
/// written a second after the first act of the user that the file does not hold, on another thread,
/// and goes with a save and with a close.
class RecoveryKeeper : public std::enable_shared_from_this<RecoveryKeeper> {
 public:
  /// From a change until it is on its way to the disk.
  static constexpr std::chrono::milliseconds wait{1000};

  explicit RecoveryKeeper(RecoveryOptions options) : options_(std::move(options)) {}
  /// Leaves a file that is there for the next start.
  ~RecoveryKeeper();
  RecoveryKeeper(const RecoveryKeeper&) = delete;
  RecoveryKeeper& operator=(const RecoveryKeeper&) = delete;

  const RecoveryOptions& options() const { return options_; }

  /// The system that is open from now on. The one before has been closed.
  void begin(const DocumentPtr& document);
  /// As above for one that was restored, whose file goes on where it is.
  void resume(const DocumentPtr& document, std::shared_ptr<RecoverySlot> slot,
              const host::Whereabouts& whereabouts);
  /// The system is about to be closed. Its file stays only where a save has failed since the user
  /// acted last, which then was to save it, and where nobody could work on it.
  void end();

  /// The add-in that runs; null: none does. It is told where the user of a restored system was.
  void setWork(host::UnsavedWork* work);

  /// A save did not succeed.
  void saveFailed() { hasFailedToSave_ = true; }

 private:
  void acted();
  void lookLater();
  void look();
  void giveSignsLater();
  void giveSign();
  void after(std::chrono::milliseconds time, void (RecoveryKeeper::*act)());
  std::optional<host::UnsavedAnswers> unsavedAnswers() const;
  void write(const host::UnsavedAnswers& answers);
  void forget();
  void leave();
  void tellFailure();
  void tell(const std::string& problem);

  RecoveryOptions options_;
  forms::Subscription onActed_;
  DocumentPtr document_;
  host::UnsavedWork* work_ = nullptr;
  std::optional<host::Whereabouts> resumed_;  // until an add-in runs
  std::shared_ptr<RecoverySlot> slot_;        // null: there is no file
  std::string kept_;                          // what the file holds, or will
  bool isLooking_ = false;
  bool isGivingSigns_ = false;
  bool hasFailedToSave_ = false;
  bool hasWorked_ = false;  // an add-in has run on the system
  bool hasTold_ = false;
  BackgroundWriter writer_;
};

}  // namespace trellisar
