// A list printed from its screen in real windows, by keyboard alone. With FENVALE_FIGURAS set to a folder a picture of
// the options is left there.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtWidgets>
#include <cstdlib>

#include "app/Registro.h"
#include "gui/support/LookChecks.h"
#include "platform/sql/Store.h"
#include "platform/ui/qt/Probe.h"
#include "platform/ui/qt/QtHost.h"
#include "shell/services/Telas.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

HostOptions opcoes() {
  HostOptions options;
  options.iconFolder = QStringLiteral(FENVALE_SOURCE_DIR "/data/icones");
  options.scheme = qEnvironmentVariableIsSet("FENVALE_ESCURO") ? Scheme::dark : Scheme::light;
  options.immediate = true;
  return options;
}

class ListagensEmJanelas : public testing::Test, protected AmbienteDeTeste {
 protected:
  ListagensEmJanelas() {
    moldes.abrirEmpresa();
    moldes.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (1, 'Atacado')");
    moldes.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (2, 'Varejo')");
    moldes.dbEmpresa().Dados().close();
    moldes.dbConectar().Dados().close();
    programa.dbConectar().Dados().open();
    programa.empresas().bSetEmpresa(1, "loja.MDB", moldes.pasta().caminho() + "/", false);
  }

  Screen& abrir(const std::string& sTela) {
    Screen& tela = programa.telas().obter(sTela);
    host.show(tela);
    host.doEvents();
    return tela;
  }
  void teclas(std::initializer_list<int> iTeclas) {
    for (const int iTecla : iTeclas) press(host, iTecla);
    host.throwKept();
  }
  /// The question before a printing, answered by its letter.
  void responder(int iTecla) {
    whenOpened(host, [this, iTecla] {
      ASSERT_NE(host.openBox(), nullptr);
      EXPECT_EQ(host.openBox()->text, "Confirma a impressão?");
      press(host, iTecla);
    });
  }

  ProgramaDeTeste moldes;
  QtHost host{opcoes()};
  Programa programa{{moldes.pasta().caminho(), host, relogioDoTeste, processoDoTeste, correioDoTeste, redeDoTeste,
                     impressorasDoTeste},
                    vRegistrarTelas};
};

TEST_F(ListagensEmJanelas, ARegisterBecomesATextByKeysAlone) {
  Screen& tela = abrir("frmCadastroCategorias");
  whenOpened(host, [&] {
    Screen& impressao = *host.activeScreen();
    EXPECT_EQ(impressao.sGetName(), "frmOpcoesRelList");
    EXPECT_THAT(faultsOf(host, impressao), IsEmpty());
    type(host, "arq");
    if (const char* pasta = std::getenv("FENVALE_FIGURAS")) {
      EXPECT_TRUE(grab(impressao, std::string(pasta) + "/impressao.png"));
    }
    teclas({Qt::Key_Return, Qt::Key_Return});
    press(host, Qt::Key_A, Qt::ControlModifier);
    type(host, "As minhas categorias");
    responder(Qt::Key_S);
    press(host, Qt::Key_F5);
    EXPECT_EQ(impressao.state(), Screen::State::unloaded);
  });
  teclas({Qt::Key_F5});
  EXPECT_EQ(tela.state(), Screen::State::loaded);
  EXPECT_THAT(processoDoTeste.abertos, ElementsAre(moldes.pasta().arquivo("As minhas categorias.txt")));
  const std::string regua = "+" + std::string(78, '-') + "+\r\n";
  const auto linha = [](const std::string& inicio) { return inicio + std::string(79 - inicio.size(), ' ') + "|\r\n"; };
  EXPECT_EQ(moldes.pasta().ler("As minhas categorias.txt"),
            regua + linha("|                              As minhas categorias") + regua +
                linha("|C\xF3"
                      "digo   |Nome") +
                regua + linha("|1        |Atacado") + linha("|2        |Varejo") + regua);
  EXPECT_EQ(moldes.pasta().ler("outputRep.XML"), "<root><opt>1</opt></root>\r\n");
  tela.unload();
}

TEST_F(ListagensEmJanelas, EscapeAndNoMakeNothing) {
  Screen& tela = abrir("frmCadastroCategorias");
  whenOpened(host, [&] { press(host, Qt::Key_Escape); });
  teclas({Qt::Key_F5});
  whenOpened(host, [&] {
    responder(Qt::Key_N);
    press(host, Qt::Key_F5);
  });
  teclas({Qt::Key_F5});
  EXPECT_THAT(processoDoTeste.abertos, IsEmpty());
  EXPECT_FALSE(moldes.pasta().existe("Cadastro de categorias.txt"));
  EXPECT_EQ(tela.state(), Screen::State::loaded);
  tela.unload();
}

}  // namespace
}  // namespace fenvale::qt
