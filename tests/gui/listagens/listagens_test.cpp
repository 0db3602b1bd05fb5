// A list printed from its screen in real windows, by keyboard alone. With FENVALE_FIGURAS set to a folder a picture of
// the options is left there.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtWidgets>
#include <cstdlib>

#include "gui/support/LookChecks.h"
#include "gui/support/ProgramaEmJanelas.h"

namespace fenvale::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListagensEmJanelas : public testing::Test, protected ProgramaEmJanelas {
 protected:
  ListagensEmJanelas() : ProgramaEmJanelas(pictureScheme()) {
    duasCategorias();
    abrirEmpresa();
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
