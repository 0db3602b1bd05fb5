#pragma once
// The statements as written: a closed set of plain structures.

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "platform/sql/dialect/ColumnType.h"
#include "platform/sql/dialect/Expression.h"
#include "platform/sql/dialect/Printer.h"

namespace fenvale::sql {

/// An output column: an expression with or without a name of its own, or the star.
struct SelectItem {
  ExpressionPointer expression;  ///< none for the star
  std::string alias;
};

/// A table by name, or a select in parentheses.
struct FromSource {
  std::string table;
  std::unique_ptr<const SelectStatement> select;
  std::size_t place = 0;
};

/// The sources joined from left to right; each but the first has its condition.
struct FromClause {
  struct Join {
    FromSource source;
    ExpressionPointer condition;  ///< none for the first
  };
  std::vector<Join> joins;
};

struct OrderItem {
  ExpressionPointer expression;
  bool descending = false;
};

struct SelectStatement {
  std::vector<SelectItem> items;
  FromClause from;  ///< empty for a select of constants
  ExpressionPointer where;
  std::vector<ExpressionPointer> groupBy;
  std::vector<OrderItem> orderBy;
  std::size_t depth = 1;
};

struct Assignment {
  std::string column;
  ExpressionPointer value;
  std::size_t place = 0;
};

/// INSERT INTO table (columns) VALUES (values): one row
struct InsertStatement {
  std::string table;
  std::vector<Assignment> assignments;
};

struct UpdateStatement {
  std::string table;
  std::vector<Assignment> assignments;
  ExpressionPointer where;
};

struct DeleteStatement {
  std::string table;
  ExpressionPointer where;
};

/// FOREIGN KEY (columns) REFERENCES table (columns) [ON DELETE CASCADE [UNLESS (condition) 'refusal']]: with the last
/// part, a referenced row takes its referencing rows with it, unless one of these fulfils the condition.
struct RelationClause {
  std::vector<std::string> columns;
  std::string table;
  std::vector<std::string> referencedColumns;
  bool cascade = false;
  ExpressionPointer unless;
  std::string unlessText;  ///< the condition as written, kept with the definition
  std::string refusal;
};

struct ConstraintDefinition {
  enum class Kind { primaryKey, unique, relation };
  Kind kind = Kind::primaryKey;
  std::string name;  ///< empty when the statement leaves it to the store
  std::vector<std::string> columns;
  RelationClause relation;
};

struct ColumnDefinition {
  std::string name;
  ColumnType type;
  bool required = false;  ///< NOT NULL
};

/// The constraints written behind a column stand among the table's.
struct CreateTableStatement {
  std::string table;
  std::vector<ColumnDefinition> columns;
  std::vector<ConstraintDefinition> constraints;
};

/// CREATE [UNIQUE] INDEX name ON table (columns) [WHERE condition]: with a condition, an index of only these rows.
struct CreateIndexStatement {
  struct Column {
    std::string name;
    bool descending = false;
  };
  std::string name;
  std::string table;
  std::vector<Column> columns;
  bool unique = false;
  ExpressionPointer where;
};

/// ALTER TABLE table ADD [COLUMN] definition
struct AddColumnStatement {
  std::string table;
  ColumnDefinition column;
  std::vector<ConstraintDefinition> constraints;
};

/// ALTER TABLE table ADD CONSTRAINT ...
struct AddConstraintStatement {
  std::string table;
  ConstraintDefinition constraint;
};

using Statement = std::variant<SelectStatement, InsertStatement, UpdateStatement, DeleteStatement, CreateTableStatement,
                               CreateIndexStatement, AddColumnStatement, AddConstraintStatement>;

void print(const SelectStatement& select, Printer& printer);
std::string print(const Statement& statement, Parentheses parentheses = Parentheses::needed);
/// Of the same meaning to the reader: equal node by node, wherever parentheses and blanks stood.
bool equal(const Statement& first, const Statement& second);

}  // namespace fenvale::sql
