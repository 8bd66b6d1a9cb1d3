#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/Control.h"
#include "forms/Frame.h"
#include "forms/Geometry.h"

/// Lays a page out in rows, with the sizes that the front end gives to texts, so that a page fits
/// any font:
///
///     layOut({100, 310, 6800, 6000}, {
///         item(lblBanner),
///         box(Frame3, {
///             row({item(ctlImageDisplay, {480, 480}), rest(lblDescription), item(cmdChoose)}),
///             columns({{names(lblTransport(0), ctlCommands(0)), rest(ctlCommands(0))},
///                      {names(lblTransport(1), ctlCommands(1)), rest(ctlCommands(1))}}),
///         }),
///     });
///
/// The order of the pieces becomes the order of reading, and so of Tab. Hidden controls keep their
/// place, so that nothing moves when they show.
namespace forms {

/// A piece of a page. Built by the functions below and placed by `layOut`.
class Block {
 public:
  virtual ~Block() = default;
  /// The width that it takes when it may have any.
  virtual Twips naturalWidth() const = 0;
  /// The width below which something of it is cut off.
  virtual Twips smallestWidth() const = 0;
  /// The height that it takes at a width.
  virtual Twips heightAt(Twips width) const = 0;
  virtual void place(const Rect& area) const = 0;
  /// Whether it takes the width that the others of its row leave.
  virtual bool takesRest() const { return false; }
  /// Whether it is empty room, which has no height beside others and no width below others.
  virtual bool isGap() const { return false; }
};

using Piece = std::shared_ptr<const Block>;
using Pieces = std::vector<Piece>;

/// A control at its natural size: that of its text, or for a box or list a common one.
Piece item(Control& control);
/// A control at a fixed size.
Piece item(Control& control, Size size);
/// A control of a fixed width and its natural height.
Piece wide(Control& control, Twips width);
/// A control that takes the width that is left; its text is broken into lines.
Piece rest(Control& control);
/// A control that takes the width that is left, at a fixed height.
Piece rest(Control& control, Twips height);
/// A control at its natural size whose text names another one for screen readers, as a label does.
Piece names(Control& words, Control& named);
/// Empty room, across in a row and down in a column.
Piece gap(Twips size);
/// Empty room that takes the width that is left.
Piece spring();

/// Side by side, centred on one another. Of several pieces that take the rest the first gets it.
/// Where the width is too small for all, those give way first and then the widest, down to the
/// longest word of a text.
Piece row(Pieces pieces);
/// One below the other. It takes the rest when one of its pieces does.
Piece column(Pieces pieces);
/// One below the other, moved in from the left.
Piece indented(Pieces pieces);
/// Rows whose pieces stand in common columns.
Piece columns(std::vector<Pieces> rows);
/// A frame with its contents, one below the other. It takes the rest.
Piece box(Frame& frame, Pieces pieces);
/// Pieces of which only one is visible at a time, in one place, which is as large as the largest of
/// them.
Piece either(Pieces pieces);

/// Places the pieces, one below the other, from the upper left corner of the area. What does not
/// fit below is placed there all the same. Returns the height used.
Twips layOut(const Rect& area, Pieces pieces);

/// The size of a control at its own text and font; above a width of 0 its text is broken into
/// lines.
Size naturalSize(const Control& control, Twips width = 0);

}  // namespace forms
