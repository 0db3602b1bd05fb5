#include "platform/sql/sqlite/Emitter.h"

#include "platform/base/Text.h"
#include "platform/sql/dialect/StoredValue.h"

namespace fenvale::sql {
namespace {

/// Operations that answer yes or no; SQLite's own answer is 1 where the store's is -1.
bool answersYesNo(Operation operation) {
  return operation >= Operation::logicalOr && operation <= Operation::isNotNull;
}

std::string_view signOf(Operation operation) {
  switch (operation) {
    case Operation::equal:
      return " = ";
    case Operation::notEqual:
      return " <> ";
    case Operation::less:
      return " < ";
    case Operation::greater:
      return " > ";
    case Operation::lessEqual:
      return " <= ";
    default:
      return " >= ";
  }
}

}  // namespace

std::string sqliteName(std::string_view name) { return "\"" + replaceAll(std::string(name), "\"", "\"\"") + "\""; }

std::string sqliteText(std::string_view text) { return "'" + replaceAll(std::string(text), "'", "''") + "'"; }

std::string SqliteEmitter::emit(const BoundSelect& statement) {
  text_.clear();
  select(statement, false);
  return std::move(text_);
}

std::string SqliteEmitter::emit(const BoundInsert& insert) {
  text_ = "INSERT INTO " + sqliteName(insert.table->name) + " (";
  for (std::size_t index = 0; index < insert.assignments.size(); ++index)
    text_ += (index > 0 ? ", " : "") + sqliteName(insert.assignments[index].column);
  text_ += ") VALUES (";
  for (std::size_t index = 0; index < insert.assignments.size(); ++index) {
    if (index > 0) text_ += ", ";
    value(insert.assignments[index].value);
  }
  text_ += ")";
  return std::move(text_);
}

std::string SqliteEmitter::emit(const BoundUpdate& update) {
  know(update.target);
  text_ = "UPDATE " + sqliteName(update.target.table->name) + " AS t" + std::to_string(update.target.number) + " SET ";
  for (std::size_t index = 0; index < update.assignments.size(); ++index) {
    text_ += (index > 0 ? ", " : "") + sqliteName(update.assignments[index].column) + " = ";
    value(update.assignments[index].value);
  }
  where(update.conditions);
  return std::move(text_);
}

std::string SqliteEmitter::emit(const BoundDelete& statement) {
  know(statement.target);
  text_ = "DELETE FROM " + sqliteName(statement.target.table->name) + " AS t" + std::to_string(statement.target.number);
  where(statement.conditions);
  return std::move(text_);
}

std::string SqliteEmitter::emitCondition(const std::vector<BoundExpression>& conditions, const BoundSource& source,
                                         const std::string& prefix) {
  know(source, prefix);
  text_.clear();
  for (const BoundExpression& one : conditions) {
    if (!text_.empty()) text_ += " AND ";
    condition(one);
  }
  return std::move(text_);
}

void SqliteEmitter::know(const BoundSource& source) { know(source, "t" + std::to_string(source.number) + "."); }

void SqliteEmitter::know(const BoundSource& source, std::string prefix) {
  sources_.push_back({source.number, &source, std::move(prefix)});
}

const SqliteEmitter::KnownSource& SqliteEmitter::find(std::size_t number) const {
  for (const KnownSource& known : sources_)
    if (known.number == number) return known;
  return sources_.front();
}

void SqliteEmitter::select(const BoundSelect& statement, bool nested) {
  for (const BoundSource& source : statement.sources) know(source);
  for (const BoundSelect::Lookup& lookup : statement.lookups) know(lookup.source);
  text_ += "SELECT ";
  for (std::size_t index = 0; index < statement.columns.size(); ++index) {
    if (index > 0) text_ += ", ";
    value(statement.columns[index].value);
    if (nested) text_ += " AS c" + std::to_string(index);
  }
  from(statement);
  where(statement.conditions);
  for (std::size_t index = 0; index < statement.groupBy.size(); ++index) {
    text_ += index == 0 ? " GROUP BY " : ", ";
    collated(statement.groupBy[index]);
  }
  bool first = true;
  for (const BoundOrder& order : statement.orderBy) {
    text_ += first ? " ORDER BY " : ", ";
    first = false;
    collated(order.expression);
    if (order.descending) text_ += " DESC";
  }
  // Without an order of its own a select comes in the order of its first table's keys.
  if (first && !nested && !statement.aggregated && !statement.sources.empty() && statement.sources[0].table)
    text_ += " ORDER BY t" + std::to_string(statement.sources[0].number) + ".rowid";
}

void SqliteEmitter::from(const BoundSelect& statement) {
  for (std::size_t index = 0; index < statement.sources.size(); ++index) {
    const BoundSource& source = statement.sources[index];
    text_ += index == 0 ? " FROM " : " JOIN ";
    if (source.table) {
      text_ += sqliteName(source.table->name);
    } else {
      text_ += "(";
      select(*source.select, true);
      text_ += ")";
    }
    text_ += " AS t" + std::to_string(source.number);
  }
  for (const BoundSelect::Lookup& lookup : statement.lookups) {
    text_ += " LEFT JOIN " + sqliteName(lookup.source.table->name) + " AS t" + std::to_string(lookup.source.number);
    text_ += " ON ";
    condition(lookup.condition);
  }
}

void SqliteEmitter::where(const std::vector<BoundExpression>& conditions) {
  for (std::size_t index = 0; index < conditions.size(); ++index) {
    text_ += index == 0 ? " WHERE " : " AND ";
    condition(conditions[index]);
  }
}

void SqliteEmitter::condition(const BoundExpression& expression) {
  switch (expression.operation) {
    case Operation::logicalOr:
      return infix(expression, " OR ", true);
    case Operation::logicalAnd:
      return infix(expression, " AND ", true);
    case Operation::logicalNot:
      text_ += "(NOT ";
      condition(expression.operands[0]);
      text_ += ")";
      return;
    case Operation::equal:
    case Operation::notEqual:
    case Operation::less:
    case Operation::greater:
    case Operation::lessEqual:
    case Operation::greaterEqual:
      return comparison(expression);
    case Operation::between:
      return between(expression);
    case Operation::isNull:
    case Operation::isNotNull:
      text_ += "(";
      value(expression.operands[0]);
      text_ += expression.operation == Operation::isNull ? " IS NULL)" : " IS NOT NULL)";
      return;
    default:
      value(expression);
  }
}

void SqliteEmitter::value(const BoundExpression& expression) {
  if (answersYesNo(expression.operation)) {
    text_ += "(-";
    condition(expression);
    text_ += ")";
    return;
  }
  switch (expression.operation) {
    case Operation::column:
      return column(expression);
    case Operation::parameter:
      text_ += inlineParameter_ ? inlineParameter_(expression.source) : "?" + std::to_string(expression.source + 1);
      return;
    case Operation::null:
      text_ += "NULL";
      return;
    case Operation::zero:
    case Operation::falseValue:
      text_ += "0";
      return;
    case Operation::trueValue:
      text_ += "-1";
      return;
    case Operation::maskText:
      text_ += sqliteText(expression.text);
      return;
    case Operation::joinStrict:
      return infix(expression, " || ", false);
    case Operation::joinLoose:
      text_ += "(COALESCE(";
      value(expression.operands[0]);
      text_ += ", '') || COALESCE(";
      value(expression.operands[1]);
      text_ += ", ''))";
      return;
    case Operation::add:
      return infix(expression, " + ", false);
    case Operation::subtract:
      return infix(expression, " - ", false);
    case Operation::multiply:
      return infix(expression, " * ", false);
    case Operation::negate:
      text_ += "(- ";
      value(expression.operands[0]);
      text_ += ")";
      return;
    case Operation::choose:
      text_ += "(CASE WHEN ";
      condition(expression.operands[0]);
      text_ += " THEN ";
      value(expression.operands[1]);
      text_ += " ELSE ";
      value(expression.operands[2]);
      text_ += " END)";
      return;
    case Operation::countRows:
      text_ += "COUNT(*)";
      return;
    case Operation::count:
      return call("COUNT", expression);
    case Operation::sum:
      return call("SUM", expression);
    case Operation::minimum:
      return call("MIN", expression);
    case Operation::maximum:
      return call("MAX", expression);
    case Operation::subselect:
      text_ += "(";
      select(*expression.select, true);
      text_ += ")";
      return;
    case Operation::integerToCurrency:
      text_ += "(";
      value(expression.operands[0]);
      text_ += " * 10000)";
      return;
    case Operation::currencyToDecimal:
      text_ += "(";
      value(expression.operands[0]);
      text_ += " / 10000.0)";
      return;
    case Operation::datePart: {
      // Cut out of the ISO text: no function call for each row of a table.
      text_ += "CAST(substr(";
      value(expression.operands[0]);
      text_ += expression.text == "yyyy" ? ", 1, 4)" : expression.text == "m" ? ", 6, 2)" : ", 9, 2)";
      text_ += " AS INTEGER)";
      return;
    }
    case Operation::multiplyCurrencies:
      return call("fv_multiply", expression);
    case Operation::divide:
      return call("fv_divide", expression);
    case Operation::middle:
      return call("fv_mid", expression);
    case Operation::formatCurrency:
      return call("fv_format_currency", expression);
    case Operation::formatDate:
      return call("fv_format_date", expression);
    case Operation::formatInteger:
      return call("fv_format_integer", expression);
    case Operation::formatText:
      return call("fv_format_text", expression);
    case Operation::daysBetween:
      return call("fv_days_between", expression);
    case Operation::decimalToCurrency:
      return call("fv_decimal_to_currency", expression);
    case Operation::textToNumber:
      return call("fv_text_to_number", expression);
    case Operation::textToCurrency:
      return call("fv_text_to_currency", expression);
    case Operation::integerToText:
      return call("fv_integer_to_text", expression);
    case Operation::currencyToText:
      return call("fv_currency_to_text", expression);
    case Operation::decimalToText:
      return call("fv_decimal_to_text", expression);
    case Operation::dateToText:
      return call("fv_date_to_text", expression);
    case Operation::assign:
      return assign(expression);
    default:
      return;
  }
}

void SqliteEmitter::column(const BoundExpression& expression) {
  const KnownSource& known = find(expression.source);
  text_ += known.prefix;
  if (known.source->table) {
    text_ += sqliteName(known.source->table->columns[expression.column].name);
  } else {
    text_ += "c" + std::to_string(expression.column);
  }
}

/// A bare column of a table brings its collation along; every other text must be told.
bool SqliteEmitter::bareText(const BoundExpression& expression) const {
  return expression.operation == Operation::column && find(expression.source).source->table != nullptr;
}

void SqliteEmitter::collated(const BoundExpression& expression) {
  value(expression);
  if (expression.type == ValueType::text && !bareText(expression)) (text_ += " COLLATE ") += collationName;
}

void SqliteEmitter::comparison(const BoundExpression& expression) {
  const BoundExpression& left = expression.operands[0];
  const BoundExpression& right = expression.operands[1];
  const bool text = left.type == ValueType::text || right.type == ValueType::text;
  text_ += "(";
  value(left);
  text_ += signOf(expression.operation);
  value(right);
  if (text && !bareText(left) && !bareText(right)) (text_ += " COLLATE ") += collationName;
  text_ += ")";
}

void SqliteEmitter::between(const BoundExpression& expression) {
  text_ += "(";
  collated(expression.operands[0]);
  text_ += " BETWEEN ";
  value(expression.operands[1]);
  text_ += " AND ";
  value(expression.operands[2]);
  text_ += ")";
}

void SqliteEmitter::infix(const BoundExpression& expression, std::string_view sign, bool conditions) {
  text_ += "(";
  for (std::size_t index = 0; index < expression.operands.size(); ++index) {
    if (index > 0) text_ += sign;
    conditions ? condition(expression.operands[index]) : value(expression.operands[index]);
  }
  text_ += ")";
}

void SqliteEmitter::call(std::string_view function, const BoundExpression& expression) {
  (text_ += function) += "(";
  for (std::size_t index = 0; index < expression.operands.size(); ++index) {
    if (index > 0) text_ += ", ";
    const bool extreme = expression.operation == Operation::minimum || expression.operation == Operation::maximum;
    extreme ? collated(expression.operands[index]) : value(expression.operands[index]);
  }
  if (!expression.text.empty()) text_ += ", " + sqliteText(expression.text);
  text_ += ")";
}

void SqliteEmitter::assign(const BoundExpression& expression) {
  const std::string field = sqliteText(expression.text);
  switch (expression.target.kind) {
    case ColumnKind::boolean:
      text_ += "fv_check_boolean(";
      value(expression.operands[0]);
      break;
    case ColumnKind::currency:
      text_ += "fv_check_currency(";
      value(expression.operands[0]);
      break;
    case ColumnKind::date:
      return value(expression.operands[0]);
    case ColumnKind::text:
      text_ += "fv_check_text(";
      value(expression.operands[0]);
      text_ += ", " + std::to_string(expression.target.limit);
      break;
    case ColumnKind::memo:
      return value(expression.operands[0]);
    default: {
      const IntegerRange range = rangeOf(expression.target.kind);
      text_ += "fv_check_integer(";
      value(expression.operands[0]);
      text_ += ", " + std::to_string(range.low) + ", " + std::to_string(range.high);
    }
  }
  text_ += ", " + field + ")";
}

}  // namespace fenvale::sql
