#include "forms/Rows.h"

#include "forms/Image.h"
#include "tests/forms/Desk.h"

namespace tests {
namespace {

using namespace forms;

/// A page like those of the wizard, with long texts, in a font of any size.
struct Sheet : Form {
  explicit Sheet(double points) : Form("sheet") {
    for (const auto& [name, control] : controls()) {
      control->setFont({"Tahoma", points, false, false});
    }
  }

  Twips layOutIn(const Rect& area) {
    return layOut(area,
                  {item(banner),
                   box(frame, {row({item(image, {480, 480}), rest(description), item(button)}),
                               columns({{item(onLabel), wide(on, 600), item(onUnit)},
                                        {item(offLabel), wide(off, 600), spring()}}),
                               indented({item(check)})}),
                   row({item(left), gap(600), item(right)}), either({rest(hint), item(link)})});
  }

  Label banner{*this, "banner", "Display Device"};
  Frame frame{*this, "frame", "Display Device"};
  Image image{frame, "image"};
  Label description{
      frame, "description",
      "A projector with a lens shift and a lamp that is rated at three thousand hours"};
  CommandButton button{frame, "button", "Choose..."};
  Label onLabel{frame, "onLabel", "Delay between Relay Closure and Display Power On:"};
  TextBox on{frame, "on"};
  Label onUnit{frame, "onUnit", "seconds"};
  Label offLabel{frame, "offLabel", "Delay:"};
  TextBox off{frame, "off"};
  CheckBox check{frame, "check", "Enable power triggered relay"};
  CommandButton left{*this, "left", "Left"};
  CommandButton right{*this, "right", "Right"};
  Label hint{*this, "hint", "Click Choose to select the Display Device for your system."};
  Label link{*this, "link", "Help"};
};

bool overlap(const Rect& one, const Rect& other) {
  return one.left < other.right() && other.left < one.right() && one.top < other.bottom() &&
         other.top < one.bottom();
}

class RowsTest : public Desk {
 protected:
  void expectApart(const Container& container) {
    const auto& children = container.children();
    for (std::size_t i = 0; i < children.size(); ++i) {
      for (std::size_t j = i + 1; j < children.size(); ++j) {
        EXPECT_FALSE(overlap(children[i]->bounds(), children[j]->bounds()))
            << children[i]->name() << " and " << children[j]->name();
      }
    }
  }
};

TEST_F(RowsTest, NothingOverlapsOrIsCutOffInAnyFont) {
  for (const double points : {8.25, 10.0, 14.0}) {
    SCOPED_TRACE(points);
    Sheet sheet(points);
    const Rect area{100, 310, 6900, 7000};
    const Twips used = sheet.layOutIn(area);
    sheet.link.setBounds({});  // stands in the place of the hint
    expectApart(sheet);
    expectApart(sheet.frame);
    EXPECT_EQ(sheet.banner.bounds().top, area.top);
    EXPECT_EQ(sheet.hint.bounds().bottom(), area.top + used);
    for (const auto& [name, control] : sheet.controls()) {
      const Rect& bounds = control->bounds();
      const Rect inner = control->container().asControl()
                             ? Rect{0, 0, sheet.frame.bounds().width, sheet.frame.bounds().height}
                             : Rect{area.left, area.top, area.width, used};
      EXPECT_GE(bounds.left, control == &sheet.link ? 0 : inner.left) << name;
      EXPECT_LE(bounds.right(), inner.right()) << name;
      EXPECT_LE(bounds.bottom(), inner.bottom()) << name;
      if (control->kind() != Kind::label || control == &sheet.link) continue;
      const Size text = desktop.textSize(control->shownText(), control->font(), bounds.width);
      EXPECT_GE(bounds.width, text.width) << name;
      EXPECT_GE(bounds.height, text.height) << name;
    }
  }
}

TEST_F(RowsTest, HiddenControlsKeepTheirPlace) {
  Sheet shown(8.25);
  Sheet hidden(8.25);
  hidden.check.setVisible(false);
  hidden.description.setVisible(false);
  EXPECT_EQ(shown.layOutIn({0, 0, 6900, 7000}), hidden.layOutIn({0, 0, 6900, 7000}));
  EXPECT_EQ(shown.hint.bounds(), hidden.hint.bounds());
}

}  // namespace
}  // namespace tests
