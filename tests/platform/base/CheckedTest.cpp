#include "platform/base/Checked.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/base/Error.h"

namespace fenvale {
namespace {

template <typename Action>
void expectOverflow(Action action) {
  try {
    action();
    FAIL() << "no overflow";
  } catch (const Error& error) {
    EXPECT_EQ(error.number, errors::overflow);
  }
}

TEST(Checked, NarrowingKeepsTheLimitsAndRefusesWhatLiesBeyond) {
  EXPECT_EQ(toInt16(32767), 32767);
  EXPECT_EQ(toInt16(-32768), -32768);
  expectOverflow([] { (void)toInt16(32768); });
  expectOverflow([] { (void)toInt16(-32769); });
  EXPECT_EQ(toInt32(2147483647), 2147483647);
  expectOverflow([] { (void)toInt32(2147483648); });
  expectOverflow([] { (void)toInt32(-2147483649); });
}

TEST(Checked, ATieGoesToTheEvenNumber) {
  EXPECT_EQ(roundToInt16(2.5), 2);
  EXPECT_EQ(roundToInt16(3.5), 4);
  EXPECT_EQ(roundToInt16(-2.5), -2);
  EXPECT_EQ(roundToInt16(-0.5), 0);
  EXPECT_EQ(roundToInt16(2.4999), 2);
  EXPECT_EQ(roundToInt32(2.7), 3);
  EXPECT_EQ(roundToInt16(32767.4), 32767);
  expectOverflow([] { (void)roundToInt16(32767.5); });
  expectOverflow([] { (void)roundToInt16(std::numeric_limits<double>::quiet_NaN()); });
  expectOverflow([] { (void)roundToInt32(2147483647.5); });
}

TEST(Checked, ArithmeticNeverWraps) {
  constexpr auto most = std::numeric_limits<std::int64_t>::max();
  constexpr auto least = std::numeric_limits<std::int64_t>::min();
  EXPECT_EQ(addChecked(most - 1, 1), most);
  expectOverflow([] { (void)addChecked(most, 1); });
  expectOverflow([] { (void)subtractChecked(least, 1); });
  expectOverflow([] { (void)multiplyChecked(most, 2); });
  EXPECT_EQ(multiplyChecked(-4, 5), -20);
}

TEST(Checked, ANumberIsReadAsFarAsATextHoldsOne) {
  EXPECT_EQ(readInt32("00000123"), 123);
  EXPECT_EQ(readInt32("  42 itens"), 42);
  EXPECT_EQ(readInt32("00000 123"), 123);
  EXPECT_EQ(readInt32("-7"), -7);
  EXPECT_EQ(readInt32(""), 0);
  EXPECT_EQ(readInt32("abc"), 0);
  EXPECT_EQ(readInt32("-"), 0);
  EXPECT_EQ(readInt32("2147483647"), 2147483647);
  EXPECT_EQ(readInt32("-2147483648"), std::numeric_limits<std::int32_t>::min());
  expectOverflow([] { (void)readInt32("2147483648"); });
  expectOverflow([] { (void)readInt32("99999999999999999999999999"); });
}

}  // namespace
}  // namespace fenvale
