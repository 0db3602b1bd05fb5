#pragma once
// Money: a 64-bit fixed-point value with four decimals. Exact; no operation loses or adds a ten-thousandth unseen.

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace fenvale {

class Currency {
 public:
  constexpr Currency() = default;
  /// From ten-thousandths: fromUnits(12345000) is 1234.5000.
  static constexpr Currency fromUnits(std::int64_t tenThousandths) { return Currency(tenThousandths); }
  /// From a whole number. Error 6 when out of range.
  static Currency fromInteger(std::int64_t whole);
  /// From floating point: half to even at the fourth decimal of the double times 10,000. Error 6 when out of range.
  static Currency fromDouble(double value);
  /// From plain decimal text ("-1234.5", point as the mark, any number of decimals, half to even at the fourth).
  /// Error 13 when the text is no number, 6 when out of range.
  static Currency fromDecimal(std::string_view text);
  /// From text as people write it in Brazil ("1.234,50", "R$ 1.234,5", "-3"); blanks and "R$" are skipped, an empty
  /// text is 0. A single point followed by other than three digits counts as the decimal mark. Error 13 otherwise.
  static Currency fromBrazilian(std::string_view text);

  constexpr std::int64_t units() const { return units_; }
  double toDouble() const { return static_cast<double>(units_) / 10000.0; }
  /// Plain decimal text with a point and no idle zeros: "1234.5", "-0.1", "7".
  std::string toDecimal() const;

  /// Arithmetic is exact and checked: Error 6 on overflow.
  Currency operator+(Currency other) const;
  Currency operator-(Currency other) const;
  Currency operator-() const;
  Currency& operator+=(Currency other) { return *this = *this + other; }
  Currency& operator-=(Currency other) { return *this = *this - other; }
  constexpr auto operator<=>(const Currency&) const = default;  // NOLINT(modernize-use-nullptr): a false alarm

 private:
  constexpr explicit Currency(std::int64_t units) : units_(units) {}
  std::int64_t units_ = 0;
};

/// The banker's rounding to two decimals, on the double times 100, the result stored as currency.
Currency roundToCents(double value);

}  // namespace fenvale
