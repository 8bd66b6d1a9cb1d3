#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "trellisar/library/LibraryFile.h"
#include "trellisar/library/ListedDefinition.h"

namespace trellisar {

/// The list of a library's names, "names.tsv" in its folder: what devices are chosen and found by,
/// so that they can be without their files being read. It says of each file how that looked when
/// the list was written; a file that looks different is not listed.
class NameList {
 public:
  /// What the list says of a file.
  struct File {
    FileStamp stamp;            // without times in a list that may be copied
    std::string_view checksum;  // of its content
    std::size_t first = 0;      // of its listings
    std::size_t count = 0;
  };

  /// An empty list for a folder whose list is missing, damaged or of another version.
  explicit NameList(const std::filesystem::path& folder);
  NameList(const NameList&) = delete;
  NameList& operator=(const NameList&) = delete;

  /// Nothing when the list does not have it.
  const File* find(std::string_view file) const;
  std::span<ListedDefinition> listings(const File& file) {
    return std::span(listings_).subspan(file.first, file.count);
  }
  std::span<const Span> spans(const File& file) const {
    return std::span(spans_).subspan(file.first, file.count);
  }

 private:
  void read();
  void readFile(std::string_view line);
  void readListing(std::string_view line);

  std::string text_;
  std::unordered_map<std::string_view, File> files_;
  File* open_ = nullptr;  // whose listings are being read
  std::vector<ListedDefinition> listings_;
  std::vector<Span> spans_;
};

/// Gives each listing the rank of its name.
void rankByName(std::vector<ListedDefinition*> listings);

/// What a list is good for.
enum class NameListFor {
  thisPlace,  // it knows its files by their times too, which is quickest
  copies      // it knows them by their content alone, and so in any place
};

/// The list of a folder's names as it now is. Raises host::Error for what is wrong with a file, and
/// when one is changed meanwhile.
std::string nameListText(const std::filesystem::path& folder, NameListFor place);

/// Where the list of a folder's names lies.
std::filesystem::path nameListFile(const std::filesystem::path& folder);

}  // namespace trellisar
