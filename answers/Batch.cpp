#include "answers/Batch.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace answers {

int Batch::run(const std::vector<Job>& jobs, int parallel) {
  next_ = 0;
  printed_ = 0;
  hasEnded_.assign(jobs.size(), false);
  results_.assign(jobs.size(), {});

  {
    std::vector<std::jthread> helpers;
    startHelpers(helpers, std::min(parallel, static_cast<int>(jobs.size())) - 1, jobs);
    work(jobs);
  }

  int highest = 0;
  for (const RoomResult& result : results_) highest = std::max(highest, result.status);
  return highest;
}

/// Where the system allows fewer threads, those that there are do all.
void Batch::startHelpers(std::vector<std::jthread>& helpers, int wanted,
                         const std::vector<Job>& jobs) {
  try {
    while (std::cmp_less(helpers.size(), wanted)) {
      helpers.emplace_back([this, &jobs] { work(jobs); });
    }
  } catch (const std::system_error&) {
  }
}

void Batch::work(const std::vector<Job>& jobs) {
  while (true) {
    std::size_t mine = 0;
    {
      const std::lock_guard lock(mutex_);
      if (next_ == jobs.size()) return;
      mine = next_++;
    }
    ended(mine, jobs[mine]());
  }
}

void Batch::ended(std::size_t job, RoomResult result) {
  const std::lock_guard lock(mutex_);
  results_[job] = std::move(result);
  hasEnded_[job] = true;
  for (; printed_ < results_.size() && hasEnded_[printed_]; ++printed_) {
    if (!results_[printed_].systemFile.empty()) saved_(results_[printed_].systemFile);
  }
}

}  // namespace answers
