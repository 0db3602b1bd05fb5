// The main window as a person goes through it: every entry of its menu and every button of its toolbar, in real
// windows.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/services/Permissoes.h"
#include "gui/cadastros/CadastrosEmJanelas.h"
#include "platform/base/Error.h"
#include "platform/ui/Menu.h"
#include "shell/screens/MenuPrincipal.h"
#include "shell/screens/frmMDIPrincipal.h"

namespace fenvale::qt {
namespace {

using testing::ElementsAre;

class MenuEmJanelas : public CadastrosEmJanelas {
 protected:
  MenuEmJanelas() {
    const Recordset inclusao(
        "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
        "bPoderImprimir, bPoderAtualizar) VALUES ('Maria', 'MARIA', '123', -1, -1, -1, -1, -1)",
        programa.dbConectar().Dados());
    programa.permissoes().vSetPermissoes(0);
    abrir("frmMDIPrincipal");
  }
  ~MenuEmJanelas() override {
    EXPECT_THROW(
        {
          janela().unload();
          host.throwKept();
        },
        ProgramEnded);
  }
  frmMDIPrincipal& janela() { return programa.telas().obter<frmMDIPrincipal>("frmMDIPrincipal"); }
  QAction& acao(std::string_view sNome) {
    auto* const achada =
        windowOf(janela())->findChild<QAction*>(QString::fromUtf8(sNome.data(), static_cast<qsizetype>(sNome.size())));
    if (achada == nullptr) throw std::logic_error("no action " + std::string(sNome));
    return *achada;
  }
  /// What comes up when the action is triggered, each sent away by Esc: the names of screens, the texts of boxes.
  std::vector<std::string> abertas(std::string_view sAcao) {
    std::vector<std::string> surgidas;
    QTimer alguem;
    QObject::connect(&alguem, &QTimer::timeout, [&] {
      if (host.topWindow() == windowOf(janela())) return;
      const MessageBox* caixa = host.openBox();
      surgidas.push_back(caixa != nullptr ? caixa->text : host.activeScreen()->sGetName());
      press(host, Qt::Key_Escape);
    });
    alguem.start(0);
    acao(sAcao).trigger();
    host.throwKept();
    return surgidas;
  }
};

/// The screens that print at positions or by bands.
bool bImprime(std::string_view sTela) {
  for (const std::string_view sInicio : {"frmRel", "frmEmitir", "frmMalaDireta", "frmImpressaoCheques"})
    if (sTela.starts_with(sInicio)) return true;
  return false;
}

TEST_F(MenuEmJanelas, EveryEntryThatIsOnOpensItsScreenAndOnlyPrintingIsOff) {
  for (const EntradaMenu& entrada : entradasMenu()) {
    if (entrada.sTela.empty() || entrada.sTela == "frmLogin") continue;
    if (!acao(entrada.sNome).isEnabled()) {
      EXPECT_TRUE(bImprime(entrada.sTela)) << entrada.sNome << " is off for want of " << entrada.sTela;
      continue;
    }
    EXPECT_THAT(abertas(entrada.sNome), ElementsAre(entrada.sTela)) << entrada.sNome;
  }
}

TEST_F(MenuEmJanelas, TheButtonsOfTheToolbarAreAllOn) {
  std::vector<std::string> telas;
  for (const char* sBotao : {"CadastroClientes", "CadastroFornecedores", "CadastroPortadores", "TitulosReceber",
                             "TitulosPagar", "QuadroGeral"}) {
    EXPECT_TRUE(acao(sBotao).isEnabled()) << sBotao;
    for (std::string& sTela : abertas(sBotao)) telas.push_back(std::move(sTela));
  }
  EXPECT_THAT(telas, ElementsAre("frmCadastroClientes", "frmCadastroFornecedores", "frmCadastroPortadores",
                                 "frmCadastroTitulosReceber", "frmCadastroTitulosPagar", "frmMostrarContas"));
  EXPECT_TRUE(acao("sair").isEnabled());
}

TEST_F(MenuEmJanelas, WithoutACompanyTheGuardedEntriesSaySoAndTheOthersOpen) {
  programa.empresas().bSetEmpresa(0, "", "", false);
  for (const EntradaMenu& entrada : entradasMenu()) {
    if (entrada.sTela.empty() || entrada.sTela == "frmLogin" || !acao(entrada.sNome).isEnabled()) continue;
    const std::string sEsperado =
        entrada.guarda == Guarda::nenhuma ? std::string(entrada.sTela) : std::string("Selecione uma empresa.");
    EXPECT_THAT(abertas(entrada.sNome), ElementsAre(sEsperado)) << entrada.sNome;
  }
}

TEST_F(MenuEmJanelas, AnotherUserSignsInOrTheProgramEnds) {
  whenOpened(host, [&] {
    EXPECT_EQ(host.activeScreen()->sGetName(), "frmLogin");
    EXPECT_EQ(programa.permissoes().lGetCodigoUsuario(), 0) << "the former user's rights stay meanwhile";
    press(host, Qt::Key_Escape);
  });
  EXPECT_THROW(
      {
        acao("mnuTrocarUsuario").trigger();
        host.throwKept();
      },
      ProgramEnded);
}

TEST_F(MenuEmJanelas, AnyKeyClosesTheAboutScreen) {
  for (const int iTecla : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space, Qt::Key_A, Qt::Key_Tab, Qt::Key_Backtab,
                           Qt::Key_F5, Qt::Key_Down, Qt::Key_Delete}) {
    bool bFechou = false;
    whenOpened(host, [&] {
      const Screen& sobre = *host.activeScreen();
      EXPECT_EQ(sobre.sGetName(), "frmSobreApp");
      press(host, iTecla);
      bFechou = host.activeScreen() == &janela();
      if (!bFechou) press(host, Qt::Key_Escape);
    });
    acao("mnuabout").trigger();
    host.throwKept();
    EXPECT_TRUE(bFechou) << "key " << iTecla;
  }
}

}  // namespace
}  // namespace fenvale::qt
