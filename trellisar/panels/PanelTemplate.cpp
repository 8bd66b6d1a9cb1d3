#include "trellisar/panels/PanelTemplate.h"

#include <algorithm>
#include <set>
#include <system_error>

#include "base/FileIO.h"
#include "host/Error.h"
#include "trellisar/library/HostErrors.h"
#include "trellisar/panels/PanelJson.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

constexpr const char* templateFormat = "trellisar-panel-template";
constexpr int templateVersion = 1;

void readSends(base::JsonReader reader, TemplateObject& object) {
  object.sends = true;
  object.device = reader.at("device").text();
  const bool hasStandard = reader.ifPresent(
      "standard", [&](const base::JsonReader& id) { object.standardId = id.int16(1); });
  if (!hasStandard) object.command = reader.at("command").text();
  reader.finish();
}

TemplateObject readObject(base::JsonReader reader, std::set<std::int32_t>& ids) {
  TemplateObject object;
  const base::JsonReader id = reader.at("id");
  object.id = id.int32(1);
  if (!ids.insert(object.id).second) id.fail("the id stands twice");
  object.kind = readPanelObjectKind(reader.at("kind"));
  object.text = reader.at("text").text();
  object.area = readPanelArea(reader);
  reader.ifPresent("receivers", [&](const base::JsonReader& models) {
    models.each([&](const base::JsonReader& model) { object.receivers.push_back(model.int16(1)); });
  });
  reader.ifPresent("sends", [&](const base::JsonReader& sends) { readSends(sends, object); });
  reader.ifPresent("runs", [&](const base::JsonReader& runs) { object.preset = runs.text(); });
  reader.finish();
  return object;
}

TemplatePage readPage(base::JsonReader reader, std::set<std::int32_t>& ids) {
  using Sort = TemplatePage::Sort;
  TemplatePage page;
  page.name = reader.at("name").text();
  page.sort = reader.at("sort").choice<Sort>(
      {{"own", Sort::own}, {"default", Sort::defaultPage}, {"shared", Sort::shared}});
  reader.at("objects").each(
      [&](const base::JsonReader& object) { page.objects.push_back(readObject(object, ids)); });
  reader.finish();
  return page;
}

PanelTemplate readTemplate(const fs::path& file) {
  return raisingHostErrors([&] {
    const std::string shown = (file.parent_path().filename() / file.filename()).string();
    const base::Json json = base::parseJson(base::readFile(file), shown);
    base::JsonReader reader(json, shown);
    if (const base::JsonReader format = reader.at("format"); format.text() != templateFormat) {
      format.fail("is no panel template");
    }
    static_cast<void>(reader.at("version").integer(templateVersion, templateVersion));
    PanelTemplate read;
    read.model = reader.at("model_id").int16(1);
    std::set<std::int32_t> ids;
    reader.at("pages").each(
        [&](const base::JsonReader& page) { read.pages.push_back(readPage(page, ids)); });
    reader.finish();
    return read;
  });
}

std::vector<fs::path> templateFiles(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(folder, error)) {
    if (entry.path().extension() == ".json") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

PanelTemplate findPanelTemplate(const fs::path& folder, std::int16_t model) {
  for (const fs::path& file : templateFiles(folder)) {
    PanelTemplate read = readTemplate(file);
    if (read.model == model) return read;
  }
  throw host::Error(host::errFile, "The folder \"" + folder.string() +
                                       "\" has no project template for panels of model " +
                                       std::to_string(model) + ".");
}

}  // namespace trellisar
