#pragma once
// Fields side by side on the grid: each has a width in columns, those with none share what is left. No item is ever
// narrower than it needs; what that takes away is given up by the items that have room.

#include <QLayout>
#include <vector>

namespace fenvale::qt {

class UnitRow final : public QLayout {
 public:
  enum class Placement { top, bottom, full };

  /// `units`: into how many columns the row's width is divided.
  explicit UnitRow(int units);
  ~UnitRow() override;

  void add(QWidget& widget, int width, Placement placement);
  void add(QLayout& layout, int width, Placement placement);

  void addItem(QLayoutItem* item) override;
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  Qt::Orientations expandingDirections() const override;
  bool isEmpty() const override;
  void setGeometry(const QRect& rect) override;

 private:
  struct Item {
    QLayoutItem* item;
    int width;
    Placement placement;
  };
  std::vector<const Item*> shownItems() const;
  std::vector<int> widthsFor(int available, const std::vector<const Item*>& shown) const;

  int units_;
  std::vector<Item> items_;
};

}  // namespace fenvale::qt
