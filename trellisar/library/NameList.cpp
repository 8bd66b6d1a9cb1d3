#include "trellisar/library/NameList.h"

#include <charconv>
#include <utility>

#include "base/Digest.h"
#include "base/Error.h"
#include "base/FileIO.h"
#include "trellisar/library/DefinitionJson.h"
#include "trellisar/library/NameListForm.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

/// The list is not what this program writes.
struct Foreign {};

constexpr std::size_t shortLine = 64;  // bytes

/// Everything up to the separator, which is cut off with it; the whole without one.
std::string_view cut(std::string_view& text, char separator) {
  const std::size_t length = std::min(text.find(separator), text.size());
  const std::string_view piece = text.substr(0, length);
  text.remove_prefix(std::min(length + 1, text.size()));
  return piece;
}

/// Takes a line's values one after the other.
class LineReader {
 public:
  explicit LineReader(std::string_view line) : rest_(line) {}

  void operator()(std::string_view& value) { value = cut(rest_, '\t'); }
  template <typename Number>
  void operator()(Number& value) {
    const char* end = rest_.data() + rest_.size();
    const auto [behind, status] = std::from_chars(rest_.data(), end, value);
    if (status != std::errc() || behind == end || *behind != '\t') throw Foreign();
    rest_.remove_prefix(static_cast<std::size_t>(behind + 1 - rest_.data()));
  }
  void operator()(Definition::Form& form) { form = orForeign(formNamed(cut(rest_, '\t'))); }
  void operator()(Definition::Connection& connection) {
    connection = orForeign(connectionNamed(cut(rest_, '\t')));
  }
  void operator()(PowerControl& power) {
    for (const char given : cut(rest_, '\t')) {
      for (const auto& [letter, command] : powerLetters) power.*command |= given == letter;
    }
  }

 private:
  template <typename T>
  static T orForeign(const std::optional<T>& value) {
    if (!value) throw Foreign();
    return *value;
  }

  std::string_view rest_;
};

}  // namespace

NameList::NameList(const fs::path& folder) {
  try {
    text_ = base::readFile(nameListFile(folder));
    read();
  } catch (const base::Error&) {
  } catch (const Foreign&) {
    files_.clear();
  }
}

void NameList::read() {
  std::string_view rest = text_;
  const std::string_view head = cut(rest, '\n');
  if (!head.starts_with(nameListHead)) throw Foreign();
  if (head.substr(nameListHead.size()) != base::checksum(rest)) throw Foreign();
  listings_.reserve(rest.size() / shortLine);
  spans_.reserve(rest.size() / shortLine);
  while (!rest.empty()) {
    const std::string_view line = cut(rest, '\n');
    if (line.starts_with(nameListFileWord)) {
      readFile(line);
    } else if (open_) {
      readListing(line);
    } else {
      throw Foreign();
    }
  }
}

void NameList::readFile(std::string_view line) {
  LineReader fields(line);
  std::string_view word;
  std::string_view name;
  File file{.stamp = {}, .checksum = {}, .first = listings_.size()};
  fields(word);
  fields(name);
  fields(file.stamp.size);
  fields(file.stamp.modified);
  fields(file.stamp.changed);
  fields(file.checksum);
  open_ = &files_.insert_or_assign(name, file).first->second;
}

void NameList::readListing(std::string_view line) {
  LineReader fields(line);
  ListedDefinition& listing = listings_.emplace_back();
  fields(listing.form);
  Span& span = spans_.emplace_back();
  listingFields(fields, span, listing);
  const auto size = static_cast<std::size_t>(open_->stamp.size);
  if (span.begin > size || span.length > size - span.begin) throw Foreign();
  ++open_->count;
}

const NameList::File* NameList::find(std::string_view file) const {
  const auto found = files_.find(file);
  return found == files_.end() ? nullptr : &found->second;
}

fs::path nameListFile(const fs::path& folder) { return folder / "names.tsv"; }

}  // namespace trellisar
