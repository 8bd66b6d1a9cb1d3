#include "trellisar/recovery/RecoveryFile.h"

#include <algorithm>

#include "base/Digest.h"
#include "base/Fields.h"
#include "base/FileIO.h"
#include "base/Json.h"
#include "trellisar/document/ProgramFile.h"
#include "trellisar/document/SystemFile.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

constexpr const char* recoveryFormat = "trellisar-recovery";
constexpr std::int32_t recoveryVersion = 1;
constexpr base::JsonLimits headLimits{1U << 20U, 10, 100};

/// What stands in the head beside its format, version, and what tells that the file is whole.
template <typename Fields, typename System>
void headFields(Fields& fields, System& unsaved) {
  fields("name", unsaved.name);
  fields("folder", unsaved.folder);
  fields.own("own_file");
  fields("own_digest", unsaved.ownDigest);
  fields("page", unsaved.whereabouts.iPage, 0);
  fields("folder_accepted", unsaved.whereabouts.bFolderChecksOK);
  fields.own("on_pages");
  fields("edited_control", unsaved.whereabouts.edit.control);
  fields("edited_row", unsaved.whereabouts.edit.row, -1);
  fields("edited_text", unsaved.whereabouts.edit.text);
}

/// In one line. The name of a file may hold bytes that are no text.
std::string lineOf(const base::Json& head) {
  return head.dump(-1, ' ', false, base::Json::error_handler_t::replace);
}

std::string digestOf(const base::Json& head, const std::string& system) {
  return base::Digest::of(lineOf(head) + system);
}

void checkHead(base::JsonReader& reader) {
  const base::JsonReader format = reader.at("format");
  if (format.text() != recoveryFormat) format.fail("is another file's");
  const base::JsonReader version = reader.at("version");
  if (const auto number = version.integer(1, INT32_MAX); number != recoveryVersion) {
    version.fail("the file is of version " + std::to_string(number) +
                 "; this program reads version " + std::to_string(recoveryVersion));
  }
}

}  // namespace

UnsavedSystem unsavedSystem(const DocumentData& document, const host::UnsavedAnswers& answers) {
  DocumentData withAnswers = document;
  withAnswers.name = answers.strName;
  if (!answers.strTitle.empty()) withAnswers.putSettings(answers.strTitle, answers.strSettings);
  return {answers.strName,    answers.strPath,     document.ownFile,
          document.ownDigest, answers.whereabouts, systemFileText(withAnswers)};
}

/// The head is one line, so that the system's text stands behind it as it is.
std::string recoveryFileText(const UnsavedSystem& unsaved) {
  base::Json head;
  head["format"] = recoveryFormat;
  head["version"] = recoveryVersion;
  base::FieldWriter fields(head);
  headFields(fields, unsaved);
  head["own_file"] = unsaved.ownFile.string();
  head["on_pages"] = unsaved.whereabouts.colOnPages;
  head["digest"] = digestOf(head, unsaved.system);
  return lineOf(head) + "\n" + unsaved.system;
}

UnsavedSystem readRecoveryFile(const fs::path& file) {
  const std::string shown = file.filename().string();
  const std::string text = base::readFile(file);
  const std::size_t end = std::min(text.find('\n'), text.size());
  base::Json head = base::parseJson(text.substr(0, end), shown, headLimits);
  base::JsonReader reader(head, shown);
  checkHead(reader);
  UnsavedSystem unsaved;
  base::FieldReader fields(reader);
  headFields(fields, unsaved);
  unsaved.ownFile = reader.at("own_file").text();
  reader.at("on_pages").eachKey([&](const std::string& page, const base::JsonReader& texts) {
    auto& there = unsaved.whereabouts.colOnPages[page];
    texts.each([&](const base::JsonReader& item) { there.push_back(item.text()); });
  });
  const std::string digest = reader.at("digest").text();
  reader.finish();
  if (end < text.size()) unsaved.system = text.substr(end + 1);
  head.erase("digest");
  if (digestOf(head, unsaved.system) != digest) {
    throw base::ContentError(shown + ": the file is damaged: it is not what was written.");
  }
  return unsaved;
}

DocumentPtr documentOf(const UnsavedSystem& unsaved,
                       const std::shared_ptr<const DeviceLibrary>& library) {
  const DocumentPtr document = readSystemText(unsaved.system, unsaved.name, library);
  document->folder = unsaved.folder;
  document->ownFile = unsaved.ownFile;
  document->ownDigest = unsaved.ownDigest;
  document->isModified = true;
  if (!unsaved.ownFile.empty()) forgetMissingProgram(*document, unsaved.ownFile.parent_path());
  return document;
}

}  // namespace trellisar
