#include "trellisar/panels/PanelBuild.h"

#include <algorithm>

#include "base/Digest.h"
#include "base/Json.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "host/Numbers.h"

namespace trellisar {
namespace {

std::string inQuotes(const std::string& text) { return "\"" + text + "\""; }

std::string standardName(std::int16_t id) {
  switch (id) {
    case host::scOn:
      return "On";
    case host::scOff:
      return "Off";
    case host::scUp:
      return "Up";
    case host::scDown:
      return "Down";
    case host::scRGB1:
      return "RGB 1";
    case host::scVideo1:
      return "Video 1";
    default:
      return std::to_string(id);
  }
}

/// The text of a button in one line.
std::string shownText(const std::string& text) {
  return inQuotes(forms::replacedAll(text, "\r\n", " "));
}

class Builder {
 public:
  Builder(const DocumentData& document, const PanelMessages& messages)
      : document_(document),
        receiver_(document.find(document.controlSystem)),
        messages_(messages) {}

  PanelPage page(const TemplatePage& from, const std::string& prefix) const {
    PanelPage page;
    page.name = forms::replacedAll(nameWithout(prefix, from.name), "{receiver}", receiver_->name);
    messages_(host::severityProgress, "Page " + inQuotes(page.name));
    for (const TemplateObject& object : from.objects) add(object, page);
    return page;
  }

 private:
  static std::string nameWithout(const std::string& prefix, const std::string& name) {
    return name.starts_with(prefix) ? forms::trimmed(name.substr(prefix.size())) : name;
  }

  void add(const TemplateObject& from, PanelPage& page) const {
    const std::int16_t model = receiver_->definition->modelId;
    const auto& models = from.receivers;
    if (!models.empty() && std::find(models.begin(), models.end(), model) == models.end()) return;
    const DevicePtr device = target(from);
    if (!device) return;
    PanelObject object{from.id, from.kind, from.text, from.area};
    if (from.sends) takeCommand(from, *device, page.name, object);
    if (!from.preset.empty()) takePreset(from, page.name, object);
    page.objects.push_back(std::move(object));
  }

  DevicePtr target(const TemplateObject& from) const {
    if (from.device.empty()) return receiver_;
    return document_.findByName(DeviceData::Kind::device, from.device, receiver_->name);
  }

  void takeCommand(const TemplateObject& from, const DeviceData& device, const std::string& page,
                   PanelObject& object) const {
    const bool isStandard = from.standardId != 0;
    const std::string command = isStandard ? device.commandFor(from.standardId) : from.command;
    if (device.definition->findCommand(command)) {
      object.device = device.name;
      object.command = command;
      return;
    }
    warn(object, page,
         "the device " + inQuotes(device.name) +
             (isStandard ? " does not support the standard command " +
                               inQuotes(standardName(from.standardId))
                         : " has no command " + inQuotes(from.command)));
  }

  void takePreset(const TemplateObject& from, const std::string& page, PanelObject& object) const {
    if (document_.findPreset(from.preset)) {
      object.preset = from.preset;
    } else {
      warn(object, page, "the system has no preset " + inQuotes(from.preset));
    }
  }

  void warn(const PanelObject& object, const std::string& page, const std::string& why) const {
    messages_(host::severityWarning, "The button " + shownText(object.text) + " on the page " +
                                         inQuotes(page) + " does nothing: " + why + ".");
  }

  const DocumentData& document_;
  DevicePtr receiver_;
  const PanelMessages& messages_;
};

bool isTaken(const TemplatePage& page, const PanelPages& pages) {
  switch (page.sort) {
    case TemplatePage::Sort::own:
      return page.name.starts_with(pages.prefix);
    case TemplatePage::Sort::defaultPage:
      return pages.includesDefault;
    case TemplatePage::Sort::shared:
      return pages.includesShared;
  }
  return false;
}

std::string labelsOf(const DocumentData& document) {
  base::Json labels = base::Json::array();
  for (const DevicePtr& device : document.devices) {
    if (!device->label.empty()) labels.push_back({device->name, device->port, device->label});
  }
  return base::jsonText(labels);
}

}  // namespace

PanelProject buildPanelProject(const DocumentData& document, const DeviceData& panel,
                               const PanelTemplate& from, const PanelPages& pages,
                               const PanelMessages& messages) {
  messages(host::severityProgress, "Making the project of " + inQuotes(panel.name));
  const Builder builder(document, messages);
  PanelProject project{document.name, panel.name, pages, {}, {}};
  for (const TemplatePage& page : from.pages) {
    if (isTaken(page, pages)) project.pages.push_back(builder.page(page, pages.prefix));
  }
  if (project.pages.empty()) {
    throw host::Error(host::errBadFile, "The project template of " + inQuotes(panel.name) +
                                            " has no page whose name begins with " +
                                            inQuotes(pages.prefix) + ".");
  }
  project.madeFrom = base::Digest::of(panelProjectText(project) + labelsOf(document));
  return project;
}

}  // namespace trellisar
