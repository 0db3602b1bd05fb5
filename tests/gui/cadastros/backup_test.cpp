// A company's backup in real windows, by keyboard alone.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtWidgets>
#include <filesystem>

#include "gui/support/LookChecks.h"
#include "gui/support/ProgramaEmJanelas.h"
#include "store/screens/frmEmpresaAbrir.h"
#include "store/screens/frmEmpresaBackup.h"
#include "store/screens/frmEmpresaNova.h"
#include "store/screens/frmLocalizarArquivo.h"

namespace fenvale::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BackupEmJanelas : public testing::Test, protected ProgramaEmJanelas {
 protected:
  BackupEmJanelas() {
    moldes.executar("INSERT INTO DadosEmpresa (sNome, lCidade) VALUES ('Loja', 1)");
    std::filesystem::create_directory(moldes.pasta().arquivo("copias"));
    abrirEmpresa();
  }
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
  irPara(tela.lstLista);
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

TEST_F(BackupEmJanelas, ACopyComesBackAsACompanyByKeysAlone) {
  const std::string sCopia = "loja_260315_143207.MDB";
  std::filesystem::copy(moldes.pasta().arquivo("loja.MDB"), moldes.pasta().arquivo("copias/" + sCopia));
  auto& nova = dynamic_cast<frmEmpresaNova&>(programa.telas().obter("frmEmpresaNova"));
  host.show(nova);
  std::vector<std::string> caixas;
  whenOpened(host, [&] {
    auto& busca = dynamic_cast<frmLocalizarArquivo&>(*host.activeScreen());
    busca.drvArvoreDiretorios.userChoose(moldes.pasta().arquivo("copias"));
    tecla(Qt::Key_F6);
    irPara(busca.lstLista);
    tecla(Qt::Key_Space);
  });
  // The question comes when the finder has gone.
  QTimer pergunta;
  QObject::connect(&pergunta, &QTimer::timeout, [&] {
    if (host.openBox() == nullptr) return;
    pergunta.stop();
    caixas.push_back(host.openBox()->text);
    press(host, Qt::Key_S);
  });
  pergunta.start(0);
  tecla(Qt::Key_F6);
  EXPECT_EQ(nova.lstLista.items().size(), 2u);
  tecla(Qt::Key_Escape);

  auto& abrir = dynamic_cast<frmEmpresaAbrir&>(programa.telas().obter("frmEmpresaAbrir"));
  host.show(abrir);
  irPara(abrir.lstLista);
  tecla(Qt::Key_Down);
  tecla(Qt::Key_Space);
  EXPECT_EQ(abrir.txtCampo.text(), moldes.pasta().arquivo("copias/" + sCopia));
  whenOpened(host, [&] {
    caixas.push_back(host.openBox()->text);
    press(host, Qt::Key_Return);
  });
  tecla(Qt::Key_F3);
  EXPECT_THAT(caixas, ElementsAre("O arquivo " + moldes.pasta().arquivo("copias/" + sCopia) +
                                      " será incluído no sistema, criando referência a uma nova empresa.\r\n"
                                      "Confirma a operação?",
                                  "Empresa selecionada com sucesso."));
  EXPECT_EQ(programa.empresas().sGetNomeArquivo(), sCopia);
}

}  // namespace
}  // namespace fenvale::qt
