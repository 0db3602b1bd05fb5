#pragma once
// What a field of a recordset holds: a typed value that knows how the program reads it.

#include <cstdint>
#include <string>
#include <variant>

#include "platform/base/Currency.h"
#include "platform/base/Date.h"

namespace fenvale {

/// The type of a column or expression, as the binder works it out.
enum class ValueType { null, integer, currency, decimal, date, boolean, text };

/// A date with an optional time of day; columns of dates hold days.
class Value {
 public:
  Value() = default;  ///< NULL
  static Value integer(std::int64_t value) { return Value(value); }
  static Value currency(Currency value) { return Value(value); }
  static Value decimal(double value) { return Value(value); }
  static Value date(DateTime value) { return Value(value); }
  static Value boolean(bool value) { return Value(value); }
  static Value text(std::string value) { return Value(std::move(value)); }

  ValueType type() const;
  bool isNull() const { return std::holds_alternative<std::monostate>(content_); }

  // Readers for the rules. NULL raises Error 94 in all but toText; a value of another kind is converted as the rules
  // expect (text to number, number to text), Error 13 where it cannot be.
  std::int32_t toLong() const;     ///< Error 6 out of the 32-bit range
  std::int16_t toInteger() const;  ///< Error 6 out of the 16-bit range
  std::uint8_t toByte() const;     ///< Error 6 out of 0 to 255
  Currency toCurrency() const;
  double toDouble() const;
  Date toDate() const;
  bool toBoolean() const;  ///< any number but 0 is true
  /// NULL is an empty text. Integers in decimal, currency by Currency::toDecimal, a date as dd/mm/yyyy, yes/no as
  /// "-1" or "0".
  std::string toText() const&;
  std::string toText() &&;  ///< takes the text along

  bool operator==(const Value&) const = default;

 private:
  using Content = std::variant<std::monostate, std::int64_t, Currency, double, DateTime, bool, std::string>;
  template <typename T>
  explicit Value(T value) : content_(std::move(value)) {}
  Content content_;
};

}  // namespace fenvale
