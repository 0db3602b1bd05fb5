// Every screen of the program, over a company with a little in it, in a real window: nothing is cut, nothing lies over
// anything else, everything is reached by Tab and has a name. With FENVALE_FIGURAS set to a folder a picture of each
// screen is left there.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>
#include <QWidget>
#include <cstdlib>

#include "access/services/Permissoes.h"
#include "gui/support/LookChecks.h"
#include "gui/support/ProgramaEmJanelas.h"
#include "platform/base/Error.h"

namespace fenvale::qt {
namespace {

using testing::IsEmpty;

std::vector<std::string> nomesDasTelas() {
  const ProgramaDeTeste programa(vRegistrarTelas);
  return const_cast<ProgramaDeTeste&>(programa).telas().nomes();
}

class TodasAsTelas : public testing::TestWithParam<std::string>, protected ProgramaEmJanelas {
 protected:
  TodasAsTelas() : ProgramaEmJanelas(pictureScheme()) {
    duasCategorias();
    moldes.executarPrograma("INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha) VALUES ('Maria', 'MARIA', '123')");
    abrirEmpresa();
    programa.permissoes().vSetPermissoes(0);
  }
};

TEST_P(TodasAsTelas, LooksWhole) {
  Screen& tela = programa.telas().obter(GetParam());
  QTimer dismissal;
  QObject::connect(&dismissal, &QTimer::timeout, [this] {
    if (host.openBox() == nullptr) return;
    ADD_FAILURE() << "a box: " << host.openBox()->text;
    press(host, Qt::Key_Escape);
  });
  dismissal.start(0);
  try {
    host.show(tela);
    host.doEvents();
    const Scheme own = host.theme().scheme();
    for (const Scheme scheme : {own == Scheme::light ? Scheme::dark : Scheme::light, own}) {
      host.setScheme(scheme);
      host.doEvents();
      EXPECT_THAT(needlessScrollBars(*windowOf(tela)), IsEmpty()) << "after a change of colours";
    }
    EXPECT_THAT(faultsOf(host, tela), IsEmpty());
    if (const char* folder = std::getenv("FENVALE_FIGURAS")) {
      tela.focusNext();
      EXPECT_TRUE(grab(tela, std::string(folder) + "/" + GetParam() + ".png"));
    }
    tela.unload();
    host.throwKept();
  } catch (const ProgramEnded&) {  // the main window's way to close
  }
}

INSTANTIATE_TEST_SUITE_P(Programa, TodasAsTelas, testing::ValuesIn(nomesDasTelas()),
                         [](const auto& tela) { return tela.param; });

}  // namespace
}  // namespace fenvale::qt
