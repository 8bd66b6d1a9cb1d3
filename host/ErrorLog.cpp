#include "host/ErrorLog.h"

#include <fstream>

#include "forms/Paths.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "host/Numbers.h"

namespace host {
namespace {

constexpr const char* propHideHeaders = "hidecolumnheaders";
constexpr const char* propShowInformation = "showinformationitems";

std::string SeverityText(const clsErrorItem& oItem) {
  return oItem.get_Severity() == severityProgress ? "Information" : "Warning";
}

std::string OneLine(const std::string& strText) { return forms::replacedAll(strText, "\r\n", " "); }

}  // namespace

ErrorLog::ErrorLog(forms::Container& container, std::string strName)
    : UserControl(container, std::move(strName)) {
  lvwItems.setColumns({"Severity", "Message"});
  lvwItems.setAccessibleName("Messages");
  lvwItems.doubleClick.connect([this] { lvwItems_DoubleClick(); });
  resized.connect([this] { lvwItems.setBounds({0, 0, bounds().width, bounds().height}); });
}

void ErrorLog::readProperties(const forms::PropertyBag& bag) {
  lvwItems.setShowsHeadings(!bag.read(propHideHeaders, false));
  m_bShowInformationItems = bag.read(propShowInformation, false);
}

void ErrorLog::writeProperties(forms::PropertyBag& bag) const {
  bag.write(propHideHeaders, !lvwItems.showsHeadings(), false);
  bag.write(propShowInformation, m_bShowInformationItems, false);
}

void ErrorLog::SetLogOptions(bool, bool) {}

void ErrorLog::Add(const std::shared_ptr<clsErrorItem>& oItem) {
  if (oItem->get_Severity() == severityProgress && !m_bShowInformationItems) return;
  m_colShown.push_back(oItem);
  lvwItems.addRow({SeverityText(*oItem), OneLine(oItem->get_Message())});
}

void ErrorLog::Clear() {
  m_colShown.clear();
  lvwItems.clear();
}

void ErrorLog::SaveToFile(const std::string& strFile, bool bAppend) const {
  const std::filesystem::path machineFile = forms::toMachinePath(strFile);
  std::ofstream file(machineFile, std::ios::binary | (bAppend ? std::ios::app : std::ios::trunc));
  for (const auto& oItem : m_colShown) {
    file << SeverityText(*oItem) << "\t" << OneLine(oItem->get_Message()) << "\r\n";
  }
  file.flush();
  if (!file)
    throw Error(errFile, "The messages could not be written to " + machineFile.string() + ".");
}

void ErrorLog::lvwItems_DoubleClick() {
  const std::int32_t row = lvwItems.selectedRow();
  if (row >= 0) ItemDoubleClicked.raise(m_colShown.at(static_cast<std::size_t>(row)));
}

}  // namespace host
