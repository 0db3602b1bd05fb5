// A company's backup in real windows, by keyboard alone.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtWidgets>
#include <filesystem>

#include "app/Registro.h"
#include "gui/support/LookChecks.h"
#include "platform/sql/Store.h"
#include "platform/ui/qt/Probe.h"
#include "platform/ui/qt/QtHost.h"
#include "shell/services/Telas.h"
#include "store/screens/frmEmpresaBackup.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BackupEmJanelas : public testing::Test, protected AmbienteDeTeste {
 protected:
  static HostOptions opcoes() {
    HostOptions options;
    options.iconFolder = QStringLiteral(FENVALE_SOURCE_DIR "/data/icones");
    options.scheme = Scheme::light;
    options.immediate = true;
    return options;
  }
  BackupEmJanelas() {
    moldes.abrirEmpresa();
    moldes.dbEmpresa().Dados().close();
    moldes.dbConectar().Dados().close();
    std::filesystem::create_directory(moldes.pasta().arquivo("copias"));
    programa.dbConectar().Dados().open();
    programa.empresas().bSetEmpresa(1, "loja.MDB", moldes.pasta().caminho() + "/", false);
  }
  void tecla(int iTecla) {
    press(host, iTecla);
    host.throwKept();
  }
  /// Tab until the control has the focus.
  void ate(const Control& control) {
    for (int i = 0; i < 20 && !control.hasFocus(); ++i) tecla(Qt::Key_Tab);
    ASSERT_TRUE(control.hasFocus());
  }

  ProgramaDeTeste moldes;
  QtHost host{opcoes()};
  Programa programa{{moldes.pasta().caminho(), host, relogioDoTeste, processoDoTeste, correioDoTeste, redeDoTeste,
                     impressorasDoTeste},
                    vRegistrarTelas};
};

TEST_F(BackupEmJanelas, ACopyIsMadeByKeysAlone) {
  auto& tela = dynamic_cast<frmEmpresaBackup&>(programa.telas().obter("frmEmpresaBackup"));
  host.show(tela);
  host.doEvents();
  EXPECT_THAT(faultsOf(host, tela), IsEmpty());
  tela.txtNomeArquivo.setFocus();
  tecla(Qt::Key_Return);
  ASSERT_TRUE(tela.txtCaminho.hasFocus());
  type(host, moldes.pasta().arquivo("copias"));
  host.throwKept();
  ate(tela.lstLista);
  tecla(Qt::Key_Space);
  EXPECT_TRUE(tela.lstLista.item(0)->checked());
  EXPECT_EQ(tela.txtNomeArquivo.text(), "loja_260315_143207.MDB");
  EXPECT_EQ(tela.txtCaminho.text(), moldes.pasta().arquivo("copias"));
  std::string sCaixa;
  whenOpened(host, [&] {
    sCaixa = host.openBox()->text;
    press(host, Qt::Key_Return);
  });
  tecla(Qt::Key_F3);
  EXPECT_EQ(sCaixa, "Operação concluída.");
  EXPECT_THAT(moldes.pasta().nomes("copias"), ElementsAre("loja_260315_143207.MDB"));
  EXPECT_TRUE(programa.empresas().bSelecionouEmpresa(false));
  tecla(Qt::Key_Down);
  tecla(Qt::Key_Space);
  EXPECT_TRUE(tela.lstLista.item(0)->checked());
  tecla(Qt::Key_Space);
  EXPECT_FALSE(tela.lstLista.item(0)->checked());
  tecla(Qt::Key_Escape);
  EXPECT_EQ(tela.state(), Screen::State::unloaded);
}

}  // namespace
}  // namespace fenvale::qt
