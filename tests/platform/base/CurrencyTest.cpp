#include "platform/base/Currency.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "platform/base/Checked.h"
#include "platform/base/Error.h"

namespace fenvale {
namespace {

constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();

template <typename Action>
std::int32_t failure(Action action) {
  try {
    action();
  } catch (const Error& error) {
    return error.number;
  }
  return 0;
}

std::int64_t unitsOf(double value) { return Currency::fromDouble(value).units(); }

TEST(Currency, FromFloatingPointRoundsHalfToEvenAtTheFourthDecimal) {
  EXPECT_EQ(unitsOf(1.5), 15000);
  EXPECT_EQ(unitsOf(0.03125), 312);
  EXPECT_EQ(unitsOf(0.09375), 938);
  EXPECT_EQ(unitsOf(-0.03125), -312);
  EXPECT_EQ(unitsOf(-0.09375), -938);
  // What counts is the double times 10,000: here 1.4999999999999998.
  EXPECT_EQ(unitsOf(0.00015), 1);
  EXPECT_EQ(unitsOf(1.0 / 3.0), 3333);
  EXPECT_EQ(unitsOf(2.0 / 3.0), 6667);
}

TEST(Currency, WhatDoesNotFitIsAnOverflow) {
  EXPECT_EQ(failure([] { (void)Currency::fromDouble(922337203685478.0); }), errors::overflow);
  EXPECT_EQ(failure([] { (void)Currency::fromDouble(-922337203685478.0); }), errors::overflow);
  EXPECT_EQ(failure([] { (void)Currency::fromDouble(std::nan("")); }), errors::overflow);
  EXPECT_EQ(failure([] { (void)Currency::fromDouble(std::numeric_limits<double>::infinity()); }), errors::overflow);
  EXPECT_EQ(failure([] { (void)Currency::fromInteger(922337203685478); }), errors::overflow);
  EXPECT_EQ(Currency::fromInteger(922337203685477).units(), 9223372036854770000);
  EXPECT_EQ(failure([] { (void)Currency::fromDecimal("922337203685477.5808"); }), errors::overflow);
  EXPECT_EQ(Currency::fromDecimal("922337203685477.5807").units(), most);
  EXPECT_EQ(Currency::fromDecimal("-922337203685477.5808").units(), least);
}

TEST(Currency, ArithmeticIsExactAndChecked) {
  EXPECT_EQ(Currency::fromUnits(1) + Currency::fromUnits(2), Currency::fromUnits(3));
  EXPECT_EQ(Currency::fromUnits(1) - Currency::fromUnits(2), Currency::fromUnits(-1));
  EXPECT_EQ(-Currency::fromUnits(5), Currency::fromUnits(-5));
  EXPECT_EQ(failure([] { (void)(Currency::fromUnits(most) + Currency::fromUnits(1)); }), errors::overflow);
  EXPECT_EQ(failure([] { (void)(Currency::fromUnits(least) - Currency::fromUnits(1)); }), errors::overflow);
  EXPECT_EQ(failure([] { (void)-Currency::fromUnits(least); }), errors::overflow);
  EXPECT_EQ(Currency::fromUnits(most) + Currency::fromUnits(least), Currency::fromUnits(-1));
}

TEST(Currency, AThousandTenthsAreAHundred) {
  Currency sum;
  for (int i = 0; i < 1000; ++i) sum += Currency::fromDouble(0.1);
  EXPECT_EQ(sum, Currency::fromInteger(100));
  for (int i = 0; i < 1000; ++i) sum -= Currency::fromDouble(0.1);
  EXPECT_EQ(sum, Currency());
}

TEST(Currency, PlainTextReadsBackAsTheSameAmount) {
  std::mt19937_64 random(20260315);
  for (int i = 0; i < 10000; ++i) {
    const Currency value = Currency::fromUnits(static_cast<std::int64_t>(random()));
    ASSERT_EQ(Currency::fromDecimal(value.toDecimal()), value) << value.toDecimal();
  }
}

TEST(Currency, PlainTextHasAPointAndNoIdleZeros) {
  EXPECT_EQ(Currency::fromUnits(12345000).toDecimal(), "1234.5");
  EXPECT_EQ(Currency::fromUnits(-1000).toDecimal(), "-0.1");
  EXPECT_EQ(Currency::fromUnits(70000).toDecimal(), "7");
  EXPECT_EQ(Currency::fromUnits(1).toDecimal(), "0.0001");
  EXPECT_EQ(Currency().toDecimal(), "0");
  EXPECT_EQ(Currency::fromUnits(least).toDecimal(), "-922337203685477.5808");
}

TEST(Currency, PlainTextBeyondTheFourthDecimalRoundsHalfToEven) {
  EXPECT_EQ(Currency::fromDecimal("0.00005").units(), 0);
  EXPECT_EQ(Currency::fromDecimal("0.00015").units(), 2);
  EXPECT_EQ(Currency::fromDecimal("0.00025").units(), 2);
  EXPECT_EQ(Currency::fromDecimal("0.0000500001").units(), 1);
  EXPECT_EQ(Currency::fromDecimal("-0.00015").units(), -2);
  EXPECT_EQ(Currency::fromDecimal(" +3.25 ").units(), 32500);
}

TEST(Currency, WhatIsNoNumberIsRefused) {
  for (const char* text : {"", " ", "-", ".", "1.2.3", "1,5", "12a", "--1", "1 2"})
    EXPECT_EQ(failure([text] { (void)Currency::fromDecimal(text); }), errors::typeMismatch) << text;
}

TEST(Currency, BrazilianTextIsReadAsPeopleWriteIt) {
  EXPECT_EQ(Currency::fromBrazilian("1.234,50").units(), 12345000);
  EXPECT_EQ(Currency::fromBrazilian("R$ 1.234,5").units(), 12345000);
  EXPECT_EQ(Currency::fromBrazilian("-3").units(), -30000);
  EXPECT_EQ(Currency::fromBrazilian("1.234").units(), 12340000);
  EXPECT_EQ(Currency::fromBrazilian("12.5").units(), 125000);
  EXPECT_EQ(Currency::fromBrazilian("1.234.567").units(), 12345670000);
  EXPECT_EQ(Currency::fromBrazilian("").units(), 0);
  EXPECT_EQ(Currency::fromBrazilian("R$\xC2\xA0"
                                    "7,00")
                .units(),
            70000);
  EXPECT_EQ(failure([] { (void)Currency::fromBrazilian("dez"); }), errors::typeMismatch);
}

TEST(RoundToCents, TakesTheEvenOneOfTwoNeighbours) {
  EXPECT_EQ(roundToCents(0.125).units(), 1200);
  EXPECT_EQ(roundToCents(0.375).units(), 3800);
  EXPECT_EQ(roundToCents(-0.125).units(), -1200);
  EXPECT_EQ(roundToCents(33.333333).units(), 333300);
  EXPECT_EQ(roundToCents(66.666666).units(), 666700);
}

TEST(RoundToCents, ActsOnTheDoubleTimesAHundred) {
  // 1.005 as a double lies a hair below, but a hundred times it is exactly 100.49999999999999.
  EXPECT_EQ(roundToCents(1.005).units(), 10000);
  // 1.115 times a hundred is 111.50000000000001.
  EXPECT_EQ(roundToCents(1.115).units(), 11200);
}

TEST(RoundToCents, NeverMovesAnAmountByMoreThanHalfACent) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> amounts(-1e9, 1e9);
  for (int i = 0; i < 10000; ++i) {
    const double amount = amounts(random);
    const Currency rounded = roundToCents(amount);
    ASSERT_EQ(rounded.units() % 100, 0) << amount;
    ASSERT_LE(std::abs(rounded.toDouble() - amount), 0.005 + 1e-6) << amount;
    ASSERT_EQ(roundToCents(rounded.toDouble()), rounded) << amount;
  }
}

}  // namespace
}  // namespace fenvale
