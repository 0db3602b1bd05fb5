// The ten questions about invoices and titles, on each side of the ledger.

#include "titles/services/Titulos.h"

#include "platform/base/Error.h"
#include "titles/Cenario.h"

namespace fenvale {
namespace {

class TitulosTest : public testing::TestWithParam<EscolhaDeLado> {
 protected:
  Cenario cenario{GetParam()()};
  const Lado& lado = cenario.lado;
  Titulos titulos{cenario.programa};
};

TEST_P(TitulosTest, AnInvoiceWithoutTitles) {
  const int fatura = cenario.inserirFatura("100,00");
  EXPECT_EQ(titulos.iGetNumeroTitulosFatura(lado.sTitulos, lado.sLigacao, fatura, 0), 0);
  EXPECT_EQ(titulos.iGetNumeroTitulosFatura(lado.sTitulos, lado.sLigacao, fatura, 1), 1);
  EXPECT_EQ(titulos.fGetValorRestanteRecPagFatura(lado.sTitulos, lado.sLigacao, fatura, reais("100,00")),
            reais("100,00"));
  EXPECT_EQ(titulos.fGetValorTotalTitulosFatura(lado.sTitulos, lado.sLigacao, fatura), Currency());
  EXPECT_EQ(titulos.iGetNumeroTitulosNaoPagos(lado.sTitulos, lado.sLigacao, fatura), 0);
  EXPECT_EQ(titulos.iGetNumeroProximoRefaturamento(lado.sTitulos, lado.sLigacao, fatura), 1);
}

TEST_P(TitulosTest, CountsAndSumsOfOneInvoiceOnly) {
  const int fatura = cenario.inserirFatura("300,00");
  const int outra = cenario.inserirFatura("50,00");
  cenario.inserirTitulo(fatura, "000001/001", "100,01", "99,5555");
  cenario.inserirTitulo(fatura, "000001/002", "100,02");
  cenario.inserirTitulo(fatura, "000001/003", "100,03", "-1,00");
  cenario.inserirTitulo(outra, "000002/001", "50,00", "50,00");

  EXPECT_EQ(titulos.iGetNumeroTitulosFatura(lado.sTitulos, lado.sLigacao, fatura, 0), 3);
  EXPECT_EQ(titulos.iGetNumeroTitulosFatura(lado.sTitulos, lado.sLigacao, fatura, 1), 4);
  EXPECT_EQ(titulos.iGetNumeroTitulosNaoPagos(lado.sTitulos, lado.sLigacao, fatura), 2);
  EXPECT_EQ(titulos.fGetValorTotalTitulosFatura(lado.sTitulos, lado.sLigacao, fatura), reais("300,06"));
  EXPECT_EQ(titulos.fGetValorRestanteRecPagFatura(lado.sTitulos, lado.sLigacao, fatura, reais("300,00")),
            reais("201,4445"));
  EXPECT_EQ(-titulos.fGetValorRestanteRecPagFatura(lado.sTitulos, lado.sLigacao, fatura, Currency()), reais("98,5555"));
}

TEST_P(TitulosTest, ACountBeyondSixteenBitsIsAnOverflow) {
  const int fatura = cenario.inserirFatura("300,00");
  cenario.inserirTitulo(fatura, "000001/001", "100,00");
  EXPECT_EQ(titulos.iGetNumeroTitulosFatura(lado.sTitulos, lado.sLigacao, fatura, 32766), 32767);
  try {
    titulos.iGetNumeroTitulosFatura(lado.sTitulos, lado.sLigacao, fatura, 32767);
    FAIL();
  } catch (const Error& falha) {
    EXPECT_EQ(falha.number, errors::overflow);
  }
}

TEST_P(TitulosTest, TheConditionOfAnInvoice) {
  const int fatura = cenario.inserirFatura("100,00", tresComEntrada);
  EXPECT_TRUE(titulos.bVerificarCondicaoPagamento(tresComEntrada.chave, lado.sFaturas, fatura));
  EXPECT_FALSE(titulos.bVerificarCondicaoPagamento(tresVezes.chave, lado.sFaturas, fatura));
  EXPECT_FALSE(titulos.bVerificarCondicaoPagamento(tresVezes.chave, lado.sFaturas, 99));
}

TEST_P(TitulosTest, TheTotalOfAnInvoice) {
  const int fatura = cenario.inserirFatura("1.234,5678");
  EXPECT_EQ(titulos.fGetValorFatura(lado.sFaturas, fatura), reais("1.234,5678"));
  EXPECT_EQ(titulos.fGetValorFatura(lado.sFaturas, 99), Currency());
}

TEST_P(TitulosTest, ComplementsAreCountedByTheEighthPlaceOfTheirCode) {
  const int fatura = cenario.inserirFatura("300,00");
  cenario.inserirTitulo(fatura, "000001/001", "100,00");
  cenario.inserirTitulo(fatura, "000001/R01", "100,00");
  cenario.inserirTitulo(fatura, "000001/R02", "100,00");
  EXPECT_EQ(titulos.iGetNumeroProximoRefaturamento(lado.sTitulos, lado.sLigacao, fatura), 3);
}

TEST_P(TitulosTest, AKeyOfSevenDigitsHidesItsComplements) {
  const int fatura = cenario.inserirFatura("300,00");
  cenario.inserirTitulo(fatura, "1000123/R01", "100,00");
  EXPECT_EQ(titulos.iGetNumeroProximoRefaturamento(lado.sTitulos, lado.sLigacao, fatura), 1);
}

TEST_P(TitulosTest, TheInvoiceOfACode) {
  const int fatura = cenario.inserirFatura("300,00");
  cenario.inserirTitulo(fatura, "à mão d''água", "100,00");
  EXPECT_EQ((titulos.*lado.lGetCodigoFatura)("à mão d'água"), fatura);
  try {
    (titulos.*lado.lGetCodigoFatura)("000009/001");
    FAIL() << "a code without a row";
  } catch (const Error& falha) {
    EXPECT_EQ(falha.number, errors::noCurrentRecord);
  }
}

TEST_P(TitulosTest, AFailingStatementIsTheCallers) { EXPECT_THROW(titulos.fGetValorFatura("Faturas", 1), Error); }

INSTANTIATE_TEST_SUITE_P(Lados, TitulosTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

TEST(OpcaoReparcelamento, IsTheFirmsSettingAndZeroWithoutOne) {
  Cenario cenario{ladoReceber()};
  Titulos titulos{cenario.programa};
  EXPECT_EQ(titulos.btGetOpcaoReparcelamento(), 1);
  cenario.opcaoReparcelamento(0);
  EXPECT_EQ(titulos.btGetOpcaoReparcelamento(), 0);
  cenario.programa.executarPrograma("DELETE * FROM Sistema");
  EXPECT_EQ(titulos.btGetOpcaoReparcelamento(), 0);
}

}  // namespace
}  // namespace fenvale
