// The purge of settled titles and the transfer between salespeople in real windows, by keyboard alone. With
// FENVALE_FIGURAS set to a folder, pictures are left there.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "gui/cadastros/CadastrosEmJanelas.h"
#include "gui/support/LookChecks.h"
#include "shell/screens/frmMDIPrincipal.h"
#include "titles/screens/frmTransferenciaVendedores.h"
#include "titles/screens/frmZerarTitulos.h"

namespace fenvale::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int faturas = 400;

/// Invoices to one customer, every second one with a title that was paid on 10 March and the others with an open one.
class ManutencaoEmJanelas : public CadastrosEmJanelas {
 protected:
  ManutencaoEmJanelas() {
    Connection& empresa = programa.dbEmpresa().Dados();
    empresa.beginTrans();
    for (const char* sSQL :
         {"UPDATE Vendedores SET sNome = 'Maria Aparecida' WHERE lCodigo = 1",
          "UPDATE Vendedores SET sNome = 'João Batista' WHERE lCodigo = 2",
          "INSERT INTO Portadores (btCodigoInf, sNome) VALUES (1, 'Carteira')",
          "INSERT INTO CentroCusto (btCodigoInf, sDescricao) VALUES (1, 'Loja')",
          "INSERT INTO CondicoesPagamento (btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada) VALUES (1, 1, 0, 0)"})
      executar(sSQL);
    executar(
        "INSERT INTO Clientes (lCodigoInf, sNome, fLimiteCredito, dtNascimento, lCategoria, lCidade, lVendedor, "
        "lCidadeEntrega, lCidadeCobranca) VALUES (1, 'Bar do Élio', 0, #01/01/1980#, 1, 1, 1, 1, 1)");
    for (int i = 1; i <= faturas; ++i) {
      const std::string sNumero = std::to_string(i);
      executar(
          "INSERT INTO FaturasCliente (lNumeroFatura, fTotal, fEntrada, lCliente, lCondicoesPagamento, lPortador, "
          "lVendedor, lCentroCusto, dtEmissao) VALUES (" +
          sNumero + ", 50, 0, 1, 1, 1, 1, 1, #03/01/2026#)");
      executar(
          "INSERT INTO TitulosReceber (sCodigoInf, dtVencimento, fValor, dtPagamento, fValorPago, fJuros, fDesconto, "
          "lNF, sObs, lFaturaCliente) VALUES ('" +
          sNumero + "', #03/10/2026#, 50, #03/10/2026#, " + (i % 2 == 0 ? "50" : "0") + ", 0, 0, 0, '', " + sNumero +
          ")");
    }
    empresa.commitTrans();
  }

  template <typename Tela>
  Tela& abrirTela(const std::string& sTela) {
    return dynamic_cast<Tela&>(abrir(sTela));
  }
  /// Answers each box by that key, and remembers its text.
  void responder(std::vector<int> teclas) {
    QObject::connect(&alguem, &QTimer::timeout, [this, teclas = std::move(teclas)] {
      if (host.openBox() == nullptr || caixas.size() == teclas.size()) return;
      caixas.push_back(host.openBox()->text);
      retrato("caixa-" + std::to_string(caixas.size()));
      press(host, teclas[caixas.size() - 1]);
    });
    alguem.start(1);
  }
  void retrato(const std::string& sNome) {
    if (const char* pasta = std::getenv("FENVALE_FIGURAS")) {
      EXPECT_TRUE(grab(host, std::string(pasta) + "/manutencao-" + sNome + ".png"));
    }
  }
  std::string contar(const std::string& sTabela) {
    return Recordset("SELECT COUNT(lCodigo) AS Quantos FROM " + sTabela, programa.dbEmpresa().Dados())["Quantos"]
        .toText();
  }

  QTimer alguem;
  std::vector<std::string> caixas;
};

TEST_F(ManutencaoEmJanelas, NothingIsCutHiddenOrOutOfReach) {
  for (const char* sTela : {"frmZerarTitulos", "frmTransferenciaVendedores"}) {
    Screen& tela = abrir(sTela);
    EXPECT_THAT(faultsOf(host, tela), IsEmpty()) << sTela;
    retrato(sTela);
    tela.unload();
  }
}

/// Counts the pictures that the bar shows of itself.
class Pinturas final : public QObject {
 public:
  explicit Pinturas(QProgressBar& barra) : barra_(barra) { barra_.installEventFilter(this); }
  std::set<int> valores;

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) valores.insert(barra_.value());
    return false;
  }
  QProgressBar& barra_;
};

TEST_F(ManutencaoEmJanelas, ReceivedTitlesArePurgedByKeysWithTheBarMovingAndNothingLetIn) {
  auto& tela = abrirTela<frmZerarTitulos>("frmZerarTitulos");
  irPara(tela.optPagosRecebidos);
  tecla(Qt::Key_Down);
  EXPECT_TRUE(tela.optRecebidos.chosen());
  EXPECT_TRUE(tela.optRecebidos.hasFocus());
  irPara(tela.dtInicial);
  escrever("01032026");
  tecla(Qt::Key_Return);
  escrever("31032026");

  auto* const barra = windowOf(tela)->findChild<QProgressBar*>();
  ASSERT_NE(barra, nullptr);
  Pinturas pinturas(*barra);
  // Somebody without patience, on every occasion that the running purge gives.
  int vezes = 0;
  QTimer impaciente;
  QObject::connect(&impaciente, &QTimer::timeout, [&] {
    if (tela.pbBarrra.value() == 0 || host.openBox() != nullptr) return;
    if (++vezes == 100) retrato("zerando");
    for (const int iTecla : {Qt::Key_F3, Qt::Key_Escape, Qt::Key_Space})
      for (const auto tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent evento(tipo, iTecla, Qt::NoModifier);
        QCoreApplication::sendEvent(host.topWindow(), &evento);
      }
    windowOf(tela)->close();
    EXPECT_EQ(tela.state(), Screen::State::loaded);
  });
  impaciente.start(0);
  responder({Qt::Key_S, Qt::Key_Return});
  tecla(Qt::Key_F3);

  EXPECT_THAT(caixas, ElementsAre("Confirma a eliminação todos títulos Recebidos\r\ncom data de recebimento "
                                  "realizadas entre \r\n01/03/2026 e 31/03/2026?",
                                  "Operação concluída."));
  EXPECT_GT(vezes, 100);
  EXPECT_GT(pinturas.valores.size(), 2U) << "more than before and after";
  EXPECT_EQ(contar("TitulosReceber"), std::to_string(faturas / 2));
  EXPECT_EQ(contar("FaturasCliente"), std::to_string(faturas / 2));
  EXPECT_TRUE(tela.dtFinal.hasFocus());
  tecla(Qt::Key_Escape);
  EXPECT_EQ(tela.state(), Screen::State::unloaded);
}

TEST_F(ManutencaoEmJanelas, ANoLeavesTheTitlesAndTheFocusWhereItWas) {
  auto& tela = abrirTela<frmZerarTitulos>("frmZerarTitulos");
  irPara(tela.cmdSalvar);
  responder({Qt::Key_N});
  tecla(Qt::Key_Space);
  EXPECT_THAT(caixas, ElementsAre("Confirma a eliminação todos títulos Pagos e Recebidos\r\ncom data de pagamento ou "
                                  "recebimento realizadas entre \r\n15/03/2026 e 15/03/2026?"));
  EXPECT_EQ(contar("TitulosReceber"), std::to_string(faturas));
  EXPECT_TRUE(tela.cmdSalvar.hasFocus());
  tela.unload();
}

TEST_F(ManutencaoEmJanelas, CustomersAreHandedOverByKeys) {
  auto& tela = abrirTela<frmTransferenciaVendedores>("frmTransferenciaVendedores");
  ASSERT_TRUE(tela.txtVendedorOrigem.hasFocus());
  escolher(tela.txtVendedorOrigem, "maria", 2);
  ASSERT_TRUE(tela.txtVendedorDestino.hasFocus());
  escolher(tela.txtVendedorDestino, "joão", 2);
  EXPECT_EQ(tela.txtVendedorOrigem.text(), "Maria Aparecida");
  EXPECT_EQ(tela.txtVendedorDestino.text(), "João Batista");
  retrato("transferindo");
  responder({Qt::Key_Return});
  tecla(Qt::Key_F3);
  EXPECT_THAT(caixas, ElementsAre("Operação concluída."));
  EXPECT_EQ(contar("Clientes WHERE lVendedor = 2"), "1");
  EXPECT_EQ(tela.txtVendedorOrigem.text(), "");
  tela.unload();
}

TEST_F(ManutencaoEmJanelas, TheMenuLeadsToBoth) {
  auto& janela = programa.telas().obter<frmMDIPrincipal>("frmMDIPrincipal");
  for (const char* sEntrada : {"mnuZerarTitulos", "mnuTransferenciaVendedores"})
    EXPECT_TRUE(janela.mnuPrincipal.item(sEntrada).enabled) << sEntrada;
}

}  // namespace
}  // namespace fenvale::qt
