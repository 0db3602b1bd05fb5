// The list in report style. The cursor moves with the arrow keys and picks nothing; the mouse and Space pick. The menu
// key, or Shift+F10, is the right button; Ctrl+O offers the headings to sort by.

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>
#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

#include "platform/ui/ListView.h"
#include "platform/ui/qt/Binding.h"
#include "platform/ui/qt/CellText.h"
#include "platform/ui/qt/HouseStyle.h"
#include "platform/ui/qt/ListRows.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Render.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {
namespace {

constexpr double twipsPerPixel = 15;
constexpr int cellMargin = 7;
constexpr int tickWidth = 24;

int pixelsOf(float twips) { return static_cast<int>(std::lround(static_cast<double>(twips) / twipsPerPixel)); }
float twipsOf(int pixels) { return static_cast<float>(pixels * twipsPerPixel); }

/// Draws one cell: the row's mark (bold, colour), the tick, the text.
class RowDelegate final : public QStyledItemDelegate {
 public:
  RowDelegate(const QtHost& host, const ListRows& rows, bool fixedPitch, QTreeView& view)
      : QStyledItemDelegate(&view), view_(view), host_(host), rows_(rows), fixedPitch_(fixedPitch) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const ListItem* const item = rows_.item(index.row());
    if (item == nullptr) return;
    const Theme& theme = host_.theme();
    const bool enabled = (option.state & QStyle::State_Enabled) != 0;
    painter->save();
    QRectF place = QRectF(option.rect).adjusted(cellMargin, 0, -cellMargin, 0);
    place.setWidth(roomFor(index, option.rect) - 2 * cellMargin);
    const QVariant tick = index.data(Qt::CheckStateRole);
    if (tick.isValid()) {
      painter->setRenderHint(QPainter::Antialiasing);
      drawTick(*painter, QRectF(option.rect.x() + 4, option.rect.y(), 18, option.rect.height()),
               tick.toInt() == Qt::Checked, enabled, false, theme);
      place.setLeft(option.rect.x() + tickWidth + 2);
    }
    painter->setFont(fontOf(*item));
    painter->setPen(enabled ? theme.translated(item->colour()) : theme.tokens().disabledText);
    drawCellText(*painter, place, rows_.text(index.row(), index.column()), rows_.alignment(index.column()));
    painter->restore();
  }
  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return {0, std::max(measures::rowHeight, QFontMetrics(host_.theme().baseFont()).height() + 7)};
  }
  bool cut(const QModelIndex& index, const QRect& cell) const {
    const ListItem* const item = rows_.item(index.row());
    if (item == nullptr) return false;
    const int tick = index.data(Qt::CheckStateRole).isValid() ? tickWidth : 0;
    const double width = cellTextWidth(fontOf(*item), rows_.text(index.row(), index.column()));
    return width > roomFor(index, cell) - 2 * cellMargin - tick;
  }

 private:
  const QFont& fontOf(const ListItem& item) const {
    const Theme& theme = host_.theme();
    if (fixedPitch_) return item.bold() ? theme.strongFixedFont() : theme.fixedFont();
    return item.bold() ? theme.strongFont() : theme.baseFont();
  }
  /// A text in the last column runs on into what is left of the list.
  int roomFor(const QModelIndex& index, const QRect& cell) const {
    const bool left = (rows_.alignment(index.column()) & Qt::AlignLeft) != 0;
    const int rest = view_.viewport()->width() - cell.x();
    return left && isLastShown(index.column()) ? std::max(cell.width(), rest) : cell.width();
  }
  bool isLastShown(int column) const {
    for (int after = column + 1; after < rows_.columnCount(); ++after)
      if (!view_.isColumnHidden(after)) return false;
    return true;
  }

  const QTreeView& view_;
  const QtHost& host_;
  const ListRows& rows_;
  bool fixedPitch_;
};

/// Headings with the mark of the sorted column.
class Headings final : public QHeaderView {
 public:
  explicit Headings(const QtHost& host) : QHeaderView(Qt::Horizontal), host_(host) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setMinimumSectionSize(24);
    setStretchLastSection(false);
    setTextElideMode(Qt::ElideRight);
    setFocusPolicy(Qt::NoFocus);
    setFont(host.theme().labelFont());
  }
  int sortColumn = -1;
  bool ascending = true;

 protected:
  void paintEvent(QPaintEvent* event) override {
    QHeaderView::paintEvent(event);
    QPainter painter(viewport());
    painter.setPen(host_.theme().tokens().line);
    painter.drawLine(0, height() - 1, width(), height() - 1);
  }
  void paintSection(QPainter* painter, const QRect& rect, int section) const override {
    QHeaderView::paintSection(painter, rect, section);
    if (section != sortColumn) return;
    const bool right = model()->headerData(section, Qt::Horizontal, Qt::TextAlignmentRole).toInt() & Qt::AlignRight;
    const QRect mark = right ? QRect(rect.left() + 3, rect.y(), 12, rect.height())
                             : QRect(rect.right() - 15, rect.y(), 12, rect.height());
    drawChevron(*painter, mark, ascending ? Direction::up : Direction::down, host_.theme().tokens().accent);
  }

 private:
  const QtHost& host_;
};

class RowsView final : public QTreeView {
 public:
  explicit RowsView(const QtHost& host) : host_(host) {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false);
    setMinimumHeight(6 * measures::rowHeight);
    setHeader(new Headings(host));
    setMouseTracking(true);
  }
  Headings& headings() const { return static_cast<Headings&>(*header()); }
  /// At once, not in the next turn: until then the scroll bar would be that of the rows before.
  void layOut() {
    executeDelayedItemsLayout();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
  }
  std::function<void(int row)> cursorMoved;
  std::function<void(int row, MouseButton button)> clickedRow;
  std::function<void()> clickedNowhere;  ///< the right button, or the menu key, where no row is
  std::function<void(int row)> doubleClickedRow;
  std::function<void(int row)> ticked;
  std::function<void(int column)> clickedColumn;
  bool ticks = false;

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
    QTreeView::currentChanged(current, previous);
    if (cursorMoved && current.isValid()) cursorMoved(current.row());
  }
  void mousePressEvent(QMouseEvent* event) override {
    const QModelIndex index = indexAt(event->position().toPoint());
    QTreeView::mousePressEvent(event);
    if (!index.isValid()) {
      if (event->button() == Qt::RightButton) clickedNowhere();
      return;
    }
    const int row = index.row();
    if (event->button() == Qt::LeftButton && ticks && onTick(index, event->position().toPoint())) return ticked(row);
    if (event->button() == Qt::LeftButton) return clickedRow(row, MouseButton::left);
    if (event->button() == Qt::RightButton) clickedRow(row, MouseButton::right);
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    const QModelIndex index = indexAt(event->position().toPoint());
    if (!index.isValid() || event->button() != Qt::LeftButton) return;
    const int row = index.row();
    if (ticks && onTick(index, event->position().toPoint())) return ticked(row);
    // A double click is two clicks, then itself.
    const QPointer<RowsView> self(this);
    clickedRow(row, MouseButton::left);
    if (self != nullptr) doubleClickedRow(row);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->matches(QKeySequence::Copy)) return copyRows();
    if (event->key() == Qt::Key_O && event->modifiers() == Qt::ControlModifier) return offerColumns();
    if (event->key() == Qt::Key_Menu || (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier))
      return currentIndex().isValid() ? clickedRow(currentIndex().row(), MouseButton::right) : clickedNowhere();
    if (event->key() != Qt::Key_Space || !currentIndex().isValid()) return QTreeView::keyPressEvent(event);
    const int row = currentIndex().row();
    const QPointer<RowsView> self(this);
    if (ticks) ticked(row);
    if (self != nullptr) clickedRow(row, MouseButton::left);
  }
  void paintEvent(QPaintEvent* event) override {
    QTreeView::paintEvent(event);
    if (model() == nullptr || model()->rowCount() > 0) return;
    QPainter painter(viewport());
    painter.setPen(host_.theme().tokens().muted);
    painter.setFont(host_.theme().baseFont());
    painter.drawText(viewport()->rect(), Qt::AlignCenter, QStringLiteral("Nenhum registro"));
  }
  /// The ground of a row goes on behind the last column.
  void drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const Tokens& t = host_.theme().tokens();
    // The toolkit gives a list that gets the focus a current row without selecting it, and keys act on that row.
    const bool here = selectionModel()->isSelected(index.siblingAtColumn(header()->logicalIndex(0))) ||
                      (hasFocus() && index.row() == currentIndex().row());
    const QRect line(0, option.rect.y(), viewport()->width(), option.rect.height());
    painter->fillRect(line, here ? t.cursor : index.row() % 2 == 1 ? t.alternate : t.base);
    QTreeView::drawRow(painter, option, index);
  }
  bool viewportEvent(QEvent* event) override {
    if (event->type() == QEvent::ToolTip) {
      const auto& help = static_cast<QHelpEvent&>(*event);
      const QModelIndex index = indexAt(help.pos());
      const auto* const delegate = static_cast<const RowDelegate*>(itemDelegate());
      const bool cut = index.isValid() && delegate->cut(index, visualRect(index));
      QToolTip::showText(help.globalPos(), cut ? index.data().toString() : toolTip(), this);
      return true;
    }
    return QTreeView::viewportEvent(event);
  }

 private:
  bool onTick(const QModelIndex& index, const QPoint& place) const {
    return index.column() == 0 && place.x() < visualRect(index).left() + tickWidth;
  }
  void copyRows() const {
    if (!currentIndex().isValid()) return;
    QStringList cells;
    for (int column = 0; column < model()->columnCount(); ++column)
      if (!isColumnHidden(column)) cells << model()->index(currentIndex().row(), column).data().toString();
    QGuiApplication::clipboard()->setText(cells.join(u'\t'));
  }

  void offerColumns() {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (int column = 0; column < model()->columnCount(); ++column) {
      if (isColumnHidden(column)) continue;
      const QString heading = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
      menu->addAction(heading, this, [this, column] { clickedColumn(column); });
    }
    menu->popup(mapToGlobal(QPoint(0, header()->height())));
    menu->setActiveAction(menu->actions().value(0));
  }

  const QtHost& host_;
};

class ListBinding final : public BindingOf<ListView, RowsView> {
 public:
  ListBinding(QtHost& host, ListView& control, RowsView& view)
      : BindingOf(host, control, view), rows_(new ListRows(control, &view)), later_(new QTimer(&view)) {
    later_->setSingleShot(true);
    later_->setInterval(0);
    connect(later_, &QTimer::timeout, this, [this] { showRows(); });
    view.setModel(rows_);
    view.setItemDelegate(new RowDelegate(host, *rows_, control.fixedPitch(), view));
    view.ticks = control.hasCheckBoxes();
    listen();
    refreshAll();
    showRows();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    // The rows that were added since the last turn must be there before a key acts on them.
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::FocusIn || event->type() == QEvent::Paint)
      showRows();
    return Binding::eventFilter(watched, event);
  }
  void focusGiven() override {
    if (!view().currentIndex().isValid() && rows_->rowCount() > 0) {
      const QSignalBlocker quiet(view().selectionModel());
      view().selectionModel()->setCurrentIndex(rows_->index(0, firstShown()), QItemSelectionModel::NoUpdate);
    }
  }

 protected:
  void letGo() override {
    later_->stop();
    rows_->release();
  }
  void refresh(Aspect aspect) override {
    switch (aspect) {
      case Aspect::columns:
        showColumns();
        break;
      case Aspect::items:
        if (later_->isActive()) break;
        later_->start();
        view().viewport()->update();
        break;
      case Aspect::selection:
        showRows();
        showCursor();
        break;
      case Aspect::row:
        view().viewport()->update();
        break;
      default:
        break;
    }
  }

 private:
  void listen() {
    view().cursorMoved = [this](int row) {
      if (!showing_) enter([&] { control().userMoveCursor(static_cast<std::size_t>(row)); });
    };
    view().clickedNowhere = [this] { enter([this] { control().userRightClickEmpty(); }); };
    view().clickedRow = [this](int row, MouseButton button) {
      enter([&] { control().userClickRow(static_cast<std::size_t>(row), button); });
    };
    view().doubleClickedRow = [this](int row) {
      enter([&] { control().userDoubleClickRow(static_cast<std::size_t>(row)); });
    };
    view().ticked = [this](int row) {
      const ListItem* const item = rows_->item(row);
      if (item != nullptr) enter([&] { control().userCheckRow(static_cast<std::size_t>(row), !item->checked()); });
    };
    view().clickedColumn = [this](int column) {
      enter([&] { control().userClickColumn(static_cast<std::size_t>(column) + 1); });
    };
    QHeaderView* const header = view().header();
    if (control().onColumnClick)
      header->setToolTip(QStringLiteral("Um clique ordena a lista · Ctrl+O escolhe a coluna pelo teclado"));
    connect(header, &QHeaderView::sectionClicked, this, [this](int section) { view().clickedColumn(section); });
    connect(header, &QHeaderView::sectionResized, this, [this](int section, int, int pixels) {
      if (!showing_) enter([&] { control().userResizeColumn(static_cast<std::size_t>(section) + 1, twipsOf(pixels)); });
    });
  }
  int firstShown() const {
    for (int column = 0; column < rows_->columnCount(); ++column)
      if (!view().isColumnHidden(column)) return column;
    return 0;
  }
  void showColumns() {
    const Showing showing(showing_);
    if (rows_->columnCount() != view().header()->count()) rows_->columnsChanged();
    for (std::size_t column = 0; column < control().columns().size(); ++column) {
      const float width = control().columns()[column].width;
      const int section = static_cast<int>(column);
      view().header()->setSectionHidden(section, width <= 0);
      if (width > 0) view().header()->resizeSection(section, pixelsOf(width));
    }
    view().header()->viewport()->update();
  }
  void showRows() {
    if (anyControl() == nullptr) return;
    later_->stop();
    Headings& headings = view().headings();
    if (headings.sortColumn != control().sortColumn() || headings.ascending != control().sortAscending()) {
      headings.sortColumn = control().sortColumn();
      headings.ascending = control().sortAscending();
      headings.viewport()->update();
    }
    const Showing showing(showing_);
    if (!rows_->catchUp()) return;
    view().layOut();
    showCursor();
  }
  void showCursor() {
    const Showing showing(showing_);
    const auto selected = control().selectedItem();
    if (selected == nullptr) {
      view().selectionModel()->clear();
      return;
    }
    const int here = view().currentIndex().row();
    if (rows_->item(here) == selected.get()) return;
    for (int row = 0; row < rows_->rowCount(); ++row)
      if (rows_->item(row) == selected.get()) {
        view().setCurrentIndex(rows_->index(row, std::max(view().currentIndex().column(), firstShown())));
        return;
      }
  }
  /// While the view is brought up to date, what it tells is no doing of the person's.
  struct Showing {
    explicit Showing(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
    ~Showing() { flag_ = before_; }
    bool& flag_;
    bool before_;
  };

  ListRows* rows_;
  QTimer* later_;
  bool showing_ = false;
};

}  // namespace

Binding& render(ListView& control, QtHost& host) { return *new ListBinding(host, control, *new RowsView(host)); }

}  // namespace fenvale::qt
