#pragma once
// A list in report style: columns with widths in twips, rows with a key, texts, a tick, a colour and boldness.

#include <compare>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/ui/Control.h"

namespace fenvale {

class ListView;

enum class Align { left, centre, right };

struct ListColumn {
  std::string heading;
  float width = 1440;  ///< twips; 0 hides the column
  Align align = Align::left;
};

/// A colour as the rules write it: red in the low byte. 0 is black, 192 the dark red of a selected row.
using Colour = std::int32_t;

class ListItem {
 public:
  /// At least the first cell.
  ListItem(ListView& list, std::string key, std::vector<std::string> cells)
      : list_(&list), key_(std::move(key)), cells_(std::move(cells)) {}

  const std::string& key() const { return key_; }
  /// The first column.
  const std::string& text() const { return cells_.front(); }
  /// Sub-item `place` counts from 1 and stands in column place + 1; a missing one is an empty text.
  const std::string& subItem(std::size_t place) const;
  void setText(std::string text);
  void setSubItem(std::size_t place, std::string text);
  std::size_t subItemCount() const { return cells_.size() - 1; }

  bool bold() const { return bold_; }
  Colour colour() const { return colour_; }
  /// The item and each of its sub-items.
  void setMark(bool bold, Colour colour);
  bool checked() const { return checked_; }
  void setChecked(bool checked);

 private:
  void changed();
  ListView* list_;
  std::string key_;
  std::vector<std::string> cells_;
  bool bold_ = false;
  bool checked_ = false;
  Colour colour_ = 0;
};

/// A row that is held across refills: it may be gone.
using ListItemReference = std::weak_ptr<ListItem>;

class ListView final : public Control {
 public:
  enum class CheckBoxes { none, perRow };
  ListView(Screen& owner, std::string name, std::vector<ListColumn> columns, CheckBoxes checks = CheckBoxes::none);
  ControlKind kind() const override { return ControlKind::listView; }
  void reset(Date) override { clear(); }

  const std::vector<ListColumn>& columns() const { return columns_; }
  void setColumns(std::vector<ListColumn> columns);
  /// 1-based, as the rules count. Error 35600 outside.
  float columnWidth(std::size_t column) const;
  void setColumnWidth(std::size_t column, float twips);
  /// Rows in letters of one width, so that texts below each other compare place by place.
  void setFixedPitch() { fixedPitch_ = true; }
  bool fixedPitch() const { return fixedPitch_; }
  bool hasCheckBoxes() const { return checks_ == CheckBoxes::perRow; }

  std::shared_ptr<ListItem> addItem(std::string key, std::string text);
  /// With its sub-items at once: the text of the first column, then theirs.
  std::shared_ptr<ListItem> addItem(std::string key, std::vector<std::string> cells);
  void clear();
  const std::vector<std::shared_ptr<ListItem>>& items() const { return items_; }
  std::shared_ptr<ListItem> item(std::size_t index) const { return items_.at(index); }
  /// The row under the list's own cursor, or nothing.
  std::shared_ptr<ListItem> selectedItem() const { return selected_.lock(); }
  /// Puts that cursor on a row, or on the last one when there are fewer, and picks nothing.
  void moveCursor(std::size_t index);

  /// Sorts the rows by the text of a 0-based column. Equal rows keep their sequence. `compare` answers below, equal or
  /// above 0 for two texts.
  void sort(std::size_t column, bool ascending, const std::function<int(std::string_view, std::string_view)>& compare);
  /// Rows that came after the sort take their places; nothing on a list that was never sorted.
  void sortAgain();
  /// The 0-based column the rows are sorted by, -1 when unsorted, and the direction, for the mark in the heading.
  int sortColumn() const { return sortColumn_; }
  bool sortAscending() const { return sortAscending_; }

  std::function<void(MouseButton)> onMouseDown;
  std::function<void(const std::shared_ptr<ListItem>&)> onItemClick;
  /// The right button where no row is: below the last one, or in an empty list. No row is selected then.
  std::function<void()> onEmptyRightClick;
  std::function<void(const std::shared_ptr<ListItem>&)> onItemDoubleClick;
  std::function<void(const std::shared_ptr<ListItem>&)> onItemCheck;
  /// The 1-based column.
  std::function<void(std::size_t)> onColumnClick;

  void userMoveCursor(std::size_t index);  ///< arrow keys: picks nothing
  void userClickRow(std::size_t index, MouseButton button = MouseButton::left);
  void userRightClickEmpty();
  void userDoubleClickRow(std::size_t index);
  void userCheckRow(std::size_t index, bool checked);
  void userClickColumn(std::size_t column);
  void userResizeColumn(std::size_t column, float twips);

 private:
  friend class ListItem;
  std::vector<ListColumn> columns_;
  CheckBoxes checks_;
  bool fixedPitch_ = false;
  std::vector<std::shared_ptr<ListItem>> items_;
  ListItemReference selected_;
  int sortColumn_ = -1;
  bool sortAscending_ = true;
  std::function<int(std::string_view, std::string_view)> sortCompare_;
};

}  // namespace fenvale
