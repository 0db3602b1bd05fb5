#include "platform/sql/sqlite/Functions.h"

#include <sqlite3.h>

#include <optional>
#include <string>

#include "platform/base/Error.h"
#include "platform/base/Format.h"
#include "platform/base/Text.h"
#include "platform/sql/Collation.h"
#include "platform/sql/dialect/Literals.h"
#include "platform/sql/dialect/StoredValue.h"
#include "platform/sql/sqlite/Emitter.h"

namespace fenvale::sql {
namespace {

std::optional<Error>& pending() {
  thread_local std::optional<Error> error;
  return error;
}

std::string_view textOf(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return text == nullptr ? std::string_view()
                         : std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

void answer(sqlite3_context* context, const std::string& text) {
  sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

using Body = void (*)(sqlite3_context*, sqlite3_value**);

/// NULL in the first argument makes the whole NULL; an Error is kept for the recordset.
template <Body body>
void function(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) return sqlite3_result_null(context);
  try {
    body(context, arguments);
  } catch (const Error& failure) {
    pending() = failure;
    sqlite3_result_error(context, failure.description.c_str(), -1);
  }
}

void middle(sqlite3_context* context, sqlite3_value** arguments) {
  answer(context, mid(textOf(arguments[0]), static_cast<std::size_t>(sqlite3_value_int64(arguments[1])),
                      static_cast<std::size_t>(sqlite3_value_int64(arguments[2]))));
}
void formatCurrency(sqlite3_context* context, sqlite3_value** arguments) {
  answer(context, formatNumber(Currency::fromUnits(sqlite3_value_int64(arguments[0])), textOf(arguments[1])));
}
void formatInteger(sqlite3_context* context, sqlite3_value** arguments) {
  answer(context, formatNumber(static_cast<std::int64_t>(sqlite3_value_int64(arguments[0])), textOf(arguments[1])));
}
void formatDay(sqlite3_context* context, sqlite3_value** arguments) {
  const auto moment = readStoredDate(textOf(arguments[0]));
  answer(context, moment ? formatMoment(*moment, textOf(arguments[1])) : std::string());
}
void formatText(sqlite3_context* context, sqlite3_value** arguments) {
  answer(context, std::string(textOf(arguments[0])));
}
void daysBetweenDates(sqlite3_context* context, sqlite3_value** arguments) {
  const auto first = readStoredDate(textOf(arguments[0])), second = readStoredDate(textOf(arguments[1]));
  if (!first || !second) return sqlite3_result_null(context);
  sqlite3_result_int(context, daysBetween(std::chrono::floor<std::chrono::days>(*first),
                                          std::chrono::floor<std::chrono::days>(*second)));
}
void decimalToCurrency(sqlite3_context* context, sqlite3_value** arguments) {
  sqlite3_result_int64(context, Currency::fromDouble(sqlite3_value_double(arguments[0])).units());
}
void textToNumber(sqlite3_context* context, sqlite3_value** arguments) {
  sqlite3_result_double(context, numberOf(textOf(arguments[0]), {}));
}
void textToCurrency(sqlite3_context* context, sqlite3_value** arguments) {
  sqlite3_result_int64(context, currencyUnits(textOf(arguments[0]), {}));
}
void integerToText(sqlite3_context* context, sqlite3_value** arguments) {
  answer(context, std::to_string(sqlite3_value_int64(arguments[0])));
}
void currencyToText(sqlite3_context* context, sqlite3_value** arguments) {
  answer(context, Currency::fromUnits(sqlite3_value_int64(arguments[0])).toDecimal());
}
void decimalToText(sqlite3_context* context, sqlite3_value** arguments) {
  answer(context, std::string(textOf(arguments[0])));
}
void dateToText(sqlite3_context* context, sqlite3_value** arguments) {
  const auto moment = readStoredDate(textOf(arguments[0]));
  answer(context, moment ? formatMoment(*moment, "dd/mm/yyyy") : std::string());
}
void checkBoolean(sqlite3_context* context, sqlite3_value** arguments) {
  sqlite3_result_int(context, sqlite3_value_double(arguments[0]) != 0 ? -1 : 0);
}
void checkCurrency(sqlite3_context* context, sqlite3_value** arguments) { sqlite3_result_value(context, arguments[0]); }
void checkTextLength(sqlite3_context* context, sqlite3_value** arguments) {
  checkText(textOf(arguments[0]), static_cast<std::size_t>(sqlite3_value_int64(arguments[1])), textOf(arguments[2]));
  sqlite3_result_value(context, arguments[0]);
}
void checkInteger(sqlite3_context* context, sqlite3_value** arguments) {
  const IntegerRange range{sqlite3_value_int64(arguments[1]), sqlite3_value_int64(arguments[2])};
  const std::string_view field = textOf(arguments[3]);
  sqlite3_result_int64(context, sqlite3_value_type(arguments[0]) == SQLITE_INTEGER
                                    ? checkedInteger(std::int64_t{sqlite3_value_int64(arguments[0])}, range, field)
                                    : checkedInteger(sqlite3_value_double(arguments[0]), range, field));
}
void divide(sqlite3_context* context, sqlite3_value** arguments) {
  if (sqlite3_value_type(arguments[1]) == SQLITE_NULL) return sqlite3_result_null(context);
  const double divisor = sqlite3_value_double(arguments[1]);
  if (divisor == 0) throw Error(errors::divisionByZero, "Divisão por zero.");
  sqlite3_result_double(context, sqlite3_value_double(arguments[0]) / divisor);
}

int collate(void*, int firstSize, const void* first, int secondSize, const void* second) {
  return compareTexts({static_cast<const char*>(first), static_cast<std::size_t>(firstSize)},
                      {static_cast<const char*>(second), static_cast<std::size_t>(secondSize)});
}

template <Body body>
void add(sqlite3* database, const char* name, int arguments) {
  sqlite3_create_function_v2(database, name, arguments, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, &function<body>,
                             nullptr, nullptr, nullptr);
}

}  // namespace

void rethrowFunctionError() {
  if (!pending()) return;
  const Error failure = *pending();
  pending().reset();
  throw failure;
}

void registerFunctions(sqlite3* database) {
  sqlite3_create_collation(database, std::string(collationName).c_str(), SQLITE_UTF8, nullptr, &collate);
  add<middle>(database, "fv_mid", 3);
  add<formatCurrency>(database, "fv_format_currency", 2);
  add<formatInteger>(database, "fv_format_integer", 2);
  add<formatDay>(database, "fv_format_date", 2);
  add<formatText>(database, "fv_format_text", -1);
  add<daysBetweenDates>(database, "fv_days_between", -1);
  add<decimalToCurrency>(database, "fv_decimal_to_currency", 1);
  add<textToNumber>(database, "fv_text_to_number", 1);
  add<textToCurrency>(database, "fv_text_to_currency", 1);
  add<integerToText>(database, "fv_integer_to_text", 1);
  add<currencyToText>(database, "fv_currency_to_text", 1);
  add<decimalToText>(database, "fv_decimal_to_text", 1);
  add<dateToText>(database, "fv_date_to_text", 1);
  add<checkBoolean>(database, "fv_check_boolean", 2);
  add<checkCurrency>(database, "fv_check_currency", 2);
  add<checkTextLength>(database, "fv_check_text", 3);
  add<checkInteger>(database, "fv_check_integer", 4);
  add<divide>(database, "fv_divide", 2);
}

}  // namespace fenvale::sql
