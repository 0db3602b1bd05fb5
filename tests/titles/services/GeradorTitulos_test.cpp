// What writes titles, on each side of the ledger.

#include "titles/services/GeradorTitulos.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/base/Error.h"
#include "titles/Cenario.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class GeradorTitulosTest : public testing::TestWithParam<EscolhaDeLado> {
 protected:
  DadosSerie dados(std::string_view total, const Condicao& condicao = tresVezes, std::string_view entrada = "0,00") {
    return {data("01/03/2026"),
            reais(total),
            reais(entrada),
            static_cast<std::int16_t>(condicao.parcelas),
            static_cast<std::int16_t>(condicao.intervalo),
            condicao.entrada};
  }
  std::string campo(const std::string& coluna, const std::string& codigo) {
    return cenario.valor("SELECT " + coluna + " FROM " + cenario.lado.sTitulos + " WHERE sCodigoInf = '" + codigo +
                         "'");
  }

  Cenario cenario{GetParam()()};
  const Lado& lado = cenario.lado;
  GeradorTitulos gerador{cenario.programa, lado};
  std::int32_t fatura = 0;
};

TEST_P(GeradorTitulosTest, ANewInvoiceIsTheOneWithTheHighestKey) {
  cenario.inserirFatura("10,00");
  const int nova = cenario.inserirFatura("100,00");
  fatura = -1;
  gerador.vCriarTitulosFatura(fatura, dados("100,00"));
  EXPECT_EQ(fatura, nova);
  EXPECT_THAT(cenario.titulos(nova),
              ElementsAre("000002/001 31/03/2026 33,33 pago 0,00", "000002/002 30/04/2026 33,33 pago 0,00",
                          "000002/003 30/05/2026 33,34 pago 0,00"));
}

TEST_P(GeradorTitulosTest, AllColumnsOfAGeneratedTitle) {
  fatura = cenario.inserirFatura("100,00", tresComEntrada);
  gerador.vCriarTitulosFatura(fatura, dados("100,00", tresComEntrada, "10,00"));
  EXPECT_THAT(cenario.titulos(fatura),
              ElementsAre("000001/001 01/03/2026 10,00 pago 10,00", "000001/002 31/03/2026 45,00 pago 0,00",
                          "000001/003 30/04/2026 45,00 pago 0,00"));
  EXPECT_EQ(campo("FORMAT(dtPagamento, 'dd/mm/yyyy')", "000001/001"), "01/03/2026");
  EXPECT_EQ(campo("FORMAT(dtPagamento, 'dd/mm/yyyy')", "000001/002"), "31/03/2026");
  for (const char* coluna : {"fJuros", "fDesconto", "lNF"}) EXPECT_EQ(campo(coluna, "000001/002"), "0") << coluna;
  EXPECT_EQ(campo("IIF(sObs = '', 'vazio', 'outro')", "000001/002"), "vazio");
  if (lado.bFilial) {
    EXPECT_EQ(campo("IIF(ISNULL(sFilial), '', sFilial)", "000001/002"), "");
  }
}

TEST_P(GeradorTitulosTest, TheSeriesReplacesWhatWasThere) {
  fatura = cenario.inserirFatura("100,00");
  const int outra = cenario.inserirFatura("100,00");
  cenario.inserirTitulo(fatura, "000001/001", "60,00", "60,00");
  cenario.inserirTitulo(fatura, "000001/R01", "40,00");
  cenario.inserirTitulo(outra, "000002/001", "100,00");
  gerador.vCriarTitulosFatura(fatura, dados("100,00", umaVez));
  EXPECT_THAT(cenario.titulos(fatura), ElementsAre("000001/001 31/03/2026 100,00 pago 0,00"));
  EXPECT_THAT(cenario.titulos(outra), SizeIs(1));
}

TEST_P(GeradorTitulosTest, ReworkingANewInvoiceOrOneWithoutTitlesMakesTheSeries) {
  const int nova = cenario.inserirFatura("100,00");
  fatura = -1;
  gerador.vReajustarTitulosFatura(fatura, dados("100,00"));
  EXPECT_EQ(fatura, nova);
  EXPECT_THAT(cenario.titulos(nova), SizeIs(3));
  cenario.executar("DELETE * FROM " + lado.sTitulos);
  gerador.vReajustarTitulosFatura(fatura, dados("100,00", duasVezes));
  EXPECT_THAT(cenario.titulos(nova), SizeIs(2));
}

TEST_P(GeradorTitulosTest, ReworkingSpreadsWhatIsOpenOverTheUnpaidTitles) {
  fatura = cenario.inserirFatura("200,00");
  cenario.inserirTitulo(fatura, "000001/001", "33,33", "33,33", "03/31/2026");
  cenario.inserirTitulo(fatura, "000001/002", "33,33", "0,00", "04/30/2026");
  cenario.inserirTitulo(fatura, "000001/003", "33,34", "0,00", "05/30/2026");
  cenario.inserirTitulo(fatura, "000001/R01", "5,00", "0,00", "06/01/2026");
  gerador.vReajustarTitulosFatura(fatura, dados("200,00"));
  EXPECT_THAT(cenario.titulos(fatura),
              ElementsAre("000001/001 31/03/2026 33,33 pago 33,33", "000001/002 30/04/2026 55,56 pago 0,00",
                          "000001/003 30/05/2026 55,56 pago 0,00", "000001/R01 01/06/2026 55,55 pago 0,00"));
}

TEST_P(GeradorTitulosTest, TheOnlyUnpaidTitleTakesTheWholeOpenAmount) {
  fatura = cenario.inserirFatura("150,00");
  cenario.inserirTitulo(fatura, "000001/001", "50,00", "50,00");
  cenario.inserirTitulo(fatura, "000001/002", "50,00");
  gerador.vReajustarTitulosFatura(fatura, dados("150,00"));
  EXPECT_THAT(cenario.titulos(fatura),
              ElementsAre("000001/001 31/03/2026 50,00 pago 50,00", "000001/002 31/03/2026 100,00 pago 0,00"));
}

TEST_P(GeradorTitulosTest, AGrownInvoiceThatWasPaidGetsOneMoreTitleDueToday) {
  fatura = cenario.inserirFatura("150,00");
  cenario.inserirTitulo(fatura, "000001/001", "50,00", "50,00");
  cenario.inserirTitulo(fatura, "000001/002", "50,00", "50,00");
  gerador.vReajustarTitulosFatura(fatura, dados("150,00"));
  EXPECT_THAT(cenario.titulos(fatura),
              ElementsAre("000001/001 31/03/2026 50,00 pago 50,00", "000001/002 31/03/2026 50,00 pago 50,00",
                          "000001/003 10/05/2026 50,00 pago 0,00"));
  EXPECT_EQ(campo("FORMAT(dtPagamento, 'dd/mm/yyyy')", "000001/003"), "10/05/2026");
}

TEST_P(GeradorTitulosTest, TheThousandthTitleIsAddedUnderItsFirstThreeDigits) {
  fatura = cenario.inserirFatura("1.000,00");
  cenario.programa.dbEmpresa().Dados().beginTrans();
  for (int i = 1; i <= 999; ++i)
    if (i != 100) cenario.inserirTitulo(fatura, sCodigoTitulo(fatura, i), "1,00", "1,00");
  cenario.inserirTitulo(fatura, "avulso", "1,00", "0,50");
  gerador.vReajustarTitulosFatura(fatura, dados("1.000,00"));
  cenario.programa.dbEmpresa().Dados().commitTrans();
  EXPECT_EQ(campo("fValor", "000001/100"), "1.5");
}

TEST_P(GeradorTitulosTest, PayingTheInvoiceGivesEveryOpenTitleTheSameAmount) {
  fatura = cenario.inserirFatura("300,00");
  cenario.inserirTitulo(fatura, "000001/001", "100,00", "90,00");
  cenario.inserirTitulo(fatura, "000001/002", "110,00", "0,00", "04/30/2026");
  cenario.inserirTitulo(fatura, "000001/003", "90,00", "0,00", "05/30/2026");
  gerador.vPagarTitulosFatura(fatura, reais("110,00"));
  EXPECT_THAT(cenario.titulos(fatura),
              ElementsAre("000001/001 31/03/2026 100,00 pago 90,00", "000001/002 30/04/2026 110,00 pago 110,00",
                          "000001/003 30/05/2026 90,00 pago 110,00"));
  EXPECT_EQ(campo("FORMAT(dtPagamento, 'dd/mm/yyyy')", "000001/003"), "30/05/2026");
}

TEST_P(GeradorTitulosTest, AnExcessLevelsTheOtherOpenTitles) {
  fatura = cenario.inserirFatura("300,00");
  const int primeiro = cenario.inserirTitulo(fatura, "000001/001", "100,00", "150,00");
  cenario.inserirTitulo(fatura, "000001/002", "120,00");
  cenario.inserirTitulo(fatura, "000001/003", "80,00");
  gerador.vAbaterTitulos(fatura, primeiro);
  EXPECT_THAT(cenario.titulos(fatura),
              ElementsAre("000001/001 31/03/2026 100,00 pago 150,00", "000001/002 31/03/2026 75,00 pago 0,00",
                          "000001/003 31/03/2026 75,00 pago 0,00"));
}

TEST_P(GeradorTitulosTest, LevellingWithoutOtherOpenTitlesDoesNothing) {
  fatura = cenario.inserirFatura("100,00");
  const int unico = cenario.inserirTitulo(fatura, "000001/001", "100,00");
  gerador.vAbaterTitulos(fatura, unico);
  EXPECT_THAT(cenario.titulos(fatura), ElementsAre("000001/001 31/03/2026 100,00 pago 0,00"));
}

TEST_P(GeradorTitulosTest, TheRestOfAPartialPaymentGoesOnInAComplement) {
  fatura = cenario.inserirFatura("100,00");
  gerador.vCriarTituloComplementar(fatura, data("31/03/2026"), reais("100,00"), reais("60,00"));
  gerador.vCriarTituloComplementar(fatura, data("31/03/2026"), reais("40,00"), reais("0,0001"));
  EXPECT_THAT(cenario.titulos(fatura),
              ElementsAre("000001/R01 31/03/2026 40,00 pago 0,00", "000001/R02 31/03/2026 40,00 pago 0,00"));
  EXPECT_EQ(campo("fValor", "000001/R02"), "39.9999");
  EXPECT_EQ(campo("FORMAT(dtPagamento, 'dd/mm/yyyy')", "000001/R01"), "10/05/2026");
  if (lado.bFilial) {
    EXPECT_EQ(campo("IIF(ISNULL(sFilial), '', sFilial)", "000001/R01"), "");
  }
}

TEST_P(GeradorTitulosTest, NoComplementWithoutAPaymentOrWithoutARest) {
  fatura = cenario.inserirFatura("100,00");
  gerador.vCriarTituloComplementar(fatura, data("31/03/2026"), reais("100,00"), Currency());
  gerador.vCriarTituloComplementar(fatura, data("31/03/2026"), reais("100,00"), reais("100,00"));
  gerador.vCriarTituloComplementar(fatura, data("31/03/2026"), reais("100,00"), reais("105,00"));
  gerador.vCriarTituloComplementar(fatura, data("31/03/2026"), reais("100,00"), reais("-5,00"));
  EXPECT_THAT(cenario.titulos(fatura), IsEmpty());
}

TEST_P(GeradorTitulosTest, ElevenComplementsAndTheHundredthWhichTheStoreRefuses) {
  fatura = cenario.inserirFatura("100,00");
  for (int vez = 1; vez <= 99; ++vez)
    gerador.vCriarTituloComplementar(fatura, data("31/03/2026"), reais("100,00"), reais("60,00"));
  EXPECT_THAT(cenario.titulos(fatura), SizeIs(99));
  EXPECT_EQ(campo("sCodigoInf", "000001/R11"), "000001/R11");
  try {
    gerador.vCriarTituloComplementar(fatura, data("31/03/2026"), reais("100,00"), reais("60,00"));
    FAIL() << "000001/R10 a second time";
  } catch (const Error& falha) {
    EXPECT_EQ(falha.number, errors::refused);
  }
}

TEST_P(GeradorTitulosTest, ARaisedTitleIsTakenOffTheOthers) {
  fatura = cenario.inserirFatura("300,00");
  const int primeiro = cenario.inserirTitulo(fatura, "000001/001", "120,00");
  cenario.inserirTitulo(fatura, "000001/002", "100,00");
  cenario.inserirTitulo(fatura, "000001/003", "100,00");
  cenario.inserirTitulo(fatura, "000001/004", "100,00", "100,00");
  EXPECT_EQ(gerador.reajustarTitulos(fatura, primeiro, reais("100,00"), reais("120,00")), Reajuste::feito);
  EXPECT_THAT(cenario.titulos(fatura),
              ElementsAre("000001/001 31/03/2026 120,00 pago 0,00", "000001/002 31/03/2026 90,00 pago 0,00",
                          "000001/003 31/03/2026 90,00 pago 0,00", "000001/004 31/03/2026 100,00 pago 100,00"));
}

TEST_P(GeradorTitulosTest, ALoweredTitleIsSpreadOverTheOthersTheCentsOnTheLast) {
  fatura = cenario.inserirFatura("400,00");
  const int primeiro = cenario.inserirTitulo(fatura, "000001/001", "90,00");
  for (const char* codigo : {"000001/002", "000001/003", "000001/004"}) cenario.inserirTitulo(fatura, codigo, "100,00");
  EXPECT_EQ(gerador.reajustarTitulos(fatura, primeiro, reais("100,00"), reais("90,00")), Reajuste::feito);
  EXPECT_THAT(cenario.titulos(fatura),
              ElementsAre("000001/001 31/03/2026 90,00 pago 0,00", "000001/002 31/03/2026 103,33 pago 0,00",
                          "000001/003 31/03/2026 103,33 pago 0,00", "000001/004 31/03/2026 103,34 pago 0,00"));
}

TEST_P(GeradorTitulosTest, WithoutOtherOpenTitlesNothingTakesTheDifference) {
  fatura = cenario.inserirFatura("200,00");
  const int primeiro = cenario.inserirTitulo(fatura, "000001/001", "120,00");
  cenario.inserirTitulo(fatura, "000001/002", "100,00", "100,00");
  EXPECT_EQ(gerador.reajustarTitulos(fatura, primeiro, reais("100,00"), reais("120,00")), Reajuste::semTitulosAbertos);
}

TEST_P(GeradorTitulosTest, NoTitleFallsToZero) {
  fatura = cenario.inserirFatura("300,00");
  const int primeiro = cenario.inserirTitulo(fatura, "000001/001", "300,00");
  cenario.inserirTitulo(fatura, "000001/002", "150,00");
  cenario.inserirTitulo(fatura, "000001/003", "100,00");
  EXPECT_EQ(gerador.reajustarTitulos(fatura, primeiro, reais("100,00"), reais("300,00")), Reajuste::semSaldo);
}

TEST_P(GeradorTitulosTest, AnAmountPaidBelowZeroIsNoPayment) {
  fatura = cenario.inserirFatura("300,00");
  cenario.inserirTitulo(fatura, "000001/001", "100,00", "100,00");
  cenario.inserirTitulo(fatura, "000001/002", "100,00", "-1,00");
  const int terceiro = cenario.inserirTitulo(fatura, "000001/003", "100,00");
  gerador.vReajustarTitulosFatura(fatura, dados("300,00"));
  EXPECT_THAT(cenario.titulos(fatura),
              ElementsAre("000001/001 31/03/2026 100,00 pago 100,00", "000001/002 31/03/2026 100,50 pago -1,00",
                          "000001/003 31/03/2026 100,50 pago 0,00"));
  EXPECT_EQ(gerador.reajustarTitulos(fatura, terceiro, reais("100,50"), reais("90,50")), Reajuste::feito);
  EXPECT_EQ(cenario.titulos(fatura).at(1), "000001/002 31/03/2026 110,50 pago -1,00");
  gerador.vPagarTitulosFatura(fatura, reais("50,00"));
  EXPECT_EQ(cenario.titulos(fatura).at(1), "000001/002 31/03/2026 110,50 pago 50,00");
}

TEST_P(GeradorTitulosTest, TheSumPaid) {
  fatura = cenario.inserirFatura("300,00");
  EXPECT_EQ(gerador.fGetValorPago(-1), Currency());
  cenario.inserirTitulo(fatura, "000001/001", "100,00", "150,00");
  cenario.inserirTitulo(fatura, "000001/002", "100,00", "20,25");
  EXPECT_EQ(gerador.fGetValorPago(fatura), reais("170,25"));
}

TEST_P(GeradorTitulosTest, BothListsOpenOnTheirSide) {
  fatura = cenario.inserirFatura("100,00");
  gerador.vCriarTitulosFatura(fatura, dados("100,00"));
  EXPECT_THAT(cenario.programa.linhas(lado.faturas.sSelecao + " ORDER BY lNumeroFatura "), SizeIs(1));
  EXPECT_THAT(cenario.programa.linhas(lado.titulos.sSelecao + "WHERE (fValorPago <= 0)  ORDER BY sCodigoInf "),
              SizeIs(3));
}

INSTANTIATE_TEST_SUITE_P(Lados, GeradorTitulosTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

}  // namespace
}  // namespace fenvale
