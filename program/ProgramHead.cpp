#include "program/ProgramHead.h"

#include <charconv>

#include "base/Digest.h"
#include "program/ProgramText.h"

namespace program {
namespace {

constexpr std::string_view format = "trellisar-program ";
constexpr int formVersion = 2;

std::string head(const std::string& hash, std::size_t length) {
  return std::string(format) + std::to_string(formVersion) + " " + hash + " " +
         std::to_string(length) + "\n";
}

/// The version that a head tells; 0: it tells none.
int versionIn(std::string_view bytes) {
  if (!bytes.starts_with(format)) return 0;
  bytes.remove_prefix(format.size());
  int version = 0;
  const auto [end, error] = std::from_chars(bytes.data(), bytes.data() + bytes.size(), version);
  const bool isNumber = error == std::errc() && end != bytes.data() + bytes.size() && *end == ' ';
  return isNumber && version > 0 ? version : 0;
}

void requireVersion(int version, const std::string& shown) {
  const std::string name = "\"" + shown + "\"";
  if (version == 0) throw base::ContentError(name + " is no compiled program.");
  if (version < formVersion) {
    throw EarlierForm("The compiled program " + name +
                      " was made by an earlier version of this application. Build the system "
                      "again.");
  }
  if (version > formVersion) {
    throw base::ContentError("The compiled program " + name +
                             " was made by a later version of this application.");
  }
}

}  // namespace

std::string withHead(const std::string& body) {
  return head(base::Digest::of(body), body.size()) + body;
}

std::string_view bodyOf(std::string_view bytes, const std::string& shown) {
  requireVersion(versionIn(bytes), shown);
  const auto lineEnd = bytes.find('\n');
  if (lineEnd != std::string_view::npos) {
    const std::string_view body = bytes.substr(lineEnd + 1);
    if (bytes.substr(0, lineEnd + 1) == head(base::Digest::of(body), body.size())) return body;
  }
  throw base::ContentError("The compiled program \"" + shown +
                           "\" is damaged. Save and build the system again.");
}

}  // namespace program
