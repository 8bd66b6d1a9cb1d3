#pragma once

#include <archive.h>
#include <archive_entry.h>

#include <string>
#include <vector>

#include "trellisar/archive/ArchiveHandle.h"

namespace tests {

struct ZipEntry {
  std::string name;
  std::string content;
  std::string linkTo = {};
  bool isFolder = false;
};

/// A zip file with exactly these entries.
inline std::string zipOf(const std::vector<ZipEntry>& entries) {
  std::string bytes;
  const trellisar::Utf8Names names;
  const trellisar::ArchiveHandle zip(archive_write_new());
  archive_write_set_format_zip(zip.get());
  archive_write_set_bytes_in_last_block(zip.get(), 1);
  const auto append = [](archive*, void* to, const void* block, std::size_t size) {
    static_cast<std::string*>(to)->append(static_cast<const char*>(block), size);
    return static_cast<la_ssize_t>(size);
  };
  archive_write_open(zip.get(), &bytes, nullptr, append, nullptr);
  for (const ZipEntry& one : entries) {
    const trellisar::ArchiveEntry entry(archive_entry_new());
    archive_entry_set_pathname_utf8(entry.get(), one.name.c_str());
    archive_entry_set_filetype(entry.get(), one.isFolder         ? AE_IFDIR
                                            : one.linkTo.empty() ? AE_IFREG
                                                                 : AE_IFLNK);
    if (!one.linkTo.empty()) archive_entry_set_symlink(entry.get(), one.linkTo.c_str());
    archive_entry_set_perm(entry.get(), 0644);
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(one.content.size()));
    archive_write_header(zip.get(), entry.get());
    archive_write_data(zip.get(), one.content.data(), one.content.size());
  }
  archive_write_close(zip.get());
  return bytes;
}

}  // namespace tests
