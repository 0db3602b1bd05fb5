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
  cells.reserve(translation.columns.size());
  for (std::size_t index = 0; index < translation.columns.size(); ++index)
    cells.push_back(prepared.value(index, translation.columns[index].type));
}

/// All rows read at once: groups, aggregates, what no key leads to, and what is gone through once.
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

/// Keys are found in runs of growing length from wherever the program stands; rows are joined when they are looked at.
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
    if (counted_ < 0) counted_ = rememberedCount();
    return counted_;
  }

  const std::vector<Value>& cells(std::int64_t place) override {
    if (!inBlock(place)) readBlock(place);
    lookedAt_ = place;
    return block_[static_cast<std::size_t>(place - blockFirst_)];
  }

  void settle() override {
    keepOnlyLookedAt();
    if (settled_) return;
    if (first_ != 0 || !ended_) find(0, std::numeric_limits<std::int64_t>::max());
    counted_ = windowEnd();
    settled_ = true;
  }

 private:
  // A page and the look-ahead of one more row; a walk through all rows doubles from here.
  static constexpr std::int64_t shortest = 128;
  static constexpr std::int64_t longestBlock = 64;

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

  /// A list is asked for its count again with each page: the answer holds until somebody writes. Inside a transaction,
  /// which may be undone, nothing is remembered.
  std::int64_t rememberedCount() {
    Translation::Counted& counted = run_.translation->counted;
    const bool remember = !database_.inTransaction();
    const Database::State state = remember ? database_.state() : Database::State{};
    if (remember && counted.rows >= 0 && counted.state == state && counted.values == run_.values) return counted.rows;
    Prepared& prepared = ready(database_, run_.translation->count, run_.translation->countText);
    const Running running(prepared);
    prepared.bind(run_.values);
    const std::int64_t rows = prepared.step() ? prepared.integer(0) : 0;
    if (remember) counted = {rows, state, run_.values};
    return rows;
  }

  bool inBlock(std::int64_t place) const {
    return place >= blockFirst_ && place < blockFirst_ + static_cast<std::int64_t>(block_.size());
  }

  /// The current row stays as it was read, also when it is deleted; those read ahead may be about to change. Who writes
  /// while walking would read ahead in vain.
  void keepOnlyLookedAt() {
    blockLength_ = 1;
    if (!inBlock(lookedAt_)) return block_.clear();
    std::vector<Value> cells = std::move(block_[static_cast<std::size_t>(lookedAt_ - blockFirst_)]);
    block_.clear();
    block_.push_back(std::move(cells));
    blockFirst_ = lookedAt_;
  }

  /// The first row looked at is read alone, as many recordsets have no other reader; who goes on reads ever more rows
  /// under one lock.
  void readBlock(std::int64_t place) {
    const bool goesOn = !block_.empty() && place == blockFirst_ + static_cast<std::int64_t>(block_.size());
    blockLength_ = goesOn ? std::min(2 * blockLength_, longestBlock) : 1;
    block_.clear();
    blockFirst_ = place;
    if (run_.translation->rowIsKey) {
      block_.emplace_back(run_.translation->columns.size(), Value::integer(keyAt(place)));
      return;
    }
    const Database::Snapshot snapshot(database_, blockLength_ > 1);
    Prepared& prepared = ready(database_, run_.translation->row, run_.translation->rowText);
    prepared.bind(run_.values);
    const std::int64_t end = std::min(place + blockLength_, windowEnd());
    for (std::int64_t next = place; next < end && readRow(prepared, keyAt(next)); ++next) {
    }
    if (block_.empty() && !settled_) {
      // Another program took the row away after its key was found: the keys from here on are looked for anew.
      keys_.resize(static_cast<std::size_t>(place - first_));
      append(shortest);
      if (inWindow(place)) readRow(prepared, keyAt(place));
    }
    if (block_.empty()) throw Error(errors::noCurrentRecord, "O registro foi excluído.");
  }

  bool readRow(Prepared& prepared, std::int64_t key) {
    const Running running(prepared);
    prepared.bind(static_cast<int>(run_.values.size()) + 1, key);
    if (!prepared.step()) return false;
    readCells(prepared, *run_.translation, block_.emplace_back());
    return true;
  }

  std::int64_t keyAt(std::int64_t place) const { return keys_[static_cast<std::size_t>(place - first_)]; }

  Database& database_;
  BoundRun run_;
  std::vector<std::int64_t> keys_;  ///< of the places first_ and on
  std::int64_t first_ = 0;
  bool ended_ = false;  ///< no row follows the window
  std::int64_t counted_ = -1;
  bool settled_ = false;                   ///< the window holds all keys, and they are final
  std::vector<std::vector<Value>> block_;  ///< the cells of the rows blockFirst_ and on
  std::int64_t blockFirst_ = 0;
  std::int64_t blockLength_ = 1;
  std::int64_t lookedAt_ = -1;
};

}  // namespace

std::unique_ptr<Rows> openRows(Database& database, BoundRun run, bool atOnce) {
  if (run.translation->keyed && !atOnce) return std::make_unique<KeyedRows>(database, std::move(run));
  return std::make_unique<WholeRows>(database, run);
}

}  // namespace fenvale::sql
