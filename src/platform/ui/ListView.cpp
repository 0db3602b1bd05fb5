#include "platform/ui/ListView.h"

#include <algorithm>

#include "platform/base/Error.h"

namespace fenvale {

const std::string& ListItem::subItem(std::size_t place) const {
  static const std::string missing;
  return place < cells_.size() ? cells_[place] : missing;
}

void ListItem::setText(std::string text) {
  cells_.front() = std::move(text);
  changed();
}

void ListItem::setSubItem(std::size_t place, std::string text) {
  if (place >= cells_.size()) cells_.resize(place + 1);
  cells_[place] = std::move(text);
  changed();
}

void ListItem::setMark(bool bold, Colour colour) {
  bold_ = bold;
  colour_ = colour;
  changed();
}

void ListItem::setChecked(bool checked) {
  checked_ = checked;
  changed();
}

void ListItem::changed() { list_->changed(Aspect::row); }

ListView::ListView(Screen& owner, std::string name, std::vector<ListColumn> columns, CheckBoxes checks)
    : Control(owner, std::move(name)), columns_(std::move(columns)), checks_(checks) {}

void ListView::setColumns(std::vector<ListColumn> columns) {
  columns_ = std::move(columns);
  changed(Aspect::columns);
}

float ListView::columnWidth(std::size_t column) const {
  if (column < 1 || column > columns_.size()) throw Error(errors::listIndexOutOfBounds, "Índice fora da faixa.");
  return columns_[column - 1].width;
}

void ListView::setColumnWidth(std::size_t column, float twips) {
  if (column < 1 || column > columns_.size()) throw Error(errors::listIndexOutOfBounds, "Índice fora da faixa.");
  columns_[column - 1].width = twips;
  changed(Aspect::columns);
}

std::shared_ptr<ListItem> ListView::addItem(std::string key, std::string text) {
  std::vector<std::string> cells;
  cells.push_back(std::move(text));
  return addItem(std::move(key), std::move(cells));
}

std::shared_ptr<ListItem> ListView::addItem(std::string key, std::vector<std::string> cells) {
  items_.push_back(std::make_shared<ListItem>(*this, std::move(key), std::move(cells)));
  changed(Aspect::items);
  return items_.back();
}

void ListView::clear() {
  items_.clear();
  selected_.reset();
  changed(Aspect::items);
}

void ListView::sort(std::size_t column, bool ascending,
                    const std::function<int(std::string_view, std::string_view)>& compare) {
  sortColumn_ = static_cast<int>(column);
  sortAscending_ = ascending;
  sortCompare_ = compare;
  sortAgain();
}

void ListView::sortAgain() {
  if (sortColumn_ < 0) return;
  const auto textOf =
      [column = static_cast<std::size_t>(sortColumn_)](const std::shared_ptr<ListItem>& item) -> const std::string& {
    return column == 0 ? item->text() : item->subItem(column);
  };
  std::stable_sort(items_.begin(), items_.end(), [&](const auto& first, const auto& second) {
    const int order = sortCompare_(textOf(first), textOf(second));
    return sortAscending_ ? order < 0 : order > 0;
  });
  changed(Aspect::items);
}

void ListView::moveCursor(std::size_t index) {
  if (items_.empty()) return;
  selected_ = items_[std::min(index, items_.size() - 1)];
  changed(Aspect::selection);
}

void ListView::userMoveCursor(std::size_t index) {
  if (acceptsInput() && index < items_.size()) moveCursor(index);
}

void ListView::userClickRow(std::size_t index, MouseButton button) {
  if (!acceptsInput() || index >= items_.size()) return;
  const auto item = items_[index];
  selected_ = item;
  changed(Aspect::selection);
  raise([&] {
    if (onMouseDown) onMouseDown(button);
    if (onItemClick) onItemClick(item);
  });
}

void ListView::userRightClickEmpty() {
  if (!acceptsInput()) return;
  selected_.reset();
  changed(Aspect::selection);
  raise(onEmptyRightClick);
}

void ListView::userDoubleClickRow(std::size_t index) {
  if (!acceptsInput() || index >= items_.size()) return;
  const auto item = items_[index];
  raise([&] {
    if (onItemDoubleClick) onItemDoubleClick(item);
  });
}

void ListView::userCheckRow(std::size_t index, bool checked) {
  if (!acceptsInput() || index >= items_.size()) return;
  const auto item = items_[index];
  item->setChecked(checked);
  raise([&] {
    if (onItemCheck) onItemCheck(item);
  });
}

void ListView::userClickColumn(std::size_t column) {
  if (!acceptsInput() || column < 1 || column > columns_.size()) return;
  raise([&] {
    if (onColumnClick) onColumnClick(column);
  });
}

void ListView::userResizeColumn(std::size_t column, float twips) {
  if (column >= 1 && column <= columns_.size()) columns_[column - 1].width = twips;
}

}  // namespace fenvale
