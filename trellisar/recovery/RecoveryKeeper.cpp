#include "trellisar/recovery/RecoveryKeeper.h"

#include <utility>

#include "base/Error.h"
#include "forms/Application.h"
#include "host/Error.h"
#include "trellisar/recovery/RecoveryFile.h"

namespace trellisar {
namespace {

constexpr std::chrono::minutes betweenSigns{1};

}  // namespace

RecoveryKeeper::~RecoveryKeeper() {
  if (document_) document_->whenSaved = nullptr;
}

void RecoveryKeeper::begin(const DocumentPtr& document) {
  end();
  if (options_.folder.empty()) return;
  document_ = document;
  hasWorked_ = work_ != nullptr;
  document_->whenSaved = [this] { forget(); };
  onActed_ = forms::Application::current().acted.listen([this] { acted(); });
}

void RecoveryKeeper::resume(const DocumentPtr& document, std::shared_ptr<RecoverySlot> slot,
                            const host::Whereabouts& whereabouts) {
  begin(document);
  slot_ = std::move(slot);
  resumed_ = whereabouts;
  setWork(work_);
  giveSignsLater();
}

void RecoveryKeeper::end() {
  if (!document_) return;
  const bool isToBeKept = hasFailedToSave_ || !hasWorked_;
  isToBeKept ? leave() : forget();
  document_->whenSaved = nullptr;
  document_ = nullptr;
  resumed_.reset();
  onActed_.end();
}

void RecoveryKeeper::setWork(host::UnsavedWork* work) {
  work_ = work;
  if (!work_) return;
  hasWorked_ = true;
  if (const auto whereabouts = std::exchange(resumed_, std::nullopt)) work_->Resume(*whereabouts);
}

void RecoveryKeeper::acted() {
  hasFailedToSave_ = false;
  lookLater();
}

void RecoveryKeeper::lookLater() {
  if (!std::exchange(isLooking_, true)) after(wait, &RecoveryKeeper::look);
}

void RecoveryKeeper::look() {
  isLooking_ = false;
  tellFailure();
  if (!document_) return;
  if (document_->isClosed) return end();
  const auto answers = unsavedAnswers();
  if (!answers) return;
  const bool isUnsaved = document_->isModified || !answers->whereabouts.edit.control.empty();
  isUnsaved ? write(*answers) : forget();
}

/// Nothing between two systems of the add-in.
std::optional<host::UnsavedAnswers> RecoveryKeeper::unsavedAnswers() const {
  if (!work_) return std::nullopt;
  try {
    return work_->GetUnsavedAnswers();
  } catch (const host::Error&) {
    return std::nullopt;
  }
}

void RecoveryKeeper::write(const host::UnsavedAnswers& answers) {
  std::string text = recoveryFileText(unsavedSystem(*document_, answers));
  if (text == kept_) {
    if (writer_.isBusy()) lookLater();  // how the write went
    return;
  }
  try {
    if (!slot_) slot_ = RecoverySlot::make(options_.folder);
  } catch (const base::Error& error) {
    return tell(error.what());
  }
  kept_ = std::move(text);
  writer_.write(slot_->file(), kept_);
  lookLater();  // how the write went
  giveSignsLater();
}

/// So that the next start can say when the program ended.
void RecoveryKeeper::giveSignsLater() {
  if (!std::exchange(isGivingSigns_, true)) after(betweenSigns, &RecoveryKeeper::giveSign);
}

void RecoveryKeeper::giveSign() {
  isGivingSigns_ = false;
  if (!slot_) return;
  slot_->setLastSign(options_.clock());
  giveSignsLater();
}

void RecoveryKeeper::after(std::chrono::milliseconds time, void (RecoveryKeeper::*act)()) {
  forms::Application::current().desktop().runAfter(time, [weak = weak_from_this(), act] {
    if (const auto self = weak.lock()) (self.get()->*act)();
  });
}

void RecoveryKeeper::forget() {
  kept_.clear();
  if (!slot_) return;
  writer_.wait();
  try {
    std::exchange(slot_, nullptr)->remove();
  } catch (const base::Error& error) {
    tell(error.what());
  }
}

void RecoveryKeeper::leave() {
  if (const auto answers = unsavedAnswers(); answers && hasFailedToSave_) write(*answers);
  writer_.wait();
  if (slot_) slot_->setLastSign(options_.clock());
  kept_.clear();
  slot_.reset();
}

void RecoveryKeeper::tellFailure() {
  const std::string failure = writer_.takeFailure();
  if (failure.empty()) return;
  kept_.clear();  // the next look tries it again
  tell(failure);
}

/// Once: what is to be done about it is known then.
void RecoveryKeeper::tell(const std::string& problem) {
  if (std::exchange(hasTold_, true)) return;
  forms::Application::current().messageBox(
      "What is not saved can't be kept for the case that the program ends unexpectedly.\r\n\r\n" +
          problem + "\r\n\r\nSave the system often.",
      forms::Buttons::ok, forms::Icon::exclamation);
}

}  // namespace trellisar
