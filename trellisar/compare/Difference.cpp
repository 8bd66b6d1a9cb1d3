#include "trellisar/compare/Difference.h"

#include <optional>

namespace trellisar {
namespace {

struct PartName {
  const char* heading;
  const char* key;
};

PartName nameOf(Difference::Part part) {
  switch (part) {
    case Difference::Part::answers:
      return {"Answers", "answers"};
    case Difference::Part::system:
      return {"System", "system"};
    case Difference::Part::devices:
      return {"Devices", "devices"};
    case Difference::Part::panels:
      return {"Touch panels", "touch_panels"};
    case Difference::Part::bill:
      return {"Bill of materials", "bill_of_materials"};
    case Difference::Part::presets:
      return {"Presets", "presets"};
    case Difference::Part::events:
      return {"Events", "events"};
    case Difference::Part::sources:
      return {"Sources", "sources"};
  }
  return {};
}

const char* nameOf(Difference::Change change) {
  switch (change) {
    case Difference::Change::isNew:
      return "new";
    case Difference::Change::gone:
      return "gone";
    case Difference::Change::changed:
      return "changed";
    case Difference::Change::moved:
      return "moved";
  }
  return "";
}

std::string followedBy(const std::string& separator, const std::string& text) {
  return text.empty() ? text : separator + text;
}

std::string orNothing(const std::string& text) { return text.empty() ? "nothing" : text; }

/// What has happened to it, to stand behind its place.
std::string happened(const Difference& difference) {
  const auto& [part, change, place, what, before, after, within, behind, pieces] = difference;
  const std::string where = behind.empty() ? "" : "after " + behind + ", ";
  switch (change) {
    case Difference::Change::isNew:
      return where + what + followedBy(" ", after) + " is new";
    case Difference::Change::gone:
      return where + what + followedBy(" ", before) + " is gone";
    case Difference::Change::changed:
      return what + " " + orNothing(before) + " became " + orNothing(after);
    case Difference::Change::moved:
      return what + " was " + before + " and is now " + after;
  }
  return {};
}

/// The same where it has happened to the place itself.
std::string happenedToPlace(const Difference& difference) {
  const auto& [part, change, place, what, before, after, within, behind, pieces] = difference;
  if (change == Difference::Change::isNew) return " is new" + followedBy(": ", after);
  if (change == Difference::Change::gone) return " is gone" + followedBy(": ", before);
  return ": " + orNothing(before) + " became " + orNothing(after);
}

}  // namespace

std::string inWords(const Difference& difference) {
  std::string place = difference.place;
  if (difference.part == Difference::Part::answers) {
    return place + " (" + difference.what + ")" + happenedToPlace(difference);
  }
  for (const std::string& condition : difference.within) place += ", if " + condition;
  return place +
         (difference.what.empty() ? happenedToPlace(difference) : ": " + happened(difference));
}

std::string readableText(const Differences& differences) {
  std::string text;
  std::optional<Difference::Part> part;
  for (const Difference& difference : differences) {
    if (part != difference.part) {
      if (!text.empty()) text += "\n";
      text += nameOf(difference.part).heading;
      text += "\n";
      part = difference.part;
    }
    const std::string words = inWords(difference);
    text += "    " + words + "\n";
  }
  return text;
}

base::Json toJson(const Differences& differences) {
  base::Json list = base::Json::array();
  for (const Difference& each : differences) {
    base::Json json;
    json["part"] = nameOf(each.part).key;
    json["change"] = nameOf(each.change);
    json["place"] = each.place;
    json["within"] = each.within;
    json["behind"] = each.behind;
    json["what"] = each.what;
    json["before"] = each.before;
    json["after"] = each.after;
    json["words"] = inWords(each);
    list.push_back(std::move(json));
  }
  base::Json json;
  json["differences"] = std::move(list);
  return json;
}

}  // namespace trellisar
