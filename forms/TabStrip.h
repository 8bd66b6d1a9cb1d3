#pragma once

#include <algorithm>
#include <array>
#include <map>

#include "forms/Container.h"
#include "forms/Control.h"
#include "forms/Picture.h"

namespace forms {

/// A strip of sixteen pages with a header each, of which one is current. A control that comes into
/// the strip stands on the page that is current then, and shows while that page is. With the focus
/// on the strip, the arrows go to the next page that has a header; Tab comes by it only where its
/// tab stop is set, which it isn't at first.
class TabStrip : public Control, public Container {
 public:
  static constexpr std::int16_t pageCount = 16;

  TabStrip(Container& container, std::string name);

  Kind kind() const override { return Kind::tabStrip; }
  bool takesFocus() const override { return true; }
  Container* asContainer() override { return this; }
  Control* asControl() override { return this; }
  Root& contentRoot() override { return root(); }
  bool shows(const Control& control) const override { return pageOf(control) == current_; }
  std::string shownText() const override {
    return pages_[static_cast<std::size_t>(current_)].caption;
  }

  /// Pages count from 0. All of these raise Error 9 for a page that there is not.
  const std::string& pageCaption(std::int16_t page) const { return at(page).caption; }
  void setPageCaption(std::int16_t page, const std::string& caption);
  const Picture& pagePicture(std::int16_t page) const { return at(page).picture; }
  void setPagePicture(std::int16_t page, const Picture& picture);
  /// Whether the page has a header for the user. One without can still be the current one.
  bool isPageVisible(std::int16_t page) const { return at(page).visible; }
  void setPageVisible(std::int16_t page, bool visible);

  std::int16_t currentPage() const { return current_; }
  /// Ends and takes a label edit that is open on the form, then shows the page and raises
  /// `pageChanged` with the page left. The same page does nothing.
  void setCurrentPage(std::int16_t page);

  /// The page that a control stands on; -1 for one that is not in the strip.
  std::int16_t pageOf(const Control& control) const;

  std::int32_t style() const { return style_; }
  void setStyle(std::int32_t style) { set(style_, style); }
  std::int16_t tabsPerRow() const { return tabsPerRow_; }
  /// At least 1.
  void setTabsPerRow(std::int16_t count) { set(tabsPerRow_, std::max<std::int16_t>(1, count)); }
  /// The number of rows that the headers of the visible pages take, at least 1, and the height of
  /// one in twips.
  std::int16_t rows() const;
  Twips tabHeight() const { return 240; }

  /// False where a window places the strip so high that only its pages are seen.
  bool hasHeadersInSight() const;

  Event<std::int16_t> pageChanged;

 private:
  struct Page {
    std::string caption;
    Picture picture;
    bool visible = true;
  };
  const Page& at(std::int16_t page) const;
  Page& at(std::int16_t page);
  void childAdded(Control& control) override { pageOf_[&control] = current_; }
  void childRemoved(Control& control) override { pageOf_.erase(&control); }
  bool userKey(const KeyDown& key) override;

  std::array<Page, pageCount> pages_;
  std::map<const Control*, std::int16_t> pageOf_;
  std::int16_t current_ = 0;
  std::int32_t style_ = 0;
  std::int16_t tabsPerRow_ = 3;
};

}  // namespace forms
