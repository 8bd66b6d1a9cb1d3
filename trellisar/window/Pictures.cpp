#include "trellisar/window/Pictures.h"

#include "trellisar/library/HostErrors.h"

#include "base/FileIO.h"
#include "base/Json.h"

namespace trellisar {
namespace {

constexpr std::int16_t smallSize = 16;
constexpr std::int16_t largeSize = 32;
constexpr base::JsonLimits indexLimits{1U << 20U, 4, 10};

void readList(const base::JsonReader& list, const std::filesystem::path& folder, std::int16_t size,
              forms::ImageList& pictures) {
  pictures.setImageSize(size, size);
  list.each(
      [&](const base::JsonReader& item) { pictures.add(forms::Picture(folder / item.text())); });
}

}  // namespace

Pictures readPictures(const std::filesystem::path& folder) {
  return raisingHostErrors([&] {
    const std::string shown = (folder.filename() / "index.json").string();
    const base::Json json =
        base::parseJson(base::readFile(folder / "index.json"), shown, indexLimits);
    base::JsonReader reader(json, shown);
    const base::JsonReader format = reader.at("format");
    if (format.text() != "trellisar-pictures") format.fail("must be \"trellisar-pictures\"");
    reader.at("version").integer(1, 1);
    Pictures pictures;
    readList(reader.at("small"), folder, smallSize, pictures.small);
    readList(reader.at("large"), folder, largeSize, pictures.large);
    reader.finish();
    return pictures;
  });
}

}  // namespace trellisar
