#include "trellisar/window/Pictures.h"

#include "base/FileIO.h"
#include "base/Json.h"

namespace trellisar {
namespace {

constexpr std::int16_t smallSize = 16;
constexpr std::int16_t largeSize = 32;
constexpr JsonLimits indexLimits{1U << 20U, 4, 10};

void readList(const JsonReader& list, const std::filesystem::path& folder, std::int16_t size,
              forms::ImageList& pictures) {
  pictures.setImageSize(size, size);
  list.each([&](const JsonReader& item) { pictures.add(forms::Picture(folder / item.text())); });
}

}  // namespace

Pictures readPictures(const std::filesystem::path& folder) {
  const std::string shown = (folder.filename() / "index.json").string();
  const Json json = parseJson(readFile(folder / "index.json"), shown, indexLimits);
  JsonReader reader(json, shown);
  const JsonReader format = reader.at("format");
  if (format.text() != "trellisar-pictures") format.fail("must be \"trellisar-pictures\"");
  reader.at("version").integer(1, 1);
  Pictures pictures;
  readList(reader.at("small"), folder, smallSize, pictures.small);
  readList(reader.at("large"), folder, largeSize, pictures.large);
  reader.finish();
  return pictures;
}

}  // namespace trellisar
