#include "trellisar/panels/PanelProject.h"

#include <algorithm>
#include <set>

#include "base/FileIO.h"
#include "forms/Paths.h"
#include "trellisar/library/HostErrors.h"
#include "trellisar/panels/PanelJson.h"

namespace trellisar {
namespace {

constexpr const char* projectFormat = "trellisar-panel-project";
constexpr int projectVersion = 1;
constexpr const char* projectExtension = ".tpj";
constexpr std::int32_t largestPixel = 32767;

base::Json objectJson(const PanelObject& object) {
  base::Json json;
  json["id"] = object.id;
  json["kind"] = panelObjectKindName(object.kind);
  json["text"] = object.text;
  json["left"] = object.area.left;
  json["top"] = object.area.top;
  json["width"] = object.area.width;
  json["height"] = object.area.height;
  if (!object.command.empty()) {
    json["sends"] = {{"device", object.device}, {"command", object.command}};
  }
  if (!object.preset.empty()) json["runs"] = object.preset;
  return json;
}

PanelObject readObject(base::JsonReader reader, std::set<std::int32_t>& ids) {
  PanelObject object;
  const base::JsonReader id = reader.at("id");
  object.id = id.int32(1);
  if (!ids.insert(object.id).second) id.fail("the id stands twice");
  object.kind = readPanelObjectKind(reader.at("kind"));
  object.text = reader.at("text").text();
  object.area = readPanelArea(reader);
  reader.ifPresent("sends", [&](base::JsonReader sends) {
    object.device = sends.at("device").text();
    object.command = sends.at("command").text();
    sends.finish();
  });
  reader.ifPresent("runs", [&](const base::JsonReader& runs) { object.preset = runs.text(); });
  reader.finish();
  return object;
}

/// A name as a file can have it.
std::string fileNameFor(std::string name) {
  std::replace_if(
      name.begin(), name.end(),
      [](unsigned char c) { return c < ' ' || c == '/' || c == '\\' || c == 0x7F; }, '_');
  return name.empty() || name.front() == '.' ? "_" + name : name;
}

}  // namespace

PanelPage* PanelProject::findPage(const std::string& name) {
  for (PanelPage& page : pages) {
    if (page.name == name) return &page;
  }
  return nullptr;
}

PanelObject* PanelProject::findObject(std::int32_t id) {
  for (PanelPage& page : pages) {
    for (PanelObject& object : page.objects) {
      if (object.id == id) return &object;
    }
  }
  return nullptr;
}

PanelObject::Kind readPanelObjectKind(const base::JsonReader& reader) {
  return reader.choice<PanelObject::Kind>(
      {{"button", PanelObject::Kind::button}, {"text", PanelObject::Kind::text}});
}

const char* panelObjectKindName(PanelObject::Kind kind) {
  return kind == PanelObject::Kind::button ? "button" : "text";
}

PanelArea readPanelArea(base::JsonReader& object) {
  PanelArea area;
  area.left = object.at("left").int32(0, largestPixel);
  area.top = object.at("top").int32(0, largestPixel);
  area.width = object.at("width").int32(1, largestPixel);
  area.height = object.at("height").int32(1, largestPixel);
  return area;
}

std::string panelProjectText(const PanelProject& project) {
  base::Json json;
  json["format"] = projectFormat;
  json["version"] = projectVersion;
  json["system"] = project.system;
  json["panel"] = project.panel;
  json["prefix"] = project.taken.prefix;
  json["default_pages"] = project.taken.includesDefault;
  json["shared_pages"] = project.taken.includesShared;
  json["made_from"] = project.madeFrom;
  json["pages"] = base::Json::array();
  for (const PanelPage& page : project.pages) {
    base::Json objects = base::Json::array();
    for (const PanelObject& object : page.objects) objects.push_back(objectJson(object));
    json["pages"].push_back({{"name", page.name}, {"objects", std::move(objects)}});
  }
  return base::jsonText(json);
}

PanelProject readPanelProject(const std::filesystem::path& file) {
  return raisingHostErrors([&] {
    const std::string shown = file.filename().string();
    const base::Json json = base::parseJson(base::readFile(file), shown);
    base::JsonReader reader(json, shown);
    if (const base::JsonReader format = reader.at("format"); format.text() != projectFormat) {
      format.fail("is no panel project");
    }
    static_cast<void>(reader.at("version").integer(projectVersion, projectVersion));
    PanelProject project;
    project.system = reader.at("system").text();
    project.panel = reader.at("panel").text();
    project.taken.prefix = reader.at("prefix").text();
    project.taken.includesDefault = reader.at("default_pages").boolean();
    project.taken.includesShared = reader.at("shared_pages").boolean();
    project.madeFrom = reader.at("made_from").text();
    std::set<std::int32_t> ids;
    reader.at("pages").each([&](base::JsonReader item) {
      PanelPage page;
      page.name = item.at("name").text();
      item.at("objects").each(
          [&](const base::JsonReader& object) { page.objects.push_back(readObject(object, ids)); });
      item.finish();
      project.pages.push_back(std::move(page));
    });
    reader.finish();
    return project;
  });
}

std::filesystem::path panelProjectFile(const DocumentData& document, const DeviceData& panel) {
  const std::string name = fileNameFor(panel.name);
  // The first panel of a name keeps it; a later one is told by its handle.
  const auto hasName = [&](const DevicePtr& other) {
    return other->id == panel.id ||
           (other->definition->projectPanel && fileNameFor(other->name) == name);
  };
  const auto first = std::find_if(document.panels.begin(), document.panels.end(), hasName);
  const bool isShared = first != document.panels.end() && (*first)->id != panel.id;
  const std::string handle = std::to_string(panel.handle);
  return forms::toMachinePath(document.folder) /
         (name + (isShared ? " " + handle : std::string()) + projectExtension);
}

}  // namespace trellisar
