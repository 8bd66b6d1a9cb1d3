#include <algorithm>
#include <chrono>
#include <thread>

#include "base/Digest.h"
#include "base/FileIO.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "trellisar/library/DefinitionJson.h"
#include "trellisar/library/HostErrors.h"
#include "trellisar/library/NameList.h"
#include "trellisar/library/NameListForm.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

/// A file on its way to the list.
struct ReadFile {
  IndexedFile file;
  std::string checksum = {};
  std::vector<DefinitionPtr> definitions = {};
  std::vector<Span> spans = {};
  std::vector<ListedDefinition> listings = {};
};

/// Puts a line's values one behind the other.
class LineWriter {
 public:
  explicit LineWriter(std::string& text) : text_(text) {}

  void operator()(std::string_view value) {
    if (!text_.empty() && text_.back() != '\n') text_ += '\t';
    text_ += value;
  }
  template <typename Number>
  requires std::is_arithmetic_v<Number>
  void operator()(Number value) {
    const std::string text = std::to_string(value);
    (*this)(std::string_view(text));
  }
  void operator()(Definition::Connection connection) { (*this)(connectionWord(connection)); }
  void operator()(const PowerControl& power) {
    std::string letters;
    for (const auto& [letter, command] : powerLetters) {
      if (power.*command) letters += letter;
    }
    (*this)(std::string_view(letters.empty() ? "-" : letters));
  }

 private:
  std::string& text_;
};

/// Until a change of any of the files has another time than the last one: file systems count time
/// in steps, and some in whole seconds.
void waitForOtherTime(const std::vector<IndexedFile>& files) {
  using namespace std::chrono;
  constexpr std::int64_t second = 1'000'000'000;
  std::int64_t last = 0;
  for (const IndexedFile& file : files) last = std::max(last, file.stamp.changed);
  const nanoseconds step = last % second == 0 ? nanoseconds(2s) : nanoseconds(50ms);
  const auto now = system_clock::now().time_since_epoch();
  std::this_thread::sleep_for(std::min(nanoseconds(last) + step - now, step));
}

ReadFile read(const fs::path& folder, const IndexedFile& file) {
  ReadFile result{.file = file};
  const std::string text = raisingHostErrors([&] { return base::readFile(folder / file.name); });
  result.checksum = base::checksum(text);
  result.definitions = readLibraryFile(text, shownName(folder, file.name));
  result.spans = definitionSpans(text);
  for (const DefinitionPtr& each : result.definitions) result.listings.push_back(listingOf(*each));
  return result;
}

bool fitsIntoLine(std::string_view text) {
  return text.find_first_of("\t\n") == std::string_view::npos;
}

/// A file that can't be listed is read when something is looked for.
bool canBeListed(const ReadFile& file) {
  return fitsIntoLine(file.file.name) && file.spans.size() == file.definitions.size() &&
         std::ranges::all_of(file.listings, [](const ListedDefinition& each) {
           return fitsIntoLine(each.name) && fitsIntoLine(each.maker) &&
                  fitsIntoLine(each.category);
         });
}

void put(const ReadFile& file, std::string& text) {
  LineWriter fields(text);
  fields(nameListFileWord);
  fields(std::string_view(file.file.name));
  fields(file.file.stamp.size);
  fields(file.file.stamp.modified);
  fields(file.file.stamp.changed);
  fields(std::string_view(file.checksum));
  text += '\n';
  for (std::size_t i = 0; i < file.listings.size(); ++i) {
    fields(std::string_view(formName(file.listings[i].form)));
    listingFields(fields, file.spans[i], file.listings[i]);
    text += '\n';
  }
}

}  // namespace

void rankByName(std::vector<ListedDefinition*> listings) {
  std::ranges::stable_sort(listings,
                           [](const ListedDefinition* one, const ListedDefinition* other) {
                             return forms::compareIgnoringCase(one->name, other->name) < 0;
                           });
  std::int32_t rank = 0;
  for (ListedDefinition* listing : listings) listing->rank = rank++;
}

std::string nameListText(const fs::path& folder, NameListFor place) {
  const std::vector<IndexedFile> indexed = indexedFiles(folder);
  if (place == NameListFor::thisPlace) waitForOtherTime(indexed);
  std::vector<ReadFile> files;
  for (const IndexedFile& file : indexed) files.push_back(read(folder, file));
  if (indexedFiles(folder) != indexed) {
    const std::string path = folder.string();
    throw host::Error(host::errFile,
                      "A file in \"" + path + "\" was changed while it was read. Try again.");
  }
  std::vector<ListedDefinition*> all;
  for (ReadFile& file : files) {
    for (ListedDefinition& listing : file.listings) all.push_back(&listing);
  }
  rankByName(std::move(all));
  std::string text;
  for (ReadFile& file : files) {
    if (place == NameListFor::copies) file.file.stamp = {.size = file.file.stamp.size};
    if (canBeListed(file)) put(file, text);
  }
  return std::string(nameListHead) + base::checksum(text) + "\n" + text;
}

}  // namespace trellisar
