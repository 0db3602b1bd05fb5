#pragma once
// A statement whose names are resolved and whose every expression has a type: what an emitter turns into the text of an
// engine. No word of any engine stands here.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/sql/Value.h"
#include "platform/sql/dialect/Catalog.h"
#include "platform/sql/dialect/ColumnType.h"

namespace fenvale::sql {

enum class Operation : std::uint8_t {
  column,
  parameter,
  null,
  zero,
  trueValue,
  falseValue,
  maskText,
  logicalOr,
  logicalAnd,
  logicalNot,
  equal,
  notEqual,
  less,
  greater,
  lessEqual,
  greaterEqual,
  between,
  isNull,
  isNotNull,
  joinStrict,  ///< a NULL makes the whole NULL
  joinLoose,   ///< a NULL counts as an empty text
  add,
  subtract,
  multiply,
  multiplyCurrencies,
  divide,
  negate,
  choose,  ///< condition, value when true, value when false or NULL
  count,
  countRows,
  sum,
  minimum,
  maximum,
  subselect,
  middle,
  formatCurrency,
  formatDate,
  formatInteger,
  formatText,
  datePart,
  daysBetween,
  integerToCurrency,
  decimalToCurrency,
  currencyToDecimal,
  textToNumber,
  textToCurrency,
  integerToText,
  currencyToText,
  decimalToText,
  dateToText,
  assign,  ///< a computed value on its way into a column: checked and converted
};

struct BoundSelect;

struct BoundExpression {
  Operation operation = Operation::null;
  ValueType type = ValueType::null;
  std::vector<BoundExpression> operands;
  std::size_t source = 0;  ///< of a column: which source of the statement; of a parameter: which parameter
  std::size_t column = 0;  ///< its place in the source
  std::string text;        ///< of a mask or date part; of an assignment: "table.column"
  ColumnType target;       ///< of an assignment
  std::shared_ptr<const BoundSelect> select;
};

/// One source of a FROM. Its number is its own in the whole statement.
struct BoundSource {
  std::size_t number = 0;
  std::shared_ptr<const TableDescription> table;
  std::shared_ptr<const BoundSelect> select;  ///< in place of a table
};

struct BoundOrder {
  BoundExpression expression;
  bool descending = false;
};

struct BoundSelect {
  struct Column {
    std::string name;
    BoundExpression value;
  };
  std::vector<Column> columns;
  std::vector<BoundSource> sources;
  /// Sources that add at most one row to each, and NULLs where there is none.
  struct Lookup {
    BoundSource source;
    BoundExpression condition;
  };
  std::vector<Lookup> lookups;
  std::vector<BoundExpression> conditions;  ///< of the joins and of WHERE; a row fulfils all
  std::vector<BoundExpression> groupBy;
  std::vector<BoundOrder> orderBy;
  bool aggregated = false;  ///< grouped, or one row of aggregates
};

/// A value supplied when the statement runs.
struct Parameter {
  enum class Origin : std::uint8_t { literal, today };
  Origin origin = Origin::literal;
  std::size_t literal = 0;
  bool negated = false;
  ValueType type = ValueType::null;  ///< what the literal becomes; `decimal` takes any number
  std::optional<ColumnType> column;  ///< the column that it is written to, whose limits it must keep
  std::string field;                 ///< "table.column" for the refusal
};

/// How far a translation depends on the value of one of the statement's literals.
struct LiteralUse {
  enum class Dependence : std::uint8_t { none, whetherZero, value };
  Dependence dependence = Dependence::none;
  bool zero = false;
  std::string text;
};

struct BoundAssignment {
  std::string column;
  BoundExpression value;
};

struct BoundInsert {
  std::shared_ptr<const TableDescription> table;
  std::vector<BoundAssignment> assignments;
};

struct BoundUpdate {
  BoundSource target;
  std::vector<BoundAssignment> assignments;
  std::vector<BoundExpression> conditions;
};

struct BoundDelete {
  BoundSource target;
  std::vector<BoundExpression> conditions;
};

struct BoundStatement {
  std::variant<BoundSelect, BoundInsert, BoundUpdate, BoundDelete> content;
  std::vector<Parameter> parameters;
  std::vector<LiteralUse> literals;
  std::vector<std::string> tables;  ///< every table that the statement reads or writes, as declared
};

}  // namespace fenvale::sql
