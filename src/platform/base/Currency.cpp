#include "platform/base/Currency.h"

#include <cmath>

#include "platform/base/Checked.h"
#include "platform/base/Error.h"

namespace fenvale {
namespace {

constexpr std::int64_t unit = 10000;

bool isDigit(char letter) { return letter >= '0' && letter <= '9'; }

[[noreturn]] void notANumber(std::string_view text) {
  throw Error(errors::typeMismatch, "O texto \"" + std::string(text) + "\" não é um valor.");
}

}  // namespace

Currency Currency::fromInteger(std::int64_t whole) { return Currency(multiplyChecked(whole, unit)); }

Currency Currency::fromDouble(double value) {
  const double scaled = roundHalfEven(value * static_cast<double>(unit));
  // 2^63 is exactly representable, the largest 64-bit integer is not: the test must exclude the former.
  if (!(scaled >= -9223372036854775808.0 && scaled < 9223372036854775808.0))
    throw Error(errors::overflow, "Estouro de capacidade.");
  return Currency(static_cast<std::int64_t>(scaled));
}

Currency Currency::fromDecimal(std::string_view text) {
  std::size_t place = 0;
  while (place < text.size() && text[place] == ' ') ++place;
  std::size_t end = text.size();
  while (end > place && text[end - 1] == ' ') --end;
  const bool negative = place < end && text[place] == '-';
  if (place < end && (text[place] == '-' || text[place] == '+')) ++place;
  // Digits are added with the number's own sign, so that the lowest amount is read as well.
  const std::int64_t sign = negative ? -1 : 1;
  std::int64_t units = 0;
  bool digits = false;
  for (; place < end && isDigit(text[place]); ++place, digits = true)
    units = addChecked(multiplyChecked(units, 10), sign * (text[place] - '0'));
  units = multiplyChecked(units, unit);
  if (place < end && text[place] == '.') {
    std::int64_t weight = unit / 10;
    int fifth = 0;
    bool beyond = false;
    for (++place; place < end && isDigit(text[place]); ++place, digits = true) {
      const int digit = text[place] - '0';
      if (weight > 0) {
        units = addChecked(units, sign * weight * digit);
        weight /= 10;
        if (weight == 0) fifth = -1;
      } else if (fifth < 0) {
        fifth = digit;
      } else {
        beyond = beyond || digit != 0;
      }
    }
    if (fifth > 5 || (fifth == 5 && (beyond || units % 2 != 0))) units = addChecked(units, sign);
  }
  if (!digits || place != end) notANumber(text);
  return Currency(units);
}

Currency Currency::fromBrazilian(std::string_view text) {
  std::string clean;
  for (std::size_t place = 0; place < text.size(); ++place) {
    if (text.substr(place, 2) == "R$") {
      ++place;
    } else if (text.substr(place, 2) == "\xC2\xA0") {  // a no-break blank, as spreadsheets and web pages paste it
      ++place;
    } else if (text[place] != ' ' && text[place] != '\t') {
      clean += text[place];
    }
  }
  if (clean.empty()) return Currency();
  const std::size_t comma = clean.find(',');
  std::string plain;
  if (comma != std::string::npos) {
    for (char letter : clean)
      if (letter != '.') plain += letter == ',' ? '.' : letter;
  } else {
    const std::size_t point = clean.find('.');
    const bool decimalMark =
        point != std::string::npos && clean.find('.', point + 1) == std::string::npos && clean.size() - point - 1 != 3;
    for (char letter : clean)
      if (letter != '.' || decimalMark) plain += letter;
  }
  return fromDecimal(plain);
}

std::string Currency::toDecimal() const {
  const bool negative = units_ < 0;
  const std::uint64_t magnitude =
      negative ? 0 - static_cast<std::uint64_t>(units_) : static_cast<std::uint64_t>(units_);
  std::string text = std::to_string(magnitude / unit);
  if (const std::uint64_t rest = magnitude % unit; rest != 0) {
    std::string decimals = std::to_string(unit + static_cast<std::int64_t>(rest)).substr(1);
    decimals.erase(decimals.find_last_not_of('0') + 1);
    text += "." + decimals;
  }
  return negative ? "-" + text : text;
}

Currency Currency::operator+(Currency other) const { return Currency(addChecked(units_, other.units_)); }
Currency Currency::operator-(Currency other) const { return Currency(subtractChecked(units_, other.units_)); }
Currency Currency::operator-() const { return Currency(subtractChecked(0, units_)); }

Currency roundToCents(double value) { return Currency::fromDouble(roundHalfEven(value * 100.0) / 100.0); }

}  // namespace fenvale
