#include <system_error>
#include <utility>

#include "base/Digest.h"
#include "base/FileIO.h"
#include "forms/Paths.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "trellisar/document/ProgramFile.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/document/SystemNames.h"
#include "trellisar/library/HostErrors.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

constexpr const char* systemExtension = ".tsy";

void checkName(const std::string& name) {
  const std::string problem = fileNameProblem(name);
  if (!problem.empty()) throw host::Error(host::errBadArgument, problem);
}

[[noreturn]] void refuse(const fs::path& file, const std::string& why) {
  throw host::Error(host::errFile, "The file \"" + file.string() + "\" " + why +
                                       " It was not replaced. Save the system under another name, "
                                       "or open that file.");
}

void write(const DocumentData& document, const fs::path& file, const std::string& text,
           Overwriting overwriting) {
  if (overwriting == Overwriting::allowed) return base::replaceFile(file, text);
  switch (standingAt(document, file)) {
    case Standing::nothing:
      if (!base::createFile(file, text)) refuse(file, "was made by another program just now.");
      return;
    case Standing::own:
      return base::replaceFile(file, text);
    case Standing::changed:
      refuse(file, "was changed by another program since the system was opened.");
    case Standing::other:
      refuse(file, "is another system.");
  }
}

}  // namespace

std::string withSystemExtension(const std::string& path) {
  return forms::lowerCase(path).ends_with(systemExtension) ? path : path + systemExtension;
}

Standing standingAt(const DocumentData& document, const fs::path& file) {
  std::error_code error;
  if (!fs::exists(file, error)) return Standing::nothing;
  if (!base::isSameFile(file, document.ownFile)) return Standing::other;
  if (!fs::is_regular_file(file, error)) return Standing::own;  // the write tells what it is
  const std::string content = raisingHostErrors([&] { return base::readFile(file); });
  const bool isAsItWas = base::Digest::of(content) == document.ownDigest;
  return isAsItWas ? Standing::own : Standing::changed;
}

void saveSystemFile(DocumentData& document, const std::string& path, Overwriting overwriting) {
  const fs::path file = forms::toMachinePath(withSystemExtension(path));
  checkName(document.name);
  checkName(file.stem().string());
  const std::string oldProgram = document.compiledProgram;
  const bool wasCurrent = document.programIsCurrent;
  leaveProgramBehind(document, file.parent_path());
  const std::string text = systemFileText(document);
  try {
    raisingHostErrors([&] { write(document, file, text, overwriting); });
  } catch (const host::Error&) {
    document.compiledProgram = oldProgram;
    document.programIsCurrent = wasCurrent;
    throw;
  }
  document.ownFile = file;
  if (document.use) document.showInUse();
  document.ownDigest = base::Digest::of(text);
  if (document.whenSaved) document.whenSaved();
}

}  // namespace trellisar
