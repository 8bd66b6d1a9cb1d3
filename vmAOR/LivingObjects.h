#pragma once

#include <memory>
#include <mutex>
#include <vector>

#include "forms/Object.h"

namespace vmAOR {

/// The objects that the component has handed out, over all threads.
class LivingObjects {
 public:
  void add(const std::shared_ptr<forms::Object>& object) {
    const std::lock_guard lock(mutex_);
    forgetEnded();
    objects_.push_back(object);
  }

  bool any() {
    const std::lock_guard lock(mutex_);
    forgetEnded();
    return !objects_.empty();
  }

 private:
  void forgetEnded() {
    std::erase_if(objects_, [](const auto& object) { return object.expired(); });
  }

  std::mutex mutex_;
  std::vector<std::weak_ptr<forms::Object>> objects_;
};

LivingObjects& livingObjects();

}  // namespace vmAOR
