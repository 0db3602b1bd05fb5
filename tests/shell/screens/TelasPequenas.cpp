#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Registro.h"
#include "platform/os/Process.h"
#include "shell/screens/frmLocalizarBD.h"
#include "shell/screens/frmSobreApp.h"
#include "shell/screens/frmSplash.h"
#include "shell/services/Monitor.h"
#include "shell/services/Telas.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using std::chrono::milliseconds;

class TelasPequenas : public testing::Test {
 protected:
  ProgramaDeTeste programa{vRegistrarTelas};
  TestHost& host = programa.hostDeTeste();
};

TEST_F(TelasPequenas, TheMonitorIsToldWithoutBlanks) {
  host.setMonitorSize({1024, 768});
  EXPECT_EQ("1024x768", Monitor(host).sObterResolucaoMonitor());
}

// The splash.

TEST_F(TelasPequenas, TheSplashStaysItsWholeWaitWhenTheCompanyOpenedFast) {
  programa.telas().obter<frmSplash>("frmSplash").vCarregar();
  EXPECT_EQ(milliseconds(2150), host.elapsed());
  EXPECT_TRUE(host.shown().empty());
}

/// A screen that notes the moments at which the waits of others end.
class Cronometro final : public Screen {
 public:
  explicit Cronometro(UiHost& quem) : Screen(quem, "frmCronometro") {
    tmpPassos.onTick = [this] {
      const auto agora = static_cast<int>(host().elapsed().count());
      if (momentos.empty() || momentos.back() != agora) momentos.push_back(agora);
    };
    tmpPassos.setInterval(10);
  }
  Timer tmpPassos{*this, "tmpPassos"};
  std::vector<int> momentos;
};

TEST_F(TelasPequenas, TheSplashWaitsInElevenStepsAndLetsEventsThroughBeforeEach) {
  Cronometro cronometro(host);
  host.show(cronometro);
  const int antes = host.eventsLetThrough();
  programa.telas().obter<frmSplash>("frmSplash").vCarregar();
  EXPECT_THAT(cronometro.momentos, testing::ElementsAre(350, 530, 710, 890, 1070, 1250, 1430, 1610, 1790, 1970, 2150));
  EXPECT_EQ(12, host.eventsLetThrough() - antes) << "once when the message is put up";
  cronometro.unload();
}

TEST_F(TelasPequenas, TheSplashTellsWhoMadeTheProgram) {
  auto& splash = programa.telas().obter<frmSplash>("frmSplash");
  splash.vCarregar();
  EXPECT_EQ("Desenvolvido por Norvane Sistemas\r\nDistribuído por Quelora Ltda\r\nTodos os direitos reservados",
            splash.lblDireitos.caption());
  EXPECT_EQ("Gestor Fenvale - Versão ZENIT", splash.lblNomePrograma.caption());
  EXPECT_EQ("Versão 1.0.0", splash.lblVersao.caption());
  EXPECT_EQ("", splash.lblMensagem.caption());
  EXPECT_EQ(0, splash.tmpMensagem.interval());
}

/// Answers the box of the lost company after so much time, which stands for a slow opening.
void splashComDemora(ProgramaDeTeste& programa, milliseconds demora, std::string* sMensagem = nullptr) {
  programa.abrirPrograma();
  programa.pasta().gravar("Empresa.XML", "<root><emp><cod>1</cod><file>x.MDB</file><path>/nada/</path></emp></root>");
  TestHost& host = programa.hostDeTeste();
  auto& splash = programa.telas().obter<frmSplash>("frmSplash");
  host.then([&, demora, sMensagem] {
    host.passTime(demora);
    if (sMensagem != nullptr) *sMensagem = splash.lblMensagem.caption();
    EXPECT_EQ(650, splash.tmpMensagem.interval());
  });
  host.expectBox(aviso("/nada/x.MDB\r\n\r\nO arquivo não foi localizado."));
  splash.vCarregar();
}

TEST_F(TelasPequenas, TheSplashOfASlowOpeningGoesAtOnce) {
  splashComDemora(programa, milliseconds(3000));
  EXPECT_EQ(milliseconds(3000), host.elapsed());
}

TEST_F(TelasPequenas, TheSplashWaitsWholeWhenOnlyALittleWasMissing) {
  splashComDemora(programa, milliseconds(2900));
  EXPECT_EQ(milliseconds(2900 + 2150), host.elapsed());
}

TEST_F(TelasPequenas, TheSplashShowsTheBareWordsOfTheCompany) {
  std::string sMensagem;
  splashComDemora(programa, milliseconds(0), &sMensagem);
  EXPECT_EQ("Abrindo a empresa ", sMensagem);
}

TEST_F(TelasPequenas, TheMessageBlinks) {
  frmSplash splash(programa);
  EXPECT_TRUE(splash.lblMensagem.visible());
  std::vector<bool> visivel;
  for (int tique = 0; tique < 4; ++tique) {
    splash.tmpMensagem.tick();
    visivel.push_back(splash.lblMensagem.visible());
  }
  EXPECT_THAT(visivel, testing::ElementsAre(false, true, false, true));
}

// About.

TEST_F(TelasPequenas, AboutTellsTheProgramAndItsMaker) {
  host.expectScreen("frmSobreApp", [](Screen& tela) {
    auto& sobre = dynamic_cast<frmSobreApp&>(tela);
    EXPECT_EQ("Sobre o Programa", tela.caption());
    EXPECT_EQ("Gestor Fenvale - Versão ZENIT", sobre.lblNomePrograma.caption());
    EXPECT_EQ("Versão 1.0.0", sobre.lblVersao.caption());
    const std::string detalhes = sobre.lblDetalhes.caption();
    EXPECT_EQ(5, std::count(detalhes.begin(), detalhes.end(), '\n'));
    tela.userKey(Key::escape);
  });
  host.showModal(programa.telas().obter("frmSobreApp"));
}

TEST_F(TelasPequenas, AnyKeyClosesAbout) {
  for (Key tecla : {Key::enter, Key::space, Key::f1, Key::other}) {
    host.expectScreen("frmSobreApp", [tecla](Screen& tela) { tela.userKey(tecla); });
    host.showModal(programa.telas().obter("frmSobreApp"));
  }
}

// The store's place.

class LocalizarBD : public TelasPequenas {
 protected:
  void aberta(const std::function<void(frmLocalizarBD&)>& agir) {
    host.expectScreen("frmLocalizarBD", [agir](Screen& tela) { agir(dynamic_cast<frmLocalizarBD&>(tela)); });
    host.showModal(programa.telas().obter("frmLocalizarBD"));
  }
  std::string ini() { return programa.pasta().ler("init.ini"); }
  PastaTemporaria outra;
};

TEST_F(LocalizarBD, ShowsTheStoresNameAndThePathInUse) {
  programa.pasta().gravar("init.ini", "/lugar/antigo/Dados.mdb\r\nmais\r\n");
  aberta([](frmLocalizarBD& tela) {
    EXPECT_EQ("Localizar Base de Dados", tela.caption());
    EXPECT_EQ("Informações do caminho da base de dados", tela.lblPrincipal.caption());
    EXPECT_EQ("Endereço Atual", tela.txtEnderecoAtual.label());
    EXPECT_EQ("Dados.mdb", tela.flstListaBancoDados.pattern());
    EXPECT_EQ("/lugar/antigo/Dados.mdb", tela.txtEnderecoAtual.text());
    tela.userKey(Key::escape);
  });
}

TEST_F(LocalizarBD, DriveFolderAndFileFollowEachOther) {
  outra.gravar("sub/Dados.MDB", "x");
  aberta([&](frmLocalizarBD& tela) {
    tela.drvlstListaDiretorios.userChoose("/");
    EXPECT_EQ("/", tela.drvArvoreDiretorios.path());
    EXPECT_EQ("/", tela.txtEnderecoAtual.text());
    tela.drvArvoreDiretorios.userChoose(outra.arquivo("sub"));
    EXPECT_EQ(outra.arquivo("sub"), tela.flstListaBancoDados.path());
    EXPECT_EQ(outra.arquivo("sub"), tela.txtEnderecoAtual.text());
    tela.flstListaBancoDados.userClick("Dados.MDB");
    EXPECT_EQ(outra.arquivo("sub/Dados.MDB"), tela.txtEnderecoAtual.text());
    tela.userKey(Key::escape);
  });
}

TEST_F(LocalizarBD, AWrongPathIsRefused) {
  host.expectScreen("frmLocalizarBD", [&](Screen& aberta) {
    auto& tela = dynamic_cast<frmLocalizarBD&>(aberta);
    tela.txtEnderecoAtual.userType("/nada");
    tela.cmdTestarConexao.userClick();
    tela.userKey(Key::escape);
  });
  host.expectBox(critica("Caminho inválido."));
  host.showModal(programa.telas().obter("frmLocalizarBD"));
  host.verify();
  EXPECT_EQ("", ini());
}

TEST_F(LocalizarBD, AFileOrItsFolderIsStored) {
  outra.gravar("Dados.mdb", "x");
  for (const std::string& escrito : {outra.arquivo("Dados.mdb"), outra.caminho()}) {
    programa.pasta().gravar("init.ini", "antigo\r\n");
    host.expectScreen("frmLocalizarBD", [&](Screen& aberta) {
      auto& tela = dynamic_cast<frmLocalizarBD&>(aberta);
      EXPECT_EQ("&Sair", tela.cmdFechar.caption());
      tela.txtEnderecoAtual.userType(escrito);
      tela.cmdTestarConexao.userClick();
    });
    host.expectBox(informacao("Banco de Dados encontrado."));
    host.showModal(programa.telas().obter("frmLocalizarBD"));
    host.verify();
    EXPECT_EQ(outra.arquivo("Dados.mdb") + "\r\n", ini());
  }
}

TEST_F(LocalizarBD, LeavingWithoutAStoreEndsTheProgram) {
  host.expectScreen("frmLocalizarBD", [](Screen& tela) { dynamic_cast<frmLocalizarBD&>(tela).cmdFechar.userClick(); });
  EXPECT_EQ(0, programa.codigoDeSaida([&] { programa.dbConectar().Dados(); }));
}

TEST_F(LocalizarBD, LeavingByEscAsksAgain) {
  host.expectScreen("frmLocalizarBD", [](Screen& tela) { tela.userKey(Key::escape); });
  host.expectScreen("frmLocalizarBD", [](Screen& tela) { dynamic_cast<frmLocalizarBD&>(tela).cmdFechar.userClick(); });
  EXPECT_EQ(0, programa.codigoDeSaida([&] { programa.dbConectar().Dados(); }));
  host.verify();
}

TEST_F(LocalizarBD, TheOriginalPlaceIsWrittenAndTheProgramEnds) {
  host.expectScreen("frmLocalizarBD",
                    [](Screen& tela) { dynamic_cast<frmLocalizarBD&>(tela).cmdConfiguracaoOriginal.userClick(); });
  EXPECT_EQ(0, programa.codigoDeSaida([&] { programa.dbConectar().Dados(); }));
  EXPECT_EQ(programa.pasta().arquivo("Dados.mdb") + "\r\n", ini());
}

TEST_F(LocalizarBD, WithAStoreInPlaceAFileThatWasFoundIsStoredAndTheScreenStays) {
  programa.abrirPrograma();
  outra.gravar("Dados.mdb", "x");
  aberta([&](frmLocalizarBD& tela) {
    tela.txtEnderecoAtual.userType(outra.arquivo("Dados.mdb"));
    host.expectBox(informacao("Banco de Dados encontrado."));
    tela.cmdTestarConexao.userClick();
    host.verify();
    EXPECT_EQ(Screen::State::loaded, tela.state());
    tela.userKey(Key::escape);
    EXPECT_EQ(Screen::State::unloaded, tela.state());
  });
  EXPECT_EQ(outra.arquivo("Dados.mdb") + "\r\n", ini());
}

TEST_F(LocalizarBD, WithAStoreInPlaceTheOriginalPlaceIsWrittenAndTheScreenCloses) {
  programa.abrirPrograma();
  programa.pasta().gravar("init.ini", programa.pasta().arquivo("Dados.MDB") + "\r\noutra linha\r\n");
  aberta([](frmLocalizarBD& tela) { tela.cmdConfiguracaoOriginal.userClick(); });
  EXPECT_EQ(programa.pasta().arquivo("Dados.mdb") + "\r\n", ini());
  EXPECT_TRUE(programa.dbConectar().Dados().isOpen());
}

TEST_F(LocalizarBD, LeavingWithoutAStoreClosesWhatIsOpen) {
  programa.abrirPrograma();
  host.expectScreen("frmLocalizarBD", [](Screen& tela) {
    auto& cmdFechar = dynamic_cast<frmLocalizarBD&>(tela).cmdFechar;
    cmdFechar.setCaption("&Sair");
    cmdFechar.userClick();
  });
  EXPECT_EQ(0, programa.codigoDeSaida([&] { host.showModal(programa.telas().obter("frmLocalizarBD")); }));
  EXPECT_FALSE(programa.dbConectar().Dados().isOpen());
}

TEST_F(LocalizarBD, WithAStoreInPlaceTheButtonOnlyCloses) {
  programa.abrirPrograma();
  aberta([](frmLocalizarBD& tela) {
    EXPECT_EQ("&Fechar", tela.cmdFechar.caption());
    tela.cmdFechar.userClick();
  });
}

}  // namespace
}  // namespace fenvale
