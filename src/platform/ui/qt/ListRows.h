#pragma once
// The rows of a list as the toolkit asks for them: it reads the control's own rows, only those that show, and copies
// nothing.

#include <QAbstractTableModel>

namespace fenvale {
class ListItem;
class ListView;
}  // namespace fenvale

namespace fenvale::qt {

class Theme;

class ListRows final : public QAbstractTableModel {
 public:
  explicit ListRows(const ListView& list, QObject* parent) : QAbstractTableModel(parent), list_(&list) {}
  /// The control is gone: no rows any more.
  void release();

  /// Takes over what was added, removed or sorted since the last time. True when anything was.
  bool catchUp();
  void columnsChanged();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Nothing for a row that has gone meanwhile.
  const ListItem* item(int row) const;
  QString text(int row, int column) const;
  Qt::Alignment alignment(int column) const;

 private:
  const ListView* list_;
  std::vector<const ListItem*> known_;
};

}  // namespace fenvale::qt
