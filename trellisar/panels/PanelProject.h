#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "trellisar/document/DocumentData.h"

/// Panel projects, ".tpj": the pages of one touch panel. Their form is in docs/panel-project.md.
namespace trellisar {

/// Pixels from the upper left corner of the page.
struct PanelArea {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
};

struct PanelObject {
  enum class Kind { button, text };

  std::int32_t id = 0;  // unique in the project
  Kind kind = Kind::button;
  std::string text;  // lines end with CR LF
  PanelArea area;
  /// What a button does: it sends a command to a device, or runs a preset; all empty: nothing.
  std::string device = {};
  std::string command = {};
  std::string preset = {};
};

struct PanelPage {
  std::string name;
  std::vector<PanelObject> objects;
};

/// Which pages of a template are taken.
struct PanelPages {
  std::string prefix;  // what the names of the template's own pages begin with
  bool includesDefault = true;
  bool includesShared = true;
};

struct PanelProject {
  std::string system;
  std::string panel;
  PanelPages taken;
  std::string madeFrom;  // digest of all that it depends on, see buildPanelProject
  std::vector<PanelPage> pages;

  PanelPage* findPage(const std::string& name);
  PanelObject* findObject(std::int32_t id);
};

/// The text of a project's file. The same project gives the same text.
std::string panelProjectText(const PanelProject& project);

/// Raises host::Error errFile when the file can't be read, errBadFile when it is damaged.
PanelProject readPanelProject(const std::filesystem::path& file);

/// Where the project of a panel lies, whether it is there or not.
std::filesystem::path panelProjectFile(const DocumentData& document, const DeviceData& panel);

}  // namespace trellisar
