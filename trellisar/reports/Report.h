#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "trellisar/document/DocumentData.h"
#include "trellisar/reports/ReportPrinter.h"
#include "trellisar/reports/WiringDrawing.h"

/// The documentation of a system for those who buy, wire and look after it.
namespace trellisar {

/// What a report says of itself, and where it takes its pictures from.
struct ReportOptions {
  std::filesystem::path pictures = {};  // the folder; empty: the drawing has none
  std::string date = {};                // of the paper; empty: it bears none
};

/// A table with a title, and for the connection sheet a drawing.
struct Report {
  std::string title;
  std::string system;  // the system's name
  std::vector<std::string> columns;
  std::vector<std::vector<std::string>> rows;  // a text for each column
  std::string date = {};
  std::string revision = {};             // of the settings and devices that it tells of
  std::vector<std::string> faults = {};  // what the reader must know before he buys or wires
  WiringDrawing drawing = {};
};

inline constexpr const char* reportBillOfMaterials = "Bill of Materials";
inline constexpr const char* reportConnectionSheet = "Connection Sheet";

/// What is to be bought, in the order of the document's bill.
Report billOfMaterials(const DocumentData& document, const ReportOptions& options = {});

/// What hangs on which port, relay, input or address of the receiver, and what it is for.
Report connectionSheet(const DocumentData& document, const ReportOptions& options = {});

/// Eight digits that are others as soon as a setting or a device of the system is another one.
std::string revisionOf(const DocumentData& document);

/// "2026-03-31".
std::string today();

/// The reports of these names, separated by commas; a name that is no report's is passed over.
std::vector<Report> reportsNamed(const DocumentData& document, const std::string& names,
                                 const ReportOptions& options = {});

/// A whole HTML page that needs no other file. The same report gives the same bytes.
std::string reportHtml(const Report& report);

/// "Bill of Materials.html": the page's name beside its system.
std::string reportFileName(const Report& report);

/// "Room 1 - Bill of Materials.pdf": its name where reports of other systems may lie too.
std::string reportFileName(const Report& report, const std::string& extension);

/// Writes all reports of a system into a folder, which is made where it is missing: as HTML and,
/// with a printer, as PDF. Answers their files. An earlier report of the same system file is
/// replaced, anything else only with `replace`; without it nothing is written then. Raises
/// host::Error errFile.
std::vector<std::filesystem::path> writeReports(const DocumentData& document,
                                                const std::filesystem::path& folder,
                                                const ReportOptions& options = {},
                                                ReportPrinter* printer = nullptr,
                                                bool replace = false);

}  // namespace trellisar
