#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "trellisar/panels/PanelProject.h"

/// What the projects of panels are made from: one JSON file for each model of panel. Their form is
/// in docs/panel-project.md.
namespace trellisar {

struct TemplateObject {
  std::int32_t id = 0;
  PanelObject::Kind kind = PanelObject::Kind::button;
  std::string text;
  PanelArea area;
  std::vector<std::int16_t> receivers;  // the models that it is for; empty: all
  bool sends = false;                   // a command, by name or by the id of a standard command
  std::string device = {};              // below the receiver, by name; empty: the receiver
  std::string command = {};
  std::int16_t standardId = 0;
  std::string preset = {};
};

struct TemplatePage {
  /// Default and shared pages are taken only where they are asked for, and then for any prefix.
  enum class Sort { own, defaultPage, shared };

  std::string name;  // "{receiver}" stands for the receiver's name
  Sort sort = Sort::own;
  std::vector<TemplateObject> objects;
};

struct PanelTemplate {
  std::int16_t model = 0;
  std::vector<TemplatePage> pages;
};

/// The template for a model of panel in a folder of templates. Raises host::Error errFile when
/// there is none, and errBadFile, with file and key, when one of them is damaged.
PanelTemplate findPanelTemplate(const std::filesystem::path& folder, std::int16_t model);

}  // namespace trellisar
