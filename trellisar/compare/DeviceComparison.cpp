#include "trellisar/compare/DeviceComparison.h"

#include <string>
#include <vector>

#include "host/Numbers.h"
#include "trellisar/compare/Matching.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/compile/Words.h"
#include "trellisar/document/Provisioning.h"

namespace trellisar {
namespace {

using Part = Difference::Part;
using Change = Difference::Change;
using Texts = std::vector<std::string>;

struct Fact {
  std::string text;
  Pieces pieces;  // what another text makes another one
};

/// What there is to say of a device, panel or bill entry, each under a name.
using Facts = std::vector<Named<Fact>>;

struct Item {
  std::string shownName;
  std::string type = {};
  std::string driver = {};   // which entry of the library it is, told where two have the same type
  std::string summary = {};  // what is told of it where it is new or gone
  Pieces pieces = {};        // itself, as a whole first, without its facts
  Facts facts = {};

  Pieces whole() const { return pieces.empty() ? pieces : Pieces{pieces.front()}; }

  Pieces allPieces() const {
    Pieces all = pieces;
    for (const auto& [name, fact] : facts) {
      all.insert(all.end(), fact.pieces.begin(), fact.pieces.end());
    }
    return all;
  }
};
using Items = std::vector<Named<Item>>;

std::string joined(const Texts& texts) {
  std::string all;
  for (const std::string& text : texts) {
    if (!text.empty()) all += (all.empty() ? "" : ", ") + text;
  }
  return all;
}

std::string commandName(std::int16_t standardId) {
  switch (standardId) {
    case host::scOn:
      return "Power On command";
    case host::scOff:
      return "Power Off command";
    case host::scUp:
      return "Up command";
    case host::scDown:
      return "Down command";
    case host::scRGB1:
      return "RGB command";
    case host::scVideo1:
      return "Composite command";
    default:
      return "command " + std::to_string(standardId);
  }
}

/// A fact that is empty is none: it is new, or gone, in a room that has another one.
void addFact(Facts& facts, const std::string& name, const std::string& text, const Pieces& pieces) {
  if (!text.empty()) facts.emplace_back(name, Fact{text, pieces});
}

void addProperties(Facts& facts, const DeviceData& device) {
  for (const auto& property : device.properties) {
    addFact(facts, property.first, property.second, {&device, &property});
  }
}

Item deviceItem(const DeviceData& device) {
  const Definition& definition = *device.definition;
  const std::string port = joined(portTexts(device));
  const std::string power = words::powerControlOf(device);
  Item item{.shownName = device.name, .type = words::typeOf(device)};
  item.driver = "model " + std::to_string(definition.modelId) + ", control entry " +
                std::to_string(definition.controlEntry);
  item.summary = joined({item.type, port == device.name ? "" : port});
  item.pieces = {&device, headOf(device)};
  addFact(item.facts, "label", device.label.empty() ? "" : words::inQuotes(device.label),
          item.pieces);
  // A device at another port is the same one.
  addFact(item.facts, "port", port, {});
  addFact(item.facts, "address", device.address, {});
  addFact(item.facts, "in the tree", device.shown ? "shown" : "hidden", {&device});
  addFact(item.facts, "power control", power.empty() ? "none" : power, item.pieces);
  for (const auto& command : device.standardCommands) {
    addFact(item.facts, commandName(command->get_StandardID()), command->get_CommandName(),
            {&device});
  }
  addProperties(item.facts, device);
  return item;
}

Item moduleItem(const DocumentData& document, const DeviceData& module) {
  Item item{.shownName = document.shownName(module.id), .summary = module.name};
  item.pieces = {&module, headOf(module)};
  addFact(item.facts, "in the tree", module.shown ? "shown" : "hidden", {&module});
  addProperties(item.facts, module);
  for (const auto& slot : module.slots) {
    addFact(item.facts, slot->name + " sends", words::slotTarget(document, *slot),
            {&module, slot.get()});
  }
  return item;
}

Items deviceItems(const DocumentData& document) {
  Items items;
  for (const DevicePtr& device : listedDevices(document)) {
    const std::string name = document.shownName(device->parent) + "\n" + device->name;
    items.emplace_back(name, deviceItem(*device));
    for (const DevicePtr& module : device->modules) {
      items.emplace_back(name + "\n" + module->shortName, moduleItem(document, *module));
    }
  }
  return items;
}

Items panelItems(const DocumentData& document) {
  Items items;
  for (const DevicePtr& panel : document.panels) {
    Item item{.shownName = panel->name};
    item.pieces = {panel.get(), headOf(*panel)};
    addFact(item.facts, "project", panel->definition->projectPanel ? "needed" : "not needed",
            item.pieces);
    items.emplace_back(panel->name, item);
  }
  return items;
}

Items billItems(const DocumentData& document) {
  Items items;
  for (const auto& entry : document.bill) {
    Item item{.shownName = billDevice(document, *entry)};
    addFact(item.facts, "main item", words::billLine(entry->main), {&entry->main});
    Texts lines{words::billLine(entry->main)};
    for (const BillLine& line : entry->parts) {
      addFact(item.facts, "further part " + std::to_string(line.part),
              "x " + std::to_string(line.quantity), {&line});
      lines.push_back(words::billLine(line));
    }
    item.summary = joined(lines);
    items.emplace_back(item.shownName, item);
  }
  return items;
}

class ItemComparison {
 public:
  ItemComparison(Part part, Differences& differences) : part_(part), differences_(differences) {}

  void compare(const Items& before, const Items& after) {
    eachMatch(before, after, [&](const std::string&, const Item* was, const Item* is) {
      if (was && is) {
        compare(*was, *is);
      } else if (was) {
        add(Change::gone, was->shownName, "", was->summary, "", was->allPieces());
      } else {
        add(Change::isNew, is->shownName, "", "", is->summary, {});
      }
    });
  }

 private:
  void compare(const Item& before, const Item& after) {
    const std::string& place = before.shownName;
    if (before.type != after.type) {
      add(Change::changed, place, "type", before.type, after.type, before.pieces);
    } else if (before.driver != after.driver) {
      add(Change::changed, place, "driver", before.driver, after.driver, before.pieces);
    }
    eachMatch(before.facts, after.facts,
              [&](const std::string& name, const Fact* was, const Fact* is) {
                if (!is) return add(Change::gone, place, name, was->text, "", was->pieces);
                if (!was) return add(Change::isNew, place, name, "", is->text, before.whole());
                if (was->text == is->text) return;
                add(Change::changed, place, name, was->text, is->text, was->pieces);
              });
  }

  void add(Change change, const std::string& place, const std::string& what,
           const std::string& before, const std::string& after, const Pieces& pieces) {
    Difference difference{part_, change, place, what, before, after};
    difference.pieces = pieces;
    differences_.push_back(difference);
  }

  Part part_;
  Differences& differences_;
};

}  // namespace

void compareDevices(const DocumentData& before, const DocumentData& after,
                    Differences& differences) {
  ItemComparison(Part::devices, differences).compare(deviceItems(before), deviceItems(after));
}

void comparePanels(const DocumentData& before, const DocumentData& after,
                   Differences& differences) {
  ItemComparison(Part::panels, differences).compare(panelItems(before), panelItems(after));
}

void compareBills(const DocumentData& before, const DocumentData& after, Differences& differences) {
  ItemComparison(Part::bill, differences).compare(billItems(before), billItems(after));
}

}  // namespace trellisar
