// Invoices and titles of both sides in real windows: from the first key of an invoice to its settled title without a
// mouse.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gui/cadastros/CadastrosEmJanelas.h"
#include "platform/base/Format.h"
#include "platform/ui/ListView.h"
#include "titles/screens/TelaFaturas.h"
#include "titles/screens/TelaTitulosCadastro.h"
#include "titles/services/Lado.h"

namespace fenvale::qt {
namespace {

using EscolhaDeLado = const Lado& (*)();

class TitulosEmJanelas : public CadastrosEmJanelas, public testing::WithParamInterface<EscolhaDeLado> {
 protected:
  TitulosEmJanelas() {
    executar("INSERT INTO Portadores (btCodigoInf, sNome) VALUES (1, 'Carteira')");
    executar("INSERT INTO CentroCusto (btCodigoInf, sDescricao) VALUES (1, 'Loja')");
    executar(
        "INSERT INTO CondicoesPagamento (btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada) VALUES (1, 3, 30, 0)");
    for (const auto& [codigo, nome] : {std::pair("1", "Açougue São João"), std::pair("2", "Bar do Élio")}) {
      const std::string inicio = std::string(codigo) + ", '" + nome + "', ";
      executar(
          "INSERT INTO Clientes (lCodigoInf, sNome, fLimiteCredito, dtNascimento, lCategoria, lCidade, lVendedor, "
          "lCidadeEntrega, lCidadeCobranca) VALUES (" +
          inicio + "0, #08/12/1975#, 1, 1, 1, 1, 1)");
      executar("INSERT INTO Fornecedores (lCodigoInf, sNome, lCategoria, lCidade, lBanco) VALUES (" + inicio +
               "1, 1, 1)");
    }
  }

  /// Once a box with that text, or the screen of that name, is on top and waits for the person.
  void aoSurgir(const std::string& sOQue, std::function<void()> ato) {
    auto* const vigia = new QTimer(&host);
    QObject::connect(vigia, &QTimer::timeout, &host, [this, vigia, sOQue, ato = std::move(ato)] {
      const MessageBox* caixa = host.openBox();
      if (caixa != nullptr ? caixa->text.find(sOQue) == std::string::npos
                           : host.activeScreen() == nullptr || host.activeScreen()->sGetName() != sOQue)
        return;
      vigia->stop();
      vigia->deleteLater();
      host.enter(ato);
    });
    vigia->start(0);
  }
  /// The default answer of the box with that text, when it comes.
  void responderA(const std::string& sTexto) {
    aoSurgir(sTexto, [this] { press(host, Qt::Key_Return); });
  }
  /// Space in the lookup box that has the keyboard, and in its quick search the first row that what is typed finds.
  void buscar(const std::string& sInicio) {
    whenOpened(host, [this, sInicio] {
      type(host, sInicio);
      press(host, Qt::Key_F6);
      irPara(*host.activeScreen()->control("lstLista"));
      press(host, Qt::Key_Space);
      press(host, Qt::Key_Space);
    });
    tecla(Qt::Key_Space);
  }
  /// The invoice 55 with three open titles.
  void inserirTresTitulos() {
    const std::string vendedor = lado.bVendedor ? "lVendedor, " : "";
    executar("INSERT INTO " + lado.sFaturas + " (lNumeroFatura, dtEmissao, fTotal, fEntrada, " + lado.sChavePessoa +
             ", lCondicoesPagamento, lPortador, " + vendedor +
             "lCentroCusto) VALUES (55, #03/01/2026#, 300, 0, 2, 1, 1, " + (lado.bVendedor ? "1, " : "") + "1)");
    for (const char* numero : {"1", "2", "3"})
      executar("INSERT INTO " + lado.sTitulos +
               " (sCodigoInf, dtVencimento, fValor, dtPagamento, fValorPago, fJuros, fDesconto, lNF, sObs, " +
               lado.sLigacao + ") VALUES ('000001/00" + numero +
               "', #03/31/2026#, 100, #03/31/2026#, 0, 0, 0, 0, '', 1)");
  }
  std::string valor(const std::string& sSQL) { return Recordset(sSQL, programa.dbEmpresa().Dados()).field(0).toText(); }

  const Lado& lado = GetParam()();
};

TEST_P(TitulosEmJanelas, AnInvoiceIsTypedAndItsFirstTitleSettledByKeysAlone) {
  auto& fatura = dynamic_cast<TelaFaturas&>(abrir(lado.faturas.sNome));
  ASSERT_TRUE(fatura.txtNumeroFatura.hasFocus());
  escrever("77");
  tecla(Qt::Key_Return);
  escrever("01032026");
  tecla(Qt::Key_Return);
  escrever("900,00");
  irPara(fatura.entidades.pessoa.caixa);
  buscar("bar");
  ASSERT_TRUE(fatura.txtCondPagCodigoInf.hasFocus());
  buscar("1");
  ASSERT_TRUE(fatura.entidades.portador.caixa.hasFocus());
  buscar("cart");
  if (lado.bVendedor) buscar("vend");
  ASSERT_TRUE(fatura.entidades.centroCusto.caixa.hasFocus());
  buscar("lo");

  responderA("Deseja visualizar os títulos");
  aoSurgir(lado.titulos.sNome, [&] {
    auto& titulos = dynamic_cast<TelaTitulosCadastro&>(*host.activeScreen());
    ASSERT_EQ(titulos.lstLista.items().size(), 3u);
    irPara(titulos.lstLista);
    press(host, Qt::Key_Space);
    EXPECT_EQ(titulos.txtCodigoInf.text(), "000001/001");
    press(host, Qt::Key_A, Qt::AltModifier);  // Valor p_a_go
    ASSERT_TRUE(titulos.txtValorPago.hasFocus());
    type(host, "300,00");
    responderA("Confirma o pagamento do título?");
    responderA("Operação concluída.");
    press(host, Qt::Key_F3);
    EXPECT_EQ(titulos.lGetCodigo(), -1) << "saved, and a new title begun";
    responderA("Operação concluída.");
    press(host, Qt::Key_Escape);
  });
  tecla(Qt::Key_F3);

  EXPECT_EQ(valor("SELECT lNumeroFatura FROM " + lado.sFaturas), "77");
  EXPECT_EQ(valor("SELECT FORMAT(dtEmissao, 'dd/mm/yyyy') AS E FROM " + lado.sFaturas), "01/03/2026");
  EXPECT_EQ(valor("SELECT " + lado.sChavePessoa + " FROM " + lado.sFaturas), "2");
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) FROM " + lado.sTitulos), "3");
  EXPECT_EQ(valor("SELECT sCodigoInf FROM " + lado.sTitulos + " WHERE fValorPago = 300"), "000001/001");
  fatura.unload();
}

TEST_P(TitulosEmJanelas, ATitleIsFoundForSettlementAndPaidByKeysAlone) {
  inserirTresTitulos();
  auto& titulos = dynamic_cast<TelaTitulosCadastro&>(abrir(lado.titulos.sNome));
  aoSurgir(lado.titulos.sBuscaBaixa, [&] {
    Screen& busca = *host.activeScreen();
    ASSERT_TRUE(busca.control("txtNumeroFatura")->hasFocus());
    type(host, "55");
    irPara(*busca.control("lstLista"));
    press(host, Qt::Key_Down);
    press(host, Qt::Key_Space);
    EXPECT_EQ(busca.state(), Screen::State::loaded);
    press(host, Qt::Key_Space);
  });
  tecla(Qt::Key_F7);
  ASSERT_EQ(titulos.txtCodigoInf.text(), "000001/002");
  EXPECT_EQ(formatDate(titulos.dtPagamento.value()), "31/03/2026");
  press(host, Qt::Key_A, Qt::AltModifier);  // Valor p_a_go
  escrever("100,00");
  responderA("Confirma o pagamento do título?");
  responderA("Operação concluída.");
  tecla(Qt::Key_F3);
  EXPECT_EQ(valor("SELECT fValorPago FROM " + lado.sTitulos + " WHERE lCodigo = 2"), "100");

  aoSurgir(lado.titulos.sBusca, [&] {
    Screen& busca = *host.activeScreen();
    irPara(*busca.control("chkPago"));
    press(host, Qt::Key_Space);
    press(host, Qt::Key_F6);
    EXPECT_EQ(titulos.lstLista.items().size(), 1u) << "paid titles, behind the search that stays";
    press(host, Qt::Key_Escape);
  });
  tecla(Qt::Key_F6);
  EXPECT_EQ(titulos.lstLista.item(0)->text(), "000001/002");
  titulos.unload();
}

TEST_P(TitulosEmJanelas, ADoubleClickInTheSearchBringsTheTitleAndTwoSlowClicksDoToo) {
  inserirTresTitulos();
  auto& titulos = dynamic_cast<TelaTitulosCadastro&>(abrir(lado.titulos.sNome));
  for (const bool bDuplo : {true, false}) {
    aoSurgir(lado.titulos.sBuscaBaixa, [&] {
      Screen& busca = *host.activeScreen();
      auto& lista = dynamic_cast<ListView&>(*busca.control("lstLista"));
      clickRow(lista, 2);
      EXPECT_EQ(busca.state(), Screen::State::loaded);
      if (bDuplo) {
        const auto& view = dynamic_cast<QTreeView&>(*widgetOf(lista));
        const QPoint lugar = view.visualRect(view.currentIndex()).center();
        QMouseEvent segundo(QEvent::MouseButtonDblClick, lugar, view.viewport()->mapToGlobal(QPointF(lugar)),
                            Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &segundo);
      } else {
        clickRow(lista, 2);
      }
      EXPECT_FALSE(busca.unload()) << "it is gone already";
    });
    tecla(Qt::Key_F7);
    EXPECT_EQ(titulos.txtCodigoInf.text(), "000001/003");
    tecla(Qt::Key_F2);
  }
  titulos.unload();
}

TEST_P(TitulosEmJanelas, TheValueOfATitleIsInSightWithoutScrolling) {
  for (const std::string& nome : {lado.titulos.sNome, lado.titulos.sBuscaBaixa}) {
    Screen& tela = abrir(nome);
    auto& lista = dynamic_cast<ListView&>(*tela.control("lstLista"));
    const auto& view = dynamic_cast<const QTreeView&>(*widgetOf(lista));
    int iValor = 0;
    while (lista.columns().at(static_cast<std::size_t>(iValor)).heading != "Valor do título") ++iValor;
    EXPECT_LE(view.columnViewportPosition(iValor) + view.columnWidth(iValor), view.viewport()->width()) << nome;
    tela.unload();
  }
}

INSTANTIATE_TEST_SUITE_P(Lados, TitulosEmJanelas, testing::Values(&ladoReceber, &ladoPagar),
                         [](const auto& caso) { return caso.param().sTitulos; });

}  // namespace
}  // namespace fenvale::qt
