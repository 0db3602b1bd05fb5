// Which types go together, and how one becomes the other.

#include "platform/base/Error.h"
#include "platform/sql/dialect/BinderDetail.h"

namespace fenvale::sql {
namespace {

bool isNumber(ValueType type) {
  return type == ValueType::integer || type == ValueType::currency || type == ValueType::decimal ||
         type == ValueType::boolean;
}

}  // namespace

void failTypes(std::string_view what) {
  throw Error(errors::valueMismatch, "Os tipos dos valores não combinam em " + std::string(what) + ".");
}

bool TypeRules::isLiteral(const BoundExpression& value) const {
  return value.operation == Operation::parameter &&
         context_.parameters[value.source].origin == Parameter::Origin::literal;
}

BoundExpression TypeRules::wrap(Operation operation, ValueType type, BoundExpression value) const {
  BoundExpression wrapped;
  wrapped.operation = operation;
  wrapped.type = type;
  wrapped.operands.push_back(std::move(value));
  return wrapped;
}

BoundExpression TypeRules::convert(BoundExpression value, ValueType type, std::string_view what) {
  const ValueType from = value.type;
  if (from == type || from == ValueType::null) return value;
  if (type == ValueType::text) return toText(std::move(value));
  if (type == ValueType::date || from == ValueType::date) failTypes(what);
  if (isLiteral(value)) {
    // What is a whole number stays one where any number will do; a text counts as the number it shows.
    if (type == ValueType::decimal && from == ValueType::integer) return value;
    if (type == ValueType::integer || type == ValueType::boolean) type = ValueType::decimal;
    context_.parameters[value.source].type = type;
    value.type = type;
    return value;
  }
  switch (type) {
    case ValueType::currency:
      if (from == ValueType::text) return wrap(Operation::textToCurrency, type, std::move(value));
      if (from == ValueType::decimal) return wrap(Operation::decimalToCurrency, type, std::move(value));
      return wrap(Operation::integerToCurrency, type, std::move(value));
    case ValueType::decimal:
    case ValueType::integer:
    case ValueType::boolean:
      if (from == ValueType::text) return wrap(Operation::textToNumber, ValueType::decimal, std::move(value));
      if (from == ValueType::currency) return wrap(Operation::currencyToDecimal, ValueType::decimal, std::move(value));
      return value;
    default:
      failTypes(what);
  }
}

BoundExpression TypeRules::toText(BoundExpression value) {
  switch (value.type) {
    case ValueType::null:
    case ValueType::text:
      return value;
    case ValueType::currency:
      return wrap(Operation::currencyToText, ValueType::text, std::move(value));
    case ValueType::decimal:
      return wrap(Operation::decimalToText, ValueType::text, std::move(value));
    case ValueType::date:
      return wrap(Operation::dateToText, ValueType::text, std::move(value));
    case ValueType::integer:
    case ValueType::boolean:
      return wrap(Operation::integerToText, ValueType::text, std::move(value));
  }
  return value;
}

void TypeRules::unify(BoundExpression& left, BoundExpression& right, std::string_view what) {
  if (left.type == ValueType::null || right.type == ValueType::null) return;
  if (left.type == right.type) return;
  if (left.type == ValueType::date || right.type == ValueType::date) failTypes(what);
  if (left.type == ValueType::text || right.type == ValueType::text) {
    BoundExpression& text = left.type == ValueType::text ? left : right;
    BoundExpression& number = left.type == ValueType::text ? right : left;
    // A written number never meets a text; a text, written or stored, may show a number.
    if (isLiteral(number) && !isLiteral(text)) failTypes(what);
    text = convert(std::move(text), number.type, what);
    if (text.type != number.type && number.type == ValueType::currency) failTypes(what);
    return;
  }
  if (left.type == ValueType::currency) {
    right = convert(std::move(right), ValueType::currency, what);
  } else if (right.type == ValueType::currency) {
    left = convert(std::move(left), ValueType::currency, what);
  }
}

ValueType TypeRules::unifyChoice(BoundExpression& left, BoundExpression& right) {
  if (left.type == ValueType::null) return right.type;
  if (right.type == ValueType::null || left.type == right.type) return left.type;
  if (isNumber(left.type) && isNumber(right.type)) {
    if (left.type == ValueType::currency || right.type == ValueType::currency) {
      left = convert(std::move(left), ValueType::currency, "IIF");
      right = convert(std::move(right), ValueType::currency, "IIF");
      return ValueType::currency;
    }
    const bool decimal = left.type == ValueType::decimal || right.type == ValueType::decimal;
    return decimal ? ValueType::decimal : ValueType::integer;
  }
  left = toText(std::move(left));
  right = toText(std::move(right));
  return ValueType::text;
}

BoundExpression TypeRules::assign(BoundExpression value, const TableDescription& table,
                                  const ColumnDefinition& column) {
  const std::string field = table.name + "." + column.name;
  const ValueType wanted = valueTypeOf(column.type.kind);
  if (value.type == ValueType::date && wanted != ValueType::date && wanted != ValueType::text) failTypes(field);
  if (wanted == ValueType::date && value.type != ValueType::date && value.type != ValueType::null) failTypes(field);
  if (isLiteral(value)) {
    Parameter& parameter = context_.parameters[value.source];
    parameter.type = wanted;
    parameter.column = column.type;
    parameter.field = field;
    value.type = wanted;
    return value;
  }
  if (value.operation == Operation::null && wanted != ValueType::boolean) return value;
  if (wanted == ValueType::text) {
    value = toText(std::move(value));
  } else if (wanted == ValueType::currency) {
    value = convert(std::move(value), ValueType::currency, field);
  } else if (value.type == ValueType::currency) {
    value = convert(std::move(value), ValueType::decimal, field);
  }
  BoundExpression assigned = wrap(Operation::assign, wanted, std::move(value));
  assigned.target = column.type;
  assigned.text = field;
  return assigned;
}

}  // namespace fenvale::sql
