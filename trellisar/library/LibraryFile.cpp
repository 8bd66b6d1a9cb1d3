#include "trellisar/library/LibraryFile.h"

#include <sys/stat.h>

#include <array>
#include <unordered_set>
#include <utility>

#include "base/FileIO.h"
#include "trellisar/library/DefinitionJson.h"
#include "trellisar/library/HostErrors.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;
using Form = Definition::Form;

constexpr base::JsonLimits libraryLimits{8U << 20U, 20, 1000};

/// The lists of a file in the order in which they are read.
constexpr std::array<std::pair<const char*, Form>, 4> lists{{{"devices", Form::device},
                                                             {"modules", Form::module},
                                                             {"interfaces", Form::interface},
                                                             {"receivers", Form::receiver}}};

/// Parses a file of the folder and reads "format" and "version". `json` and `shown` are kept by the
/// caller, since the reader refers to them.
base::JsonReader openFile(const base::Json& json, const std::string& shown, const char* format) {
  base::JsonReader reader(json, shown);
  const base::JsonReader kind = reader.at("format");
  if (kind.text() != format) kind.fail("must be \"" + std::string(format) + "\"");
  reader.at("version").integer(1, 1);
  return reader;
}

std::vector<IndexedFile> readIndex(const fs::path& folder) {
  const std::string shown = shownName(folder, "index.json");
  const base::Json json =
      base::parseJson(base::readFile(folder / "index.json"), shown, libraryLimits);
  base::JsonReader reader = openFile(json, shown, "trellisar-device-library");
  std::vector<IndexedFile> files;
  std::unordered_set<std::string> known;
  reader.at("files").each([&](const base::JsonReader& item) {
    const std::string name = item.text();
    if (name.empty() || name.find('/') != std::string::npos) item.fail("must be a file's name");
    if (!known.insert(name).second) item.fail("the file stands twice");
    const std::optional<FileStamp> stamp = stampOf(folder.native() + "/" + name);
    if (!stamp) item.fail("\"" + name + "\" is not in the folder");
    files.push_back({name, *stamp});
  });
  reader.finish();
  return files;
}

std::int64_t nanoseconds(const timespec& time) {
  return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

/// Goes through the text of a file and notes where the elements of its lists begin and end.
class SpanFinder {
 public:
  explicit SpanFinder(std::string_view text) : text_(text) {}

  std::vector<Span> find() {
    for (at_ = 0; at_ < text_.size(); ++at_) step(text_[at_]);
    std::vector<Span> all;
    for (const auto& found : found_) all.insert(all.end(), found.begin(), found.end());
    return all;
  }

 private:
  static constexpr int depthOfElements = 2;  // in the file's object, in a list

  void step(char c) {
    if (c == '"') {
      passText();
    } else if (c == '{' || c == '[') {
      if (depth_++ == depthOfElements) begin_ = at_;
    } else if (c == '}' || c == ']') {
      if (--depth_ == depthOfElements) take();
    }
  }

  /// Outside of all lists the last text before a list is its key.
  void passText() {
    const std::size_t begin = ++at_;
    for (; at_ < text_.size() && text_[at_] != '"'; ++at_) at_ += text_[at_] == '\\' ? 1 : 0;
    if (depth_ == 1) key_ = text_.substr(begin, at_ - begin);
  }

  void take() {
    for (std::size_t i = 0; i < lists.size(); ++i) {
      if (key_ == lists[i].first) found_[i].push_back({begin_, at_ + 1 - begin_});
    }
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t begin_ = 0;
  int depth_ = 0;
  std::string_view key_;
  std::array<std::vector<Span>, lists.size()> found_;
};

}  // namespace

std::optional<FileStamp> stampOf(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  return FileStamp{status.st_size, nanoseconds(status.st_mtim), nanoseconds(status.st_ctim)};
}

std::string shownName(const fs::path& folder, const std::string& file) {
  return (folder.filename() / file).string();
}

std::vector<IndexedFile> indexedFiles(const fs::path& folder) {
  return raisingHostErrors([&] { return readIndex(folder); });
}

std::vector<DefinitionPtr> readLibraryFile(std::string_view text, const std::string& shown) {
  return raisingHostErrors([&] {
    const base::Json json = base::parseJson(text, shown, libraryLimits);
    base::JsonReader reader = openFile(json, shown, "trellisar-devices");
    const std::string maker = reader.at("maker").text();
    std::vector<DefinitionPtr> definitions;
    for (const auto& [key, form] : lists) {
      reader.ifPresent(key, [&, listed = form](const base::JsonReader& list) {
        list.each([&](const base::JsonReader& item) {
          definitions.push_back(
              std::make_shared<const Definition>(readDefinition(item, listed, maker)));
        });
      });
    }
    reader.finish();
    return definitions;
  });
}

std::vector<Span> definitionSpans(std::string_view text) { return SpanFinder(text).find(); }

DefinitionPtr readDefinitionAlone(std::string_view text, const std::string& shown, Form form,
                                  const std::string& maker) {
  return raisingHostErrors([&] {
    const base::Json json = base::parseJson(text, shown, libraryLimits);
    return std::make_shared<const Definition>(
        readDefinition(base::JsonReader(json, shown), form, maker));
  });
}

}  // namespace trellisar
