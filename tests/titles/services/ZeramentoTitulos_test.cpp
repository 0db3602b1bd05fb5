// What a purge takes and what it leaves, on each side of the ledger.

#include "titles/services/ZeramentoTitulos.h"

#include <gmock/gmock.h>

#include "titles/Cenario.h"
#include "titles/services/Titulos.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Escolha = ZeramentoTitulos::Escolha;

class ZeramentoTitulosTest : public testing::TestWithParam<EscolhaDeLado> {
 protected:
  /// A title that was paid on that day ("03/31/2026").
  void pago(int fatura, const std::string& codigo, const std::string& dia, std::string_view valorPago = "50,00") {
    cenario.inserirTitulo(fatura, codigo, "50,00", valorPago, dia);
  }
  void zerar(std::string_view inicial, std::string_view final) {
    zeramento.vZerar(lado.bVendedor ? Escolha::recebidos : Escolha::pagos, data(inicial), data(final));
  }
  std::vector<std::string> coluna(const std::string& sql) {
    std::vector<std::string> valores;
    for (const auto& campos : cenario.programa.linhas(sql)) valores.push_back(campos[0]);
    return valores;
  }
  std::vector<std::string> titulos() {
    return coluna("SELECT sCodigoInf FROM " + lado.sTitulos + " ORDER BY sCodigoInf");
  }
  std::vector<std::string> faturas() { return coluna("SELECT lCodigo FROM " + lado.sFaturas); }

  Cenario cenario{GetParam()()};
  const Lado& lado = cenario.lado;
  std::vector<std::pair<std::int32_t, std::int32_t>> progresso;
  ZeramentoTitulos zeramento{cenario.programa, [this](std::int32_t lVistas, std::int32_t lFaturas) {
                               progresso.emplace_back(lVistas, lFaturas);
                             }};
};

TEST_P(ZeramentoTitulosTest, AnInvoiceGoesWithTheLastOfItsTitles) {
  const int inteira = cenario.inserirFatura("100,00");
  pago(inteira, "1/1", "03/01/2026");
  pago(inteira, "1/2", "03/31/2026");
  const int comOutra = cenario.inserirFatura("100,00");
  pago(comOutra, "2/1", "03/15/2026");
  pago(comOutra, "2/2", "04/01/2026");
  zerar("01/03/2026", "31/03/2026");
  EXPECT_THAT(titulos(), ElementsAre("2/2"));
  EXPECT_THAT(faturas(), ElementsAre(std::to_string(comOutra)));
}

TEST_P(ZeramentoTitulosTest, BothDaysOfThePeriodCount) {
  const int fatura = cenario.inserirFatura("100,00");
  for (const char* dia : {"02/28/2026", "03/01/2026", "03/02/2026", "03/03/2026"}) pago(fatura, dia, dia);
  zerar("01/03/2026", "02/03/2026");
  EXPECT_THAT(titulos(), ElementsAre("02/28/2026", "03/03/2026"));
}

TEST_P(ZeramentoTitulosTest, OnlyWhatWasPaidGoes) {
  const int fatura = cenario.inserirFatura("150,00");
  pago(fatura, "1/1", "03/10/2026", "0,00");    // open, its filler in the period
  pago(fatura, "1/2", "03/10/2026", "-1,00");   // no amount above 0
  pago(fatura, "1/3", "03/10/2026", "0,0001");  // the least that counts as paid
  pago(fatura, "1/4", "03/10/2026", "10,00");   // in part
  zerar("01/03/2026", "31/03/2026");
  EXPECT_THAT(titulos(), ElementsAre("1/1", "1/2"));
  EXPECT_THAT(faturas(), ElementsAre(std::to_string(fatura)));
}

TEST_P(ZeramentoTitulosTest, TheInvoicesTotalStaysAndASmallerSumReadsAsPaid) {
  const int fatura = cenario.inserirFatura("100,00");
  pago(fatura, "1/1", "03/01/2026");
  cenario.inserirTitulo(fatura, "1/2", "50,00");
  zerar("01/03/2026", "31/03/2026");
  EXPECT_EQ(cenario.valor("SELECT fTotal FROM " + lado.sFaturas), "100");
  EXPECT_EQ(
      Titulos(cenario.programa).fGetValorRestanteRecPagFatura(lado.sTitulos, lado.sLigacao, fatura, reais("100,00")),
      reais("100,00"));
}

TEST_P(ZeramentoTitulosTest, WithNothingPaidTheInvoicesWithoutTitlesGoAllTheSame) {
  cenario.inserirFatura("10,00");
  const int comTitulo = cenario.inserirFatura("20,00");
  cenario.inserirTitulo(comTitulo, "2/1", "20,00");
  cenario.inserirFatura("30,00");
  zerar("01/03/2026", "31/03/2026");
  EXPECT_THAT(faturas(), ElementsAre(std::to_string(comTitulo)));
  EXPECT_THAT(titulos(), ElementsAre("2/1"));
}

TEST_P(ZeramentoTitulosTest, ReversedDatesMatchNothing) {
  const int fatura = cenario.inserirFatura("50,00");
  pago(fatura, "1/1", "03/10/2026");
  zerar("31/03/2026", "01/03/2026");
  EXPECT_THAT(titulos(), ElementsAre("1/1"));
  EXPECT_THAT(faturas(), ElementsAre(std::to_string(fatura)));
}

TEST_P(ZeramentoTitulosTest, EveryInvoiceIsToldWhetherItGoesOrNot) {
  for (int i = 1; i <= 3; ++i) cenario.inserirFatura("10,00", tresVezes, i);
  cenario.inserirTitulo(2, "2/1", "10,00");
  zerar("01/03/2026", "31/03/2026");
  EXPECT_THAT(progresso,
              ElementsAre(std::pair(0, 3), std::pair(1, 3), std::pair(2, 3), std::pair(3, 3), std::pair(0, 3)));
}

TEST_P(ZeramentoTitulosTest, WithoutInvoicesThereIsNothingToTell) {
  zerar("01/03/2026", "31/03/2026");
  EXPECT_THAT(progresso, IsEmpty());
}

/// So many that the rows are read in several runs, with every second one deleted on the way.
TEST_P(ZeramentoTitulosTest, DeletingOnTheWaySkipsNoInvoice) {
  constexpr int faturasAoTodo = 700;
  cenario.programa.dbEmpresa().Dados().beginTrans();
  for (int i = 1; i <= faturasAoTodo; ++i) {
    cenario.inserirFatura("10,00", tresVezes, i);
    if (i % 2 == 0) cenario.inserirTitulo(i, std::to_string(i) + "/1", "10,00");
  }
  zerar("01/03/2026", "31/03/2026");
  cenario.programa.dbEmpresa().Dados().commitTrans();
  EXPECT_EQ(cenario.valor("SELECT COUNT(lCodigo) FROM " + lado.sFaturas), std::to_string(faturasAoTodo / 2));
  EXPECT_EQ(progresso.size(), std::size_t{faturasAoTodo + 2});
}

TEST_P(ZeramentoTitulosTest, TheOtherSideIsLeftAlone) {
  const Lado& outro = &lado == &ladoPagar() ? ladoReceber() : ladoPagar();
  cenario.executar("INSERT INTO " + outro.sFaturas + " (lNumeroFatura, dtEmissao, fTotal, fEntrada, " +
                   outro.sChavePessoa + ", lCondicoesPagamento, lPortador, " + (outro.bVendedor ? "lVendedor, " : "") +
                   "lCentroCusto) VALUES (1, #03/01/2026#, 10, 0, 1, 1, 1, " + (outro.bVendedor ? "1, " : "") + "1)");
  zerar("01/03/2026", "31/03/2026");
  EXPECT_EQ(cenario.valor("SELECT COUNT(lCodigo) FROM " + outro.sFaturas), "1");
  zeramento.vZerar(Escolha::pagosRecebidos, data("01/03/2026"), data("31/03/2026"));
  EXPECT_EQ(cenario.valor("SELECT COUNT(lCodigo) FROM " + outro.sFaturas), "0");
}

INSTANTIATE_TEST_SUITE_P(Lados, ZeramentoTitulosTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

}  // namespace
}  // namespace fenvale
