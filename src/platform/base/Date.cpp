#include "platform/base/Date.h"

#include <array>

#include "platform/base/Error.h"

namespace fenvale {
namespace {

using std::chrono::year_month_day;

bool isDigit(char letter) { return letter >= '0' && letter <= '9'; }

std::string padded(long long number, std::size_t width) {
  std::string text = std::to_string(number);
  return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

long long part(DateTime moment, char letter) {
  const Date day = std::chrono::floor<std::chrono::days>(moment);
  const long long seconds = (moment - day).count();
  switch (letter) {
    case 'd':
      return dayOf(day);
    case 'm':
      return monthOf(day);
    case 'y':
      return yearOf(day);
    case 'h':
      return seconds / 3600;
    case 'n':
      return seconds / 60 % 60;
    default:
      return seconds % 60;
  }
}

std::optional<Date> valid(int year, unsigned month, unsigned day) {
  const year_month_day date{std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
  if (!date.ok()) return std::nullopt;
  return Date(date);
}

int fullYear(int year, std::size_t digits) {
  if (digits > 2) return year;
  return year < 30 ? 2000 + year : 1900 + year;
}

}  // namespace

Date makeDate(int year, unsigned month, unsigned day) {
  if (const auto date = valid(year, month, day)) return *date;
  throw Error(errors::invalidCall, "Data inválida.");
}

std::string formatDate(Date date, std::string_view mask) { return formatMoment(DateTime(date), mask); }

std::string formatMoment(DateTime moment, std::string_view mask) {
  std::string text;
  for (std::size_t place = 0; place < mask.size();) {
    const char letter = mask[place];
    std::size_t end = place + 1;
    while (end < mask.size() && mask[end] == letter) ++end;
    if (std::string_view("dmyhns").find(letter) == std::string_view::npos) {
      text.append(mask.substr(place, end - place));
    } else if (letter == 'y') {
      const long long year = part(moment, 'y');
      text += end - place <= 2 ? padded(year % 100, 2) : padded(year, 4);
    } else {
      text += padded(part(moment, letter), end - place);
    }
    place = end;
  }
  return text;
}

std::optional<Date> readDate(std::string_view text) {
  std::array<std::string, 3> parts;
  std::size_t count = 0;
  bool inNumber = false;
  for (char letter : text) {
    if (isDigit(letter)) {
      if (!inNumber && ++count > 3) return std::nullopt;
      inNumber = true;
      parts[count - 1] += letter;
      if (parts[count - 1].size() > 8) return std::nullopt;
    } else if (letter == '/' || letter == '-' || letter == '.' || letter == ' ') {
      inNumber = false;
    } else {
      return std::nullopt;
    }
  }
  if (count == 1 && (parts[0].size() == 6 || parts[0].size() == 8)) {
    const std::string digits = parts[0];
    parts = {digits.substr(0, 2), digits.substr(2, 2), digits.substr(4)};
    count = 3;
  }
  if (count != 3) return std::nullopt;
  if (parts[0].size() == 4) std::swap(parts[0], parts[2]);
  if (parts[0].size() > 2 || parts[1].size() > 2 || (parts[2].size() != 2 && parts[2].size() != 4)) return std::nullopt;
  return valid(fullYear(std::stoi(parts[2]), parts[2].size()), static_cast<unsigned>(std::stoi(parts[1])),
               static_cast<unsigned>(std::stoi(parts[0])));
}

int yearOf(Date date) { return static_cast<int>(year_month_day(date).year()); }
unsigned monthOf(Date date) { return static_cast<unsigned>(year_month_day(date).month()); }
unsigned dayOf(Date date) { return static_cast<unsigned>(year_month_day(date).day()); }
int daysBetween(Date first, Date second) { return static_cast<int>((second - first).count()); }

}  // namespace fenvale
