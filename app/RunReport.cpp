#include "app/RunReport.h"

#include <cstdio>
#include <sstream>

namespace app {
namespace {

/// Each line of the text that is not empty, with the prefix in front.
std::string prefixed(const std::string& text, const std::string& prefix) {
  std::string all;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (line.empty()) continue;
    all += (line.starts_with(prefix) ? "" : prefix) + line + "\n";
  }
  return all;
}

void write(const std::string& lines) { std::fwrite(lines.data(), 1, lines.size(), stderr); }

}  // namespace

void RunReport::line(const std::string& text) const {
  write(prefixed(text, subject_ + ": " + system_));
}

void RunReport::fault(const base::Fault& fault) const {
  const std::string line = fault.line == 0 ? "" : std::to_string(fault.line) + ":";
  write(prefixed(fault.text(), subject_ + ":" + line + " " + system_));
}

void reportLine(const std::string& text) { write(prefixed(text, "orlena: ")); }

}  // namespace app
