#pragma once
// The whole program over real windows, with a company open and something in it, and what a person does at them.

#include <gtest/gtest.h>

#include <QtWidgets>
#include <functional>
#include <string>
#include <vector>

#include "app/Registro.h"
#include "platform/sql/Store.h"
#include "platform/ui/Control.h"
#include "platform/ui/Screen.h"
#include "platform/ui/qt/Probe.h"
#include "platform/ui/qt/QtHost.h"
#include "shell/services/Telas.h"
#include "store/services/ConfiguracoesPrograma.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale::qt {

inline HostOptions opcoes() {
  HostOptions options;
  options.iconFolder = QStringLiteral(FENVALE_SOURCE_DIR "/data/icones");
  options.scheme = Scheme::light;
  options.immediate = true;
  return options;
}

class CadastrosEmJanelas : public testing::Test, protected AmbienteDeTeste {
 protected:
  CadastrosEmJanelas() {
    moldes.abrirEmpresa();
    moldes.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (1, 'Atacado')");
    moldes.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (2, 'Varejo')");
    for (int i = 1; i <= 25; ++i)
      moldes.executar("INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (" + std::to_string(i) + ", 'Vendedor')");
    moldes.dbEmpresa().Dados().close();
    moldes.dbConectar().Dados().close();
    programa.dbConectar().Dados().open();
    programa.empresas().bSetEmpresa(1, "loja.MDB", moldes.pasta().caminho() + "/", false);
    programa.configuracoes().vSetTamanhoPagina(10);
  }

  Screen& abrir(const std::string& sTela) {
    Screen& tela = programa.telas().obter(sTela);
    host.show(tela);
    host.doEvents();
    return tela;
  }
  void executar(const std::string& sSQL) { Recordset(sSQL, programa.dbEmpresa().Dados()); }
  void tecla(int iTecla) {
    press(host, iTecla);
    host.throwKept();
  }
  void escrever(std::string_view sTexto) {
    type(host, sTexto);
    host.throwKept();
  }

  /// Tab until the control has the keyboard.
  void irPara(Control& controle) {
    for (int vez = 0; vez < 40 && !controle.hasFocus(); ++vez) tecla(Qt::Key_Tab);
    EXPECT_TRUE(controle.hasFocus()) << controle.name();
  }
  /// Space in the control opens a search, in which the row that begins so is picked by that many spaces.
  void escolher(Control& controle, std::string_view sInicio, int iEspacos) {
    irPara(controle);
    whenOpened(host, [&] {
      Screen& busca = *host.activeScreen();
      irPara(*busca.control("txtNome"));
      escrever(sInicio);
      tecla(Qt::Key_F6);
      irPara(*busca.control("lstLista"));
      for (int i = 0; i < iEspacos; ++i) tecla(Qt::Key_Space);
    });
    tecla(Qt::Key_Space);
  }

  ProgramaDeTeste moldes;
  QtHost host{opcoes()};
  Programa programa{{moldes.pasta().caminho(), host, relogioDoTeste, processoDoTeste, correioDoTeste, redeDoTeste,
                     impressorasDoTeste},
                    vRegistrarTelas};
};

}  // namespace fenvale::qt
