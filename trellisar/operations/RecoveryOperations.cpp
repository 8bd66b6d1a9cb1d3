#include <algorithm>
#include <ctime>

#include "base/Digest.h"
#include "base/Error.h"
#include "base/FileIO.h"
#include "host/Error.h"
#include "trellisar/dialogs/Messages.h"
#include "trellisar/dialogs/RecoveryDialog.h"
#include "trellisar/operations/MainWindowOperations.h"
#include "trellisar/recovery/RecoveryFile.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;
using Choice = RecoveryDialog::Choice;

std::string timeText(const char* form, const std::tm& time) {
  char text[sizeof "hh:mm on yyyy-mm-dd"];
  return {text, std::strftime(text, sizeof text, form, &time)};
}

/// "14:02", or "14:02 on 2026-03-30" on another day.
std::string timeAt(std::time_t time, std::time_t now) {
  std::tm then{};
  std::tm today{};
  localtime_r(&time, &then);
  localtime_r(&now, &today);
  const bool isToday = then.tm_year == today.tm_year && then.tm_yday == today.tm_yday;
  return timeText(isToday ? "%H:%M" : "%H:%M on %Y-%m-%d", then);
}

/// Where its file stands now against what it was.
std::string fileWords(const UnsavedSystem& unsaved) {
  if (unsaved.ownFile.empty()) return "It has never been saved.";
  const std::string file = unsaved.ownFile.string();
  const std::string path = "\"" + file + "\"";
  try {
    const std::string content = base::readFile(unsaved.ownFile);
    if (base::Digest::of(content) == unsaved.ownDigest) return "Its file is " + path + ".";
    return "Its file " + path + " has been changed since. A save asks before it replaces it.";
  } catch (const base::FileError&) {
    return "Its file " + path + " is no longer there.";
  }
}

Choice ask(const UnsavedSystem& unsaved, std::time_t ended, std::time_t now) {
  const std::string name = unsaved.name.empty() ? "without a name" : "\"" + unsaved.name + "\"";
  return RecoveryDialog({"The room " + name + " was not saved when the program ended at " +
                             timeAt(ended, now) + ".",
                         fileWords(unsaved)})
      .run();
}

void tellUnreadable(RecoverySlot& slot, const std::string& why) {
  const std::string from = slot.file().string();
  const fs::path aside = slot.moveAside();
  showFailure("What was kept of an unsaved system can't be read.\r\n\r\n" + why +
              "\r\n\r\nThe file is kept in \"" + (aside.empty() ? from : aside.string()) + "\".");
}

}  // namespace

bool MainWindowOperations::restore(const std::shared_ptr<RecoverySlot>& slot,
                                   const UnsavedSystem& unsaved) {
  const DocumentPtr data = documentOf(unsaved, session_->library);
  openDocument(data);
  session_->recovery->resume(data, slot, unsaved.whereabouts);
  if (!data->ownFile.empty()) data->showInUse();
  return true;
}

/// True: it was restored. One that the user puts off is not offered again in this run.
bool MainWindowOperations::offer(const std::shared_ptr<RecoverySlot>& slot,
                                 const fs::path& ownFile) {
  try {
    const UnsavedSystem unsaved = readRecoveryFile(slot->file());
    if (!ownFile.empty() && !base::isSameFile(unsaved.ownFile, ownFile)) return false;
    switch (ask(unsaved, slot->lastSign(), session_->recovery->options().clock())) {
      case Choice::restore:
        return restore(slot, unsaved);
      case Choice::discard:
        slot->remove();
        return false;
      case Choice::later:
        putOff_.insert(slot->file());
        return false;
    }
  } catch (const base::FileError& error) {
    showFailure(error.what());
    putOff_.insert(slot->file());
  } catch (const base::Error& error) {
    tellUnreadable(*slot, error.what());
  } catch (const host::Error& error) {
    tellUnreadable(*slot, error.description());
  }
  return false;
}

bool MainWindowOperations::offerUnsaved() {
  if (!keepsUnsaved()) return false;
  auto left = RecoverySlot::left(session_->recovery->options().folder);
  std::erase_if(left, [this](const auto& slot) { return putOff_.contains(slot->file()); });
  return std::any_of(left.begin(), left.end(),
                     [this](const auto& slot) { return offer(slot, {}); });
}

bool MainWindowOperations::offerUnsavedOf(const fs::path& file) {
  if (!keepsUnsaved()) return false;
  const auto left = RecoverySlot::left(session_->recovery->options().folder);
  return std::any_of(left.begin(), left.end(), [&](const auto& slot) { return offer(slot, file); });
}

}  // namespace trellisar
