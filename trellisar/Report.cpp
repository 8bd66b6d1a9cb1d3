#include "trellisar/Report.h"

#include "host/Numbers.h"
#include "trellisar/FileIO.h"
#include "trellisar/SystemFolders.h"

namespace trellisar {
namespace {

std::string escaped(const std::string& text) {
  std::string result;
  for (const char c : text) {
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      case '"':
        result += "&quot;";
        break;
      case '\'':
        result += "&#39;";
        break;
      case '\n':
        result += "<br>";
        break;
      default:
        // Other control characters have no place in a page.
        if (static_cast<unsigned char>(c) >= ' ' || c == '\t') result += c;
    }
  }
  return result;
}

std::string row(const std::vector<std::string>& texts, const char* open, const char* close) {
  std::string line = "<tr>";
  for (const std::string& text : texts) line += open + escaped(text) + close;
  return line + "</tr>\n";
}

constexpr const char* style =
    "body { font-family: sans-serif; margin: 2em; }\n"
    "table { border-collapse: collapse; }\n"
    "th, td { border: 1px solid #888; padding: 0.3em 0.6em; text-align: left; }\n"
    "th { background: #e8e8e8; }\n";

}  // namespace

std::vector<Report> reportsNamed(const DocumentData& document, const std::string& names) {
  std::vector<Report> reports;
  std::size_t start = 0;
  while (start <= names.size()) {
    const std::size_t end = std::min(names.find(',', start), names.size());
    const std::string name = names.substr(start, end - start);
    if (name == reportBillOfMaterials) reports.push_back(billOfMaterials(document));
    if (name == reportConnectionSheet) reports.push_back(connectionSheet(document));
    start = end + 1;
  }
  return reports;
}

std::string reportHtml(const Report& report) {
  const std::string title = escaped(report.title);
  std::string html =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + title +
      " - " + escaped(report.system) + "</title>\n<style>\n" + style +
      "</style>\n</head>\n<body>\n<h1>" + title + "</h1>\n<p>System: " + escaped(report.system) +
      "</p>\n<table>\n<thead>\n" + row(report.columns, "<th scope=\"col\">", "</th>") +
      "</thead>\n<tbody>\n";
  for (const auto& texts : report.rows) html += row(texts, "<td>", "</td>");
  return html + "</tbody>\n</table>\n</body>\n</html>\n";
}

std::string reportFileName(const Report& report) { return report.title + ".html"; }

std::vector<std::filesystem::path> writeReports(const DocumentData& document,
                                                const std::filesystem::path& folder) {
  MadeFolders folders(folder);
  std::vector<std::filesystem::path> files;
  for (const Report& report : reportsNamed(document, host::reportsAll)) {
    files.push_back(folder / reportFileName(report));
    replaceFile(files.back(), reportHtml(report));
  }
  folders.keep();
  return files;
}

}  // namespace trellisar
