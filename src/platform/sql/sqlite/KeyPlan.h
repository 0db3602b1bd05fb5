#pragma once
// How the rows of a select can be found by keys: which of its sources each row stands for, and which joins the search
// for keys and the count can do without.

#include <optional>

#include "platform/sql/dialect/Bound.h"

namespace fenvale::sql {

struct KeyPlan {
  BoundSelect keys;   ///< the key of each row, in the sequence of the select
  BoundSelect count;  ///< one row: how many
  /// The select's columns for one row, joined to the key that is the parameter after the statement's own.
  BoundSelect row;
  bool rowIsKey = false;  ///< the select asks for nothing but its key
};

/// Nothing for a select whose rows are not one table's rows: groups, aggregates, a select in FROM, joins that multiply.
std::optional<KeyPlan> planKeys(const BoundSelect& select, std::size_t parameters);

}  // namespace fenvale::sql
