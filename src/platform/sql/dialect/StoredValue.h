#pragma once
// The form in which a value lies in a store: whole number (also of ten-thousandths, and -1 or 0), floating point, or
// text (also of a date).

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "platform/base/Date.h"
#include "platform/sql/dialect/Bound.h"

namespace fenvale::sql {

using StoredValue = std::variant<std::monostate, std::int64_t, double, std::string>;

/// What a literal of the statement supplies for a parameter. `literal` is its text, delimiters and doubling taken off.
/// Error 0x80040E07 for a text that is no number, 0x80040E57 for a value beyond the limits of the column that it is
/// written to.
StoredValue supply(const Parameter& parameter, TokenKind kind, std::string_view literal);

struct IntegerRange {
  std::int64_t low;
  std::int64_t high;
};
IntegerRange rangeOf(ColumnKind kind);

/// A value on its way into a column, `field` being "table.column". The same errors.
std::int64_t checkedInteger(double value, IntegerRange range, std::string_view field);
std::int64_t checkedInteger(std::int64_t value, IntegerRange range, std::string_view field);
std::int64_t currencyUnits(std::string_view number, std::string_view field);
void checkText(std::string_view text, std::size_t limit, std::string_view field);
double numberOf(std::string_view text, std::string_view field);

[[noreturn]] void failRange(std::string_view field);

}  // namespace fenvale::sql
