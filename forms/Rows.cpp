#include "forms/Rows.h"

#include <algorithm>
#include <optional>

#include "forms/Application.h"

namespace forms {
namespace {

constexpr Twips rowGap = 75;
constexpr Twips columnGap = 90;
constexpr Twips indentation = 300;
constexpr Twips boxMargin = 120;
constexpr Twips boxTitleGap = 45;
constexpr Twips markWidth =
    285;  // the square of a check box or the circle of an option button, with its gap
constexpr Twips markHeight = 240;
constexpr Twips linePadding = 120;     // what the border of a box adds to the height of its text
constexpr Twips buttonVertical = 180;  // and that of a button
constexpr Twips smallestButton = 1100;
constexpr Twips buttonPadding = 330;
constexpr Twips listWidth = 2400;
constexpr Twips imageSide = 570;
constexpr Twips boxWidth = 2400;
constexpr Twips smallestRest = 900;  // of a box or a list that takes the rest

Size textSize(const Control& control, const std::string& text, Twips width) {
  return Application::current().desktop().textSize(text, control.font(), width);
}

Size markedSize(const Control& control, Twips width) {
  Size size = textSize(control, control.shownText(), width > 0 ? width - markWidth : 0);
  return {size.width + markWidth, std::max(size.height, markHeight)};
}

/// The height of a line of text in the control's font.
Twips textHeight(const Control& control) { return textSize(control, "X", 0).height; }

bool breaksText(const Control& control) {
  return control.kind() == Kind::label || control.kind() == Kind::checkBox ||
         control.kind() == Kind::optionButton;
}

/// A block that is measured once, however often those around it ask: a page is made, placed and
/// thrown away while no text of it changes.
class MeasuredBlock : public Block {
 public:
  Twips naturalWidth() const final {
    if (!natural_) natural_ = measureNaturalWidth();
    return *natural_;
  }
  Twips smallestWidth() const final {
    if (!smallest_) smallest_ = measureSmallestWidth();
    return *smallest_;
  }
  Twips heightAt(Twips width) const final {
    if (!height_ || heightWidth_ != width) {
      height_ = measureHeightAt(width);
      heightWidth_ = width;
    }
    return *height_;
  }

 private:
  virtual Twips measureNaturalWidth() const = 0;
  virtual Twips measureSmallestWidth() const = 0;
  virtual Twips measureHeightAt(Twips width) const = 0;

  mutable std::optional<Twips> natural_;
  mutable std::optional<Twips> smallest_;
  mutable std::optional<Twips> height_;  // at heightWidth_, the width that was asked for last
  mutable Twips heightWidth_ = 0;
};

class ItemBlock : public MeasuredBlock {
 public:
  ItemBlock(Control& control, Size fixed, bool takesRest)
      : control_(control), fixed_(fixed), takesRest_(takesRest) {}

  void place(const Rect& area) const override {
    control_.container().readLast(control_);
    control_.setBounds(area);
  }
  bool takesRest() const override { return takesRest_; }

 private:
  Twips measureNaturalWidth() const override {
    return fixed_.width > 0 ? fixed_.width : naturalSize(control_).width;
  }
  Twips measureSmallestWidth() const override {
    if (fixed_.width > 0) return fixed_.width;
    if (breaksText(control_)) return naturalSize(control_, markWidth + 1).width;
    return takesRest_ ? std::min(smallestRest, naturalWidth()) : naturalWidth();
  }
  Twips measureHeightAt(Twips width) const override {
    return fixed_.height > 0 ? fixed_.height : naturalSize(control_, width).height;
  }

  Control& control_;
  Size fixed_;
  bool takesRest_;
};

class GapBlock : public Block {
 public:
  GapBlock(Twips size, bool takesRest) : size_(size), takesRest_(takesRest) {}
  Twips naturalWidth() const override { return size_; }
  Twips smallestWidth() const override { return size_; }
  Twips heightAt(Twips) const override { return takesRest_ ? 0 : size_; }
  void place(const Rect&) const override {}
  bool takesRest() const override { return takesRest_; }
  bool isGap() const override { return true; }

 private:
  Twips size_;
  bool takesRest_;
};

bool anyTakesRest(const Pieces& pieces) {
  return std::any_of(pieces.begin(), pieces.end(), [](const Piece& p) { return p->takesRest(); });
}

/// The widest of pieces that stand below one another, by one of a block's widths.
Twips widest(const Pieces& pieces, Twips (Block::*width)() const) {
  Twips found = 0;
  for (const Piece& piece : pieces) {
    if (!piece->isGap()) found = std::max(found, (*piece.*width)());
  }
  return found;
}

/// The width that a piece has below others, of those available.
Twips widthBelow(const Piece& piece, Twips available) {
  return piece->takesRest() ? available : std::min(available, piece->naturalWidth());
}

Twips sum(const std::vector<Twips>& values, Twips gapBetween) {
  Twips total = values.empty() ? 0 : gapBetween * static_cast<Twips>(values.size() - 1);
  for (const Twips value : values) total += value;
  return total;
}

/// What a column of a grid is, and how far it can give way.
struct ColumnWidth {
  Twips width = 0;
  Twips smallest = 0;
  bool takesRest = false;
};

/// The columns in the order in which they give way: the one that takes the rest, then from the
/// widest on.
std::vector<ColumnWidth*> byGivingWay(std::vector<ColumnWidth>& columns) {
  std::vector<ColumnWidth*> order;
  for (ColumnWidth& column : columns) order.push_back(&column);
  std::stable_sort(
      order.begin(), order.end(), [](const ColumnWidth* one, const ColumnWidth* other) {
        return one->takesRest != other->takesRest ? one->takesRest : one->width > other->width;
      });
  return order;
}

/// The widths that columns have of those available.
std::vector<Twips> fitted(std::vector<ColumnWidth> columns, Twips available) {
  Twips left = available + columnGap;
  for (const ColumnWidth& column : columns) left -= column.width + columnGap;
  const auto springy = std::find_if(columns.begin(), columns.end(),
                                    [](const ColumnWidth& column) { return column.takesRest; });
  if (left > 0 && springy != columns.end()) springy->width += left;
  for (ColumnWidth* column : byGivingWay(columns)) {
    if (left >= 0) break;
    const Twips given = std::clamp(column->width - column->smallest, Twips{0}, -left);
    column->width -= given;
    left += given;
  }
  std::vector<Twips> widths;
  for (const ColumnWidth& column : columns) widths.push_back(column.width);
  return widths;
}

/// Rows of pieces in common columns; a plain row is one of a single row.
class GridBlock : public MeasuredBlock {
 public:
  explicit GridBlock(std::vector<Pieces> rows) : rows_(std::move(rows)) {
    for (const Pieces& pieces : rows_) columnCount_ = std::max(columnCount_, pieces.size());
  }

  void place(const Rect& area) const override {
    const auto widths = fitted(columns(), area.width);
    Twips top = area.top;
    for (const Pieces& pieces : rows_) {
      const Twips height = rowHeight(pieces, widths);
      placeRow(pieces, widths, {area.left, top, area.width, height});
      top += height + rowGap;
    }
  }

  bool takesRest() const override { return std::any_of(rows_.begin(), rows_.end(), anyTakesRest); }

 private:
  Twips measureNaturalWidth() const override { return total(&ColumnWidth::width); }
  Twips measureSmallestWidth() const override { return total(&ColumnWidth::smallest); }

  Twips measureHeightAt(Twips width) const override {
    const auto widths = fitted(columns(), width);
    std::vector<Twips> heights;
    for (const Pieces& pieces : rows_) heights.push_back(rowHeight(pieces, widths));
    return sum(heights, rowGap);
  }

  std::vector<ColumnWidth> columns() const {
    std::vector<ColumnWidth> columns(columnCount_);
    for (const Pieces& pieces : rows_) {
      for (std::size_t i = 0; i < pieces.size(); ++i) {
        ColumnWidth& column = columns[i];
        column.width = std::max(column.width, pieces[i]->naturalWidth());
        column.smallest = std::max(column.smallest, pieces[i]->smallestWidth());
        column.takesRest = column.takesRest || pieces[i]->takesRest();
      }
    }
    return columns;
  }

  template <typename Width>
  Twips total(Width width) const {
    std::vector<Twips> widths;
    for (const ColumnWidth& column : columns()) widths.push_back(column.*width);
    return sum(widths, columnGap);
  }

  static Twips rowHeight(const Pieces& pieces, const std::vector<Twips>& widths) {
    Twips height = 0;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      if (!pieces[i]->isGap()) height = std::max(height, pieces[i]->heightAt(widths[i]));
    }
    return height;
  }

  static void placeRow(const Pieces& pieces, const std::vector<Twips>& widths, const Rect& area) {
    Twips left = area.left;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      const Twips height = pieces[i]->heightAt(widths[i]);
      const Twips width =
          pieces[i]->takesRest() ? widths[i] : std::min(widths[i], pieces[i]->naturalWidth());
      pieces[i]->place({left, area.top + (area.height - height) / 2, width, height});
      left += widths[i] + columnGap;
    }
  }

  std::vector<Pieces> rows_;
  std::size_t columnCount_ = 0;
};

class ColumnBlock : public MeasuredBlock {
 public:
  ColumnBlock(Pieces pieces, Twips indent) : pieces_(std::move(pieces)), indent_(indent) {}

  void place(const Rect& area) const override {
    Twips top = area.top;
    for (const Piece& piece : pieces_) {
      const Twips width = widthBelow(piece, area.width - indent_);
      const Twips height = piece->heightAt(width);
      piece->place({area.left + indent_, top, width, height});
      top += height + rowGap;
    }
  }
  bool takesRest() const override { return anyTakesRest(pieces_); }

 private:
  Twips measureNaturalWidth() const override {
    return widest(pieces_, &Block::naturalWidth) + indent_;
  }
  Twips measureSmallestWidth() const override {
    return widest(pieces_, &Block::smallestWidth) + indent_;
  }
  Twips measureHeightAt(Twips width) const override {
    std::vector<Twips> heights;
    for (const Piece& piece : pieces_) {
      heights.push_back(piece->heightAt(widthBelow(piece, width - indent_)));
    }
    return sum(heights, rowGap);
  }

  Pieces pieces_;
  Twips indent_;
};

class BoxBlock : public MeasuredBlock {
 public:
  BoxBlock(Frame& frame, Pieces pieces) : frame_(frame), contents_(std::move(pieces), 0) {}

  void place(const Rect& area) const override {
    frame_.container().readLast(frame_);
    frame_.setBounds(area);
    contents_.place({margin(), top(), area.width - 2 * margin(), area.height - top() - margin()});
  }
  bool takesRest() const override { return true; }

 private:
  Twips measureNaturalWidth() const override {
    const Twips title = textSize(frame_, frame_.shownText(), 0).width;
    return std::max(contents_.naturalWidth(), title) + 2 * margin();
  }
  Twips measureSmallestWidth() const override { return contents_.smallestWidth() + 2 * margin(); }
  Twips measureHeightAt(Twips width) const override {
    return contents_.heightAt(width - 2 * margin()) + top() + margin();
  }

  Twips margin() const { return frame_.hasBorder() ? boxMargin : 0; }
  Twips top() const {
    return frame_.caption().empty() ? margin() : textHeight(frame_) + boxTitleGap;
  }

  Frame& frame_;
  ColumnBlock contents_;
};

class EitherBlock : public MeasuredBlock {
 public:
  explicit EitherBlock(Pieces pieces) : pieces_(std::move(pieces)) {}

  void place(const Rect& area) const override {
    for (const Piece& piece : pieces_) {
      const Twips width = widthBelow(piece, area.width);
      piece->place({area.left, area.top, width, piece->heightAt(width)});
    }
  }
  bool takesRest() const override { return anyTakesRest(pieces_); }

 private:
  Twips measureNaturalWidth() const override { return widest(pieces_, &Block::naturalWidth); }
  Twips measureSmallestWidth() const override { return widest(pieces_, &Block::smallestWidth); }
  Twips measureHeightAt(Twips width) const override {
    Twips height = 0;
    for (const Piece& piece : pieces_) {
      height = std::max(height, piece->heightAt(widthBelow(piece, width)));
    }
    return height;
  }

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
Piece names(Control& words, Control& named) {
  named.nameBy(words);
  return item(words);
}
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
  const Twips lineHeight = textHeight(control) + linePadding;
  switch (control.kind()) {
    case Kind::checkBox:
    case Kind::optionButton:
      return markedSize(control, width);
    case Kind::commandButton: {
      const Twips text = textSize(control, control.shownText(), 0).width + buttonPadding;
      return {std::max(text, smallestButton), textHeight(control) + buttonVertical};
    }
    case Kind::textBox:
      return {boxWidth, lineHeight};
    case Kind::dropDownList:
    case Kind::userControl:
      return {listWidth, lineHeight};
    case Kind::listBox:
    case Kind::listView:
    case Kind::textView:
      return {listWidth, 6 * lineHeight};
    case Kind::image:
      return {imageSide, imageSide};
    case Kind::progressBar:
      return {listWidth, lineHeight};
    default:
      return textSize(control, control.shownText(), width);
  }
}

}  // namespace forms
