#include "platform/base/Format.h"

#include <algorithm>

namespace fenvale {
namespace {

std::size_t zeros(std::string_view mask) { return static_cast<std::size_t>(std::count(mask.begin(), mask.end(), '0')); }

std::string padded(const std::string& digits, std::size_t width) {
  return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

std::string grouped(const std::string& digits) {
  std::string text;
  for (std::size_t place = 0; place < digits.size(); ++place) {
    if (place > 0 && (digits.size() - place) % 3 == 0) text += '.';
    text += digits[place];
  }
  return text;
}

/// `magnitude` counts 10^-`scale`.
std::string format(std::uint64_t magnitude, unsigned scale, bool negative, std::string_view mask) {
  const std::size_t point = mask.find('.');
  const std::string_view wholeMask = mask.substr(0, point);
  const std::string_view decimalMask = point == std::string_view::npos ? std::string_view() : mask.substr(point + 1);

  unsigned decimals = static_cast<unsigned>(decimalMask.size());
  for (; scale > decimals; --scale) {
    const bool up = scale == decimals + 1 && magnitude % 10 >= 5;
    magnitude = magnitude / 10 + (up ? 1 : 0);
  }
  std::uint64_t weight = 1;
  for (unsigned place = 0; place < scale; ++place) weight *= 10;

  std::string whole = magnitude / weight == 0 ? std::string() : std::to_string(magnitude / weight);
  whole = padded(whole, zeros(wholeMask));
  if (wholeMask.find(',') != std::string_view::npos) whole = grouped(whole);

  std::string text = std::move(whole);
  if (decimals > 0) {
    std::string digits = scale == 0 ? std::string() : padded(std::to_string(magnitude % weight), scale);
    digits.resize(decimals, '0');
    const std::size_t required = decimalMask.find_last_of('0') + 1;
    while (digits.size() > required && digits.back() == '0') digits.pop_back();
    text += "," + digits;
  }
  return negative && magnitude != 0 ? "-" + text : text;
}

std::uint64_t magnitudeOf(std::int64_t value) {
  return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

}  // namespace

std::string formatNumber(Currency value, std::string_view mask) {
  return format(magnitudeOf(value.units()), 4, value.units() < 0, mask);
}

std::string formatNumber(std::int64_t value, std::string_view mask) {
  return format(magnitudeOf(value), 0, value < 0, mask);
}

}  // namespace fenvale
