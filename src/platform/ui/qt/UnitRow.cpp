#include "platform/ui/qt/UnitRow.h"

#include <QWidget>
#include <algorithm>
#include <numeric>

#include "platform/ui/qt/Theme.h"

namespace fenvale::qt {
namespace {

constexpr int gap = measures::gap;

}  // namespace

UnitRow::UnitRow(int units) : units_(std::max(units, 1)) { setContentsMargins(0, 0, 0, 0); }

UnitRow::~UnitRow() {
  // A layout that dies takes itself out of the one that holds it.
  while (!items_.empty()) {
    QLayoutItem* const last = items_.back().item;
    items_.pop_back();
    delete last;
  }
}

void UnitRow::add(QWidget& widget, int width, Placement placement) {
  addChildWidget(&widget);
  items_.push_back({new QWidgetItem(&widget), width, placement});
}

void UnitRow::add(QLayout& layout, int width, Placement placement) {
  addChildLayout(&layout);
  items_.push_back({&layout, width, placement});
}

void UnitRow::addItem(QLayoutItem* item) { items_.push_back({item, 0, Placement::top}); }

QLayoutItem* UnitRow::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].item : nullptr;
}

QLayoutItem* UnitRow::takeAt(int index) {
  QLayoutItem* const item = itemAt(index);
  if (item != nullptr) items_.erase(items_.begin() + index);
  return item;
}

std::vector<const UnitRow::Item*> UnitRow::shownItems() const {
  std::vector<const Item*> shown;
  for (const Item& item : items_)
    if (!item.item->isEmpty()) shown.push_back(&item);
  return shown;
}

QSize UnitRow::sizeHint() const {
  QSize size(-gap, 0);
  for (const Item* item : shownItems()) {
    const QSize hint = item->item->sizeHint();
    const int wanted = item->width > 0 ? item->width * measures::unit - gap : 0;
    size = {size.width() + gap + std::max({wanted, hint.width(), item->item->minimumSize().width()}),
            std::max(size.height(), hint.height())};
  }
  return size.expandedTo({0, 0});
}

QSize UnitRow::minimumSize() const {
  QSize size(-gap, 0);
  for (const Item* item : shownItems()) {
    const QSize least = item->item->minimumSize();
    size = {size.width() + gap + least.width(), std::max(size.height(), least.height())};
  }
  return size.expandedTo({0, 0});
}

Qt::Orientations UnitRow::expandingDirections() const {
  Qt::Orientations directions = Qt::Horizontal;
  for (const Item& item : items_) directions |= item.item->expandingDirections() & Qt::Vertical;
  return directions;
}

bool UnitRow::isEmpty() const { return shownItems().empty(); }

std::vector<int> UnitRow::widthsFor(int available, const std::vector<const Item*>& shown) const {
  const int count = static_cast<int>(shown.size());
  const int room = available - gap * (count - 1);
  const double unit = static_cast<double>(available + gap) / units_;
  std::vector<int> widths, least;
  int fixed = 0, stretching = 0;
  for (const Item* item : shown) {
    least.push_back(item->item->minimumSize().width());
    widths.push_back(item->width > 0 ? std::max(static_cast<int>(item->width * unit) - gap, least.back()) : 0);
    fixed += widths.back();
    if (item->width <= 0) ++stretching;
  }
  int left = room - fixed, waiting = stretching;
  for (std::size_t place = 0; place < shown.size() && waiting > 0; ++place) {
    if (shown[place]->width > 0) continue;
    widths[place] = std::max(left / waiting, least[place]);
    left -= widths[place];
    --waiting;
  }
  // What is too much comes from the items that have room above their least width, in proportion.
  int excess = std::accumulate(widths.begin(), widths.end(), 0) - room;
  int slack = 0;
  for (std::size_t place = 0; place < shown.size(); ++place) slack += widths[place] - least[place];
  for (std::size_t place = 0; place < shown.size() && excess > 0 && slack > 0; ++place) {
    const int own = widths[place] - least[place];
    const int taken = std::min(own, (own * excess + slack - 1) / slack);
    widths[place] -= taken;
    excess -= taken;
    slack -= own;
  }
  return widths;
}

void UnitRow::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  const auto shown = shownItems();
  const auto widths = widthsFor(rect.width(), shown);
  int x = rect.x();
  for (std::size_t place = 0; place < shown.size(); ++place) {
    QLayoutItem& item = *shown[place]->item;
    const bool grows = (item.expandingDirections() & Qt::Vertical) != 0 || shown[place]->placement == Placement::full;
    const int height = grows ? rect.height() : std::min(item.sizeHint().height(), rect.height());
    const int y = shown[place]->placement == Placement::bottom ? rect.bottom() + 1 - height : rect.y();
    item.setGeometry({x, y, widths[place], height});
    x += widths[place] + gap;
  }
}

}  // namespace fenvale::qt
