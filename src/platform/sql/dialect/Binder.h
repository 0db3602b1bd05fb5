#pragma once
// Gives the names of a statement their columns and every expression its type.
//
// A bare name is looked up in the innermost select first, then outward; where several tables of one FROM hold it, the
// first in writing order is meant. A name before a point is always a table. Aliases are never looked at.

#include "platform/sql/dialect/Bound.h"
#include "platform/sql/dialect/Statement.h"

namespace fenvale::sql {

/// Of a select, insert, update or delete. Error 0x80040E37 for an unknown table, 0x80040E10 for an unknown column
/// (0x80040E14 in the list of an insert), 0x80040E14 for an unknown function or a wrong number of arguments, 0x80040E07
/// for types that do not go together.
BoundStatement bind(const Statement& statement, const Catalog& catalog);

/// The condition of a partial index or of a relation, on the columns of one table.
BoundStatement bindCondition(const Expression& condition, std::shared_ptr<const TableDescription> table);

}  // namespace fenvale::sql
