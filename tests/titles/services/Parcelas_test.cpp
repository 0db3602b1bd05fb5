// The arithmetic of titles: codes, splits, series, and what a payment above the value means.

#include "titles/services/Parcelas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

#include "platform/base/Error.h"
#include "titles/Cenario.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Currency soma(const std::vector<Currency>& partes) { return std::accumulate(partes.begin(), partes.end(), Currency()); }

TEST(CodigoTitulo, PadsTheInvoiceToSixDigitsAndTheInstalmentToThree) {
  EXPECT_EQ(sCodigoTitulo(123, 2), "000123/002");
  EXPECT_EQ(sCodigoTitulo(1, 1), "000001/001");
  EXPECT_EQ(sCodigoTitulo(999999, 999), "999999/999");
}

TEST(CodigoTitulo, LongerNumbersGrow) {
  EXPECT_EQ(sCodigoTitulo(1000123, 2), "1000123/002");
  EXPECT_EQ(sCodigoTitulo(2147483647, 32767), "2147483647/32767");
}

TEST(CodigoTitulo, TheAddedTitleKeepsThreeDigits) {
  EXPECT_EQ(sCodigoTituloAcrescentado(123, 4), "000123/004");
  EXPECT_EQ(sCodigoTituloAcrescentado(123, 999), "000123/999");
  EXPECT_EQ(sCodigoTituloAcrescentado(123, 1000), "000123/100");
  EXPECT_EQ(sCodigoTituloAcrescentado(123, 12345), "000123/123");
}

TEST(CodigoTitulo, TheComplementKeepsTwoDigits) {
  EXPECT_EQ(sCodigoComplemento(123, 1), "000123/R01");
  EXPECT_EQ(sCodigoComplemento(123, 11), "000123/R11");
  EXPECT_EQ(sCodigoComplemento(123, 99), "000123/R99");
  EXPECT_EQ(sCodigoComplemento(123, 100), "000123/R10");
  EXPECT_EQ(sCodigoComplemento(1000123, 1), "1000123/R01");
}

TEST(Repartir, TheCentsOfTheRoundingFallOnTheLast) {
  EXPECT_THAT(repartir(reais("100,00"), 3), ElementsAre(reais("33,33"), reais("33,33"), reais("33,34")));
  EXPECT_THAT(repartir(reais("200,00"), 3), ElementsAre(reais("66,67"), reais("66,67"), reais("66,66")));
}

TEST(Repartir, OneShareIsTheWholeAndNoTitleTakesNothing) {
  EXPECT_THAT(repartir(reais("33,3333"), 1), ElementsAre(reais("33,3333")));
  EXPECT_THAT(repartir(reais("10,00"), 0), IsEmpty());
}

TEST(Repartir, ATieGoesToTheEvenCent) {
  EXPECT_THAT(repartir(reais("0,25"), 2), ElementsAre(reais("0,12"), reais("0,13")));
  EXPECT_THAT(repartir(reais("0,75"), 2), ElementsAre(reais("0,38"), reais("0,37")));
}

TEST(Repartir, ADebtSplitsAsACreditDoes) {
  EXPECT_THAT(repartir(reais("-20,00"), 2), ElementsAre(reais("-10,00"), reais("-10,00")));
  EXPECT_THAT(repartir(reais("-0,01"), 2), ElementsAre(Currency(), reais("-0,01")));
}

TEST(Repartir, SharesAddUpAndAllButTheLastAreEqualWholeCents) {
  std::mt19937 acaso(20261120);
  std::uniform_int_distribution<std::int64_t> valores(-90'000'000'000, 90'000'000'000);
  std::uniform_int_distribution<std::int32_t> quantidades(1, 400);
  for (int vez = 0; vez < 5000; ++vez) {
    const Currency fValor = Currency::fromUnits(valores(acaso));
    const auto partes = repartir(fValor, quantidades(acaso));
    ASSERT_EQ(soma(partes), fValor) << fValor.toDecimal() << " / " << partes.size();
    for (std::size_t i = 0; i + 1 < partes.size(); ++i) {
      ASSERT_EQ(partes[i], partes.front());
      ASSERT_EQ(partes[i].units() % 100, 0);
    }
  }
}

DadosSerie serie(std::string_view total, std::int16_t parcelas, std::int16_t intervalo,
                 std::string_view entrada = "0,00") {
  DadosSerie dados{makeDate(2026, 3, 1), reais(total), reais(entrada), parcelas, intervalo, entrada != "0,00"};
  return dados;
}

TituloDaSerie titulo(int mes, unsigned dia, std::string_view valor, std::string_view pago = "0,00") {
  return {makeDate(2026, static_cast<unsigned>(mes), dia), reais(valor), reais(pago)};
}

TEST(SerieTitulos, ThreeInstalmentsWithoutEntry) {
  EXPECT_THAT(serieTitulos(serie("100,00", 3, 30)),
              ElementsAre(titulo(3, 31, "33,33"), titulo(4, 30, "33,33"), titulo(5, 30, "33,34")));
}

TEST(SerieTitulos, TheEntryIsPaidOnTheDayOfEmission) {
  EXPECT_THAT(serieTitulos(serie("100,00", 3, 30, "10,00")),
              ElementsAre(titulo(3, 1, "10,00", "10,00"), titulo(3, 31, "45,00"), titulo(4, 30, "45,00")));
}

TEST(SerieTitulos, OneInstalment) {
  EXPECT_THAT(serieTitulos(serie("250,00", 1, 30)), ElementsAre(titulo(3, 31, "250,00")));
  EXPECT_THAT(serieTitulos(serie("250,00", 1, 0)), ElementsAre(titulo(3, 1, "250,00")));
}

TEST(SerieTitulos, OneInstalmentWithEntryIsTheEntryAlone) {
  EXPECT_THAT(serieTitulos(serie("250,00", 1, 30, "40,00")), ElementsAre(titulo(3, 1, "40,00", "40,00")));
}

TEST(SerieTitulos, TwoInstalmentsWithEntryLeaveTheRestToOne) {
  EXPECT_THAT(serieTitulos(serie("100,00", 2, 15, "30,01")),
              ElementsAre(titulo(3, 1, "30,01", "30,01"), titulo(3, 16, "69,99")));
}

TEST(SerieTitulos, WithoutIntervalAllFallDueTogether) {
  EXPECT_THAT(serieTitulos(serie("10,00", 3, 0)),
              ElementsAre(titulo(3, 1, "3,33"), titulo(3, 1, "3,33"), titulo(3, 1, "3,34")));
}

TEST(SerieTitulos, AnEntryOfTheWholeTotalLeavesEmptyTitles) {
  EXPECT_THAT(serieTitulos(serie("90,00", 3, 30, "90,00")),
              ElementsAre(titulo(3, 1, "90,00", "90,00"), titulo(3, 31, "0,00"), titulo(4, 30, "0,00")));
}

TEST(SerieTitulos, AnEntryWithoutAValueStillStandsForTheFirstTitle) {
  DadosSerie dados = serie("90,00", 3, 30);
  dados.bEntrada = true;
  EXPECT_THAT(serieTitulos(dados), ElementsAre(titulo(3, 1, "45,00"), titulo(3, 31, "45,00"), titulo(4, 30, "0,00")));
}

TEST(SerieTitulos, DaysAreCountedThroughLeapYears) {
  DadosSerie dados = serie("20,00", 2, 30);
  dados.dtEmissao = makeDate(2028, 1, 31);
  const auto titulos = serieTitulos(dados);
  EXPECT_EQ(formatDate(titulos[0].dtVencimento), "01/03/2028");
  EXPECT_EQ(formatDate(titulos[1].dtVencimento), "31/03/2028");
}

TEST(SerieTitulos, BeyondTheCalendarIsAnOverflow) {
  DadosSerie dados = serie("20,00", 2, 32767);
  dados.dtEmissao = makeDate(9990, 1, 1);
  try {
    serieTitulos(dados);
    FAIL() << "a due date beyond the year 9999";
  } catch (const Error& falha) {
    EXPECT_EQ(falha.number, errors::overflow);
  }
}

TEST(SerieTitulos, TitlesAddUpToTheTotalAndDatesAreAChain) {
  std::mt19937 acaso(7);
  std::uniform_int_distribution<std::int64_t> centavos(1, 100'000'000);
  std::uniform_int_distribution<int> parcelas(1, 60), intervalos(0, 90), sorteio(0, 1);
  for (int vez = 0; vez < 3000; ++vez) {
    DadosSerie dados;
    dados.dtEmissao = makeDate(2026, 1, 15);
    dados.fTotal = Currency::fromUnits(centavos(acaso) * 100);
    dados.iNumeroParcelas = static_cast<std::int16_t>(parcelas(acaso));
    dados.iIntervalo = static_cast<std::int16_t>(intervalos(acaso));
    dados.bEntrada = sorteio(acaso) == 1 && dados.iNumeroParcelas > 1;
    if (dados.bEntrada) dados.fEntrada = Currency::fromUnits((centavos(acaso) * 100) % dados.fTotal.units() + 1);
    const auto titulos = serieTitulos(dados);
    ASSERT_EQ(titulos.size(), static_cast<std::size_t>(dados.iNumeroParcelas));
    Currency fSoma;
    for (std::size_t i = 0; i < titulos.size(); ++i) {
      fSoma += titulos[i].fValor;
      const auto passos = static_cast<int>(i) + (dados.bEntrada ? 0 : 1);
      ASSERT_EQ(daysBetween(dados.dtEmissao, titulos[i].dtVencimento), passos * dados.iIntervalo);
      ASSERT_EQ(titulos[i].fValorPago, i == 0 && dados.bEntrada ? dados.fEntrada : Currency());
    }
    ASSERT_EQ(fSoma, dados.fTotal);
  }
}

TEST(Excesso, InterestAndDiscountCount) {
  EXPECT_FALSE(bHaExcesso(reais("100,00"), reais("100,00"), {}, {}));
  EXPECT_TRUE(bHaExcesso(reais("100,00"), reais("100,01"), {}, {}));
  EXPECT_FALSE(bHaExcesso(reais("100,00"), reais("105,00"), reais("5,00"), {}));
  EXPECT_TRUE(bHaExcesso(reais("100,00"), reais("105,00"), reais("4,99"), {}));
  EXPECT_TRUE(bHaExcesso(reais("100,00"), reais("95,00"), {}, reais("5,01")));
  EXPECT_FALSE(bHaExcesso(reais("100,00"), {}, {}, reais("100,00")));
}

TEST(Excesso, ItsFourEnds) {
  EXPECT_EQ(classificarExcesso(reais("150,00"), reais("300,00"), 1), Excesso::semOutrosTitulos);
  EXPECT_EQ(classificarExcesso(reais("150,00"), reais("300,00"), 0), Excesso::semOutrosTitulos);
  EXPECT_EQ(classificarExcesso(reais("300,01"), reais("300,00"), 2), Excesso::acimaDoRestante);
  EXPECT_EQ(classificarExcesso(reais("300,00"), reais("300,00"), 2), Excesso::pagaFatura);
  EXPECT_EQ(classificarExcesso(reais("299,99"), reais("300,00"), 3), Excesso::abateTitulos);
}

}  // namespace
}  // namespace fenvale
