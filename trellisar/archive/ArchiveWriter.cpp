#include <utility>

#include "base/FileIO.h"
#include "host/Error.h"
#include "host/Numbers.h"
#include "trellisar/archive/Archive.h"
#include "trellisar/archive/ArchiveHandle.h"
#include "trellisar/compile/CompiledProgram.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/library/HostErrors.h"
#include "trellisar/panels/PanelState.h"
#include "trellisar/reports/Report.h"

namespace trellisar {
namespace {

constexpr mode_t filePermissions = 0644;

la_ssize_t append(struct archive*, void* bytes, const void* block, std::size_t size) {
  static_cast<std::string*>(bytes)->append(static_cast<const char*>(block), size);
  return static_cast<la_ssize_t>(size);
}

/// A zip file in memory. Entries bear no time, which the format writes as its earliest one, and the
/// same permissions.
class ZipWriter {
 public:
  ZipWriter() : zip_(archive_write_new()) {
    if (!zip_) throw std::bad_alloc();
    check(archive_write_set_format_zip(zip_.get()));
    check(archive_write_set_options(zip_.get(), "zip:hdrcharset=UTF-8"));
    check(archive_write_set_bytes_in_last_block(zip_.get(), 1));
    check(archive_write_open(zip_.get(), &bytes_, nullptr, append, nullptr));
  }

  void add(const std::string& name, const std::string& content) {
    const ArchiveEntry entry(archive_entry_new());
    if (!entry) throw std::bad_alloc();
    archive_entry_set_pathname_utf8(entry.get(), name.c_str());
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(content.size()));
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), filePermissions);
    check(archive_write_header(zip_.get(), entry.get()));
    if (archive_write_data(zip_.get(), content.data(), content.size()) < 0) check(ARCHIVE_FATAL);
  }

  std::string finish() {
    check(archive_write_close(zip_.get()));
    return std::move(bytes_);
  }

 private:
  void check(int status) {
    if (status == ARCHIVE_OK) return;
    const char* reason = archive_error_string(zip_.get());
    throw host::Error(host::errFile, std::string("The archive can't be made: ") +
                                         (reason ? reason : "unknown error") + ".");
  }

  Utf8Names names_;
  std::string bytes_;
  ArchiveHandle zip_;
};

}  // namespace

std::string archiveOf(const DocumentData& document) {
  requireBuiltProjects(document);
  ZipWriter zip;
  zip.add(document.name + ".tsy", systemFileText(document));
  zip.add(document.compiledProgram, storedProgram(document));
  for (const DevicePtr& panel : document.panels) {
    if (!panel->definition->projectPanel) continue;
    const auto project = panelProjectFile(document, *panel);
    zip.add(project.filename().string(),
            raisingHostErrors([&] { return base::readFile(project); }));
  }
  for (const Report& report : reportsNamed(document, host::reportsAll)) {
    zip.add("reports/" + reportFileName(report), reportHtml(report));
  }
  return zip.finish();
}

}  // namespace trellisar
