#pragma once
// Days and moments. A date is a day; there is no time zone and no arithmetic in months.

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace fenvale {

using Date = std::chrono::sys_days;
/// A moment of the local wall clock, to the second.
using DateTime = std::chrono::sys_seconds;

/// Today and now, handed in: nothing in the program reads the machine's clock by itself.
class Clock {
 public:
  virtual ~Clock() = default;
  /// The local day.
  virtual Date today() const = 0;
  /// The local moment.
  virtual DateTime now() const = 0;
};

/// The day of a calendar date. Error 5 when there is no such day.
Date makeDate(int year, unsigned month, unsigned day);

/// By a mask of the letters d, m, y, h, n (minutes) and s, each run of one letter being one part: "dd/mm/yyyy",
/// "mm/dd/yyyy", "yyyy-mm-dd", "yymmdd", "hh:nn:ss". Other characters stand for themselves.
std::string formatDate(Date date, std::string_view mask = "dd/mm/yyyy");
std::string formatMoment(DateTime moment, std::string_view mask);

/// A day as people type it: "15/03/2026", "15/3/26", "15-03-2026", "15032026", "2026-03-15". Two-digit years are
/// 1930 to 2029. Nothing when the text is no such day.
std::optional<Date> readDate(std::string_view text);

int yearOf(Date date);
unsigned monthOf(Date date);
unsigned dayOf(Date date);
/// Whole days from `first` to `second`, negative when `second` is earlier.
int daysBetween(Date first, Date second);

}  // namespace fenvale
