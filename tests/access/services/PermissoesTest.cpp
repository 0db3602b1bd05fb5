#include "access/services/Permissoes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/sql/Store.h"
#include "store/services/DBConectar.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::Pair;

class Direitos : public testing::Test {
 protected:
  Direitos() { programa.abrirPrograma(); }
  void TearDown() override { host.verify(); }

  /// A user with the rights named, of all that there are; the user's key.
  std::int32_t usuario(const std::vector<std::string>& direitos) {
    std::string campos;
    std::string valores;
    for (const std::string& direito : direitos) {
      campos += ", " + direito;
      valores += ", -1";
    }
    programa.executarPrograma("INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha" + campos +
                              ") VALUES ('Ana Souza', 'ana', 'x'" + valores + ")");
    return std::stoi(programa.linhasPrograma("SELECT MAX(lCodigo) AS Valor FROM Usuarios").at(0).at(0));
  }
  void exibirLogin(const std::string& valor) {
    programa.executarPrograma("INSERT INTO Configuracoes (sSMTP, bitExibirLoginUsuarios) VALUES ('', " + valor + ")");
  }

  ProgramaDeTeste programa;
  TestHost& host = programa.hostDeTeste();
  JanelaDeTeste& janela = programa.janelaDeTeste();
};

TEST(ChavesMenu, ThereAreSixtySixInTheirOrder) {
  const auto& chaves = chavesMenu();
  ASSERT_EQ(chaves.size(), 66U);
  std::string todas;
  for (const ChaveMenu& chave : chaves) todas += std::string(chave.sChave) + " ";
  EXPECT_EQ(
      todas,
      "c0 c1 c2 c3 c4 c5 c6 c7 c8 c9 c10 c11 c12 c13 c14 c15 c16 c17 c18 p0 p1 p2 p3 e0 e1 e2 e2a e2b e2c e2d e3 "
      "e3a e3b e3c e4 l0 l1 l1a l1b l1c l1d l1e l1f l1g l1h l1i l1j l1k l1l l2 l2a l2b l3 l3a l3b l3c l3d l3e l3f "
      "l4 l4a l4b l4c l4d l4e l4f ");
}

TEST(ChavesMenu, EachStandsInItsMenu) {
  const std::map<std::string_view, std::string_view> pais{{"c0", ""},    {"c18", "c0"}, {"p3", "p0"},
                                                          {"e2", "e0"},  {"e2d", "e2"}, {"e4", "e0"},
                                                          {"l1l", "l1"}, {"l4", "l0"},  {"l4f", "l4"}};
  std::map<std::string_view, std::string_view> vistos;
  for (const ChaveMenu& chave : chavesMenu()) {
    if (pais.contains(chave.sChave)) vistos[chave.sChave] = chave.sPai;
  }
  EXPECT_EQ(vistos, pais);
}

TEST(ChavesMenu, EntriesAndCaptionsAsTheMenuHasThem) {
  std::map<std::string_view, std::pair<std::string_view, std::string_view>> chaves;
  for (const ChaveMenu& chave : chavesMenu()) chaves[chave.sChave] = {chave.sEntrada, chave.sLegenda};
  EXPECT_THAT(chaves["c0"], Pair("mnuCadastroS", "Cadastros"));
  EXPECT_THAT(chaves["c5"], Pair("mnuCadClientes", "Clientes"));
  EXPECT_THAT(chaves["e1"], Pair("mnuEmtirCarnesPromissorias", "Emissão de carnês e promissórias"));
  EXPECT_THAT(chaves["e2c"], Pair("mnuEmissaoMalaDiretaAnivesariantes", "Aniversariantes"));
  EXPECT_THAT(chaves["e3a"], Pair("mnuImprimssaoCheque", "Impressão para títulos recebidos"));
  EXPECT_THAT(chaves["l3c"], Pair("mnuRelTitulosReceber", "a receber"));
  EXPECT_THAT(chaves["l4e"], Pair("mnuRelPosicaoGeralConfrontamento", "Confrotamento da posição geral"));
}

TEST_F(Direitos, EveryKeyIsAFieldOfTheUsers) {
  for (const ChaveMenu& chave : chavesMenu())
    EXPECT_NO_THROW(programa.linhasPrograma("SELECT " + std::string(chave.sChave) + " FROM Usuarios")) << chave.sChave;
}

TEST_F(Direitos, BeforeAnyLoginEverythingIsAllowed) {
  Permissoes& permissoes = programa.permissoes();
  EXPECT_EQ(permissoes.lGetCodigoUsuario(), 0);
  EXPECT_EQ(permissoes.sGetNomeUsuario(), "DEFAULT NO NAMED");
  EXPECT_TRUE(permissoes.bGetSalvar() && permissoes.bGetExcluir() && permissoes.bGetPesquisar());
  EXPECT_TRUE(permissoes.bGetImprimir() && permissoes.bGetAtualizar());
  EXPECT_EQ(janela.menu.size(), 66U);
  for (const auto& [entrada, direito] : janela.menu) EXPECT_TRUE(direito) << entrada;
  EXPECT_THAT(janela.botoes,
              ElementsAre(Pair(1, true), Pair(2, true), Pair(3, true), Pair(5, true), Pair(6, true), Pair(8, true)));
}

TEST_F(Direitos, EachKeyGovernsItsOwnEntryAndButton) {
  const std::map<std::string, int> botoes{{"c5", 1}, {"c6", 2}, {"c7", 3}, {"c13", 5}, {"c14", 6}, {"p3", 8}};
  Permissoes& permissoes = programa.permissoes();
  for (const ChaveMenu& chave : chavesMenu()) {
    programa.executarPrograma("DELETE * FROM Usuarios");
    permissoes.vSetPermissoes(usuario({std::string(chave.sChave)}));
    for (const auto& [entrada, direito] : janela.menu)
      ASSERT_EQ(direito, entrada == chave.sEntrada) << chave.sChave << " and " << entrada;
    const auto botao = botoes.find(std::string(chave.sChave));
    for (const auto& [lugar, direito] : janela.botoes)
      ASSERT_EQ(direito, botao != botoes.end() && botao->second == lugar) << chave.sChave << " and button " << lugar;
  }
}

TEST_F(Direitos, EntriesAreSetInTheOrderOfTheKeys) {
  programa.permissoes().vSetPermissoes(usuario({}));
  ASSERT_EQ(janela.ordemMenu.size(), 132U);
  for (std::size_t i = 0; i < 66; ++i) EXPECT_EQ(janela.ordemMenu[66 + i], chavesMenu()[i].sEntrada);
}

TEST_F(Direitos, AMissingRightTellsItself) {
  struct Caso {
    const char* campo;
    bool (Permissoes::*consulta)();
  };
  const Caso casos[] = {{"bPoderSalvar", &Permissoes::bGetSalvar},
                        {"bPoderExcluir", &Permissoes::bGetExcluir},
                        {"bPoderPesquisar", &Permissoes::bGetPesquisar},
                        {"bPoderImprimir", &Permissoes::bGetImprimir},
                        {"bPoderAtualizar", &Permissoes::bGetAtualizar}};
  for (const Caso& dado : casos) {
    programa.executarPrograma("DELETE * FROM Usuarios");
    programa.permissoes().vSetPermissoes(usuario({dado.campo}));
    for (const Caso& pedido : casos) {
      const bool tem = std::string(pedido.campo) == dado.campo;
      if (!tem) host.expectBox(semPermissao());
      EXPECT_EQ((programa.permissoes().*pedido.consulta)(), tem) << dado.campo << " and " << pedido.campo;
    }
  }
}

TEST_F(Direitos, OfTheUserWhoSignedIn) {
  const std::int32_t lAna = usuario({"bPoderSalvar", "c0", "c5"});
  programa.permissoes().vSetPermissoes(lAna);
  EXPECT_EQ(programa.permissoes().lGetCodigoUsuario(), lAna);
  EXPECT_EQ(programa.permissoes().sGetNomeUsuario(), "Ana Souza");
  EXPECT_GT(janela.barrasAtualizadas, 0);
}

TEST_F(Direitos, AUserWhoIsNotThereChangesNothingButTheKey) {
  programa.permissoes().vSetPermissoes(usuario({"bPoderSalvar", "c5"}));
  programa.permissoes().vSetPermissoes(999);
  EXPECT_EQ(programa.permissoes().lGetCodigoUsuario(), 999);
  EXPECT_EQ(programa.permissoes().sGetNomeUsuario(), "Ana Souza");
  EXPECT_TRUE(janela.menu.at("mnuCadClientes"));
  EXPECT_FALSE(janela.menu.at("mnuCadFornecedores"));
}

TEST_F(Direitos, NoUserAgainHasEveryRight) {
  programa.permissoes().vSetPermissoes(usuario({}));
  programa.permissoes().vSetPermissoes(0);
  EXPECT_EQ(programa.permissoes().sGetNomeUsuario(), "DEFAULT NO NAMED");
  EXPECT_TRUE(programa.permissoes().bGetExcluir());
  EXPECT_TRUE(janela.menu.at("mnuRelFluxoCaixa"));
}

TEST_F(Direitos, ALoginIsAskedForUnlessTheSettingsSayOtherwise) {
  EXPECT_TRUE(programa.permissoes().bFazerLogin());
  exibirLogin("-1");
  EXPECT_TRUE(programa.permissoes().bFazerLogin());
}

TEST_F(Direitos, WithTheLoginSwitchedOffEverybodyHasEveryRight) {
  programa.permissoes().vSetPermissoes(usuario({}));
  exibirLogin("0");
  EXPECT_FALSE(programa.permissoes().bFazerLogin());
  EXPECT_EQ(programa.permissoes().lGetCodigoUsuario(), 0);
  EXPECT_TRUE(programa.permissoes().bGetSalvar());
}

TEST_F(Direitos, AFailureIsReportedUnderItsProcedure) {
  programa.dbConectar().Dados().close();
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { programa.permissoes().bFazerLogin(); }), 1);
  EXPECT_THAT(programa.pasta().ler("Erros/260315143207.err"), testing::HasSubstr("Formul\xE1rio: Permissoes\r\n"));
  EXPECT_THAT(programa.pasta().ler("Erros/260315143207.err"), testing::HasSubstr("Fun\xE7\xE3o: bFazerLogin\r\n"));
}

}  // namespace
}  // namespace fenvale
