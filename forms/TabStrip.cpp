#include "forms/TabStrip.h"

#include <algorithm>

#include "forms/Form.h"

namespace forms {

TabStrip::TabStrip(Container& container, std::string name) : Control(container, std::move(name)) {
  setTabStop(false);
  for (std::size_t i = 0; i < pages_.size(); ++i) pages_[i].caption = "Tab " + std::to_string(i);
}

const TabStrip::Page& TabStrip::at(std::int16_t page) const {
  if (page < 0 || page >= pageCount) {
    throw Error(errors::indexOutOfRange,
                "The tab strip \"" + name() + "\" has no page " + std::to_string(page) + ".");
  }
  return pages_[static_cast<std::size_t>(page)];
}

TabStrip::Page& TabStrip::at(std::int16_t page) {
  return const_cast<Page&>(static_cast<const TabStrip*>(this)->at(page));
}

void TabStrip::setPageCaption(std::int16_t page, const std::string& caption) {
  set(at(page).caption, caption);
}

void TabStrip::setPagePicture(std::int16_t page, const Picture& picture) {
  set(at(page).picture, picture);
}

void TabStrip::setPageVisible(std::int16_t page, bool visible) { set(at(page).visible, visible); }

void TabStrip::setCurrentPage(std::int16_t page) {
  at(page);
  if (page == current_) return;
  if (form()) form()->focus().endEditing();
  const std::int16_t previous = current_;
  if (set(current_, page)) pageChanged.raise(previous);
}

bool TabStrip::hasHeadersInSight() const {
  Twips bottom = tabHeight();
  for (const Control* control = this; control; control = control->container().asControl()) {
    bottom += control->bounds().top;
  }
  return bottom > 0;
}

bool TabStrip::userKey(const KeyDown& key) {
  const bool forward = key.code == keys::right || key.code == keys::down;
  if (!forward && key.code != keys::left && key.code != keys::up) return false;
  const int step = forward ? 1 : -1;
  int page = current_ + step;
  while (page >= 0 && page < pageCount && !pages_[static_cast<std::size_t>(page)].visible) {
    page += step;
  }
  if (page >= 0 && page < pageCount) setCurrentPage(static_cast<std::int16_t>(page));
  return true;
}

std::int16_t TabStrip::pageOf(const Control& control) const {
  const auto found = pageOf_.find(&control);
  return found == pageOf_.end() ? std::int16_t{-1} : found->second;
}

std::int16_t TabStrip::rows() const {
  const auto visible =
      std::count_if(pages_.begin(), pages_.end(), [](const Page& page) { return page.visible; });
  const auto perRow = std::max<std::ptrdiff_t>(1, tabsPerRow_);
  return static_cast<std::int16_t>(std::max<std::ptrdiff_t>(1, (visible + perRow - 1) / perRow));
}

}  // namespace forms
