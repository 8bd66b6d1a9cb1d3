#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "trellisar/library/Definition.h"

namespace trellisar {

/// What tells a file that has been changed or replaced from one that has not, without its being
/// read. The times are nanoseconds; the file system sets `changed`, which nobody else can.
struct FileStamp {
  std::int64_t size = 0;
  std::int64_t modified = 0;
  std::int64_t changed = 0;

  bool operator==(const FileStamp&) const = default;
};

/// Nothing when there is no such file.
std::optional<FileStamp> stampOf(const std::string& path);

/// Where a definition stands in the text of its file.
struct Span {
  std::size_t begin = 0;
  std::size_t length = 0;
};

/// The name of a library's file in errors: "library/bravonne.json".
std::string shownName(const std::filesystem::path& folder, const std::string& file);

struct IndexedFile {
  std::string name;
  FileStamp stamp;

  bool operator==(const IndexedFile&) const = default;
};

/// The files in the order of the index. Like what follows it raises host::Error errFile or
/// errBadFile with the file and the place.
std::vector<IndexedFile> indexedFiles(const std::filesystem::path& folder);

/// All definitions of a file's text.
std::vector<DefinitionPtr> readLibraryFile(std::string_view text, const std::string& shown);

/// The definitions' places in such a text, which is known to be right, in the same order.
std::vector<Span> definitionSpans(std::string_view text);

/// The definition that stands in the span of a text, which is known to be right.
DefinitionPtr readDefinitionAlone(std::string_view text, const std::string& shown,
                                  Definition::Form form, const std::string& maker);

}  // namespace trellisar
