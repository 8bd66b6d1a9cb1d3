#pragma once

#include "base/Json.h"
#include "trellisar/panels/PanelProject.h"

/// What templates and projects of panels have in common in their files.
namespace trellisar {

PanelObject::Kind readPanelObjectKind(const base::JsonReader& reader);
const char* panelObjectKindName(PanelObject::Kind kind);

/// Reads "left", "top", "width" and "height" of an object.
PanelArea readPanelArea(base::JsonReader& object);

}  // namespace trellisar
