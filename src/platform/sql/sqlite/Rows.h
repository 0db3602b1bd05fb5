#pragma once
// The rows of one opened select, by their place from 0. Which rows there are is settled when the select is opened, as
// far as this connection's own writes go; they are read when they are asked for.

#include <memory>
#include <vector>

#include "platform/sql/sqlite/Translation.h"

namespace fenvale::sql {

class Rows {
 public:
  virtual ~Rows() = default;
  virtual bool has(std::int64_t place) = 0;
  virtual std::int64_t count() = 0;
  /// The cells of a row that is there. Error 3021 when it was deleted since.
  virtual const std::vector<Value>& cells(std::int64_t place) = 0;
  /// Settles all rows, before a write that could change which there are.
  virtual void settle() {}
};

/// `atOnce` reads all rows in one pass, for who will go through all of them; otherwise they are found by their keys, as
/// far as the statement allows that.
std::unique_ptr<Rows> openRows(Database& database, BoundRun run, bool atOnce);

}  // namespace fenvale::sql
