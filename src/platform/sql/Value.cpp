#include "platform/sql/Value.h"

#include <array>
#include <charconv>
#include <utility>

#include "platform/base/Checked.h"
#include "platform/base/Error.h"

namespace fenvale {
namespace {

template <typename... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

[[noreturn]] void failNull() { throw Error(errors::invalidUseOfNull, "O campo está vazio (Null)."); }
[[noreturn]] void failType() { throw Error(errors::typeMismatch, "O valor do campo é de outro tipo."); }

std::int64_t wholeOf(double value) {
  const double rounded = roundHalfEven(value);
  if (!(rounded >= -9223372036854775808.0 && rounded < 9223372036854775808.0))
    throw Error(errors::overflow, "Estouro de capacidade.");
  return static_cast<std::int64_t>(rounded);
}

double numberOf(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) failType();
  const std::size_t last = text.find_last_not_of(' ') + 1;
  double number = 0;
  const auto [end, failure] = std::from_chars(text.data() + first, text.data() + last, number);
  if (failure != std::errc() || end != text.data() + last) failType();
  return number;
}

std::string decimalText(double number) {
  std::array<char, 64> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return std::string(digits.data(), result.ptr);
}

std::string dateText(DateTime moment) {
  const Date day = std::chrono::floor<std::chrono::days>(moment);
  return formatMoment(moment, moment == DateTime(day) ? "dd/mm/yyyy" : "dd/mm/yyyy hh:nn:ss");
}

}  // namespace

ValueType Value::type() const {
  return std::visit(
      Overloaded{[](std::monostate) { return ValueType::null; }, [](std::int64_t) { return ValueType::integer; },
                 [](Currency) { return ValueType::currency; }, [](double) { return ValueType::decimal; },
                 [](DateTime) { return ValueType::date; }, [](bool) { return ValueType::boolean; },
                 [](const std::string&) { return ValueType::text; }},
      content_);
}

double Value::toDouble() const {
  return std::visit(Overloaded{[](std::monostate) -> double { failNull(); },
                               [](std::int64_t number) { return static_cast<double>(number); },
                               [](Currency amount) { return amount.toDouble(); }, [](double number) { return number; },
                               [](DateTime) -> double { failType(); }, [](bool truth) { return truth ? -1.0 : 0.0; },
                               [](const std::string& text) { return numberOf(text); }},
                    content_);
}

std::int32_t Value::toLong() const {
  if (const auto* number = std::get_if<std::int64_t>(&content_)) return toInt32(*number);
  return toInt32(wholeOf(toDouble()));
}

std::int16_t Value::toInteger() const {
  if (const auto* number = std::get_if<std::int64_t>(&content_)) return toInt16(*number);
  return toInt16(wholeOf(toDouble()));
}

std::uint8_t Value::toByte() const {
  const auto* whole = std::get_if<std::int64_t>(&content_);
  const std::int64_t number = whole != nullptr ? *whole : wholeOf(toDouble());
  if (number < 0 || number > 255) throw Error(errors::overflow, "Estouro de capacidade.");
  return static_cast<std::uint8_t>(number);
}

Currency Value::toCurrency() const {
  if (const auto* amount = std::get_if<Currency>(&content_)) return *amount;
  if (const auto* number = std::get_if<std::int64_t>(&content_)) return Currency::fromInteger(*number);
  if (const auto* text = std::get_if<std::string>(&content_)) return Currency::fromDecimal(*text);
  return Currency::fromDouble(toDouble());
}

Date Value::toDate() const {
  if (isNull()) failNull();
  if (const auto* moment = std::get_if<DateTime>(&content_)) return std::chrono::floor<std::chrono::days>(*moment);
  if (const auto* text = std::get_if<std::string>(&content_))
    if (const auto date = readDate(*text)) return *date;
  failType();
}

bool Value::toBoolean() const {
  if (const auto* truth = std::get_if<bool>(&content_)) return *truth;
  return toDouble() != 0;
}

std::string Value::toText() && {
  if (std::string* const text = std::get_if<std::string>(&content_)) return std::move(*text);
  return std::as_const(*this).toText();
}

std::string Value::toText() const& {
  return std::visit(
      Overloaded{
          [](std::monostate) { return std::string(); }, [](std::int64_t number) { return std::to_string(number); },
          [](Currency amount) { return amount.toDecimal(); }, [](double number) { return decimalText(number); },
          [](DateTime moment) { return dateText(moment); }, [](bool truth) { return std::string(truth ? "-1" : "0"); },
          [](const std::string& text) { return text; }},
      content_);
}

}  // namespace fenvale
