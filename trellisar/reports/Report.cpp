#include "trellisar/reports/Report.h"
#include "base/MadeFolders.h"

#include <algorithm>
#include <ctime>
#include <system_error>

#include "base/Digest.h"
#include "base/FileIO.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "host/Numbers.h"
#include "trellisar/library/HostErrors.h"
#include "trellisar/reports/Markup.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

/// As text of a page, in which a line end is one too.
std::string shown(const std::string& text) {
  return forms::replacedAll(escapedMarkup(text), "\n", "<br>");
}

std::string row(const std::vector<std::string>& texts, const char* open, const char* close) {
  std::string line = "<tr>";
  for (const std::string& text : texts) line += open + shown(text) + close;
  return line + "</tr>\n";
}

constexpr const char* style =
    "body { font-family: sans-serif; margin: 2em; }\n"
    "img { max-width: 100%; height: auto; }\n"
    "table { border-collapse: collapse; }\n"
    "th, td { border: 1px solid #888; padding: 0.3em 0.6em; text-align: left; }\n"
    "th { background: #e8e8e8; }\n"
    ".fault { color: #c0392b; font-weight: bold; }\n";

std::string headOf(const Report& report) {
  std::string text = "<p>System: " + shown(report.system);
  if (!report.date.empty()) text += "<br>Date: " + shown(report.date);
  if (!report.revision.empty()) text += "<br>Revision of the answers: " + shown(report.revision);
  text += "</p>\n";
  for (const std::string& fault : report.faults) {
    text += "<p class=\"fault\">" + shown(fault) + "</p>\n";
  }
  return text;
}

/// The drawing has the first page for itself.
std::string drawingOf(const Report& report) {
  const WiringDrawing& drawing = report.drawing;
  if (drawing.svg.empty()) return {};
  return "<p><img alt=\"The wiring of the room\" width=\"" + std::to_string(drawing.width) +
         "\" height=\"" + std::to_string(drawing.height) + "\" src=\"" + svgAsSource(drawing.svg) +
         "\"></p>\n<h2 style=\"page-break-before: always\">Terminals</h2>\n";
}

/// What a page that was written into a folder says of the file that it tells of, so that a later
/// one of the same system knows it again.
std::string originMark(const DocumentData& document) {
  constexpr std::size_t digits = 16;
  const std::string file = document.ownFile.string();
  return "<meta name=\"system-file\" content=\"" + base::Digest::of(file).substr(0, digits) +
         "\">\n";
}

std::string markedHtml(const Report& report, const std::string& mark) {
  constexpr const char* charset = "<meta charset=\"utf-8\">\n";
  return forms::replacedAll(reportHtml(report), charset, charset + mark);
}

bool isThere(const fs::path& file) {
  std::error_code error;
  return fs::exists(file, error);
}

/// Whether the page in the folder is one of this system; its PDF goes with it.
bool isOwn(const fs::path& page, const std::string& mark) {
  return isThere(page) && base::readFile(page).find(mark) != std::string::npos;
}

void refuseToReplace(const fs::path& file) {
  throw host::Error(host::errFile, "The file \"" + file.string() +
                                       "\" is there already and is no report of this system. It "
                                       "was not replaced. Choose another folder, or allow it with "
                                       "--replace.");
}

}  // namespace

std::vector<Report> reportsNamed(const DocumentData& document, const std::string& names,
                                 const ReportOptions& options) {
  std::vector<Report> reports;
  std::size_t start = 0;
  while (start <= names.size()) {
    const std::size_t end = std::min(names.find(',', start), names.size());
    const std::string name = names.substr(start, end - start);
    if (name == reportBillOfMaterials) reports.push_back(billOfMaterials(document, options));
    if (name == reportConnectionSheet) reports.push_back(connectionSheet(document, options));
    start = end + 1;
  }
  return reports;
}

std::string today() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  char text[16];
  const std::size_t length = std::strftime(text, sizeof text, "%Y-%m-%d", &local);
  return {text, length};
}

std::string reportHtml(const Report& report) {
  const std::string title = shown(report.title);
  std::string html =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + title +
      " - " + shown(report.system) + "</title>\n<style>\n" + style +
      "</style>\n</head>\n<body>\n<h1>" + title + "</h1>\n" + headOf(report) + drawingOf(report) +
      "<table>\n<thead>\n" + row(report.columns, "<th scope=\"col\">", "</th>") +
      "</thead>\n<tbody>\n";
  for (const auto& texts : report.rows) html += row(texts, "<td>", "</td>");
  return html + "</tbody>\n</table>\n</body>\n</html>\n";
}

std::string reportFileName(const Report& report) { return report.title + ".html"; }

std::string reportFileName(const Report& report, const std::string& extension) {
  return report.system + " - " + report.title + "." + extension;
}

std::vector<fs::path> writeReports(const DocumentData& document, const fs::path& folder,
                                   const ReportOptions& options, ReportPrinter* printer,
                                   bool replace) {
  return raisingHostErrors([&] {
    const auto reports = reportsNamed(document, host::reportsAll, options);
    const std::string mark = originMark(document);
    for (const Report& report : reports) {
      const fs::path page = folder / reportFileName(report, "html");
      if (replace || isOwn(page, mark)) continue;
      for (const fs::path& file : {page, folder / reportFileName(report, "pdf")}) {
        if (isThere(file)) refuseToReplace(file);
      }
    }
    base::MadeFolders folders(folder);
    std::vector<fs::path> files;
    for (const Report& report : reports) {
      files.push_back(folder / reportFileName(report, "html"));
      base::replaceFile(files.back(), markedHtml(report, mark));
    }
    for (const Report& report : reports) {
      if (!printer) break;
      files.push_back(folder / reportFileName(report, "pdf"));
      printer->writePdf(files.back(), report.title, reportHtml(report));
    }
    folders.keep();
    return files;
  });
}

}  // namespace trellisar
