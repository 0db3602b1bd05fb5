#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/base/Checked.h"
#include "platform/base/Error.h"
#include "platform/os/Process.h"
#include "platform/sql/Store.h"
#include "platform/ui/Choices.h"
#include "platform/ui/ListView.h"
#include "shell/services/Funcoes.h"
#include "shell/services/TelaComLista.h"
#include "store/services/ConfiguracoesPrograma.h"
#include "store/services/DBConectar.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// A paged list of the salespeople, as a register has it.
class Lista final : public Screen, public TelaListaPaginada, public TelaComLista {
 public:
  explicit Lista(Contexto& contexto) : Screen(contexto.host(), "frmLista"), contexto_(contexto), funcoes(contexto) {
    scrPaginas.onChange = [this] {
      ++mudancas;
      if (contexto_.configuracoes().bGetMostrarNovaPagina())
        vMontarLista(toInt16(std::int64_t{scrPaginas.value()} * contexto_.configuracoes().lGetTamanhoPagina()), "");
    };
  }
  Screen& telaDaLista() override { return *this; }
  ListView& lstDaLista() override { return lstLista; }
  ProgressBar& pbDaLista() override { return pbBarrra; }
  PageScroll& scrDaLista() override { return scrPaginas; }
  bool bInserirLista(Recordset& rs) override {
    ++insercoes;
    if (aoInserir) aoInserir();
    try {
      lstLista.addItem(sChaveLista(rs.field("lCodigo").toLong()), rs.field("sNome").toText());
      return true;
    } catch (const Error& falha) {
      if (falha.number != errors::noCurrentRecord) throw;
      return false;
    }
  }
  void vMontarLista(std::int16_t iInicio, const std::string& sWhere) override {
    Recordset rs("SELECT lCodigo, sNome FROM Vendedores " + sWhere + " ORDER BY lCodigo ",
                 contexto_.dbEmpresa().Dados());
    funcoes.vMontarLista(*this, iInicio, rs);
  }
  std::vector<std::string> nomes() const {
    std::vector<std::string> lista;
    for (const auto& item : lstLista.items()) lista.push_back(item->text());
    return lista;
  }

  ListView lstLista{*this, "lstLista", {{"Código", 1440}, {"Nome", 5000.5F}}};
  PageScroll scrPaginas{*this, "scrPaginas"};
  ProgressBar pbBarrra{*this, "pbBarrra"};
  CheckBox chkFiltrar{*this, "chkFiltrar", "Filtrar"};
  Button cmdNovo{*this, "cmdNovo", "Novo"};
  Button cmdSalvar{*this, "cmdSalvar", "Salvar"};
  Button cmdExcluir{*this, "cmdExcluir", "Excluir"};
  Button cmdEmitir{*this, "cmdEmitir", "Emitir"};
  std::function<void()> aoInserir;
  int insercoes = 0;
  int mudancas = 0;

 private:
  Contexto& contexto_;

 public:
  Funcoes funcoes;
};

class Paginas : public testing::Test {
 protected:
  Paginas() { programa.abrirEmpresa(); }
  void TearDown() override { host.verify(); }
  void vendedores(int quantos) {
    Connection& dados = programa.dbEmpresa().Dados();
    dados.beginTrans();
    for (int i = 1; i <= quantos; ++i)
      programa.executar("INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (" + std::to_string(i) + ", 'V" +
                        std::to_string(i) + "')");
    dados.commitTrans();
  }
  void tamanho(std::int32_t lTamanho) { programa.configuracoes().vSetTamanhoPagina(lTamanho); }
  ProgramaDeTeste programa;
  TestHost& host = programa.hostDeTeste();
  Lista tela{programa};
};

TEST_F(Paginas, AnEmptyTableGivesAnEmptyList) {
  tela.vMontarLista(0, "");
  EXPECT_TRUE(tela.lstLista.items().empty());
  EXPECT_EQ(tela.scrPaginas.maximum(), 0);
  EXPECT_EQ(tela.pbBarrra.value(), 0);
  EXPECT_TRUE(programa.configuracoes().bGetMostrarNovaPagina());
  EXPECT_TRUE(tela.enabled());
  EXPECT_EQ(tela.insercoes, 0);
  EXPECT_EQ(tela.scrPaginas.summary(), "Página 1 · 0 registros");
}

TEST_F(Paginas, OnePageAtATime) {
  vendedores(7);
  tamanho(3);
  tela.vMontarLista(0, "");
  EXPECT_THAT(tela.nomes(), ElementsAre("V1", "V2", "V3"));
  EXPECT_EQ(tela.lstLista.items()[2]->key(), "000003");
  EXPECT_EQ(tela.scrPaginas.maximum(), 2);
  tela.scrPaginas.userMove(1);
  EXPECT_THAT(tela.nomes(), ElementsAre("V4", "V5", "V6"));
  EXPECT_EQ(tela.scrPaginas.value(), 1);
  EXPECT_EQ(tela.scrPaginas.summary(), "Página 2 · 7 registros");
  tela.scrPaginas.userMove(2);
  EXPECT_THAT(tela.nomes(), ElementsAre("V7"));
  EXPECT_TRUE(tela.enabled());
}

TEST_F(Paginas, TheLoopRunsAsOftenAsAPageIsLong) {
  vendedores(2);
  tamanho(10);
  tela.vMontarLista(0, "");
  EXPECT_EQ(tela.insercoes, 10);
  EXPECT_EQ(tela.lstLista.items().size(), 2U);
}

TEST_F(Paginas, TheNumberOfPositionsIsTheQuotientRoundedToEven) {
  vendedores(27);
  const auto maximo = [&](std::int32_t lRegistros, std::int32_t lTamanho) {
    tamanho(lTamanho);
    tela.vMontarLista(0, "WHERE lCodigo <= " + std::to_string(lRegistros));
    return tela.scrPaginas.maximum();
  };
  EXPECT_EQ(maximo(25, 10), 2);  // as 250 at 100: a tie goes to the even number
  EXPECT_EQ(maximo(27, 10), 3);
  EXPECT_EQ(maximo(20, 10), 2);
  EXPECT_EQ(maximo(24, 10), 2);
  EXPECT_EQ(maximo(15, 10), 2);
  EXPECT_EQ(maximo(4, 10), 0);
}

TEST_F(Paginas, AnExactMultipleOffersOnePositionTooMany) {
  vendedores(6);
  tamanho(3);
  tela.vMontarLista(0, "");
  EXPECT_EQ(tela.scrPaginas.maximum(), 2);
  tela.scrPaginas.userMove(2);
  EXPECT_TRUE(tela.lstLista.items().empty());
  EXPECT_EQ(tela.scrPaginas.value(), 2);
  tela.scrPaginas.userMove(1);
  EXPECT_THAT(tela.nomes(), ElementsAre("V4", "V5", "V6"));
}

TEST_F(Paginas, AfterASearchThePageSelectorShowsTheWholeTable) {
  vendedores(9);
  tamanho(3);
  tela.vMontarLista(0, "WHERE lCodigo > 5");
  EXPECT_THAT(tela.nomes(), ElementsAre("V6", "V7", "V8"));
  tela.scrPaginas.userMove(1);
  EXPECT_THAT(tela.nomes(), ElementsAre("V4", "V5", "V6"));
}

TEST_F(Paginas, TheFillsOwnMovesReloadNothing) {
  vendedores(9);
  tamanho(3);
  tela.vMontarLista(6, "");
  EXPECT_EQ(tela.scrPaginas.value(), 2);
  tela.insercoes = 0;
  tela.vMontarLista(0, "");
  EXPECT_EQ(tela.insercoes, 3);
}

TEST_F(Paginas, WhileAPageFillsTheScreenTakesNoInput) {
  vendedores(3);
  tamanho(3);
  tela.aoInserir = [&] {
    EXPECT_FALSE(tela.enabled());
    EXPECT_EQ(host.pointer(), Pointer::hourglass);
    EXPECT_FALSE(programa.configuracoes().bGetMostrarNovaPagina());
    EXPECT_EQ(tela.pbBarrra.maximum(), 3);
  };
  tela.vMontarLista(0, "");
  EXPECT_EQ(tela.insercoes, 3);
  EXPECT_TRUE(tela.enabled());
  EXPECT_EQ(host.pointer(), Pointer::normal);
}

TEST_F(Paginas, TheProgressCountsAgainstTheWholeRecordset) {
  vendedores(5);
  tamanho(3);
  std::vector<std::int32_t> valores;
  tela.aoInserir = [&] { valores.push_back(tela.pbBarrra.value()); };
  tela.vMontarLista(0, "");
  EXPECT_THAT(valores, ElementsAre(0, 1, 2));
  EXPECT_EQ(tela.pbBarrra.maximum(), 5);
  EXPECT_EQ(tela.pbBarrra.value(), 0);
}

TEST_F(Paginas, TheProgressNeverReachesItsMaximum) {
  vendedores(2);
  tamanho(5);
  std::vector<std::int32_t> valores;
  tela.aoInserir = [&] { valores.push_back(tela.pbBarrra.value()); };
  tela.vMontarLista(0, "");
  EXPECT_THAT(valores, ElementsAre(0, 1, 1, 1, 1));
}

TEST_F(Paginas, ThePageSizeIsReadOncePerRun) {
  vendedores(5);
  programa.executarPrograma("INSERT INTO Configuracoes (lTamanhoPagina) VALUES (2)");
  tela.vMontarLista(0, "");
  EXPECT_EQ(tela.lstLista.items().size(), 2U);
  programa.executarPrograma("UPDATE Configuracoes SET lTamanhoPagina = 4");
  tela.vMontarLista(0, "");
  EXPECT_EQ(tela.lstLista.items().size(), 2U);
  EXPECT_EQ(tela.funcoes.lVerificarTamanhoPagina(), 4);
}

TEST_F(Paginas, WithoutSettingsAPageHasAHundredRows) { EXPECT_EQ(tela.funcoes.lVerificarTamanhoPagina(), 100); }

TEST_F(Paginas, APageSizeOfNothingListsNothingAndIsReadEachTime) {
  vendedores(2);
  programa.executarPrograma("INSERT INTO Configuracoes (lTamanhoPagina) VALUES (0)");
  tela.vMontarLista(0, "");
  EXPECT_TRUE(tela.lstLista.items().empty());
  EXPECT_TRUE(tela.enabled());
  EXPECT_EQ(host.pointer(), Pointer::normal);
  // The page selector stays inert until the next fill that succeeds.
  EXPECT_FALSE(programa.configuracoes().bGetMostrarNovaPagina());
  programa.executarPrograma("UPDATE Configuracoes SET lTamanhoPagina = 5");
  tela.vMontarLista(0, "");
  EXPECT_EQ(tela.lstLista.items().size(), 2U);
  EXPECT_TRUE(programa.configuracoes().bGetMostrarNovaPagina());
}

TEST_F(Paginas, AnInvalidArgumentPassesInSilenceAndLeavesTheProgress) {
  vendedores(3);
  tamanho(3);
  tela.aoInserir = [&] {
    if (tela.insercoes == 3) throw Error(errors::invalidCall, "Argumento inválido.");
  };
  tela.vMontarLista(0, "");
  EXPECT_TRUE(tela.enabled());
  EXPECT_EQ(host.pointer(), Pointer::normal);
  EXPECT_FALSE(programa.configuracoes().bGetMostrarNovaPagina());
  EXPECT_EQ(tela.pbBarrra.value(), 2);
}

TEST_F(Paginas, AnyOtherFailureIsReportedAndTheScreenStays) {
  vendedores(3);
  tamanho(3);
  tela.aoInserir = [&] { throw Error(errors::typeMismatch, "Tipo incompatível."); };
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { tela.vMontarLista(0, ""); }), std::nullopt);
  EXPECT_TRUE(tela.enabled());
  EXPECT_THAT(programa.pasta().ler("Erros/260315143207.err"),
              HasSubstr("Formul\xE1rio: Funcoes\r\nFun\xE7\xE3o: vMontarLista\r\nN\xFAmero do erro: 13\r\n"));
}

TEST_F(Paginas, APositionBeyondTheLastOffsetSaysSoOnceAndStays) {
  vendedores(3);
  tamanho(1);
  tela.vMontarLista(0, "");
  tamanho(20000);
  host.expectBox(critica("Estouro de capacidade."));
  tela.scrPaginas.userMove(2);
  EXPECT_THAT(tela.nomes(), ElementsAre("V1"));
}

TEST_F(Paginas, ColumnClicksAlternateWhateverTheColumn) {
  for (const char* nome : {"Zulmira", "açougue", "Álvaro", "bar", "JOSE", "José", "Élio"})
    tela.lstLista.addItem("k", nome);
  for (const auto& item : tela.lstLista.items()) item->setSubItem(1, item->text() == "bar" ? "a" : "b");
  tela.funcoes.vOrdenarListView(tela.lstLista, 1);
  EXPECT_THAT(tela.nomes(), ElementsAre("açougue", "Álvaro", "bar", "Élio", "JOSE", "José", "Zulmira"));
  tela.funcoes.vOrdenarListView(tela.lstLista, 2);
  EXPECT_EQ(tela.nomes().back(), "bar");
  EXPECT_FALSE(tela.lstLista.sortAscending());
  tela.funcoes.vOrdenarListView(tela.lstLista, 1);
  EXPECT_EQ(tela.nomes().front(), "açougue");
  tela.funcoes.vOrdenarListView(tela.lstLista, 1);
  EXPECT_EQ(tela.nomes().front(), "Zulmira");
  EXPECT_EQ(tela.lstLista.sortColumn(), 0);
}

TEST_F(Paginas, TheSelectedRowIsBoldDarkRed) {
  const auto item = tela.lstLista.addItem("000001", "um");
  Funcoes::vSelecionarItem(true, item.get());
  EXPECT_TRUE(item->bold());
  EXPECT_EQ(item->colour(), 192);
  Funcoes::vSelecionarItem(false, item.get());
  EXPECT_FALSE(item->bold());
  EXPECT_EQ(item->colour(), 0);
  Funcoes::vSelecionarItem(false, nullptr);
}

TEST_F(Paginas, WidthsAreKeptInAFile) {
  tela.funcoes.vSetTamanhoColunasList(tela.lstLista, "frmLista.lstList");
  EXPECT_EQ(programa.pasta().ler("list/frmLista.lstList.XML"),
            "<root>\r\n<size>1440</size>\r\n<size>5000,5</size>\r\n</root>\r\n");
  tela.lstLista.setColumnWidth(1, 10);
  tela.lstLista.setColumnWidth(2, 20);
  const int antes = host.eventsLetThrough();
  tela.funcoes.vGetTamanhoColunasList(tela.lstLista, "frmLista.lstList");
  EXPECT_EQ(tela.lstLista.columnWidth(1), 1440);
  EXPECT_EQ(tela.lstLista.columnWidth(2), 5000.5F);
  EXPECT_EQ(host.eventsLetThrough() - antes, 2);
}

TEST_F(Paginas, AFileOfWidthsIsAppliedAsFarAsItGoes) {
  tela.funcoes.vGetTamanhoColunasList(tela.lstLista, "nada");
  programa.pasta().gravar("list/a.XML", "<root><size>100</size></root>");
  tela.funcoes.vGetTamanhoColunasList(tela.lstLista, "a");
  EXPECT_EQ(tela.lstLista.columnWidth(1), 100);
  EXPECT_EQ(tela.lstLista.columnWidth(2), 5000.5F);
  programa.pasta().gravar("list/b.XML", "<root><size>1</size><size>2.25</size><size>3</size></root>");
  tela.funcoes.vGetTamanhoColunasList(tela.lstLista, "b");
  EXPECT_EQ(tela.lstLista.columnWidth(2), 2.25F);
  programa.pasta().gravar("list/c.XML", "<root><size/><size>9</size></root>");
  tela.funcoes.vGetTamanhoColunasList(tela.lstLista, "c");
  EXPECT_EQ(tela.lstLista.columnWidth(2), 2.25F);
}

TEST_F(Paginas, AWidthThatIsNoneIsReportedAndTheScreenStays) {
  for (const std::string sLargura : {"larga", "12abc", "-5", "nan", "inf", "1e30"}) {
    programa.pasta().gravar("list/a.XML", "<root><size>" + sLargura + "</size></root>");
    host.expectBox(relatoDeFalha(), BoxAnswer::no);
    tela.funcoes.vGetTamanhoColunasList(tela.lstLista, "a");
    EXPECT_EQ(tela.lstLista.columnWidth(1), 1440) << sLargura;
    host.verify();
  }
}

TEST_F(Paginas, TheFilterShutsTheCommandsThatStore) {
  vendedores(1);
  tela.chkFiltrar.setChecked(true);
  tela.funcoes.vHabilitarModuloConsultaFiltragem(tela);
  EXPECT_FALSE(tela.cmdNovo.enabled() || tela.cmdSalvar.enabled() || tela.cmdExcluir.enabled());
  EXPECT_TRUE(tela.cmdEmitir.enabled());
  EXPECT_EQ(tela.lstLista.items().size(), 1U);
  tela.chkFiltrar.setChecked(false);
  tela.funcoes.vHabilitarModuloConsultaFiltragem(tela);
  EXPECT_TRUE(tela.cmdNovo.enabled() && tela.cmdSalvar.enabled() && tela.cmdExcluir.enabled());
}

TEST(ChavesDeLinha, ThePrefixKeepsThemFromBeingAllDigits) {
  EXPECT_EQ(sChaveLista(7), "000007");
  EXPECT_EQ(sChaveLista(2147483647), "000002147483647");
  EXPECT_EQ(lCodigoDaChave("000007"), 7);
  EXPECT_EQ(lCodigoDaChave("000002147483647"), 2147483647);
}

}  // namespace
}  // namespace fenvale
