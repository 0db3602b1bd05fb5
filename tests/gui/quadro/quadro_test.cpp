// The accounts overview in a real window, by keyboard alone.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include "app/Registro.h"
#include "gui/support/HostOptions.h"
#include "gui/support/LookChecks.h"
#include "overview/screens/frmMostrarContas.h"
#include "overview/services/QuadroGeralContas.h"
#include "platform/sql/Store.h"
#include "platform/ui/Boxes.h"
#include "platform/ui/qt/Probe.h"
#include "platform/ui/qt/QtHost.h"
#include "shell/services/Telas.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "titles/Cenario.h"
#include "titles/screens/TelaTitulosCadastro.h"

namespace fenvale::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The firm of Cenario on 10 May 2026, with receivables of that day and before it.
class QuadroEmJanela : public testing::Test, protected AmbienteDeTeste {
 protected:
  QuadroEmJanela() {
    const int fatura = moldes.inserirFatura("600,00");
    moldes.inserirTitulo(fatura, "000001/001", "100,00", "0,00", "04/01/2026");
    moldes.inserirTitulo(fatura, "000001/002", "200,00", "0,00", "05/01/2026");
    moldes.inserirTitulo(fatura, "000001/003", "300,00", "0,00", "05/10/2026");
  }
  void SetUp() override {
    moldes.programa.dbEmpresa().Dados().close();
    moldes.programa.dbConectar().Dados().close();
    relogioDoTeste.setDia(2026, 5, 10);
    programa.dbConectar().Dados().open();
    programa.empresas().bSetEmpresa(1, "loja.MDB", moldes.programa.pasta().caminho() + "/", false);
  }
  /// As the start opens it when the firm asked for these lists only.
  frmMostrarContas& abrirSomente(const std::string& sColunas) {
    const Recordset comando("UPDATE Sistema SET " + sColunas, programa.dbConectar().Dados());
    programa.quadroGeralContas().vSetMotrarTodas(false);
    return abrir();
  }
  frmMostrarContas& abrirTodas() {
    programa.quadroGeralContas().vSetMotrarTodas(true);
    return abrir();
  }
  frmMostrarContas& abrir() {
    auto& tela = programa.telas().obter<frmMostrarContas>("frmMostrarContas");
    host.show(tela);
    host.doEvents();
    return tela;
  }
  void tecla(int iTecla, Qt::KeyboardModifiers mudas = {}) {
    press(host, iTecla, mudas);
    host.throwKept();
  }
  /// Keys for the menu that the next key opens.
  void noMenu(int iTecla, std::vector<int> teclas, Qt::KeyboardModifiers mudas = {}) {
    QTimer aEspera;
    QObject::connect(&aEspera, &QTimer::timeout, [&] {
      if (QApplication::activePopupWidget() == nullptr) return;
      aEspera.stop();
      for (int outra : teclas) press(host, outra);
    });
    aEspera.start(1);
    tecla(iTecla, mudas);
    while (aEspera.isActive()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    host.throwKept();
  }
  static QTabWidget& abas(const Screen& tela) { return *windowOf(tela)->findChild<QTabWidget*>(); }
  static std::vector<std::string> visiveis(const Screen& tela) {
    const QTabWidget& todas = abas(tela);
    std::vector<std::string> legendas;
    for (int i = 0; i < todas.count(); ++i)
      if (todas.isTabVisible(i)) legendas.push_back(todas.tabText(i).toStdString());
    return legendas;
  }
  static std::vector<std::string> codigos(const ListView& lista) {
    std::vector<std::string> textos;
    for (const auto& item : lista.items()) textos.push_back(item->text());
    return textos;
  }

  Cenario moldes{ladoReceber()};
  QtHost host{testOptions()};
  Programa programa{{moldes.programa.pasta().caminho(), host, relogioDoTeste, processoDoTeste, correioDoTeste,
                     redeDoTeste, impressorasDoTeste},
                    vRegistrarTelas};
};

TEST_F(QuadroEmJanela, NothingIsCutHiddenOrOutOfReach) {
  frmMostrarContas& tela = abrirTodas();
  EXPECT_THAT(visiveis(tela), ElementsAre("Contas a pagar do dia", "Contas a receber do dia", "Contas vencidas a pagar",
                                          "Contas vencidas a receber"));
  EXPECT_THAT(faultsOf(host, tela), IsEmpty());
  tela.unload();
}

TEST_F(QuadroEmJanela, TheValueOfAnAccountIsInSightWithoutScrolling) {
  frmMostrarContas& tela = abrirTodas();
  for (frmMostrarContas::Quadro& quadro : tela.quadros) {
    quadro.lst.setFocus();
    host.doEvents();
    const auto& view = dynamic_cast<const QTreeView&>(*widgetOf(quadro.lst));
    int iValor = 0;
    while (quadro.lst.columns().at(static_cast<std::size_t>(iValor)).heading != "Valor do título") ++iValor;
    EXPECT_LE(view.columnViewportPosition(iValor) + view.columnWidth(iValor), view.viewport()->width())
        << quadro.lst.name();
  }
  tela.unload();
}

/// Where the ink of a row's first cell ends.
int fimDaTinta(const QTreeView& view, int linha) {
  const QImage foto = view.viewport()->grab().toImage();
  const QRect celula = view.visualRect(view.model()->index(linha, 0));
  const auto fundo = foto.pixel(celula.topLeft());
  int fim = 0;
  for (int x = celula.left(); x <= celula.right(); ++x)
    for (int y = celula.top(); y <= celula.bottom(); ++y)
      if (foto.pixel(x, y) != fundo) fim = x;
  return fim;
}

TEST_F(QuadroEmJanela, TheRowsAreInLettersOfOneWidth) {
  frmMostrarContas& tela = abrirTodas();
  for (frmMostrarContas::Quadro& quadro : tela.quadros) {
    quadro.lst.setFocus();
    quadro.lst.clear();
    for (const char* codigo : {"iiiiiiii", "iiiiiiii", "MMMMMMMM", "MMMMMMMM"})
      quadro.lst.addItem("00000 1", std::vector<std::string>{codigo});
    for (const std::size_t marcada : {1, 3}) quadro.lst.item(marcada)->setMark(true, 192);
    host.doEvents();
    const auto& view = dynamic_cast<QTreeView&>(*widgetOf(quadro.lst));
    EXPECT_GT(fimDaTinta(view, 2), 40);
    for (const int linha : {0, 1, 3}) EXPECT_NEAR(fimDaTinta(view, linha), fimDaTinta(view, 2), 5) << linha;
  }
  tela.unload();
}

TEST_F(QuadroEmJanela, ItComesUpOnTheFirstListThatIsOnReadyForTheKeyboard) {
  frmMostrarContas& tela = abrirSomente("bitMostrarContasVencidasReceber = -1");
  EXPECT_THAT(visiveis(tela), ElementsAre("Contas vencidas a receber"));
  EXPECT_EQ(abas(tela).currentIndex(), 3);
  EXPECT_TRUE(tela.lstReceberVencidas.hasFocus());
  EXPECT_TRUE(widgetOf(tela.lstReceberVencidas)->hasFocus());
  tecla(Qt::Key_Down);
  EXPECT_EQ(tela.lstReceberVencidas.selectedItem()->text(), "000001/002");
  EXPECT_THAT(faultsOf(host, tela), IsEmpty());
  tela.unload();
}

TEST_F(QuadroEmJanela, NoKeyReachesATabThatIsOff) {
  frmMostrarContas& tela = abrirSomente("bitMostrarContasReceberDia = -1, bitMostrarContasVencidasReceber = -1");
  std::set<int> alcancadas{abas(tela).currentIndex()};
  const auto bater = [&](int iTecla, Qt::KeyboardModifiers mudas = {}) {
    tecla(iTecla, mudas);
    alcancadas.insert(abas(tela).currentIndex());
  };
  const auto acesso = [&](Qt::Key letra) {
    QTest::keyClick(windowOf(tela), letra, Qt::AltModifier);
    host.throwKept();
    alcancadas.insert(abas(tela).currentIndex());
  };
  for (const int iTecla : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_PageUp, Qt::Key_PageDown})
    for (int i = 0; i < 9; ++i) bater(iTecla, Qt::ControlModifier);
  for (int i = 0; i < 9; ++i) bater(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  for (int i = 0; i < 9; ++i) bater(Qt::Key_Tab);
  for (int i = 0; i < 9; ++i) bater(Qt::Key_Backtab);
  for (int i = 0; i < 9; ++i) bater(Qt::Key_Return);
  for (int letra = Qt::Key_A; letra <= Qt::Key_Z; ++letra)
    if (letra != Qt::Key_I) acesso(static_cast<Qt::Key>(letra));  // that one prints
  for (int algarismo = Qt::Key_0; algarismo <= Qt::Key_9; ++algarismo) acesso(static_cast<Qt::Key>(algarismo));
  // The strip takes the keyboard from a click on a tab.
  abas(tela).tabBar()->setFocus();
  for (const int iTecla : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End})
    for (int i = 0; i < 9; ++i) bater(iTecla);
  EXPECT_THAT(alcancadas, ElementsAre(1, 3));
  EXPECT_EQ(tela.state(), Screen::State::loaded);
  tela.unload();
}

TEST_F(QuadroEmJanela, TabWalksThroughTheListsAndBringsEachToTheFront) {
  frmMostrarContas& tela = abrirTodas();
  std::vector<int> caminho;
  for (int i = 0; i < 12 && !tela.cmdFechar.hasFocus(); ++i) {
    if (caminho.empty() || caminho.back() != abas(tela).currentIndex()) caminho.push_back(abas(tela).currentIndex());
    tecla(Qt::Key_Tab);
  }
  EXPECT_THAT(caminho, ElementsAre(0, 1, 2, 3));
  EXPECT_TRUE(tela.cmdFechar.hasFocus());
  tela.unload();
}

TEST_F(QuadroEmJanela, CtrlTabTurnsTheTabs) {
  frmMostrarContas& tela = abrirTodas();
  std::vector<int> caminho;
  for (int i = 0; i < 4; ++i) {
    tecla(Qt::Key_Tab, Qt::ControlModifier);
    caminho.push_back(abas(tela).currentIndex());
  }
  EXPECT_THAT(caminho, ElementsAre(1, 2, 3, 0));
  tela.unload();
}

TEST_F(QuadroEmJanela, ATitleIsSettledFromTheBoardByKeysAlone) {
  frmMostrarContas& tela = abrirTodas();
  while (!tela.lstReceberVencidas.hasFocus()) tecla(Qt::Key_Tab);
  EXPECT_EQ(tela.lblContasReceberVencidas.caption(), "Total R$ 300,00");
  whenOpened(host, [&] {
    auto& titulos = dynamic_cast<TelaTitulosCadastro&>(*host.activeScreen());
    EXPECT_EQ(titulos.sGetName(), "frmCadastroTitulosReceber");
    EXPECT_THAT(codigos(titulos.lstLista), ElementsAre("000001/001"));
    while (!titulos.lstLista.hasFocus()) tecla(Qt::Key_Tab);
    tecla(Qt::Key_Space);
    titulos.txtValorPago.setFocus();
    type(host, "10000");
    whenOpened(host, [&] {
      press(host, Qt::Key_Return);  // yes
      whenOpened(host, [&] { press(host, Qt::Key_Return); });
    });
    tecla(Qt::Key_F3);
    tecla(Qt::Key_Escape);
  });
  noMenu(Qt::Key_Menu, {Qt::Key_Down, Qt::Key_Return});
  EXPECT_THAT(codigos(tela.lstReceberVencidas), ElementsAre("000001/002"));
  EXPECT_EQ(tela.lblContasReceberVencidas.caption(), "Total R$ 200,00");
  EXPECT_TRUE(widgetOf(tela.lstReceberVencidas)->hasFocus()) << "the clerk goes on with the next one";
  EXPECT_EQ(tela.lstReceberVencidas.selectedItem()->text(), "000001/002");
  tecla(Qt::Key_Escape);
  EXPECT_EQ(tela.state(), Screen::State::unloaded);
}

TEST_F(QuadroEmJanela, AltIPrintsTheListInFront) {
  frmMostrarContas& tela = abrirTodas();
  std::vector<std::string> titulos;
  for (ListView* lista : {&tela.lstPagarDia, &tela.lstReceberDia, &tela.lstPagarVencidas, &tela.lstReceberVencidas}) {
    lista->setFocus();
    whenOpened(host, [&] {
      Screen& opcoesDeImpressao = *host.activeScreen();
      titulos.push_back(dynamic_cast<TextControl&>(*opcoesDeImpressao.control("txtTitulo")).text());
      opcoesDeImpressao.unload();
    });
    const std::size_t antes = titulos.size();
    QTest::keyClick(windowOf(tela), Qt::Key_I, Qt::AltModifier);
    // An access key shows its button pressed for a moment before it acts.
    while (titulos.size() == antes) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    host.throwKept();
  }
  EXPECT_THAT(titulos, ElementsAre("Contas a pagar de 10/05/2026", "Contas a receber de 10/05/2026",
                                   "Contas a pagar vencidas em 10/05/2026", "Contas a receber vencidas em 10/05/2026"));
  tela.unload();
}

TEST_F(QuadroEmJanela, TheMenuOpensByShiftF10TooAndMarksTheRowFirst) {
  frmMostrarContas& tela = abrirSomente("bitMostrarContasVencidasReceber = -1");
  tecla(Qt::Key_Down);
  noMenu(Qt::Key_F10, {Qt::Key_Escape}, Qt::ShiftModifier);
  EXPECT_TRUE(tela.lstReceberVencidas.item(1)->bold());
  EXPECT_EQ(tela.lstReceberVencidas.item(1)->colour(), 192);
  tela.unload();
}

TEST_F(QuadroEmJanela, AColumnIsSortedByKeysAndByAClickOnItsHeading) {
  frmMostrarContas& tela = abrirSomente("bitMostrarContasVencidasReceber = -1");
  noMenu(Qt::Key_O, {Qt::Key_Return}, Qt::ControlModifier);
  EXPECT_THAT(codigos(tela.lstReceberVencidas), ElementsAre("000001/001", "000001/002"));
  noMenu(Qt::Key_O, {Qt::Key_Return}, Qt::ControlModifier);
  EXPECT_THAT(codigos(tela.lstReceberVencidas), ElementsAre("000001/002", "000001/001"));
  auto& view = dynamic_cast<QTreeView&>(*widgetOf(tela.lstReceberVencidas));
  constexpr int valorDoTitulo = 8;
  Q_EMIT view.header()->sectionClicked(valorDoTitulo);
  host.throwKept();
  EXPECT_THAT(codigos(tela.lstReceberVencidas), ElementsAre("000001/001", "000001/002"));
  EXPECT_EQ(tela.lstReceberVencidas.sortColumn(), valorDoTitulo);
  tela.unload();
}

TEST_F(QuadroEmJanela, TheBoardOfTheStartIsClosedByEscAndTheMenuOffersEverything) {
  abrirSomente("bitMostrarContasVencidasReceber = -1");
  tecla(Qt::Key_Escape);
  EXPECT_EQ(host.activeScreen(), nullptr);
  EXPECT_EQ(visiveis(abrirTodas()).size(), 4U);
  tecla(Qt::Key_Escape);
}

}  // namespace
}  // namespace fenvale::qt
