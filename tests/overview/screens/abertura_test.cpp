// How the overview comes up: by itself at the start of the program, and from the main window.

#include "access/screens/frmLogin.h"
#include "overview/screens/CenarioDoQuadro.h"
#include "shell/screens/Lancador.h"
#include "shell/screens/frmMDIPrincipal.h"
#include "store/services/Empresas.h"

namespace fenvale {
namespace {

class AberturaDoQuadro : public CenarioDoQuadro {
 protected:
  void SetUp() override {
    cenario.programa.executarPrograma(
        "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
        "bPoderImprimir, bPoderAtualizar) VALUES ('Ana', 'ANA', 'x', -1, -1, -1, -1, -1)");
    cenario.programa.executarPrograma(
        "INSERT INTO Configuracoes (sSMTP, sEmailRementente, lTamanhoPagina, bitExibirLoginUsuarios) VALUES ('s', 'e', "
        "100, 0)");
    cenario.programa.empresas().vSetUltimaEmpresaSelecionada();
    umEmCadaLista();
  }
  void iniciar() {
    ASSERT_EQ(ProgramaDeTeste::codigoDeSaida([this] { Lancador(cenario.programa).Main(true); }), std::nullopt);
    host.verify();
  }
  frmMDIPrincipal& janela() { return telas.obter<frmMDIPrincipal>("frmMDIPrincipal"); }
  /// Notes what the board shows, and closes it.
  std::function<void(Screen&)> olhar() {
    return [this](Screen& tela) {
      vistos = todos(dynamic_cast<frmMostrarContas&>(tela));
      bTodasAberto = opcoes().bGetMostrarTodas();
      tela.userKey(Key::escape);
    };
  }

  std::vector<std::vector<std::string>> vistos;
  bool bTodasAberto = false;
};

TEST_F(AberturaDoQuadro, WithEverySettingOffItOpensOnlyFromTheMenuWithAllFourLists) {
  iniciar();
  EXPECT_FALSE(opcoes().bGetMostrarTodas());
  host.expectScreen("frmMostrarContas", olhar());
  janela().mnuPrincipal.userChoose("mnuQuadroGeralContas");
  EXPECT_THAT(vistos, ElementsAre(ElementsAre("P1"), ElementsAre("R1"), ElementsAre("P2"), ElementsAre("R2")));
  EXPECT_TRUE(opcoes().bGetMostrarTodas()) << "from now on, as long as the program runs";
}

TEST_F(AberturaDoQuadro, AtTheStartOnlyWhatTheFirmAskedForIsShownAndLaterInTheRunEverything) {
  ligar("bitMostrarContasVencidasReceber = -1");
  host.expectScreen("frmMostrarContas", [&](Screen& tela) {
    EXPECT_FALSE(janela().enabled()) << "the main window waits";
    olhar()(tela);
  });
  iniciar();
  EXPECT_THAT(vistos, ElementsAre(IsEmpty(), IsEmpty(), IsEmpty(), ElementsAre("R2")));
  EXPECT_FALSE(bTodasAberto);
  EXPECT_TRUE(opcoes().bGetMostrarTodas());
  EXPECT_TRUE(janela().enabled());
  EXPECT_EQ(host.pointer(), Pointer::normal);

  host.expectScreen("frmMostrarContas", olhar());
  janela().Toolbar1.userClick("QuadroGeral");
  EXPECT_THAT(vistos, ElementsAre(ElementsAre("P1"), ElementsAre("R1"), ElementsAre("P2"), ElementsAre("R2")));
  EXPECT_TRUE(bTodasAberto);
}

TEST_F(AberturaDoQuadro, WithEverySettingOnTheStartShowsAllFourLists) {
  ligar(
      "bitMostrarContasPagarDia = -1, bitMostrarContasReceberDia = -1, bitMostrarContasVencidasPagar = -1, "
      "bitMostrarContasVencidasReceber = -1");
  host.expectScreen("frmMostrarContas", olhar());
  iniciar();
  EXPECT_THAT(vistos, ElementsAre(ElementsAre("P1"), ElementsAre("R1"), ElementsAre("P2"), ElementsAre("R2")));
}

TEST_F(AberturaDoQuadro, ARefusalAtTheStartIsToldAndTheFlagIsSetBack) {
  ligar("bitMostrarContasPagarDia = -1");
  cenario.programa.executarPrograma("UPDATE Usuarios SET bPoderPesquisar = 0");
  cenario.programa.executarPrograma("UPDATE Configuracoes SET bitExibirLoginUsuarios = -1");
  host.expectScreen("frmLogin", [](Screen& tela) {
    auto& login = dynamic_cast<frmLogin&>(tela);
    login.cmbLogin.userChoose(0);
    login.txtSenha.userType("x");
    tela.userKey(Key::f3);
  });
  host.expectBox(semPermissao());
  iniciar();
  EXPECT_TRUE(opcoes().bGetMostrarTodas());
  EXPECT_TRUE(janela().enabled());
}

TEST_F(AberturaDoQuadro, WithoutTheRightToSearchTheMenuSaysSoAndOpensNothing) {
  iniciar();
  cenario.programa.executarPrograma("UPDATE Usuarios SET bPoderPesquisar = 0, p0 = -1, p3 = -1");
  cenario.programa.permissoes().vSetPermissoes(1);
  for (int i = 0; i < 2; ++i) host.expectBox(semPermissao());
  janela().mnuPrincipal.userChoose("mnuQuadroGeralContas");
  janela().Toolbar1.userClick("QuadroGeral");
  EXPECT_FALSE(opcoes().bGetMostrarTodas()) << "a refusal changes nothing";
}

TEST_F(AberturaDoQuadro, WithoutACompanyNeitherTheStartNorTheMenuOpensIt) {
  ligar("bitMostrarContasPagarDia = -1");
  cenario.programa.empresas().bSetEmpresa(0, "", "", false);
  cenario.programa.pasta().gravar("Empresa.XML", "<root></root>");
  iniciar();
  EXPECT_TRUE(opcoes().bGetMostrarTodas()) << "nobody has touched what the settings say";
  opcoes().vSetMotrarTodas(false);
  host.expectBox(aviso("Selecione uma empresa."));
  janela().mnuPrincipal.userChoose("mnuQuadroGeralContas");
  EXPECT_FALSE(opcoes().bGetMostrarTodas()) << "a refusal changes nothing";
}

TEST_F(AberturaDoQuadro, HoweverTheBoardOfTheStartIsClosedTheFlagIsSetBackAndTheWindowFree) {
  ligar("bitMostrarContasVencidasPagar = -1");
  const std::function<void(frmMostrarContas&)> maneiras[] = {[](frmMostrarContas& tela) { tela.userKey(Key::escape); },
                                                             [](frmMostrarContas& tela) { tela.cmdFechar.userClick(); },
                                                             [](frmMostrarContas& tela) { tela.userClose(); }};
  for (const auto& fechar : maneiras) {
    opcoes().vSetMotrarTodas(true);
    host.expectScreen("frmMostrarContas", [&](Screen& tela) {
      EXPECT_FALSE(opcoes().bGetMostrarTodas());
      fechar(dynamic_cast<frmMostrarContas&>(tela));
    });
    iniciar();
    EXPECT_TRUE(opcoes().bGetMostrarTodas());
    EXPECT_TRUE(janela().enabled());
    EXPECT_EQ(host.pointer(), Pointer::normal);
  }
}

TEST_F(AberturaDoQuadro, TheBoardOfTheStartIsLetGoAndTheMenusIsAnotherWithItsFourTabs) {
  ligar("bitMostrarContasPagarDia = -1");
  host.expectScreen("frmMostrarContas", [](Screen& tela) {
    EXPECT_FALSE(dynamic_cast<frmMostrarContas&>(tela).lstReceberDia.visible());
    tela.userKey(Key::escape);
  });
  iniciar();
  host.expectScreen("frmMostrarContas", [](Screen& tela) {
    for (const frmMostrarContas::Quadro& lista : dynamic_cast<frmMostrarContas&>(tela).quadros)
      EXPECT_TRUE(lista.lst.visible() && lista.lblContas.visible() && lista.cmdEmitir.visible());
    tela.userKey(Key::escape);
  });
  janela().mnuPrincipal.userChoose("mnuQuadroGeralContas");
}

TEST_F(AberturaDoQuadro, AChangeOfTheSettingsCountsFromTheNextStart) {
  iniciar();
  ligar("bitMostrarContasPagarDia = -1");
  EXPECT_FALSE(opcoes().bGetMostrarTodas());
}

}  // namespace
}  // namespace fenvale
