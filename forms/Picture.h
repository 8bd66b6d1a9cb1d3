#pragma once

#include <filesystem>
#include <utility>

namespace forms {

/// A picture that lies in a file and is read only when it is drawn. A default one is no picture.
class Picture {
 public:
  Picture() = default;
  explicit Picture(std::filesystem::path machineFile) : file_(std::move(machineFile)) {}

  bool isEmpty() const { return file_.empty(); }
  const std::filesystem::path& file() const { return file_; }
  bool operator==(const Picture&) const = default;

 private:
  std::filesystem::path file_;
};

}  // namespace forms
