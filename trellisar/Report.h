#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "trellisar/DocumentData.h"

/// The documentation of a system for those who buy, wire and look after it.
namespace trellisar {

/// A table with a title.
struct Report {
  std::string title;
  std::string system;  // the system's name
  std::vector<std::string> columns;
  std::vector<std::vector<std::string>> rows;  // a text for each column
};

inline constexpr const char* reportBillOfMaterials = "Bill of Materials";
inline constexpr const char* reportConnectionSheet = "Connection Sheet";

/// What is to be bought, in the order of the document's bill.
Report billOfMaterials(const DocumentData& document);

/// What hangs on which port, relay, input or address of the receiver.
Report connectionSheet(const DocumentData& document);

/// The reports of these names, separated by commas; a name that is no report's is passed over.
std::vector<Report> reportsNamed(const DocumentData& document, const std::string& names);

/// A whole HTML page that needs no other file. The same report gives the same bytes.
std::string reportHtml(const Report& report);

/// The file name of a report's HTML page: "Bill of Materials.html".
std::string reportFileName(const Report& report);

/// Writes all reports of a system as HTML into a folder, which is made where it is missing, and
/// answers their files. Raises host::Error errFile.
std::vector<std::filesystem::path> writeReports(const DocumentData& document,
                                                const std::filesystem::path& folder);

}  // namespace trellisar
