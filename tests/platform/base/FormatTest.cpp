#include "platform/base/Format.h"

#include <gtest/gtest.h>

#include <limits>

namespace fenvale {
namespace {

std::string money(const char* decimal, std::string_view mask = "#,##0.00") {
  return formatNumber(Currency::fromDecimal(decimal), mask);
}

TEST(Format, AmountsHaveBrazilianMarks) {
  EXPECT_EQ(money("1234.5"), "1.234,50");
  EXPECT_EQ(money("0"), "0,00");
  EXPECT_EQ(money("-1234567.8"), "-1.234.567,80");
  EXPECT_EQ(money("999"), "999,00");
  EXPECT_EQ(money("1000"), "1.000,00");
}

TEST(Format, RoundsHalfAwayFromZeroOnTheExactDecimal) {
  EXPECT_EQ(money("0.125"), "0,13");
  EXPECT_EQ(money("-0.125"), "-0,13");
  EXPECT_EQ(money("1.005"), "1,01");
  EXPECT_EQ(money("1.0049"), "1,00");
  EXPECT_EQ(money("999.995"), "1.000,00");
}

TEST(Format, AValueThatRoundsToZeroHasNoSign) {
  EXPECT_EQ(money("-0.0049"), "0,00");
  EXPECT_EQ(money("-0.005"), "-0,01");
}

TEST(Format, WithoutAZeroBeforeTheMarkNothingStandsThereBelowOne) {
  EXPECT_EQ(money("0.5", "#,##.00"), ",50");
  EXPECT_EQ(money("0", "#,##.00"), ",00");
  EXPECT_EQ(money("1234.5", "#,##.00"), "1.234,50");
  EXPECT_EQ(money("12.6", "0"), "13");
}

TEST(Format, WholeNumbersArePaddedToTheirZerosAndGrow) {
  EXPECT_EQ(formatNumber(std::int64_t{12}, "######000000"), "000012");
  EXPECT_EQ(formatNumber(std::int64_t{1234567}, "######000000"), "1234567");
  EXPECT_EQ(formatNumber(std::int64_t{3}, "###000"), "003");
  EXPECT_EQ(formatNumber(std::int64_t{3}, "##00"), "03");
  EXPECT_EQ(formatNumber(std::int64_t{1000}, "##00"), "1000");
  EXPECT_EQ(formatNumber(std::int64_t{7}, "00000"), "00007");
}

TEST(Format, TheLargestAmountsKeepEveryDigit) {
  EXPECT_EQ(formatNumber(Currency::fromUnits(std::numeric_limits<std::int64_t>::max())), "922.337.203.685.477,58");
  EXPECT_EQ(formatNumber(Currency::fromUnits(std::numeric_limits<std::int64_t>::min())), "-922.337.203.685.477,58");
}

}  // namespace
}  // namespace fenvale
