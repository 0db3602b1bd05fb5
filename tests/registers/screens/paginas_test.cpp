// The paged list of a register: pages, the selector, the sort, the widths.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <filesystem>
#include <fstream>

#include "Cadastros.h"
#include "shell/services/Contexto.h"
#include "shell/services/TelasDeApoio.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Paginas : public Cadastros {
 protected:
  TelaCadastro& comVendedores(int iQuantos) {
    vendedores(iQuantos);
    return abrirCadastro("frmCadastroVendedores");
  }
  std::string arquivoDeLarguras() {
    return programa.sGetCaminhoAplicacao() + "/list/frmCadastroVendedores.lstList.XML";
  }
  std::string conteudo(const std::string& sCaminho) {
    std::ifstream arquivo(sCaminho, std::ios::binary);
    return {std::istreambuf_iterator<char>(arquivo), {}};
  }
};

struct Divisao {
  int iRegistros;
  std::int16_t iMaximo;
  /// Rows that the last position shows.
  std::size_t iNaUltima;
};

class PaginasPorTamanho : public Paginas, public testing::WithParamInterface<Divisao> {};

TEST_P(PaginasPorTamanho, TheSelectorsMaximumIsTheRoundedQuotient) {
  const Divisao& divisao = GetParam();
  auto& tela = comVendedores(divisao.iRegistros);
  EXPECT_EQ(tela.lstLista.items().size(), 100u);
  EXPECT_EQ(tela.scrPaginas.maximum(), divisao.iMaximo);
  EXPECT_EQ(tela.scrPaginas.value(), 0);
  EXPECT_EQ(tela.scrPaginas.summary(), "Página 1 · " + std::to_string(divisao.iRegistros) + " registros");
  EXPECT_EQ(tela.pbBarrra.value(), 0);
  EXPECT_TRUE(tela.enabled());
  EXPECT_EQ(host.pointer(), Pointer::normal);

  tela.scrPaginas.userMove(divisao.iMaximo);
  EXPECT_EQ(tela.lstLista.items().size(), divisao.iNaUltima);
  EXPECT_EQ(tela.scrPaginas.value(), divisao.iMaximo);
}

INSTANTIATE_TEST_SUITE_P(Tabela, PaginasPorTamanho,
                         testing::Values(Divisao{250, 2, 50}, Divisao{270, 3, 0}, Divisao{200, 2, 0},
                                         Divisao{240, 2, 40}),
                         [](const auto& caso) { return std::to_string(caso.param.iRegistros) + "Registros"; });

TEST_F(Paginas, TheSelectorShowsItsPage) {
  auto& tela = comVendedores(250);
  tela.scrPaginas.userMove(1);
  EXPECT_EQ(tela.lstLista.item(0)->text(), "101");
  EXPECT_EQ(tela.scrPaginas.summary(), "Página 2 · 250 registros");
  EXPECT_EQ(tela.lGetCodigo(), -1);
  tela.userKey(Key::f2);
  EXPECT_EQ(tela.lstLista.item(0)->text(), "1") << "a new record goes back to the first page";
  EXPECT_EQ(tela.scrPaginas.value(), 0);
}

TEST_F(Paginas, ARowOfAnotherPageIsMarkedThoughTheMarkedOneIsGone) {
  auto& tela = comVendedores(25);
  tamanhoDaPagina(10);
  tela.userKey(Key::f2);
  tela.lstLista.userClickRow(3);
  tela.scrPaginas.userMove(1);
  EXPECT_EQ(caixa(tela, "txtNome").text(), "Vendedor 004") << "turning pages leaves the form alone";
  EXPECT_GT(tela.lGetCodigo(), 0);
  tela.lstLista.userClickRow(3);
  EXPECT_TRUE(tela.lstLista.item(3)->bold());
  EXPECT_EQ(tela.lstLista.item(3)->colour(), 192);
  EXPECT_EQ(caixa(tela, "txtNome").text(), "Vendedor 014");
}

TEST_F(Paginas, AfterASearchTheSelectorShowsTheWholeTable) {
  auto& tela = comVendedores(250);
  tela.vMontarLista(0, "WHERE lCodigoInf > 120 ");
  EXPECT_EQ(tela.lstLista.item(0)->text(), "121");
  EXPECT_EQ(tela.scrPaginas.maximum(), 1);
  tela.scrPaginas.userMove(1);
  EXPECT_EQ(tela.lstLista.item(0)->text(), "101");
  EXPECT_EQ(tela.scrPaginas.maximum(), 2);
}

TEST_F(Paginas, APageSizeOfZeroListsNothingAndIsReadAtEveryFill) {
  tamanhoDaPagina(0);
  programa.executarPrograma("DELETE * FROM Configuracoes ");
  programa.executarPrograma(
      "INSERT INTO Configuracoes (lTamanhoPagina, bitAutenticacao, bitExibirLoginUsuarios, bitImprimirEntrada) "
      "VALUES (0, 0, 0, 0)");
  auto& tela = comVendedores(3);
  EXPECT_THAT(tela.lstLista.items(), IsEmpty());
  EXPECT_TRUE(tela.enabled());
  EXPECT_EQ(host.pointer(), Pointer::normal);
  EXPECT_FALSE(programa.configuracoes().bGetMostrarNovaPagina()) << "the selector stays inert after a failed fill";

  programa.executarPrograma("UPDATE Configuracoes SET lTamanhoPagina = 2");
  tela.userKey(Key::f2);
  EXPECT_EQ(tela.lstLista.items().size(), 2u);
  EXPECT_TRUE(programa.configuracoes().bGetMostrarNovaPagina());
}

TEST_F(Paginas, APageBeyondTheReachOfRecordNumbersIsToldAndTheListStays) {
  auto& tela = comVendedores(40);
  tamanhoDaPagina(10);
  tela.userKey(Key::f2);
  tela.scrPaginas.userMove(2);
  ASSERT_EQ(tela.lstLista.item(0)->text(), "21");
  tamanhoDaPagina(20000);
  host.expectBox(critica("A lista só pode ser percorrida até o registro 32.768; use Localizar para ver os demais."));
  tela.scrPaginas.userMove(4);
  EXPECT_EQ(tela.scrPaginas.value(), 2);
  EXPECT_EQ(tela.lstLista.item(0)->text(), "21");
  EXPECT_TRUE(programa.configuracoes().bGetMostrarNovaPagina());
}

TEST_F(Paginas, ColumnClicksSortUpAndDownInTurnWhicheverTheColumn) {
  executar("INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (1, 'Çelik')");
  executar("INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (2, 'ana')");
  executar("INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (10, 'Bruno')");
  auto& tela = abrirCadastro("frmCadastroVendedores");
  tela.lstLista.userClickColumn(2);
  EXPECT_THAT(listados(tela.lstLista), ElementsAre("2|ana", "10|Bruno", "1|Çelik"));
  EXPECT_EQ(tela.lstLista.sortColumn(), 1);
  EXPECT_TRUE(tela.lstLista.sortAscending());
  tela.lstLista.userClickColumn(2);
  EXPECT_THAT(listados(tela.lstLista), ElementsAre("1|Çelik", "10|Bruno", "2|ana"));
  EXPECT_FALSE(tela.lstLista.sortAscending());
  tela.lstLista.userClickColumn(1);
  EXPECT_THAT(listados(tela.lstLista), ElementsAre("1|Çelik", "10|Bruno", "2|ana")) << "codes sort as texts";
  EXPECT_TRUE(tela.lstLista.sortAscending());
  // Another column goes on with the alternation.
  tela.lstLista.userClickColumn(2);
  EXPECT_FALSE(tela.lstLista.sortAscending());
}

TEST_F(Paginas, ASortedListStaysSortedPageByPage) {
  auto& tela = comVendedores(25);
  tamanhoDaPagina(10);
  tela.userKey(Key::f2);
  tela.lstLista.userClickColumn(2);
  tela.lstLista.userClickColumn(2);
  EXPECT_EQ(tela.lstLista.item(0)->text(), "10");
  tela.scrPaginas.userMove(1);
  EXPECT_EQ(tela.lstLista.item(0)->text(), "20") << "only the rows of the page are sorted";
  EXPECT_EQ(tela.lstLista.item(9)->text(), "11");
}

TEST_F(Paginas, EachScreenAlternatesByItself) {
  vendedores(2);
  auto& tela = abrirCadastro("frmCadastroVendedores");
  tela.lstLista.userClickColumn(1);
  fechar(tela);
  auto& outra = abrirCadastro("frmCadastroVendedores");
  outra.lstLista.userClickColumn(1);
  EXPECT_TRUE(outra.lstLista.sortAscending());
}

TEST_F(Paginas, WidthsAreWrittenAtClosingAndReadAtOpening) {
  auto& tela = comVendedores(1);
  EXPECT_EQ(tela.lstLista.columnWidth(1), 1000);
  tela.lstLista.userResizeColumn(1, 1440);
  tela.lstLista.userResizeColumn(2, 2880.5F);
  fechar(tela);
  EXPECT_EQ(conteudo(arquivoDeLarguras()), "<root>\r\n<size>1440</size>\r\n<size>2880,5</size>\r\n</root>\r\n");
  auto& outra = abrirCadastro("frmCadastroVendedores");
  EXPECT_EQ(outra.lstLista.columnWidth(1), 1440);
  EXPECT_EQ(outra.lstLista.columnWidth(2), 2880.5F);
}

TEST_F(Paginas, AWidthsFileOfAnotherLengthIsAppliedAsFarAsItGoes) {
  std::filesystem::create_directories(programa.sGetCaminhoAplicacao() + "/list");
  std::ofstream(arquivoDeLarguras(), std::ios::binary) << "<root>\r\n<size>500</size>\r\n</root>\r\n";
  auto& tela = comVendedores(1);
  EXPECT_EQ(tela.lstLista.columnWidth(1), 500);
  EXPECT_EQ(tela.lstLista.columnWidth(2), 7200);
  fechar(tela);
  std::ofstream(arquivoDeLarguras(), std::ios::binary)
      << "<root>\r\n<size>600</size>\r\n<size>700</size>\r\n<size>800</size>\r\n</root>\r\n";
  auto& outra = abrirCadastro("frmCadastroVendedores");
  EXPECT_EQ(outra.lstLista.columnWidth(1), 600);
  EXPECT_EQ(outra.lstLista.columnWidth(2), 700);
}

TEST_F(Paginas, WhatAClauseSelectedBeforeTheShowingIsWhatIsShown) {
  vendedores(5);
  programa.telas().obter<TelaComLista>("frmCadastroVendedores").vMontarLista(0, "WHERE lCodigoInf > 3 ");
  auto& tela = abrirCadastro("frmCadastroVendedores");
  EXPECT_THAT(listados(tela.lstLista), ElementsAre("4|Vendedor 004", "5|Vendedor 005"));
}

TEST_F(Paginas, ALongPageShowsItsRowsOnceAndNothingElse) {
  tamanhoDaPagina(1000);
  auto& tela = comVendedores(3);
  EXPECT_EQ(tela.lstLista.items().size(), 3u);
  EXPECT_EQ(tela.scrPaginas.maximum(), 0);
  EXPECT_EQ(tela.scrPaginas.summary(), "Página 1 · 3 registros");
}

TEST_F(Paginas, ARowClickLoadsTheTextsOfTheListNotOfTheStore) {
  auto& tela = comVendedores(1);
  executar("UPDATE Vendedores SET sNome = 'Outro'");
  tela.lstLista.userClickRow(0);
  EXPECT_EQ(caixa(tela, "txtNome").text(), "Vendedor 001");
}

TEST_F(Paginas, PrintingWaitsForItsScreen) {
  auto& tela = comVendedores(1);
  EXPECT_FALSE(tela.cmdEmitir.enabled());
  tela.userKey(Key::f5);
  fechar(tela);

  struct Opcoes : Screen, OpcoesRelatorioLista {
    explicit Opcoes(Contexto& contexto) : Screen(contexto.host(), "frmOpcoesRelList") {}
    void vCarregar(const std::string& sTitulo, std::int16_t iColunas, ListView& lst) override {
      host().messageBox(informacao(sTitulo + "|" + std::to_string(iColunas) + "|" + lst.item(0)->text()));
    }
  };
  programa.telas().registrar<Opcoes>("frmOpcoesRelList");
  auto& outra = abrirCadastro("frmCadastroVendedores");
  EXPECT_TRUE(outra.cmdEmitir.enabled());
  host.expectBox(informacao("Cadastro de vendedores|80|1"));
  outra.userKey(Key::f5);

  entrarSem("bPoderImprimir");
  host.expectBox(semPermissao());
  outra.userKey(Key::f5);
}

}  // namespace
}  // namespace fenvale
