#include "trellisar/reports/WiringDrawing.h"

#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

#include "base/Error.h"
#include "base/FileIO.h"
#include "forms/Text.h"
#include "trellisar/reports/Markup.h"
#include "trellisar/reports/Wiring.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;
using Connection = Definition::Connection;

constexpr int drawingWidth = 1000;
constexpr int cardWidth = 250;
constexpr int receiverLeft = 390;
constexpr int receiverRight = drawingWidth - receiverLeft;
constexpr int headHeight = 62;
constexpr int rowHeight = 48;
constexpr int gap = 3;  // above and below a card
constexpr int iconSize = 32;
constexpr int lineHeight = 11;
// What a page of A4 across has beside its margins, below a report's head.
constexpr int widestOnPaper = 900;
constexpr int highestOnPaper = 490;
// A printer draws the picture from its own pixels, and so it needs more of them than a screen.
constexpr int pixelsPerUnit = 3;

constexpr const char* ink = "#2f3e4e";
constexpr const char* faint = "#566573";
constexpr const char* warning = "#c0392b";

std::string number(int value) { return std::to_string(value); }

std::string shortened(const std::string& text, std::size_t longest) {
  const std::u32string points = forms::toCodePoints(text);
  if (points.size() <= longest) return text;
  return forms::fromCodePoints(points.substr(0, longest - 1)) + "\xE2\x80\xA6";
}

struct TextStyle {
  int size = 11;
  const char* anchor = "start";
  const char* color = ink;
  bool isBold = false;
};

std::string textAt(int x, int y, const std::string& text, const TextStyle& style) {
  return "<text x=\"" + number(x) + "\" y=\"" + number(y) +
         "\" font-family=\"DejaVu Sans, sans-serif\" font-size=\"" + number(style.size) +
         "\" text-anchor=\"" + style.anchor + "\" fill=\"" + style.color + "\"" +
         (style.isBold ? " font-weight=\"bold\"" : "") + ">" + escapedMarkup(text) + "</text>\n";
}

std::string boxAt(int x, int y, int width, int height, const char* fill, const char* stroke) {
  return "<rect x=\"" + number(x) + "\" y=\"" + number(y) + "\" width=\"" + number(width) +
         "\" height=\"" + number(height) + "\" rx=\"4\" fill=\"" + fill + "\" stroke=\"" + stroke +
         "\" stroke-width=\"1.5\"/>\n";
}

/// The colour and the dashes of a line, by what runs in it.
std::pair<const char*, const char*> lineStyle(Connection connection) {
  switch (connection) {
    case Connection::link:
      return {"#3b7db8", ""};
    case Connection::network:
      return {"#4e9e6b", "7 4"};
    case Connection::serial:
      return {"#7d5ba6", ""};
    case Connection::infrared:
      return {"#b0568a", "2 3"};
    case Connection::relay:
      return {"#c94f4f", ""};
    default:
      return {"#c77f1a", ""};
  }
}

/// What stands above a line; what a terminal is for, where the terminal does not say it.
std::string signalOf(const Wire& wire) {
  switch (wire.connection) {
    case Connection::link:
      return "link cable";
    case Connection::network:
      return wire.settings.empty() ? "network" : wire.settings;
    case Connection::serial:
      return wire.settings.empty() ? "serial" : "serial, " + wire.settings;
    case Connection::infrared:
      return "infrared";
    case Connection::relay:
      return wire.use;
    case Connection::sensor:
      return "sensor";
    default:
      return "contact";
  }
}

/// A device with the wires that go to it.
class Card {
 public:
  std::vector<Wire> wires;

  const Wire& first() const { return wires.front(); }
  int height() const { return static_cast<int>(wires.size()) * rowHeight - 2 * gap; }

  std::string title() const {
    const Wire& wire = first();
    if (wire.connection == Connection::sensor) return wire.type;
    return wire.connection == Connection::link && !wire.label.empty() ? wire.label : wire.name;
  }
  /// What stands below the title: what it is, or what a contact does when it closes and opens.
  std::vector<std::string> lines() const {
    const Wire& wire = first();
    const bool isInput =
        wire.connection == Connection::contact || wire.connection == Connection::sensor;
    if (!isInput) return {wire.type == title() ? wire.use : wire.type};
    std::vector<std::string> uses = parts(wire.use);
    if (uses.size() > mostLines) uses.resize(mostLines);
    return uses;
  }

 private:
  static constexpr std::size_t mostLines = 2;

  static std::vector<std::string> parts(const std::string& uses) {
    std::vector<std::string> all;
    for (std::size_t start = 0; start < uses.size();) {
      const std::size_t end = std::min(uses.find("; ", start), uses.size());
      all.push_back(uses.substr(start, end - start));
      start = end + 2;
    }
    return all;
  }
};

class Drawing {
 public:
  Drawing(const DocumentData& document, fs::path pictures)
      : document_(document), pictures_(std::move(pictures)) {
    for (const Wire& wire : wiringOf(document)) {
      if (isDrawn(wire)) add(wire, wire.side == Wire::Side::source ? sources_ : targets_);
    }
  }

  WiringDrawing draw() {
    const int rows = std::max({rowsOf(sources_), rowsOf(targets_), 1});
    const int height = headHeight + rows * rowHeight + 2 * gap;
    std::string body = boxAt(0, 0, drawingWidth, height, "#ffffff", "#ffffff");
    body += receiver(height);
    body += cards(sources_, /*isLeft=*/true) + cards(targets_, /*isLeft=*/false);
    const int width = std::min(widestOnPaper, highestOnPaper * drawingWidth / height);
    return {head(height) + body + "</svg>\n", width, width * height / drawingWidth};
  }

 private:
  using Cards = std::vector<Card>;

  /// An input that nothing uses is in the table alone.
  static bool isDrawn(const Wire& wire) {
    return wire.connection != Connection::contact || !wire.use.empty();
  }

  static void add(const Wire& wire, Cards& cards) {
    if (cards.empty() || cards.back().first().device != wire.device) cards.push_back({});
    cards.back().wires.push_back(wire);
  }

  static int rowsOf(const Cards& cards) {
    int rows = 0;
    for (const Card& card : cards) rows += static_cast<int>(card.wires.size());
    return rows;
  }

  static std::string head(int height) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"" +
           number(drawingWidth * pixelsPerUnit) + "\" height=\"" + number(height * pixelsPerUnit) +
           "\" viewBox=\"0 0 " + number(drawingWidth) + " " + number(height) + "\">\n";
  }

  std::string receiver(int height) const {
    const DevicePtr device = document_.find(document_.controlSystem);
    const int middle = drawingWidth / 2;
    return boxAt(receiverLeft, gap, receiverRight - receiverLeft, height - 2 * gap, "#e8edf2",
                 ink) +
           icon("receiver.svg", receiverLeft + 12, 14) +
           textAt(middle + 16, 28, shortened(device->name, 22), {14, "middle", ink, true}) +
           textAt(middle + 16, 46, shortened(device->definition->name, 26), {11, "middle", faint});
  }

  std::string cards(const Cards& all, bool isLeft) const {
    std::string text;
    int top = headHeight;
    for (const Card& card : all) {
      text += this->card(card, isLeft ? gap : drawingWidth - gap - cardWidth, top + gap);
      for (const Wire& wire : card.wires) {
        text += line(wire, isLeft, top + rowHeight / 2);
        top += rowHeight;
      }
    }
    return text;
  }

  std::string card(const Card& card, int left, int top) const {
    const int middle = top + card.height() / 2;
    const int textLeft = left + iconSize + 16;
    const auto lines = card.lines();
    int y = middle + 3 - lineHeight * static_cast<int>(lines.size()) / 2;
    std::string text = boxAt(left, top, cardWidth, card.height(), "#f4f8fb", ink) +
                       icon(card.first().picture, left + 8, middle - iconSize / 2) +
                       textAt(textLeft, y, shortened(card.title(), 23), {12, "start", ink, true});
    for (const std::string& line : lines) {
      y += lineHeight;
      text += textAt(textLeft, y, shortened(line, 32), {10, "start", faint});
    }
    return text;
  }

  static std::string line(const Wire& wire, bool isLeft, int y) {
    const int from = isLeft ? gap + cardWidth : drawingWidth - gap - cardWidth;
    const int to = isLeft ? receiverLeft : receiverRight;
    const int middle = (from + to) / 2;
    if (wire.connection == Connection::none) {
      return textAt(middle, y + 4, "not wired", {10, "middle", faint});
    }
    if (wire.terminal.empty()) return missingPort(wire, from, middle, y);
    const auto [color, dashes] = lineStyle(wire.connection);
    return "<path d=\"M" + number(from) + " " + number(y) + "H" + number(to) +
           "\" fill=\"none\" stroke=\"" + color + "\" stroke-width=\"2.2\"" +
           (*dashes ? std::string(" stroke-dasharray=\"") + dashes + "\"" : "") + "/>\n" +
           textAt(middle, y - 5, shortened(signalOf(wire), 22), {10, "middle", color}) +
           terminal(wire.terminal, isLeft, y);
  }

  static std::string terminal(const std::string& name, bool isLeft, int y) {
    const int edge = isLeft ? receiverLeft : receiverRight;
    return "<circle cx=\"" + number(edge) + "\" cy=\"" + number(y) + "\" r=\"3.5\" fill=\"" + ink +
           "\"/>\n" +
           textAt(isLeft ? edge + 8 : edge - 8, y + 4, shortened(name, 15),
                  {11, isLeft ? "start" : "end", ink, true});
  }

  static std::string missingPort(const Wire& wire, int from, int middle, int y) {
    const std::string what = forms::lowerCase(connectionName(wire.connection));
    const std::string port = wire.connection == Connection::relay ? "" : " port";
    return "<path d=\"M" + number(from) + " " + number(y) + "H" + number(middle) +
           "\" fill=\"none\" stroke=\"" + warning +
           "\" stroke-width=\"2.2\" stroke-dasharray=\"3 3\"/>\n" +
           textAt(middle, y - 5, "no " + what + port + " left", {10, "middle", warning, true});
  }

  /// What stands in the picture's file between its outermost tags.
  std::string icon(const std::string& name, int x, int y) const {
    std::string text;
    try {
      text = base::readFile(pictures_ / name);
    } catch (const base::FileError&) {
      return {};
    }
    const std::size_t tag = text.find("<svg");
    const std::size_t start = text.find('>', tag);
    const std::size_t end = text.rfind("</svg>");
    if (tag == std::string::npos || start == std::string::npos || end == std::string::npos) {
      return {};
    }
    return "<g transform=\"translate(" + number(x) + " " + number(y) + ")\">" +
           text.substr(start + 1, end - start - 1) + "</g>\n";
  }

  const DocumentData& document_;
  fs::path pictures_;
  Cards sources_;
  Cards targets_;
};

}  // namespace

WiringDrawing drawWiring(const DocumentData& document, const fs::path& pictures) {
  return Drawing(document, pictures).draw();
}

}  // namespace trellisar
