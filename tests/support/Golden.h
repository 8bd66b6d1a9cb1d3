#pragma once

#include <filesystem>
#include <string>

namespace tests {

/// Whether a golden is looked at: all of them are, but while tools/renew-goldens runs only those
/// whose name fits its filter.
bool isGoldenAsked(const std::string& name);

/// Fails with what differs when the file does not hold what was built. While tools/renew-goldens
/// runs the file is written instead.
void expectGolden(const std::string& name, const std::filesystem::path& file,
                  const std::string& built);

}  // namespace tests
