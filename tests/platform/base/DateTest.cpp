#include "platform/base/Date.h"

#include <gtest/gtest.h>

#include "platform/base/Error.h"

namespace fenvale {
namespace {

TEST(Date, OnlyDaysOfTheCalendarAreMade) {
  EXPECT_EQ(formatDate(makeDate(2026, 3, 15)), "15/03/2026");
  EXPECT_EQ(formatDate(makeDate(2024, 2, 29)), "29/02/2024");
  for (const auto& [year, month, day] :
       std::vector<std::tuple<int, unsigned, unsigned>>{{2026, 2, 29}, {2026, 13, 1}, {2026, 4, 31}, {2026, 1, 0}}) {
    try {
      (void)makeDate(year, month, day);
      ADD_FAILURE() << year << "-" << month << "-" << day;
    } catch (const Error& error) {
      EXPECT_EQ(error.number, errors::invalidCall);
    }
  }
}

TEST(Date, MasksOfEveryUse) {
  const Date date = makeDate(2026, 3, 5);
  EXPECT_EQ(formatDate(date, "mm/dd/yyyy"), "03/05/2026");
  EXPECT_EQ(formatDate(date, "yyyy-mm-dd"), "2026-03-05");
  EXPECT_EQ(formatDate(date, "yymmdd"), "260305");
  const DateTime moment = DateTime(date) + std::chrono::hours(4) + std::chrono::minutes(5) + std::chrono::seconds(6);
  EXPECT_EQ(formatMoment(moment, "hh:nn:ss"), "04:05:06");
  EXPECT_EQ(formatMoment(moment, "yymmddhhnnss"), "260305040506");
  EXPECT_EQ(formatMoment(moment, "dd/mm/yyyy hh:nn"), "05/03/2026 04:05");
}

TEST(Date, IsReadAsPeopleTypeIt) {
  const Date day = makeDate(2026, 3, 15);
  for (const char* text : {"15/03/2026", "15/3/26", "15-03-2026", "15032026", "150326", "2026-03-15", "15.03.2026"})
    EXPECT_EQ(readDate(text), day) << text;
  EXPECT_EQ(readDate("01/01/30"), makeDate(1930, 1, 1));
  EXPECT_EQ(readDate("31/12/29"), makeDate(2029, 12, 31));
}

TEST(Date, WhatIsNoDayIsNotRead) {
  for (const char* text : {"", "hoje", "31/02/2026", "15/13/2026", "15/03", "1/2/3/4", "123456789", "15/03/202", "//"})
    EXPECT_EQ(readDate(text), std::nullopt) << text;
}

TEST(Date, WholeDaysBetweenTwoDates) {
  EXPECT_EQ(daysBetween(makeDate(2026, 2, 28), makeDate(2026, 3, 1)), 1);
  EXPECT_EQ(daysBetween(makeDate(2024, 2, 28), makeDate(2024, 3, 1)), 2);
  EXPECT_EQ(daysBetween(makeDate(2026, 3, 15), makeDate(2026, 3, 1)), -14);
  EXPECT_EQ(yearOf(makeDate(2026, 3, 15)), 2026);
  EXPECT_EQ(monthOf(makeDate(2026, 3, 15)), 3U);
  EXPECT_EQ(dayOf(makeDate(2026, 3, 15)), 15U);
}

TEST(Date, EveryDayOfACenturyReadsBack) {
  for (Date day = makeDate(1930, 1, 1); day < makeDate(2030, 1, 1); day += std::chrono::days(1)) {
    ASSERT_EQ(readDate(formatDate(day)), day);
    ASSERT_EQ(readDate(formatDate(day, "yyyy-mm-dd")), day);
    ASSERT_EQ(readDate(formatDate(day, "ddmmyy")), day);
  }
}

}  // namespace
}  // namespace fenvale
