#include "trellisar/recovery/BackgroundWriter.h"

#include <utility>

#include "base/FileIO.h"

namespace trellisar {

BackgroundWriter::~BackgroundWriter() {
  {
    const std::lock_guard lock(mutex_);
    isEnding_ = true;
  }
  changed_.notify_all();
  if (thread_.joinable()) thread_.join();
}

void BackgroundWriter::write(std::filesystem::path file, std::string content) {
  {
    const std::lock_guard lock(mutex_);
    next_ = Task{std::move(file), std::move(content)};
    if (!thread_.joinable()) thread_ = std::thread([this] { work(); });
  }
  changed_.notify_all();
}

void BackgroundWriter::wait() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return !next_ && !isWriting_; });
}

bool BackgroundWriter::isBusy() {
  const std::lock_guard lock(mutex_);
  return next_ || isWriting_ || !failure_.empty();
}

std::string BackgroundWriter::takeFailure() {
  const std::lock_guard lock(mutex_);
  return std::exchange(failure_, {});
}

void BackgroundWriter::work() {
  std::unique_lock lock(mutex_);
  while (true) {
    changed_.wait(lock, [this] { return next_ || isEnding_; });
    if (!next_) return;
    const Task task = *std::exchange(next_, std::nullopt);
    isWriting_ = true;
    lock.unlock();
    std::string failure;
    try {
      base::replaceFile(task.file, task.content);
    } catch (const std::exception& error) {
      failure = error.what();
    }
    lock.lock();
    failure_ = std::move(failure);
    isWriting_ = false;
    changed_.notify_all();
  }
}

}  // namespace trellisar
