#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace host {

/// One line of a bill entry: a part and how many of it.
class BillOfMaterialsItem {
 public:
  BillOfMaterialsItem(std::int32_t lPartID, std::int32_t lQuantity)
      : m_lPartID(lPartID), m_lQuantity(lQuantity) {}

  std::int32_t get_PartID() const { return m_lPartID; }
  void put_PartID(std::int32_t lPartID) { m_lPartID = lPartID; }
  std::int32_t get_Quantity() const { return m_lQuantity; }

 private:
  std::int32_t m_lPartID;
  std::int32_t m_lQuantity;
};

/// The further parts of an entry, keyed by the part number as text. The list is live: what is done
/// to it is in the document.
class BillOfMaterialsParts {
 public:
  virtual ~BillOfMaterialsParts() = default;
  virtual std::int16_t get_Count() const = 0;
  virtual bool Exists(const std::string& strKey) const = 0;
  /// Replaces the quantity of a part that is there.
  virtual void Add(std::int32_t lPartID, std::int32_t lQuantity) = 0;
  /// Raises Error errUnknownKey for a part that is not there.
  virtual void Remove(const std::string& strKey) = 0;
  virtual std::vector<BillOfMaterialsItem> Items() const = 0;
};

/// What the bill names for one device.
class BillOfMaterialsEntry {
 public:
  virtual ~BillOfMaterialsEntry() = default;
  virtual std::int32_t get_Key() const = 0;
  /// A copy; it is put back to change it, and then BillOfMaterials::UpdateItem tells.
  virtual BillOfMaterialsItem get_MainItem() const = 0;
  virtual void put_MainItem(const BillOfMaterialsItem& oItem) = 0;
  virtual std::shared_ptr<BillOfMaterialsParts> get_Parts() const = 0;
};

/// The document's bill of materials. An entry's key is the device handle for what is part of the
/// system from the start, and the negated device id for what AddItem added.
class BillOfMaterials {
 public:
  virtual ~BillOfMaterials() = default;
  /// Nothing when absent.
  virtual std::shared_ptr<BillOfMaterialsEntry> Item(std::int32_t lKey) const = 0;
  /// An entry of its own, quantity 1, under the negated device id. False, with nothing changed: the
  /// device has an entry already, is not in the document, or the part number is not above 0.
  /// The document's GetLastError tells which. iModelID and lReserved are kept by no one.
  [[nodiscard]] virtual bool AddItem(std::int16_t iModelID, std::int32_t lReserved,
                                     std::int32_t lPartID, std::int16_t iDeviceID) = 0;
  /// False: there is no entry under the key.
  [[nodiscard]] virtual bool RemoveItem(std::int32_t lKey) = 0;
  /// Tells the windows that show the bill about a main item that was put. False: there is no entry
  /// under the key.
  virtual bool UpdateItem(std::int32_t lKey) = 0;
  virtual std::vector<std::shared_ptr<BillOfMaterialsEntry>> Items() const = 0;
};

class Reports {
 public:
  virtual ~Reports() = default;
  virtual std::int32_t get_DialogContext() const = 0;
  virtual std::shared_ptr<BillOfMaterials> get_BillOfMaterials() const = 0;
};

}  // namespace host
