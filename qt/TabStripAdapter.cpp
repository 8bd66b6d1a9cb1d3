#include "qt/TabStripAdapter.h"

#include <QtGui/QPainter>
#include <QtWidgets/QTabBar>
#include <algorithm>

#include "qt/Conversions.h"
#include "qt/Painting.h"
#include "qt/Pictures.h"
#include "qt/ShownForm.h"

namespace qt {
namespace {

constexpr int pictureSize = 16;

/// Headers of the height that forms reckon with.
class Headers : public QTabBar {
 public:
  using QTabBar::QTabBar;

 protected:
  QSize tabSizeHint(int place) const override {
    return {QTabBar::tabSizeHint(place).width(), height()};
  }
  QSize minimumTabSizeHint(int place) const override { return tabSizeHint(place); }
};

/// The pages, with a border around them where their headers are in sight.
class Pages : public QWidget {
 public:
  using QWidget::QWidget;

  void showBorderBelow(int headerHeight, bool bordered) {
    headerHeight_ = headerHeight;
    bordered_ = bordered;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (!bordered_) return;
    QPainter painter(this);
    drawBorder(painter, rect().adjusted(0, headerHeight_ - 1, 0, 0), lineColor(palette()));
  }

 private:
  int headerHeight_ = 0;
  bool bordered_ = false;
};

}  // namespace

TabStripAdapter::TabStripAdapter(forms::TabStrip& strip, const Place& place)
    : Adapter(strip, place, new Pages(&place.parent)), strip_(strip), bar_(new Headers(widget())) {
  widget()->setAutoFillBackground(true);
  bar_->setIconSize({pictureSize, pictureSize});
  bar_->setDrawBase(false);
  bar_->setExpanding(false);
  watch(bar_);
}

void TabStripAdapter::show() {
  const int height = pixels(strip_.tabHeight());
  static_cast<Pages*>(widget())->showBorderBelow(height, strip_.hasHeadersInSight());
  bar_->setGeometry(0, 0, widget()->width(), height);
  showHeaders();
  bar_->setAccessibleName(widget()->accessibleName());
  bar_->setVisible(strip_.hasHeadersInSight());
  if (shownPage_ == strip_.currentPage()) return;
  shownPage_ = strip_.currentPage();
  form().noteContents(strip_);
}

QWidget* TabStripAdapter::focusWidget() const { return bar_; }

void TabStripAdapter::showHeaders() {
  pages_.clear();
  for (std::int16_t page = 0; page < forms::TabStrip::pageCount; ++page) {
    if (strip_.isPageVisible(page)) pages_.push_back(page);
  }
  const int count = static_cast<int>(pages_.size());
  while (bar_->count() > count) bar_->removeTab(bar_->count() - 1);
  for (int place = 0; place < count; ++place) {
    const std::int16_t page = pages_[static_cast<std::size_t>(place)];
    const QString caption = toQt(strip_.pageCaption(page));
    if (place == bar_->count()) bar_->addTab({});
    if (bar_->tabText(place) != caption) bar_->setTabText(place, caption);
    bar_->setTabIcon(place,
                     iconOf(strip_.pagePicture(page), bar_->iconSize(), bar_->devicePixelRatioF()));
  }
  const auto current = std::find(pages_.begin(), pages_.end(), strip_.currentPage());
  bar_->setCurrentIndex(current == pages_.end() ? -1 : static_cast<int>(current - pages_.begin()));
}

void TabStripAdapter::select(std::int16_t page) {
  act([&](forms::User& user) { user.select(strip_, page); });
}

bool TabStripAdapter::mousePressed(QWidget& part, QMouseEvent& event) {
  const int place = bar_->tabAt(event.position().toPoint());
  if (&part == bar_ && place >= 0 && event.button() == Qt::LeftButton) {
    select(pages_[static_cast<std::size_t>(place)]);
  }
  return true;
}

bool TabStripAdapter::turnPage(bool forward) {
  if (!hasControl() || pages_.empty() || !strip_.isUsable() || bar_->visibleRegion().isEmpty()) {
    return false;
  }
  const auto count = static_cast<int>(pages_.size());
  const int place = (bar_->currentIndex() + (forward ? 1 : count - 1)) % count;
  select(pages_[static_cast<std::size_t>(place)]);
  return true;
}

}  // namespace qt
