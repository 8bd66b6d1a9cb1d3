#pragma once

#include <string>
#include <string_view>

#include "base/Error.h"
#include "program/Program.h"

/// The compiled program as the bytes that are stored and sent. Their form is in
/// docs/compiled-program.md.
namespace program {

/// The same program gives the same bytes.
std::string programText(const Program& program);

/// A program of an earlier form: its system has to be compiled again.
class EarlierForm : public base::ContentError {
 public:
  using base::ContentError::ContentError;
};

/// Reads any bytes; what comes back names only units and presets that are there. Raises EarlierForm
/// or base::ContentError, whose text calls the program `shown` and says what is wrong with it.
Program readProgram(std::string_view bytes, const std::string& shown);

/// Raises what `readProgram` raises of bytes that are cut, changed or of another form; whether they
/// make sense is not looked at.
void requireWholeProgram(std::string_view bytes, const std::string& shown);

}  // namespace program
