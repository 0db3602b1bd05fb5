#include "platform/sql/dialect/StoredValue.h"

#include <charconv>
#include <limits>

#include "platform/base/Checked.h"
#include "platform/base/Currency.h"
#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/sql/dialect/BinderDetail.h"
#include "platform/sql/dialect/Literals.h"

namespace fenvale::sql {
namespace {

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  return text;
}

/// A whole number that fits 64 bits.
bool readWhole(std::string_view text, bool negated, std::int64_t& value) {
  text = trimmed(text);
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (failure != std::errc() || end != text.data() + text.size()) return false;
  if (negated) {
    if (value == std::numeric_limits<std::int64_t>::min()) return false;
    value = -value;
  }
  return true;
}

StoredValue supplyNumber(std::string_view text, bool negated, std::string_view field) {
  std::int64_t whole = 0;
  if (readWhole(text, negated, whole)) return whole;
  const double number = numberOf(text, field);
  return negated ? -number : number;
}

StoredValue supplyInteger(const Parameter& parameter, ColumnKind kind, std::string_view text) {
  const StoredValue number = supplyNumber(text, parameter.negated, parameter.field);
  if (const auto* whole = std::get_if<std::int64_t>(&number))
    return checkedInteger(*whole, rangeOf(kind), parameter.field);
  return checkedInteger(std::get<double>(number), rangeOf(kind), parameter.field);
}

StoredValue supplyBoolean(const Parameter& parameter, std::string_view text) {
  const StoredValue number = supplyNumber(text, parameter.negated, parameter.field);
  const auto* whole = std::get_if<std::int64_t>(&number);
  const bool zero = whole != nullptr ? *whole == 0 : std::get<double>(number) == 0;
  return std::int64_t{zero ? 0 : -1};
}

}  // namespace

void failRange(std::string_view field) {
  throw Error(errors::valueOutOfRange, "O valor não cabe em " + std::string(field) + ".");
}

IntegerRange rangeOf(ColumnKind kind) {
  switch (kind) {
    case ColumnKind::byte:
      return {0, 255};
    case ColumnKind::shortInteger:
      return {-32768, 32767};
    default:
      return {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()};
  }
}

std::int64_t checkedInteger(std::int64_t value, IntegerRange range, std::string_view field) {
  if (value < range.low || value > range.high) failRange(field);
  return value;
}

std::int64_t checkedInteger(double value, IntegerRange range, std::string_view field) {
  const double rounded = roundHalfEven(value);
  if (!(rounded >= static_cast<double>(range.low) && rounded <= static_cast<double>(range.high))) failRange(field);
  return static_cast<std::int64_t>(rounded);
}

double numberOf(std::string_view text, std::string_view field) {
  if (!isPlainNumber(text)) failTypes(field.empty() ? quotedText(left(text, 40)) : field);
  text = trimmed(text);
  double number = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  if (failure != std::errc() || end != text.data() + text.size())
    failRange(field.empty() ? quotedText(left(text, 40)) : field);
  return number;
}

std::int64_t currencyUnits(std::string_view number, std::string_view field) {
  if (!isPlainNumber(number)) failTypes(field.empty() ? quotedText(left(number, 40)) : field);
  try {
    return Currency::fromDecimal(number).units();
  } catch (const Error&) {  // too large for a currency
    failRange(field.empty() ? quotedText(left(number, 40)) : field);
  }
}

void checkText(std::string_view text, std::size_t limit, std::string_view field) {
  if (text.size() <= limit || length(text) <= limit) return;
  throw Error(errors::valueOutOfRange,
              "O texto é longo demais para " + std::string(field) + " (até " + std::to_string(limit) + " caracteres).");
}

StoredValue supply(const Parameter& parameter, TokenKind kind, std::string_view literal) {
  switch (parameter.type) {
    case ValueType::currency: {
      const std::int64_t units = currencyUnits(literal, parameter.field);
      return parameter.negated ? -units : units;
    }
    case ValueType::integer:
      if (parameter.column) return supplyInteger(parameter, parameter.column->kind, literal);
      return supplyNumber(literal, parameter.negated, parameter.field);
    case ValueType::decimal:
      return supplyNumber(literal, parameter.negated, parameter.field);
    case ValueType::boolean:
      return supplyBoolean(parameter, literal);
    case ValueType::date:
      if (const auto date = readLiteralDate(literal)) return writeStoredDate(*date);
      failTypes(parameter.field);
    case ValueType::text: {
      std::string text;
      if (kind == TokenKind::Date) {
        text = formatDate(*readLiteralDate(literal));
      } else {
        text = (parameter.negated ? "-" : "") + std::string(literal);
      }
      if (parameter.column && parameter.column->kind == ColumnKind::text)
        checkText(text, parameter.column->limit, parameter.field);
      return text;
    }
    case ValueType::null:
      break;
  }
  return {};
}

}  // namespace fenvale::sql
