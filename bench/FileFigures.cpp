#include <stdexcept>

#include "base/FileIO.h"
#include "base/Json.h"
#include "bench/Figure.h"
#include "bench/Process.h"
#include "bench/Room.h"
#include "forms/Paths.h"
#include "trellisar/document/SystemFile.h"

namespace bench {
namespace {

namespace fs = std::filesystem;
using base::Json;

/// A full room's file in a folder that lives as long as the sides that use it.
struct Saved {
  TemporaryFolder folder;
  fs::path file = buildFullRoom(folder.path());
  std::string text = base::readFile(file);
};

std::vector<Side> opening() {
  const auto saved = std::make_shared<Saved>();
  const auto library = std::make_shared<const trellisar::DeviceLibrary>(
      fs::path(ORLENA_SOURCE_FOLDER) / "data/library");
  const auto open = [saved, library] {
    trellisar::DocumentPtr opened;
    return costOf([&] { opened = trellisar::readSystemFile(saved->file, library); });
  };
  const auto parse = [saved] {
    return costOf([&] { Json json = Json::parse(base::readFile(saved->file)); });
  };
  return {{"opening a system", open}, {"parsing its file with the library alone", parse}};
}

std::vector<Side> saving() {
  const auto saved = std::make_shared<Saved>();
  const auto document = trellisar::readSystemFile(saved->file, nullptr);
  const auto json = std::make_shared<Json>(Json::parse(saved->text));
  if (json->dump(2) + "\n" != saved->text || trellisar::systemFileText(*document) != saved->text) {
    throw std::runtime_error("the two ways of saving write other bytes");
  }
  const auto save = [saved, document] {
    return costOf(
        [&] { trellisar::saveSystemFile(*document, forms::fromMachinePath(saved->file)); });
  };
  const auto write = [saved, json] {
    return costOf([&] { base::replaceFile(saved->file, json->dump(2) + "\n"); });
  };
  return {{"saving a system", save}, {"writing its JSON with the library alone", write}};
}

}  // namespace

std::vector<Figure> fileFigures() {
  return {{"open", {Aim::Bound::atMost, 1.5}, 501, opening},
          {"save", {Aim::Bound::atMost, 1.5}, 201, saving}};
}

}  // namespace bench
