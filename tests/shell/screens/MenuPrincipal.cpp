#include "shell/screens/MenuPrincipal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <algorithm>
#include <set>

#include "access/services/Permissoes.h"

namespace fenvale {
namespace {

using testing::ElementsAre;

std::string_view chaveDe(std::string_view entrada) {
  for (const ChaveMenu& chave : chavesMenu())
    if (chave.sEntrada == entrada) return chave.sChave;
  return {};
}

TEST(MenuPrincipal, EveryRightStandsOnItsEntryAndNoEntryHasAnother) {
  std::size_t comDireito = 0;
  for (const EntradaMenu& entrada : entradasMenu()) {
    EXPECT_EQ(entrada.sChave, chaveDe(entrada.sNome)) << entrada.sNome;
    if (!entrada.sChave.empty()) ++comDireito;
  }
  EXPECT_EQ(66u, chavesMenu().size());
  EXPECT_EQ(66u, comDireito);
}

TEST(MenuPrincipal, AnEntryStandsWhereItsRightStands) {
  for (const ChaveMenu& chave : chavesMenu()) {
    const EntradaMenu* entrada = entradaMenu(chave.sEntrada);
    ASSERT_NE(nullptr, entrada) << chave.sEntrada;
    EXPECT_EQ(chave.sPai, chaveDe(entrada->sPai)) << chave.sEntrada;
    std::string legenda(entrada->sLegenda);
    std::erase(legenda, '&');
    EXPECT_EQ(chave.sLegenda, legenda);
  }
}

TEST(MenuPrincipal, TheWayOutAndTheHelpCarryNoRight) {
  for (const char* nome : {"mnuSair", "mnusobre", "mnuabout"}) EXPECT_EQ("", entradaMenu(nome)->sChave) << nome;
}

TEST(MenuPrincipal, NamesAreUniqueAndSeparatorsOpenNothing) {
  std::set<std::string_view> nomes;
  for (const EntradaMenu& entrada : entradasMenu()) {
    EXPECT_TRUE(nomes.insert(entrada.sNome).second) << entrada.sNome;
    EXPECT_TRUE(entrada.sLegenda != "-" || entrada.sTela.empty()) << entrada.sNome;
    EXPECT_TRUE(entrada.sPai.empty() || nomes.count(entrada.sPai) == 1) << "the menu stands before " << entrada.sNome;
  }
}

TEST(MenuPrincipal, OnlyTheseOpenWithoutACompany) {
  std::vector<std::string_view> livres;
  for (const EntradaMenu& entrada : entradasMenu())
    if (!entrada.sTela.empty() && entrada.guarda == Guarda::nenhuma) livres.push_back(entrada.sTela);
  EXPECT_THAT(livres,
              ElementsAre("frmEmpresaNova", "frmEmpresaAbrir", "frmEmpresaBackup", "frmSistema", "frmCadastroUsuarios",
                          "frmLogin", "frmTransferenciaVendedores", "frmZerarTitulos", "frmSobreApp"));
}

TEST(MenuPrincipal, OnlyTheOverviewAsksForTheRightToSearch) {
  for (const EntradaMenu& entrada : entradasMenu())
    EXPECT_EQ(entrada.sTela == "frmMostrarContas", entrada.guarda == Guarda::quadro) << entrada.sNome;
}

TEST(MenuPrincipal, ThePlacesOfTheToolbar) {
  std::vector<std::string_view> chaves;
  for (const BotaoBarra& botao : botoesBarra()) chaves.push_back(botao.sChave);
  EXPECT_THAT(chaves, ElementsAre("CadastroClientes", "CadastroFornecedores", "CadastroPortadores", "",
                                  "TitulosReceber", "TitulosPagar", "", "QuadroGeral", "", "sair"));
}

TEST(MenuPrincipal, ToolbarButtonsFollowTheRightsOfTheirEntries) {
  const std::vector<std::string_view> direitos{"c5", "c6", "c7", "", "c13", "c14", "", "p3", "", ""};
  for (std::size_t i = 0; i < direitos.size(); ++i) {
    const EntradaMenu* entrada = entradaMenu(botoesBarra()[i].sEntrada);
    EXPECT_EQ(direitos[i], entrada == nullptr ? std::string_view() : entrada->sChave) << i + 1;
  }
}

}  // namespace
}  // namespace fenvale
