#pragma once

#include <stdexcept>

namespace base {

/// What is raised below the add-in's world. The text is a sentence for a user: what happened, to
/// what, and where it helps what to do.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A file or folder can't be read, made or written.
class FileError : public Error {
 public:
  using Error::Error;
};

/// What a text holds is damaged, foreign or of another version.
class ContentError : public Error {
 public:
  using Error::Error;
};

}  // namespace base
