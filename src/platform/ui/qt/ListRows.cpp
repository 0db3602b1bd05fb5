#include "platform/ui/qt/ListRows.h"

#include <memory>

#include "platform/ui/ListView.h"
#include "platform/ui/qt/Strings.h"
#include "platform/ui/qt/Theme.h"

namespace fenvale::qt {

void ListRows::release() {
  beginResetModel();
  list_ = nullptr;
  known_.clear();
  endResetModel();
}

bool ListRows::catchUp() {
  if (list_ == nullptr) return false;
  const auto& items = list_->items();
  const auto same = [](const ListItem* known, const std::shared_ptr<ListItem>& now) { return known == now.get(); };
  const bool grown = items.size() >= known_.size() && std::equal(known_.begin(), known_.end(), items.begin(), same);
  if (grown && items.size() == known_.size()) return false;
  const auto take = [&](std::size_t from) {
    known_.reserve(items.size());
    for (std::size_t place = from; place < items.size(); ++place) known_.push_back(items[place].get());
  };
  if (grown) {
    beginInsertRows({}, static_cast<int>(known_.size()), static_cast<int>(items.size()) - 1);
    take(known_.size());
    endInsertRows();
  } else {
    beginResetModel();
    known_.clear();
    take(0);
    endResetModel();
  }
  return true;
}

void ListRows::columnsChanged() {
  beginResetModel();
  endResetModel();
}

int ListRows::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(known_.size());
}

int ListRows::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || list_ == nullptr ? 0 : static_cast<int>(list_->columns().size());
}

const ListItem* ListRows::item(int row) const {
  const auto place = static_cast<std::size_t>(row);
  if (list_ == nullptr || row < 0 || place >= known_.size() || place >= list_->items().size()) return nullptr;
  const ListItem* const now = list_->items()[place].get();
  return now == known_[place] ? now : nullptr;
}

QString ListRows::text(int row, int column) const {
  const ListItem* const one = item(row);
  if (one == nullptr) return {};
  return toQt(column == 0 ? one->text() : one->subItem(static_cast<std::size_t>(column)));
}

Qt::Alignment ListRows::alignment(int column) const {
  if (list_ == nullptr || column < 0 || static_cast<std::size_t>(column) >= list_->columns().size())
    return Qt::AlignLeft;
  switch (list_->columns()[static_cast<std::size_t>(column)].align) {
    case Align::right:
      return Qt::AlignRight;
    case Align::centre:
      return Qt::AlignHCenter;
    case Align::left:
      break;
  }
  return Qt::AlignLeft;
}

QVariant ListRows::data(const QModelIndex& index, int role) const {
  switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
      return text(index.row(), index.column());
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(alignment(index.column()) | Qt::AlignVCenter);
    case Qt::CheckStateRole:
      if (const ListItem* const one = item(index.row());
          one != nullptr && index.column() == 0 && list_->hasCheckBoxes())
        return one->checked() ? Qt::Checked : Qt::Unchecked;
      return {};
    default:
      return {};
  }
}

QVariant ListRows::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || list_ == nullptr) return {};
  if (static_cast<std::size_t>(section) >= list_->columns().size()) return {};
  if (role == Qt::DisplayRole) return toQt(list_->columns()[static_cast<std::size_t>(section)].heading);
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(alignment(section) | Qt::AlignVCenter);
  return {};
}

}  // namespace fenvale::qt
