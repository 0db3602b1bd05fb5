#include "platform/sql/sqlite/Rows.h"

#include <algorithm>
#include <limits>

#include "platform/base/Error.h"

namespace fenvale::sql {
namespace {

Prepared& ready(Database& database, Prepared& prepared, const std::string& text) {
  if (!prepared) prepared = database.prepare(text);
  return prepared;
}

void readCells(const Prepared& prepared, const Translation& translation, std::vector<Value>& cells) {
  cells.clear();
  for (std::size_t index = 0; index < translation.columns.size(); ++index)
    cells.push_back(prepared.value(index, translation.columns[index].type));
}

/// All rows read at once: groups, aggregates, and what no key leads to.
class WholeRows final : public Rows {
 public:
  WholeRows(Database& database, const BoundRun& run) {
    Prepared& prepared = ready(database, run.translation->whole, run.translation->wholeText);
    const Running running(prepared);
    prepared.bind(run.values);
    while (prepared.step()) readCells(prepared, *run.translation, rows_.emplace_back());
  }
  bool has(std::int64_t place) override { return place < count(); }
  std::int64_t count() override { return static_cast<std::int64_t>(rows_.size()); }
  const std::vector<Value>& cells(std::int64_t place) override { return rows_[static_cast<std::size_t>(place)]; }

 private:
  std::vector<std::vector<Value>> rows_;
};

/// Keys are found in runs of growing length from wherever the program stands; a row is joined when it is looked at.
class KeyedRows final : public Rows {
 public:
  KeyedRows(Database& database, BoundRun run) : database_(database), run_(std::move(run)) { find(0, shortest); }

  bool has(std::int64_t place) override {
    if (inWindow(place)) return true;
    if (ended_ && place >= windowEnd()) return false;
    if (place == windowEnd() && !keys_.empty()) {
      extend();
    } else {
      find(place, shortest);
    }
    return inWindow(place);
  }

  std::int64_t count() override {
    if (counted_ < 0) {
      Prepared& prepared = ready(database_, run_.translation->count, run_.translation->countText);
      const Running running(prepared);
      prepared.bind(run_.values);
      counted_ = prepared.step() ? prepared.integer(0) : 0;
    }
    return counted_;
  }

  const std::vector<Value>& cells(std::int64_t place) override {
    if (place != read_) {
      read(keys_[static_cast<std::size_t>(place - first_)]);
      read_ = place;
    }
    return cells_;
  }

  void settle() override {
    if (first_ == 0 && ended_) return;
    find(0, std::numeric_limits<std::int64_t>::max());
    counted_ = windowEnd();
  }

 private:
  // A page and the look-ahead of one more row; a walk through all rows doubles from here.
  static constexpr std::int64_t shortest = 128;

  std::int64_t windowEnd() const { return first_ + static_cast<std::int64_t>(keys_.size()); }
  bool inWindow(std::int64_t place) const { return place >= first_ && place < windowEnd(); }

  void find(std::int64_t first, std::int64_t most) {
    keys_.clear();
    first_ = first;
    append(most);
  }

  void extend() { append(std::max(shortest, static_cast<std::int64_t>(keys_.size()))); }

  void append(std::int64_t most) {
    Prepared& prepared = ready(database_, run_.translation->keys, run_.translation->keysText);
    const Running running(prepared);
    prepared.bind(run_.values);
    const int next = static_cast<int>(run_.values.size()) + 1;
    prepared.bind(next, most);
    prepared.bind(next + 1, windowEnd());
    std::int64_t found = 0;
    for (; prepared.step(); ++found) keys_.push_back(prepared.integer(0));
    ended_ = found < most;
    if (ended_ && (found > 0 || first_ == 0)) counted_ = windowEnd();
  }

  void read(std::int64_t key) {
    if (run_.translation->rowIsKey) {
      cells_.assign(run_.translation->columns.size(), Value::integer(key));
      return;
    }
    Prepared& prepared = ready(database_, run_.translation->row, run_.translation->rowText);
    const Running running(prepared);
    prepared.bind(run_.values);
    prepared.bind(static_cast<int>(run_.values.size()) + 1, key);
    if (!prepared.step()) throw Error(errors::noCurrentRecord, "O registro foi excluído.");
    readCells(prepared, *run_.translation, cells_);
  }

  Database& database_;
  BoundRun run_;
  std::vector<std::int64_t> keys_;  ///< of the places first_ and on
  std::int64_t first_ = 0;
  bool ended_ = false;  ///< no row follows the window
  std::int64_t counted_ = -1;
  std::int64_t read_ = -1;  ///< the place of cells_
  std::vector<Value> cells_;
};

}  // namespace

std::unique_ptr<Rows> openRows(Database& database, BoundRun run) {
  if (run.translation->keyed) return std::make_unique<KeyedRows>(database, std::move(run));
  return std::make_unique<WholeRows>(database, run);
}

}  // namespace fenvale::sql
