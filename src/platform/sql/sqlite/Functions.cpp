#include "platform/sql/sqlite/Functions.h"

#include <sqlite3.h>

#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

#include "platform/base/Checked.h"
#include "platform/base/Format.h"
#include "platform/base/Text.h"
#include "platform/sql/Collation.h"
#include "platform/sql/dialect/Literals.h"
#include "platform/sql/dialect/StoredValue.h"
#include "platform/sql/sqlite/Emitter.h"

namespace fenvale::sql {
namespace {

/// The arguments of a call, and where its answer goes.
class Call {
 public:
  Call(sqlite3_context* context, int count, sqlite3_value** arguments)
      : context_(context), count_(count), arguments_(arguments) {}

  int count() const { return count_; }
  bool isNull(int place) const { return sqlite3_value_type(arguments_[place]) == SQLITE_NULL; }
  bool isWhole(int place) const { return sqlite3_value_type(arguments_[place]) == SQLITE_INTEGER; }
  bool isText(int place) const { return sqlite3_value_type(arguments_[place]) == SQLITE_TEXT; }
  std::int64_t integer(int place) const { return sqlite3_value_int64(arguments_[place]); }
  double decimal(int place) const { return sqlite3_value_double(arguments_[place]); }
  /// Of a sum or product that left 64 bits SQLite makes a floating-point number.
  std::int64_t units(int place) const {
    if (sqlite3_value_type(arguments_[place]) == SQLITE_FLOAT) throw Error(errors::overflow, "Estouro de capacidade.");
    return integer(place);
  }
  std::string_view text(int place) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(arguments_[place]));
    if (bytes == nullptr) return {};
    return {bytes, static_cast<std::size_t>(sqlite3_value_bytes(arguments_[place]))};
  }

  void answerNull() const { sqlite3_result_null(context_); }
  void answer(std::int64_t value) const { sqlite3_result_int64(context_, value); }
  void answer(double value) const { sqlite3_result_double(context_, value); }
  void answer(std::string_view value) const {
    sqlite3_result_text(context_, value.empty() ? "" : value.data(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
  }
  void answerArgument(int place) const { sqlite3_result_value(context_, arguments_[place]); }

 private:
  sqlite3_context* context_;
  int count_;
  sqlite3_value** arguments_;
};

void middle(const Call& call) {
  const std::int64_t start = call.integer(1);
  const std::int64_t count = call.count() > 2 ? call.integer(2) : 0;
  if (start < 1 || count < 0) throw Error(errors::invalidCall, "MID não aceita um início ou tamanho negativo.");
  const std::string_view text = call.text(0);
  const auto limit = call.count() > 2 ? static_cast<std::size_t>(count) : std::string_view::npos;
  call.answer(mid(text, static_cast<std::size_t>(start), limit));
}

void formatCurrency(const Call& call) {
  if (call.isNull(0)) return call.answer(std::string_view());
  call.answer(formatNumber(Currency::fromUnits(call.units(0)), call.text(1)));
}

void formatInteger(const Call& call) {
  if (call.isNull(0)) return call.answer(std::string_view());
  call.answer(formatNumber(call.units(0), call.text(1)));
}

void formatDay(const Call& call) {
  const auto moment = call.isNull(0) ? std::nullopt : readStoredDate(call.text(0));
  call.answer(moment ? formatMoment(*moment, toLower(call.text(1))) : std::string());
}

void formatText(const Call& call) { call.answer(call.text(0)); }

void countDays(const Call& call) {
  const auto first = readStoredDate(call.text(0));
  const auto second = readStoredDate(call.text(1));
  if (!first || !second) return call.answerNull();
  call.answer(std::int64_t{
      daysBetween(std::chrono::floor<std::chrono::days>(*first), std::chrono::floor<std::chrono::days>(*second))});
}

void multiplyCurrencies(const Call& call) {
  if (call.isNull(1)) return call.answerNull();
  // Ten-thousandths times ten-thousandths: back to ten-thousandths, a tie going to the even one.
  __extension__ using Wide = __int128;
  const Wide product = static_cast<Wide>(call.units(0)) * call.units(1);
  Wide quotient = product / 10000;
  const Wide rest = product % 10000;
  const Wide twice = (rest < 0 ? -rest : rest) * 2;
  if (twice > 10000 || (twice == 10000 && quotient % 2 != 0)) quotient += product < 0 ? -1 : 1;
  if (quotient > INT64_MAX || quotient < INT64_MIN) throw Error(errors::overflow, "Estouro de capacidade.");
  call.answer(static_cast<std::int64_t>(quotient));
}

void divide(const Call& call) {
  if (call.isNull(1)) return call.answerNull();
  if (call.decimal(1) == 0) throw Error(errors::divisionByZero, "Divisão por zero.");
  call.answer(call.decimal(0) / call.decimal(1));
}

void decimalToCurrency(const Call& call) { call.answer(Currency::fromDouble(call.decimal(0)).units()); }
void textToNumber(const Call& call) { call.answer(numberOf(call.text(0), {})); }
void textToCurrency(const Call& call) { call.answer(currencyUnits(call.text(0), {})); }
void integerToText(const Call& call) { call.answer(std::to_string(call.integer(0))); }
void currencyToText(const Call& call) { call.answer(Currency::fromUnits(call.units(0)).toDecimal()); }
void decimalToText(const Call& call) { call.answer(Value::decimal(call.decimal(0)).toText()); }

void dateToText(const Call& call) {
  const auto moment = readStoredDate(call.text(0));
  call.answer(moment ? Value::date(*moment).toText() : std::string());
}

void checkBoolean(const Call& call) {
  if (call.isNull(0)) return call.answer(std::int64_t{0});
  const double number = call.isText(0) ? numberOf(call.text(0), call.text(1)) : call.decimal(0);
  call.answer(std::int64_t{number != 0 ? -1 : 0});
}

void checkCurrency(const Call& call) {
  if (!call.isWhole(0)) failRange(call.text(1));
  call.answerArgument(0);
}

void checkLength(const Call& call) {
  checkText(call.text(0), static_cast<std::size_t>(call.integer(1)), call.text(2));
  call.answerArgument(0);
}

void checkInteger(const Call& call) {
  const IntegerRange range{call.integer(1), call.integer(2)};
  if (call.isWhole(0)) return call.answer(checkedInteger(call.integer(0), range, call.text(3)));
  const double number = call.isText(0) ? numberOf(call.text(0), call.text(3)) : call.decimal(0);
  call.answer(checkedInteger(number, range, call.text(3)));
}

enum class Nulls { spread, handled };

struct Function {
  const char* name;
  int arguments;
  Nulls nulls;  ///< spread: a NULL in the first argument makes the whole NULL
  void (*body)(const Call& call);
};

constexpr std::array<Function, 19> functions = {{
    {"fv_mid", -1, Nulls::spread, &middle},
    {"fv_format_currency", 2, Nulls::handled, &formatCurrency},
    {"fv_format_integer", 2, Nulls::handled, &formatInteger},
    {"fv_format_date", 2, Nulls::handled, &formatDay},
    {"fv_format_text", -1, Nulls::handled, &formatText},
    {"fv_days_between", 2, Nulls::spread, &countDays},
    {"fv_multiply", 2, Nulls::spread, &multiplyCurrencies},
    {"fv_divide", 2, Nulls::spread, &divide},
    {"fv_decimal_to_currency", 1, Nulls::spread, &decimalToCurrency},
    {"fv_text_to_number", 1, Nulls::spread, &textToNumber},
    {"fv_text_to_currency", 1, Nulls::spread, &textToCurrency},
    {"fv_integer_to_text", 1, Nulls::spread, &integerToText},
    {"fv_currency_to_text", 1, Nulls::spread, &currencyToText},
    {"fv_decimal_to_text", 1, Nulls::spread, &decimalToText},
    {"fv_date_to_text", 1, Nulls::spread, &dateToText},
    {"fv_check_boolean", 2, Nulls::handled, &checkBoolean},
    {"fv_check_currency", 2, Nulls::spread, &checkCurrency},
    {"fv_check_text", 3, Nulls::spread, &checkLength},
    {"fv_check_integer", 4, Nulls::spread, &checkInteger},
}};

/// What SQLite hands back at each call: the function, and where its failure goes.
struct Registered {
  const Function& function;
  std::optional<Error>& failure;
};

void run(sqlite3_context* context, int count, sqlite3_value** arguments) {
  const auto& registered = *static_cast<const Registered*>(sqlite3_user_data(context));
  const Call call(context, count, arguments);
  if (registered.function.nulls == Nulls::spread && call.isNull(0)) return call.answerNull();
  try {
    registered.function.body(call);
  } catch (const Error& failure) {
    registered.failure = failure;  // thrown on by whoever ran the statement
    sqlite3_result_error(context, failure.description.c_str(), -1);
  }
}

int collate(void*, int firstSize, const void* first, int secondSize, const void* second) {
  return compareTexts({static_cast<const char*>(first), static_cast<std::size_t>(firstSize)},
                      {static_cast<const char*>(second), static_cast<std::size_t>(secondSize)});
}

}  // namespace

void registerFunctions(sqlite3* database, std::optional<Error>& failure) {
  sqlite3_create_collation(database, std::string(collationName).c_str(), SQLITE_UTF8, nullptr, &collate);
  for (const Function& function : functions)
    sqlite3_create_function_v2(database, function.name, function.arguments, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                               new Registered{function, failure}, &run, nullptr, nullptr,
                               [](void* registered) { delete static_cast<Registered*>(registered); });
}

}  // namespace fenvale::sql
