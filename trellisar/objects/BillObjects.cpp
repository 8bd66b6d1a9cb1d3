#include "trellisar/objects/BillObjects.h"

#include <algorithm>
#include <utility>

#include "forms/Numbers.h"
#include "host/Error.h"

namespace trellisar {
namespace {

using EntryPtr = std::shared_ptr<BillEntryData>;

class Parts : public host::BillOfMaterialsParts {
 public:
  explicit Parts(EntryPtr entry) : entry_(std::move(entry)) {}

  std::int16_t get_Count() const override {
    return forms::toInt16(static_cast<double>(entry_->parts.size()));
  }

  bool Exists(const std::string& strKey) const override { return find(strKey) != end(); }

  void Add(std::int32_t lPartID, std::int32_t lQuantity) override {
    const auto found = find(forms::decimal(lPartID));
    if (found == end()) {
      entry_->parts.push_back({lPartID, lQuantity});
    } else {
      found->quantity = lQuantity;
    }
  }

  void Remove(const std::string& strKey) override {
    const auto found = find(strKey);
    if (found == end()) {
      throw host::Error(host::errUnknownKey, "The bill entry has no part " + strKey + ".");
    }
    entry_->parts.erase(found);
  }

  std::vector<host::BillOfMaterialsItem> Items() const override {
    std::vector<host::BillOfMaterialsItem> items;
    for (const auto& [part, quantity] : entry_->parts) items.emplace_back(part, quantity);
    return items;
  }

 private:
  using Iterator = std::vector<BillLine>::iterator;
  Iterator end() const { return entry_->parts.end(); }
  Iterator find(const std::string& key) const {
    return std::find_if(entry_->parts.begin(), end(),
                        [&key](const BillLine& line) { return forms::decimal(line.part) == key; });
  }

  EntryPtr entry_;
};

class Entry : public host::BillOfMaterialsEntry {
 public:
  explicit Entry(EntryPtr data) : data_(std::move(data)) {}

  std::int32_t get_Key() const override { return data_->key; }
  host::BillOfMaterialsItem get_MainItem() const override {
    return {data_->main.part, data_->main.quantity};
  }
  void put_MainItem(const host::BillOfMaterialsItem& oItem) override {
    data_->main = {oItem.get_PartID(), oItem.get_Quantity()};
  }
  std::shared_ptr<host::BillOfMaterialsParts> get_Parts() const override {
    return std::make_shared<Parts>(data_);
  }

 private:
  EntryPtr data_;
};

class Bill : public host::BillOfMaterials {
 public:
  explicit Bill(DocumentPtr document) : document_(std::move(document)) {}

  std::shared_ptr<host::BillOfMaterialsEntry> Item(std::int32_t lKey) const override {
    for (const EntryPtr& entry : document_->bill) {
      if (entry->key == lKey) return std::make_shared<Entry>(entry);
    }
    return nullptr;
  }

  bool AddItem(std::int16_t, std::int32_t, std::int32_t lPartID, std::int16_t iDeviceID) override {
    const std::int32_t key = -std::int32_t{iDeviceID};
    const std::string problem = problemOf(lPartID, iDeviceID, key);
    if (!problem.empty()) {
      document_->lastError = problem;
      return false;
    }
    auto entry = std::make_shared<BillEntryData>();
    entry->key = key;
    entry->main = {lPartID, 1};
    document_->bill.push_back(std::move(entry));
    return true;
  }

  bool RemoveItem(std::int32_t lKey) override {
    return std::erase_if(document_->bill,
                         [lKey](const EntryPtr& entry) { return entry->key == lKey; }) > 0;
  }

  bool UpdateItem(std::int32_t lKey) override { return document_->findBillEntry(lKey) != nullptr; }

  std::vector<std::shared_ptr<host::BillOfMaterialsEntry>> Items() const override {
    std::vector<std::shared_ptr<host::BillOfMaterialsEntry>> items;
    for (const EntryPtr& entry : document_->bill) items.push_back(std::make_shared<Entry>(entry));
    return items;
  }

 private:
  /// Why the part can't be added to the bill; empty when it can.
  std::string problemOf(std::int32_t part, std::int16_t id, std::int32_t key) const {
    const std::string number = std::to_string(part);
    if (!document_->find(id)) {
      return "The part " + number +
             " can't be added to the bill of materials: there is no device " + std::to_string(id) +
             ".";
    }
    const std::string name = document_->shownName(id);
    const std::string what = "\"" + name + "\"";
    if (part < 1) return what + " can't be added to the bill of materials: it has no part number.";
    return document_->findBillEntry(key) ? what + " is in the bill of materials already." : "";
  }

  DocumentPtr document_;
};

class ReportsObject : public host::Reports {
 public:
  explicit ReportsObject(DocumentPtr document) : document_(std::move(document)) {}
  std::int32_t get_DialogContext() const override { return 1; }
  std::shared_ptr<host::BillOfMaterials> get_BillOfMaterials() const override {
    return std::make_shared<Bill>(document_);
  }

 private:
  DocumentPtr document_;
};

}  // namespace

std::shared_ptr<host::Reports> makeReports(const DocumentPtr& document) {
  return std::make_shared<ReportsObject>(document);
}

}  // namespace trellisar
