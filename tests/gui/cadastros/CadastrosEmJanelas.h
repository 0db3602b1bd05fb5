#pragma once
// The registers in real windows, with something in the company.

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "gui/support/ProgramaEmJanelas.h"
#include "platform/sql/Store.h"
#include "store/services/ConfiguracoesPrograma.h"

namespace fenvale::qt {

class CadastrosEmJanelas : public testing::Test, protected ProgramaEmJanelas {
 protected:
  CadastrosEmJanelas() {
    duasCategorias();
    for (int i = 1; i <= 25; ++i)
      moldes.executar("INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (" + std::to_string(i) + ", 'Vendedor')");
    abrirEmpresa();
    programa.configuracoes().vSetTamanhoPagina(10);
  }

  void executar(const std::string& sSQL) { Recordset(sSQL, programa.dbEmpresa().Dados()); }
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
};

}  // namespace fenvale::qt
