#include "platform/base/Checked.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/base/Error.h"

namespace fenvale {
namespace {

[[noreturn]] void overflow() { throw Error(errors::overflow, "Estouro de capacidade."); }

template <typename Narrow>
Narrow narrow(std::int64_t value) {
  if (value < std::numeric_limits<Narrow>::min() || value > std::numeric_limits<Narrow>::max()) overflow();
  return static_cast<Narrow>(value);
}

template <typename Narrow>
Narrow roundTo(double value) {
  const double rounded = roundHalfEven(value);
  if (!(rounded >= static_cast<double>(std::numeric_limits<Narrow>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<Narrow>::max())))
    overflow();
  return static_cast<Narrow>(rounded);
}

}  // namespace

std::int16_t toInt16(std::int64_t value) { return narrow<std::int16_t>(value); }
std::int32_t toInt32(std::int64_t value) { return narrow<std::int32_t>(value); }
std::int16_t roundToInt16(double value) { return roundTo<std::int16_t>(value); }
std::int32_t roundToInt32(double value) { return roundTo<std::int32_t>(value); }

double roundHalfEven(double value) {
  const double floor = std::floor(value);
  const double rest = value - floor;
  if (rest < 0.5) return floor;
  if (rest > 0.5) return floor + 1;
  return std::fmod(floor, 2.0) == 0 ? floor : floor + 1;
}

std::int64_t addChecked(std::int64_t left, std::int64_t right) {
  std::int64_t result = 0;
  if (__builtin_add_overflow(left, right, &result)) overflow();
  return result;
}

std::int64_t subtractChecked(std::int64_t left, std::int64_t right) {
  std::int64_t result = 0;
  if (__builtin_sub_overflow(left, right, &result)) overflow();
  return result;
}

std::int64_t multiplyChecked(std::int64_t left, std::int64_t right) {
  std::int64_t result = 0;
  if (__builtin_mul_overflow(left, right, &result)) overflow();
  return result;
}

std::int32_t readInt32(std::string_view text) {
  std::size_t place = text.find_first_not_of(' ');
  if (place == std::string_view::npos) return 0;
  const bool negative = text[place] == '-';
  if (negative || text[place] == '+') ++place;
  std::int64_t value = 0;
  for (; place < text.size(); ++place) {
    if (text[place] == ' ') continue;
    if (text[place] < '0' || text[place] > '9') break;
    // One digit beyond the range is enough to know; the sign decides on the last step.
    value = std::min<std::int64_t>(value * 10 + (text[place] - '0'), std::int64_t{1} << 32);
  }
  return toInt32(negative ? -value : value);
}

}  // namespace fenvale
