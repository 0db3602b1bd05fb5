#pragma once
// Checked integers: a result that does not fit is an Error number 6, never a silent wrap.

#include <cstdint>
#include <string_view>

namespace fenvale {

std::int16_t toInt16(std::int64_t value);
std::int32_t toInt32(std::int64_t value);
/// The nearest whole number, a tie going to the even one.
std::int16_t roundToInt16(double value);
std::int32_t roundToInt32(double value);
/// The nearest whole number, a tie going to the even one, as a double (for values beyond 64 bits too).
double roundHalfEven(double value);

std::int64_t addChecked(std::int64_t left, std::int64_t right);
std::int64_t subtractChecked(std::int64_t left, std::int64_t right);
std::int64_t multiplyChecked(std::int64_t left, std::int64_t right);

/// The number that a text starts with: blanks are skipped wherever they stand, reading stops at the first character
/// that belongs to no number, and a text without one is 0 ("00000 123" is 123). Error 6 when it leaves the 32-bit
/// range.
std::int32_t readInt32(std::string_view text);

}  // namespace fenvale
