#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/ListView.h"
#include "forms/UserControl.h"
#include "host/clsErrorItem.h"

namespace host {

/// A list of messages. It is filled by the error log of the host that it is attached to.
class ErrorLog : public forms::UserControl {
 public:
  ErrorLog(forms::Container& container, std::string strName);

  /// "hidecolumnheaders" and "showinformationitems".
  void readProperties(const forms::PropertyBag& bag) override;
  void writeProperties(forms::PropertyBag& bag) const override;

  /// This control has no use for the two options.
  void SetLogOptions(bool bOption1, bool bOption2);

  /// Messages of severityProgress are left out unless it has "showinformationitems".
  void Add(const std::shared_ptr<clsErrorItem>& oItem);
  void Clear();

  /// Whether any message is shown.
  bool HasItems() const { return !m_colShown.empty(); }

  /// Writes the messages that are shown, a line for each; with bAppend behind what the file holds.
  /// Raises Error errFile with the file's name when it can't be written.
  void SaveToFile(const std::string& strFile, bool bAppend) const;

  /// The messages that are shown, in their order.
  const std::vector<std::shared_ptr<clsErrorItem>>& Items() const { return m_colShown; }

  forms::Event<const std::shared_ptr<clsErrorItem>&> ItemDoubleClicked;

 private:
  void lvwItems_DoubleClick();

  forms::ListView lvwItems{*this, "lvwItems"};
  std::vector<std::shared_ptr<clsErrorItem>> m_colShown;
  bool m_bShowInformationItems = false;
};

}  // namespace host
