// Late interest on 10 May 2026.

#include "titles/services/Juros.h"

#include "platform/base/Error.h"
#include "titles/Cenario.h"

namespace fenvale {
namespace {

class JurosTest : public testing::Test {
 protected:
  void taxas(const std::string& dia, const std::string& mes) {
    cenario.programa.executarPrograma("UPDATE Sistema SET fPercentualJurosDia = " + dia +
                                      ", fPercentualJurosMes = " + mes);
  }
  Currency juros(std::string_view valor, int diasDeAtraso) {
    return calculo.fCalcularJuros(reais(valor), data("10/05/2026") - std::chrono::days(diasDeAtraso), reais("7,00"));
  }

  Cenario cenario{ladoReceber()};
  TestHost& host = cenario.programa.hostDeTeste();
  Juros calculo{cenario.programa};
};

TEST_F(JurosTest, ThousandReaisFortyDaysLate) { EXPECT_EQ(juros("1.000,00", 40), reais("60,80")); }

TEST_F(JurosTest, ATitleThatIsNotOverdueKeepsItsInterestAndTheUserIsTold) {
  const MessageBox caixa = aviso("Este título ainda não venceu, portanto os juros não podem ser calculados.");
  host.expectBox(caixa);
  EXPECT_EQ(juros("1.000,00", 0), reais("7,00"));
  host.expectBox(caixa);
  EXPECT_EQ(juros("1.000,00", -1), reais("7,00"));
  host.verify();
}

TEST_F(JurosTest, OneDayLateHasTheDailyPartOnly) { EXPECT_EQ(juros("1.000,00", 1), reais("1,00")); }

TEST_F(JurosTest, WithoutRatesAYearLateCostsNothing) {
  taxas("0", "0");
  EXPECT_EQ(juros("1.000,00", 365), Currency());
}

TEST_F(JurosTest, TheMonthlyRateAlone) {
  taxas("0", "2");
  EXPECT_EQ(juros("100,00", 30), reais("2,00"));
}

TEST_F(JurosTest, TheDailyRateAlone) {
  taxas("1", "0");
  EXPECT_EQ(juros("100,00", 100), reais("100,00"));
}

TEST_F(JurosTest, PeriodsAreRoundedToTheNearestATieToTheEven) {
  taxas("0", "1");
  const std::vector<std::pair<int, const char*>> esperados{{1, "0,00"},   {14, "0,00"},  {15, "0,00"},  {16, "1,00"},
                                                           {44, "1,00"},  {45, "2,00"},  {46, "2,00"},  {74, "2,00"},
                                                           {75, "2,00"},  {76, "3,00"},  {104, "3,00"}, {105, "4,00"},
                                                           {106, "4,00"}, {135, "4,00"}, {136, "5,00"}};
  for (const auto& [dias, esperado] : esperados) EXPECT_EQ(juros("100,00", dias), reais(esperado)) << dias << " days";
}

TEST_F(JurosTest, FifteenDaysLateHaveNoMonthlyPartWhateverTheRate) {
  taxas("0", "50");
  EXPECT_EQ(juros("100,00", 15), Currency());
  EXPECT_EQ(juros("100,00", 16), reais("50,00"));
}

TEST_F(JurosTest, TheDailyPartIsRoundedToFourDecimalsBeforeTheMonthlyPart) {
  taxas("0.033", "2");
  // jd = round4(333,33 x 0,00033 x 31) = 3,41; 3,41 + 336,74 x 0,02
  EXPECT_EQ(juros("333,33", 31), reais("10,1448"));
  taxas("0.1", "0.75");
  // jd = round4(832,13 x 0,001 x 115) = round4(95,69495) = 95,6950; unrounded the end would be 123,5297
  EXPECT_EQ(juros("832,13", 115), reais("123,5298"));
}

/// The last decimal of a tie hangs on the order in which the doubles are multiplied.
TEST_F(JurosTest, TheRateIsAFractionFirstAndThePeriodsComeLast) {
  taxas("0.1", "2");
  EXPECT_EQ(juros("371,27", 135), reais("83,8327"));
  taxas("0.05", "2.5");
  EXPECT_EQ(juros("236,49", 192), reais("61,5820"));
  taxas("0.25", "2.5");
  EXPECT_EQ(juros("464,52", 100), reais("159,6787"));
}

TEST_F(JurosTest, NegativeRatesAreNoRates) {
  taxas("-1", "-2");
  EXPECT_EQ(juros("100,00", 60), Currency());
}

TEST_F(JurosTest, RatesAreReadAtEveryCall) {
  EXPECT_EQ(juros("1.000,00", 1), reais("1,00"));
  taxas("0.2", "2");
  EXPECT_EQ(juros("1.000,00", 1), reais("2,00"));
}

TEST_F(JurosTest, WithoutTheFirmsSettingsThereIsNoInterest) {
  cenario.programa.executarPrograma("UPDATE Sistema SET fPercentualJurosDia = NULL, fPercentualJurosMes = NULL");
  EXPECT_EQ(juros("1.000,00", 60), Currency());
  cenario.programa.executarPrograma("DELETE * FROM Sistema");
  EXPECT_EQ(juros("1.000,00", 60), Currency());
}

TEST_F(JurosTest, TooManyPeriodsAreAnOverflow) {
  EXPECT_NO_THROW(juros("0,01", 32767 * 30));
  try {
    juros("0,01", 32767 * 30 + 16);
    FAIL();
  } catch (const Error& falha) {
    EXPECT_EQ(falha.number, errors::overflow);
  }
}

}  // namespace
}  // namespace fenvale
