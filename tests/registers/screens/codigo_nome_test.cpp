// The registers of a code and a name, each through the same cases.

#include "registers/screens/CadastroCodigoNome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Cadastros.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Caso {
  const char* sTela;
  const char* sTabela;
  const char* sCodigo;
  const char* sTexto;
  const char* sCaixa;
  const char* sExigencia;
  bool bLinhaPadrao;
  /// Makes the row with the key {} referred to.
  const char* sUso;
};

void PrintTo(const Caso& caso, std::ostream* saida) { *saida << caso.sTela; }

class CodigoNome : public Cadastros, public testing::WithParamInterface<Caso> {
 protected:
  CodigoNome() : tela(dynamic_cast<CadastroCodigoNome&>(abrir(caso.sTela))) {}

  std::int32_t linha(int iCodigo, const std::string& sNome) {
    return inserir(caso.sTabela, std::string(caso.sCodigo) + ", " + caso.sTexto,
                   std::to_string(iCodigo) + ", '" + sNome + "'");
  }
  std::vector<std::string> guardados() {
    return linhas(std::string("SELECT ") + caso.sCodigo + ", " + caso.sTexto + " FROM " + caso.sTabela +
                  " ORDER BY lCodigo");
  }
  void recarregar() { tela.userKey(Key::f2); }
  void carregar(std::size_t iLinha) { tela.lstLista.userClickRow(iLinha); }

  const Caso& caso = GetParam();
  CadastroCodigoNome& tela;
};

TEST_P(CodigoNome, OpensOnANewRecordWithTheNextCode) {
  EXPECT_EQ(tela.lGetCodigo(), -1);
  EXPECT_EQ(tela.txtCodigoInf.text(), "1");
  EXPECT_EQ(tela.txtNome.text(), "");
  EXPECT_TRUE(tela.txtCodigoInf.hasFocus());
  EXPECT_EQ(tela.note(), "");
  EXPECT_EQ(tela.txtNome.name(), caso.sCaixa);
}

TEST_P(CodigoNome, TheFormAndTheListHaveACodeAndAText) {
  const std::string sRotulo = std::string(caso.sTexto) == "sDescricao" ? "Descrição" : "Nome";
  const std::string sMaior = std::string(caso.sCodigo) == "btCodigoInf" ? "255" : "2147483647";
  EXPECT_THAT(formularioDe(tela),
              ElementsAre("Código: txtCodigoInf <= " + sMaior, sRotulo + ": " + std::string(caso.sCaixa) + " 50"));
  EXPECT_THAT(cabecalhos(tela.lstLista), ElementsAre("Código", sRotulo));
}

TEST_P(CodigoNome, AnEmptyTableShowsAnEmptyPage) {
  EXPECT_THAT(tela.lstLista.items(), IsEmpty());
  EXPECT_EQ(tela.scrPaginas.maximum(), 0);
  EXPECT_EQ(tela.pbBarrra.value(), 0);
  EXPECT_TRUE(programa.configuracoes().bGetMostrarNovaPagina());
  EXPECT_EQ(tela.scrPaginas.summary(), "Página 1 · 0 registros");
}

TEST_P(CodigoNome, StoresANewRecordAndClearsTheFormForTheNext) {
  tela.txtNome.userType("D'Ávila");
  EXPECT_EQ(tela.sInclusao(), std::string("INSERT INTO ") + caso.sTabela + " (" + caso.sCodigo + ", " + caso.sTexto +
                                  ") VALUES (1, 'D''Ávila')");
  host.expectBox(informacao("Operação concluída."));
  tela.userKey(Key::f3);

  EXPECT_THAT(guardados(), ElementsAre("1|D'Ávila"));
  EXPECT_THAT(listados(tela.lstLista), ElementsAre("1|D'Ávila"));
  EXPECT_EQ(tela.txtCodigoInf.text(), "2");
  EXPECT_EQ(tela.txtNome.text(), "");
  EXPECT_EQ(tela.scrPaginas.summary(), "Página 1 · 1 registro");
}

TEST_P(CodigoNome, AClickedRowIsLoadedMarkedAndStoredAgain) {
  const std::int32_t lChave = linha(7, "Norte");
  linha(9, "Sul");
  recarregar();
  carregar(0);

  const auto item = tela.lstLista.item(0);
  EXPECT_EQ(item->key(), "00000" + std::to_string(lChave));
  EXPECT_TRUE(item->bold());
  EXPECT_EQ(item->colour(), 192);
  EXPECT_EQ(tela.lGetCodigo(), lChave);
  EXPECT_EQ(tela.txtCodigoInf.text(), "7");
  EXPECT_EQ(tela.txtNome.text(), "Norte");
  EXPECT_EQ(tela.note(), "Editando o registro 7");
  EXPECT_EQ(programa.configuracoes().lGetClickAnterior(), lChave);

  tela.txtNome.userType("Nordeste");
  EXPECT_EQ(tela.sAlteracao(), std::string("UPDATE ") + caso.sTabela + " SET " + caso.sCodigo + " = 7, " + caso.sTexto +
                                   " = 'Nordeste' WHERE lCodigo = " + std::to_string(lChave));
  host.expectBox(informacao("Operação concluída."));
  tela.userKey(Key::f3);
  EXPECT_THAT(guardados(), ElementsAre("7|Nordeste", "9|Sul"));
  EXPECT_EQ(tela.lGetCodigo(), -1);
  EXPECT_EQ(tela.note(), "");
}

TEST_P(CodigoNome, TheMarkMovesWithTheClick) {
  linha(1, "A");
  linha(2, "B");
  recarregar();
  carregar(0);
  carregar(1);
  EXPECT_FALSE(tela.lstLista.item(0)->bold());
  EXPECT_EQ(tela.lstLista.item(0)->colour(), 0);
  EXPECT_TRUE(tela.lstLista.item(1)->bold());
  recarregar();
  carregar(0);
  EXPECT_TRUE(tela.lstLista.item(0)->bold());
}

TEST_P(CodigoNome, AsksForTheCodeThenForTheName) {
  tela.txtCodigoInf.userType("");
  salvarRecusado(host, tela, aviso("Informe o código."), tela.txtCodigoInf);
  EXPECT_TRUE(tela.txtCodigoInf.wrong());

  tela.txtCodigoInf.userType("5");
  salvarRecusado(host, tela, aviso(caso.sExigencia), tela.txtNome);
  EXPECT_THAT(guardados(), IsEmpty());
}

TEST_P(CodigoNome, ANameOfBlanksPassesTheCheck) {
  tela.txtNome.userType("   ");
  host.expectBox(informacao("Operação concluída."));
  tela.userKey(Key::f3);
  EXPECT_THAT(guardados(), ElementsAre("1|"));
  // Without its blanks it is the empty name, which only a table with a hidden row keeps out of sight.
  EXPECT_EQ(tela.lstLista.items().size(), caso.bLinhaPadrao ? 0u : 1u);
}

TEST_P(CodigoNome, AnEditedRecordWhoseCodeWasEmptiedIsNotStored) {
  linha(3, "Leste");
  recarregar();
  carregar(0);
  tela.txtCodigoInf.userType("");
  host.expectBox(aviso("Informe o código."));
  tela.userKey(Key::f3);
  EXPECT_THAT(guardados(), ElementsAre("3|Leste"));
}

TEST_P(CodigoNome, ACodeThatAnotherRowHasIsRefusedByTheStore) {
  linha(1, "Norte");
  tela.txtCodigoInf.userType("1");
  tela.txtNome.userType("Sul");
  std::string sTexto;
  try {
    linha(1, "Sul");
  } catch (const Error& recusa) {
    EXPECT_EQ(recusa.number, errors::refused);
    sTexto = recusa.description;
  }
  host.expectBox(critica("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: \r\n\r\n" + sTexto));
  tela.txtNome.setFocus();
  tela.userKey(Key::f3);

  EXPECT_TRUE(tela.txtCodigoInf.hasFocus());
  EXPECT_EQ(tela.txtNome.text(), "Sul");
  EXPECT_EQ(tela.lGetCodigo(), -1);
  EXPECT_THAT(tela.lstLista.items(), IsEmpty()) << "the list is not filled anew";
  EXPECT_THAT(guardados(), ElementsAre("1|Norte"));
}

TEST_P(CodigoNome, RemovesTheRecordShownAfterAskingAndWithoutAWordAfterwards) {
  host.expectBox(aviso("Selecione o registro que deseja excluir."));
  tela.userKey(Key::f4);
  EXPECT_TRUE(tela.lstLista.hasFocus());

  const std::int32_t lChave = linha(4, "Oeste");
  recarregar();
  carregar(0);
  EXPECT_EQ(tela.sExclusao(),
            std::string("DELETE * FROM ") + caso.sTabela + " WHERE lCodigo = " + std::to_string(lChave));
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::no);
  tela.userKey(Key::f4);
  EXPECT_THAT(guardados(), ElementsAre("4|Oeste"));
  EXPECT_EQ(tela.lGetCodigo(), lChave);

  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  tela.userKey(Key::f4);
  EXPECT_THAT(guardados(), IsEmpty());
  EXPECT_THAT(tela.lstLista.items(), IsEmpty());
  EXPECT_EQ(tela.lGetCodigo(), -1);
}

TEST_P(CodigoNome, ARecordInUseStays) {
  programaComFatura();
  const std::string sChave = valor(caso.sUso);
  recarregar();
  for (std::size_t i = 0; i < tela.lstLista.items().size(); ++i)
    if (tela.lstLista.item(i)->key() == "00000" + sChave) carregar(i);
  ASSERT_EQ(std::to_string(tela.lGetCodigo()), sChave);
  const std::string sTexto = recusaDoBanco(tela.sExclusao());
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  host.expectBox(critica("O registro não pode ser excluído.\r\n\r\nInformação detalhada: \r\n\r\n" + sTexto));
  tela.userKey(Key::f4);
  EXPECT_EQ(std::to_string(tela.lGetCodigo()), sChave);
  EXPECT_TRUE(tela.txtCodigoInf.hasFocus());
}

TEST_P(CodigoNome, TheHiddenRowIsNeverListed) {
  linha(1, "");
  linha(2, "Visível");
  EXPECT_EQ(tela.sConsulta(""), std::string("SELECT lCodigo, ") + caso.sCodigo + ", " + caso.sTexto + " FROM " +
                                    caso.sTabela + " " +
                                    (caso.bLinhaPadrao ? std::string("WHERE ") + caso.sTexto + " <> '' " : "") +
                                    "ORDER BY " + caso.sCodigo + ", " + caso.sTexto + " ");
  EXPECT_EQ(tela.sConsulta("WHERE lCodigo > 0 "),
            std::string("SELECT lCodigo, ") + caso.sCodigo + ", " + caso.sTexto + " FROM " + caso.sTabela +
                " WHERE lCodigo > 0 " + (caso.bLinhaPadrao ? std::string("AND ") + caso.sTexto + " <> '' " : "") +
                "ORDER BY " + caso.sCodigo + ", " + caso.sTexto + " ");
  recarregar();
  if (caso.bLinhaPadrao) {
    EXPECT_THAT(listados(tela.lstLista), ElementsAre("2|Visível"));
  } else {
    EXPECT_THAT(listados(tela.lstLista), ElementsAre("1|", "2|Visível"));
  }
}

TEST_P(CodigoNome, AnyOtherFailureIsReportedAndTheFormStays) {
  tela.txtCodigoInf.setText("99999999999");  // beyond any code that the store takes
  tela.txtNome.userType("Sul");
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  tela.userKey(Key::f3);
  EXPECT_EQ(tela.txtNome.text(), "Sul");
  EXPECT_EQ(tela.state(), Screen::State::loaded);
  EXPECT_THAT(relato(), testing::HasSubstr(std::string("Formulário: ") + caso.sTela + "\r\n"));
  EXPECT_THAT(relato(), testing::HasSubstr("Função: cmdSalvar_Click\r\n"));
}

TEST_P(CodigoNome, TheRightToSearchIsMissedOnceByEveryFill) {
  linha(1, "Norte");
  recarregar();
  carregar(0);
  entrarSem("bPoderPesquisar");
  host.expectBox(informacao("Operação concluída."));
  host.expectBox(semPermissao());
  tela.userKey(Key::f3);
  EXPECT_EQ(tela.lGetCodigo(), -1) << "stored, and the form cleared";

  host.expectBox(semPermissao());
  recarregar();
  EXPECT_THAT(tela.lstLista.items(), IsEmpty());
}

TEST_P(CodigoNome, EveryCommandAsksForItsRight) {
  linha(1, "Norte");
  recarregar();
  struct Pedido {
    const char* sDireito;
    Key tecla;
    bool bCarregado;
  };
  for (const Pedido& pedido : {Pedido{"bPoderSalvar", Key::f3, false}, Pedido{"bPoderAtualizar", Key::f3, true},
                               Pedido{"bPoderExcluir", Key::f4, true}, Pedido{"bPoderExcluir", Key::f4, false},
                               Pedido{"bPoderPesquisar", Key::f6, false}}) {
    programa.permissoes().vSetPermissoes(0);
    recarregar();
    if (pedido.bCarregado) carregar(0);
    tela.txtNome.userType("Outro");
    tela.txtCodigoInf.userType("");  // the right is asked for before anything is checked
    entrarSem(pedido.sDireito);
    const std::size_t iAntes = host.boxes().size();
    host.expectBox(semPermissao());
    tela.userKey(pedido.tecla);
    EXPECT_EQ(host.boxes().size(), iAntes + 1) << pedido.sDireito;
    EXPECT_THAT(guardados(), ElementsAre("1|Norte"));
    EXPECT_EQ(tela.txtNome.text(), "Outro") << "the form stays";
  }
}

TEST_P(CodigoNome, WithoutTheRightToSearchTheListStaysAsItWas) {
  linha(1, "Norte");
  fechar(tela);
  entrarSem("bPoderPesquisar");
  host.expectBox(semPermissao());
  auto& outra = abrirCadastro(caso.sTela);
  EXPECT_THAT(outra.lstLista.items(), IsEmpty());
}

TEST_P(CodigoNome, EnterMovesOnAndEscCloses) {
  linha(1, "Norte");
  recarregar();
  ASSERT_EQ(tela.lstLista.items().size(), 1u);
  EXPECT_TRUE(tela.userKey(Key::enter));
  EXPECT_TRUE(tela.txtNome.hasFocus());
  tela.userKey(Key::escape);
  EXPECT_EQ(tela.state(), Screen::State::unloaded);
  EXPECT_THAT(tela.lstLista.items(), IsEmpty());
  EXPECT_EQ(tela.lGetCodigo(), 0);
}

INSTANTIATE_TEST_SUITE_P(Todos, CodigoNome,
                         testing::Values(Caso{"frmCadastroCategorias", "Categorias", "btCodigoInf", "sNome", "txtNome",
                                              "Informe o nome.", true, "SELECT lCategoria FROM Clientes"},
                                         Caso{"frmCadastroVendedores", "Vendedores", "lCodigoInf", "sNome", "txtNome",
                                              "Informe o nome.", true, "SELECT lVendedor FROM Clientes"},
                                         Caso{"frmCadastroPortadores", "Portadores", "btCodigoInf", "sNome", "txtNome",
                                              "Informe o nome.", false, "SELECT lPortador FROM FaturasCliente"},
                                         Caso{"frmCadastroCentroCusto", "CentroCusto", "btCodigoInf", "sDescricao",
                                              "txtDescricao", "Informe a descrição.", true,
                                              "SELECT lCentroCusto FROM FaturasCliente"}),
                         [](const auto& caso) { return std::string(caso.param.sTabela); });

TEST_F(Cadastros, CaptionsAndTitlesOfTheSmallRegisters) {
  std::vector<std::string> textos;
  for (const DescricaoCodigoNome& descricao : cadastrosCodigoNome()) {
    Screen& tela = abrir(descricao.sNome);
    textos.push_back(tela.caption() + "|" + tela.title());
    fechar(tela);
  }
  EXPECT_THAT(textos,
              ElementsAre("Categorias|Cadastro de categorias", "Vendedores|Cadastro de vendedores",
                          "Portadores|Cadastro de portadores", "Centros de custo|Cadastro de centros de custo"));
}

TEST_F(Cadastros, AByteCodeBeyondItsRangeIsToldByTheReport) {
  executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (255, 'Última')");
  auto& tela = abrirCadastro("frmCadastroCategorias");
  EXPECT_EQ(caixa(tela, "txtCodigoInf").text(), "256");
  caixa(tela, "txtNome").userType("Mais uma");
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  tela.userKey(Key::f3);
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Categorias"), "1");
}

}  // namespace
}  // namespace fenvale
