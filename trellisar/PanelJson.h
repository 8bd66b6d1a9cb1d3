#pragma once

#include "trellisar/Json.h"
#include "trellisar/PanelProject.h"

/// What templates and projects of panels have in common in their files.
namespace trellisar {

PanelObject::Kind readPanelObjectKind(const JsonReader& reader);
const char* panelObjectKindName(PanelObject::Kind kind);

/// Reads "left", "top", "width" and "height" of an object.
PanelArea readPanelArea(JsonReader& object);

}  // namespace trellisar
