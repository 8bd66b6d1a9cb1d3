#pragma once

#include <string>
#include <vector>

namespace trellisar {

/// The calls that an add-in made on the host, in their order, for those who look at the order.
class Journal {
 public:
  void note(const std::string& call) { calls_.push_back(call); }
  const std::vector<std::string>& calls() const { return calls_; }
  void clear() { calls_.clear(); }

 private:
  std::vector<std::string> calls_;
};

}  // namespace trellisar
