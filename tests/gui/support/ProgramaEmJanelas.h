#pragma once
// The whole program over real windows, with a company open, and what a person does at them.

#include <gtest/gtest.h>

#include <QtWidgets>
#include <string>
#include <string_view>

#include "app/Registro.h"
#include "gui/support/HostOptions.h"
#include "platform/ui/Control.h"
#include "platform/ui/Screen.h"
#include "platform/ui/qt/Probe.h"
#include "platform/ui/qt/QtHost.h"
#include "shell/services/Telas.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale::qt {

class ProgramaEmJanelas : protected AmbienteDeTeste {
 protected:
  explicit ProgramaEmJanelas(Scheme scheme = Scheme::light) : host(testOptions(scheme)) { moldes.abrirEmpresa(); }

  /// Once `moldes` has put into its stores what the test needs: they are the program's from then on.
  void abrirEmpresa() {
    moldes.dbEmpresa().Dados().close();
    moldes.dbConectar().Dados().close();
    programa.dbConectar().Dados().open();
    programa.empresas().bSetEmpresa(1, "loja.MDB", moldes.pasta().caminho() + "/", false);
  }
  void duasCategorias() {
    moldes.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (1, 'Atacado')");
    moldes.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (2, 'Varejo')");
  }

  Screen& abrir(const std::string& sTela) {
    Screen& tela = programa.telas().obter(sTela);
    host.show(tela);
    host.doEvents();
    return tela;
  }
  void tecla(int iTecla) {
    press(host, iTecla);
    host.throwKept();
  }
  void escrever(std::string_view sTexto) {
    type(host, sTexto);
    host.throwKept();
  }
  /// Tab until the control has the keyboard.
  void irPara(const Control& controle) {
    for (int vez = 0; vez < 40 && !controle.hasFocus(); ++vez) tecla(Qt::Key_Tab);
    EXPECT_TRUE(controle.hasFocus()) << controle.name();
  }

  ProgramaDeTeste moldes;
  QtHost host;
  Programa programa{{moldes.pasta().caminho(), host, relogioDoTeste, processoDoTeste, correioDoTeste, redeDoTeste,
                     impressorasDoTeste},
                    vRegistrarTelas};
};

}  // namespace fenvale::qt
