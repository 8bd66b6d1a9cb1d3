#include "forms/Rows.h"

#include <algorithm>

#include "forms/Application.h"

namespace forms {
namespace {

constexpr Twips rowGap = 75;
constexpr Twips columnGap = 90;
constexpr Twips indentation = 300;
constexpr Twips boxMargin = 120;
constexpr Twips boxTop = 240;
constexpr Twips markWidth = 285;  // the square of a check box or the circle of an option button, with its gap
constexpr Twips lineHeight = 315;
constexpr Twips buttonHeight = 375;
constexpr Twips smallestButton = 1100;
constexpr Twips buttonPadding = 330;
constexpr Twips listWidth = 2400;
constexpr Twips shortBoxWidth = 570;
constexpr Twips boxWidth = 2400;

Size textSize(const Control& control, const std::string& text, Twips width) {
  return Application::current().desktop().textSize(text, control.font(), width);
}

Size markedSize(const Control& control, Twips width) {
  Size size = textSize(control, control.shownText(), width > 0 ? width - markWidth : 0);
  return {size.width + markWidth, std::max(size.height, Twips{240})};
}

class ItemBlock : public Block {
 public:
  ItemBlock(Control& control, Size fixed, bool takesRest)
      : control_(control), fixed_(fixed), takesRest_(takesRest) {}

  Twips naturalWidth() const override {
    return fixed_.width > 0 ? fixed_.width : naturalSize(control_).width;
  }
  Twips heightAt(Twips width) const override {
    return fixed_.height > 0 ? fixed_.height : naturalSize(control_, width).height;
  }
  void place(const Rect& area) const override { control_.setBounds(area); }
  bool takesRest() const override { return takesRest_; }

 private:
  Control& control_;
  Size fixed_;
  bool takesRest_;
};

class GapBlock : public Block {
 public:
  GapBlock(Twips size, bool takesRest) : size_(size), takesRest_(takesRest) {}
  Twips naturalWidth() const override { return size_; }
  Twips heightAt(Twips) const override { return takesRest_ ? 0 : size_; }
  void place(const Rect&) const override {}
  bool takesRest() const override { return takesRest_; }

 private:
  Twips size_;
  bool takesRest_;
};

Twips sum(const std::vector<Twips>& values, Twips gapBetween) {
  Twips total = values.empty() ? 0 : gapBetween * static_cast<Twips>(values.size() - 1);
  for (const Twips value : values) total += value;
  return total;
}

/// Gives what is left to the piece that takes the rest; without one it takes from the widest what is missing.
void fit(std::vector<Twips>& widths, const std::vector<bool>& takeRest, Twips width) {
  if (widths.empty()) return;
  const Twips left = width - sum(widths, columnGap);
  const auto springy = std::find(takeRest.begin(), takeRest.end(), true);
  if (springy != takeRest.end()) {
    Twips& spread = widths[static_cast<std::size_t>(springy - takeRest.begin())];
    spread = std::max(Twips{0}, spread + left);
  } else if (left < 0) {
    Twips& widest = *std::max_element(widths.begin(), widths.end());
    widest = std::max(Twips{0}, widest + left);
  }
}

/// Rows of pieces in common columns; a plain row is one of a single row.
class GridBlock : public Block {
 public:
  explicit GridBlock(std::vector<Pieces> rows) : rows_(std::move(rows)) {
    for (const Pieces& pieces : rows_) columnCount_ = std::max(columnCount_, pieces.size());
  }

  Twips naturalWidth() const override { return sum(naturalWidths(), columnGap); }

  Twips heightAt(Twips width) const override {
    const auto widths = widthsAt(width);
    std::vector<Twips> heights;
    for (const Pieces& pieces : rows_) heights.push_back(rowHeight(pieces, widths));
    return sum(heights, rowGap);
  }

  void place(const Rect& area) const override {
    const auto widths = widthsAt(area.width);
    Twips top = area.top;
    for (const Pieces& pieces : rows_) {
      const Twips height = rowHeight(pieces, widths);
      placeRow(pieces, widths, {area.left, top, area.width, height});
      top += height + rowGap;
    }
  }

  bool takesRest() const override {
    return std::any_of(rows_.begin(), rows_.end(), [](const Pieces& pieces) {
      return std::any_of(pieces.begin(), pieces.end(), [](const Piece& p) { return p->takesRest(); });
    });
  }

 private:
  std::vector<Twips> naturalWidths() const {
    std::vector<Twips> widths(columnCount_, 0);
    for (const Pieces& pieces : rows_) {
      for (std::size_t i = 0; i < pieces.size(); ++i) {
        widths[i] = std::max(widths[i], pieces[i]->naturalWidth());
      }
    }
    return widths;
  }

  std::vector<Twips> widthsAt(Twips width) const {
    std::vector<Twips> widths = naturalWidths();
    std::vector<bool> takeRest(columnCount_, false);
    for (const Pieces& pieces : rows_) {
      for (std::size_t i = 0; i < pieces.size(); ++i) {
        takeRest[i] = takeRest[i] || pieces[i]->takesRest();
      }
    }
    fit(widths, takeRest, width);
    return widths;
  }

  static Twips rowHeight(const Pieces& pieces, const std::vector<Twips>& widths) {
    Twips height = 0;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      height = std::max(height, pieces[i]->heightAt(widths[i]));
    }
    return height;
  }

  static void placeRow(const Pieces& pieces, const std::vector<Twips>& widths, const Rect& area) {
    Twips left = area.left;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      const Twips height = pieces[i]->heightAt(widths[i]);
      const Twips width = pieces[i]->takesRest() ? widths[i]
                                                 : std::min(widths[i], pieces[i]->naturalWidth());
      pieces[i]->place({left, area.top + (area.height - height) / 2, width, height});
      left += widths[i] + columnGap;
    }
  }

  std::vector<Pieces> rows_;
  std::size_t columnCount_ = 0;
};

class ColumnBlock : public Block {
 public:
  ColumnBlock(Pieces pieces, Twips indent) : pieces_(std::move(pieces)), indent_(indent) {}

  Twips naturalWidth() const override {
    Twips width = 0;
    for (const Piece& piece : pieces_) width = std::max(width, piece->naturalWidth());
    return width + indent_;
  }
  Twips heightAt(Twips width) const override {
    std::vector<Twips> heights;
    for (const Piece& piece : pieces_) heights.push_back(piece->heightAt(width - indent_));
    return sum(heights, rowGap);
  }
  void place(const Rect& area) const override {
    Twips top = area.top;
    const Twips available = area.width - indent_;
    for (const Piece& piece : pieces_) {
      const Twips width =
          piece->takesRest() ? available : std::min(available, piece->naturalWidth());
      const Twips height = piece->heightAt(width);
      piece->place({area.left + indent_, top, width, height});
      top += height + rowGap;
    }
  }
  bool takesRest() const override { return true; }

 private:
  Pieces pieces_;
  Twips indent_;
};

class BoxBlock : public Block {
 public:
  BoxBlock(Frame& frame, Pieces pieces) : frame_(frame), contents_(std::move(pieces), 0) {}

  Twips naturalWidth() const override { return contents_.naturalWidth() + 2 * margin(); }
  Twips heightAt(Twips width) const override {
    return contents_.heightAt(width - 2 * margin()) + top() + margin();
  }
  void place(const Rect& area) const override {
    frame_.setBounds(area);
    contents_.place({margin(), top(), area.width - 2 * margin(), area.height - top() - margin()});
  }
  bool takesRest() const override { return true; }

 private:
  Twips margin() const { return frame_.hasBorder() ? boxMargin : 0; }
  Twips top() const {
    if (!frame_.caption().empty()) return boxTop;
    return margin();
  }

  Frame& frame_;
  ColumnBlock contents_;
};

class EitherBlock : public Block {
 public:
  explicit EitherBlock(Pieces pieces) : pieces_(std::move(pieces)) {}

  Twips naturalWidth() const override {
    Twips width = 0;
    for (const Piece& piece : pieces_) width = std::max(width, piece->naturalWidth());
    return width;
  }
  Twips heightAt(Twips width) const override {
    Twips height = 0;
    for (const Piece& piece : pieces_) height = std::max(height, piece->heightAt(width));
    return height;
  }
  void place(const Rect& area) const override {
    for (const Piece& piece : pieces_) {
      piece->place({area.left, area.top, area.width, piece->heightAt(area.width)});
    }
  }
  bool takesRest() const override { return true; }

 private:
  Pieces pieces_;
};

Piece itemBlock(Control& control, Size fixed, bool takesRest) {
  return std::make_shared<ItemBlock>(control, fixed, takesRest);
}

}  // namespace

Piece item(Control& control) { return itemBlock(control, {}, false); }
Piece item(Control& control, Size size) { return itemBlock(control, size, false); }
Piece wide(Control& control, Twips width) { return itemBlock(control, {width, 0}, false); }
Piece rest(Control& control) { return itemBlock(control, {}, true); }
Piece rest(Control& control, Twips height) { return itemBlock(control, {0, height}, true); }
Piece gap(Twips size) { return std::make_shared<GapBlock>(size, false); }
Piece spring() { return std::make_shared<GapBlock>(0, true); }

Piece row(Pieces pieces) {
  return std::make_shared<GridBlock>(std::vector<Pieces>{std::move(pieces)});
}
Piece column(Pieces pieces) { return std::make_shared<ColumnBlock>(std::move(pieces), 0); }
Piece indented(Pieces pieces) {
  return std::make_shared<ColumnBlock>(std::move(pieces), indentation);
}
Piece columns(std::vector<Pieces> rows) { return std::make_shared<GridBlock>(std::move(rows)); }
Piece box(Frame& frame, Pieces pieces) {
  return std::make_shared<BoxBlock>(frame, std::move(pieces));
}
Piece either(Pieces pieces) { return std::make_shared<EitherBlock>(std::move(pieces)); }

Twips layOut(const Rect& area, Pieces pieces) {
  const Piece page = column(std::move(pieces));
  page->place(area);
  return page->heightAt(area.width);
}

Size naturalSize(const Control& control, Twips width) {
  switch (control.kind()) {
    case Kind::checkBox:
    case Kind::optionButton: return markedSize(control, width);
    case Kind::commandButton: {
      const Twips text = textSize(control, control.shownText(), 0).width + buttonPadding;
      return {std::max(text, smallestButton), buttonHeight};
    }
    case Kind::textBox: return {boxWidth, lineHeight};
    case Kind::dropDownList:
    case Kind::userControl: return {listWidth, lineHeight};
    case Kind::listBox:
    case Kind::listView:
    case Kind::textView: return {listWidth, 6 * lineHeight};
    case Kind::image: return {shortBoxWidth, shortBoxWidth};
    case Kind::progressBar: return {listWidth, lineHeight};
    default: return textSize(control, control.shownText(), width);
  }
}

}  // namespace forms
