// The purge as the clerk runs it: asked, whole or not at all, and not to be disturbed on the way.

#include <gmock/gmock.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "access/services/Permissoes.h"
#include "platform/os/Process.h"
#include "platform/sql/FaultyFiles.h"
#include "shell/services/Telas.h"
#include "store/services/Empresas.h"
#include "support/Rodada.h"
#include "support/Rotulos.h"
#include "titles/Cenario.h"
#include "titles/screens/frmZerarTitulos.h"

namespace fenvale {
namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;

void vRegistrarZeramento(Telas& telas) { telas.registrar<frmZerarTitulos>("frmZerarTitulos"); }

const MessageBox concluida = informacao("Operação concluída.");

MessageBox confirmacao(const std::string& tipo, const std::string& tiposDeData,
                       const std::string& periodo = "01/03/2026 e 31/03/2026") {
  return pergunta("Confirma a eliminação todos títulos " + tipo + "\r\ncom data de " + tiposDeData +
                  " realizadas entre \r\n" + periodo + "?");
}
const MessageBox confirmacaoDosDois = confirmacao("Pagos e Recebidos", "pagamento ou recebimento");

/// Two invoices of each side: one that is paid whole in March, one that is half open.
class ZerarTitulosTest : public testing::Test {
 protected:
  ZerarTitulosTest() {
    for (const Lado* lado : {&ladoReceber(), &ladoPagar()})
      for (const int numero : {1, 2}) {
        inserirFatura(*lado, numero);
        inserirTitulo(*lado, numero, "1", "50");
        inserirTitulo(*lado, numero, "2", numero == 1 ? "50" : "0");
      }
  }
  void TearDown() override { host.verify(); }

  void inserirFatura(const Lado& lado, int numero) {
    cenario.executar("INSERT INTO " + lado.sFaturas + " (lNumeroFatura, dtEmissao, fTotal, fEntrada, " +
                     lado.sChavePessoa + ", lCondicoesPagamento, lPortador, " + (lado.bVendedor ? "lVendedor, " : "") +
                     "lCentroCusto) VALUES (" + std::to_string(numero) + ", #03/01/2026#, 100, 0, 1, 1, 1, " +
                     (lado.bVendedor ? "1, " : "") + "1)");
  }
  void inserirTitulo(const Lado& lado, int fatura, const std::string& titulo, const std::string& pago) {
    cenario.executar("INSERT INTO " + lado.sTitulos +
                     " (sCodigoInf, dtVencimento, fValor, dtPagamento, fValorPago, fJuros, fDesconto, lNF, sObs, " +
                     lado.sLigacao + ") VALUES ('" + std::to_string(fatura) + "/" + titulo +
                     "', #03/10/2026#, 50, #03/10/2026#, " + pago + ", 0, 0, 0, '', " + std::to_string(fatura) + ")");
  }

  frmZerarTitulos& abrir() {
    auto& tela = cenario.programa.telas().obter<frmZerarTitulos>("frmZerarTitulos");
    host.show(tela);
    tela.dtInicial.userType("01/03/2026");
    tela.dtFinal.userType("31/03/2026");
    return tela;
  }
  void zerar(frmZerarTitulos& tela, const MessageBox& caixa) {
    const auto foraDaTransacao = [this] { EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 0); };
    host.then(foraDaTransacao);
    host.expectBox(caixa, BoxAnswer::yes);
    host.then(foraDaTransacao);
    host.expectBox(concluida);
    tela.userKey(Key::f3);
    host.verify();
  }
  /// Titles to receive, invoices of customers, titles to pay, invoices of suppliers.
  std::vector<std::string> contagens() {
    std::vector<std::string> todas;
    for (const Lado* lado : {&ladoReceber(), &ladoPagar()})
      for (const std::string& tabela : {lado->sTitulos, lado->sFaturas})
        todas.push_back(cenario.valor("SELECT COUNT(lCodigo) FROM " + tabela));
    return todas;
  }

  Cenario cenario{ladoReceber(), &vRegistrarZeramento};
  TestHost& host = cenario.programa.hostDeTeste();
  const std::vector<std::string> tudo{"4", "2", "4", "2"};
};

TEST_F(ZerarTitulosTest, OpensOnTodayWithBothSidesChosen) {
  auto& tela = cenario.programa.telas().obter<frmZerarTitulos>("frmZerarTitulos");
  host.show(tela);
  EXPECT_EQ(tela.caption(), "Zeramento de títulos (Pagos/Recebidos)");
  EXPECT_EQ(tela.title(), "Zeramento de títulos");
  EXPECT_EQ(tela.optPagosRecebidos.caption(), "Pagos e recebidos");
  EXPECT_EQ(tela.optRecebidos.caption(), "Recebidos");
  EXPECT_EQ(tela.optPagos.caption(), "Pagos");
  EXPECT_THAT(quadros(tela), ElementsAre("Apagar os títulos entre o período"));
  EXPECT_THAT(rotulos(tela), ElementsAre("Incial", "Final"));
  EXPECT_TRUE(tela.optPagosRecebidos.chosen());
  EXPECT_EQ(tela.dtInicial.value(), data("10/05/2026"));
  EXPECT_EQ(tela.dtFinal.value(), data("10/05/2026"));
  tela.userKey(Key::enter);
  EXPECT_TRUE(tela.optRecebidos.hasFocus());
  tela.userKey(Key::escape);
  EXPECT_EQ(tela.state(), Screen::State::unloaded);
}

TEST_F(ZerarTitulosTest, BothSidesTogether) {
  frmZerarTitulos& tela = abrir();
  zerar(tela, confirmacaoDosDois);
  EXPECT_THAT(contagens(), ElementsAre("1", "1", "1", "1"));
  EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 0);
  EXPECT_EQ(host.pointer(), Pointer::normal);
  EXPECT_TRUE(tela.enabled());
  EXPECT_TRUE(tela.cmdSalvar.enabled());
  EXPECT_EQ(tela.pbBarrra.value(), 0);
  EXPECT_TRUE(tela.optPagosRecebidos.chosen());
}

TEST_F(ZerarTitulosTest, OnlyTheReceived) {
  frmZerarTitulos& tela = abrir();
  tela.optRecebidos.userClick();
  zerar(tela, confirmacao("Recebidos", "recebimento"));
  EXPECT_THAT(contagens(), ElementsAre("1", "1", "4", "2"));
}

TEST_F(ZerarTitulosTest, OnlyThePaid) {
  frmZerarTitulos& tela = abrir();
  tela.optPagos.userClick();
  zerar(tela, confirmacao("Pagos", "pagamento"));
  EXPECT_THAT(contagens(), ElementsAre("4", "2", "1", "1"));
}

TEST_F(ZerarTitulosTest, APeriodWithNothingPaidEndsAsWell) {
  frmZerarTitulos& tela = abrir();
  tela.dtInicial.userType("01/01/2020");
  tela.dtFinal.userType("31/01/2020");
  zerar(tela, confirmacao("Pagos e Recebidos", "pagamento ou recebimento", "01/01/2020 e 31/01/2020"));
  EXPECT_EQ(contagens(), tudo);
}

TEST_F(ZerarTitulosTest, ANoLeavesEverything) {
  frmZerarTitulos& tela = abrir();
  host.expectBox(confirmacaoDosDois, BoxAnswer::no);
  tela.userKey(Key::f3);
  EXPECT_EQ(contagens(), tudo);
  EXPECT_EQ(tela.state(), Screen::State::loaded);
}

TEST_F(ZerarTitulosTest, WithoutTheRightNothingIsAsked) {
  cenario.programa.executarPrograma(
      "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
      "bPoderImprimir, bPoderAtualizar) VALUES ('Ana', 'ana', 'x', -1, 0, -1, -1, -1)");
  cenario.programa.permissoes().vSetPermissoes(1);
  frmZerarTitulos& tela = abrir();
  host.expectBox(semPermissao());
  tela.userKey(Key::f3);
  EXPECT_EQ(contagens(), tudo);
}

/// Sees the bar as a window would, and does something at each step.
struct Observador final : ControlView {
  Observador(ProgressBar& barra, std::function<void()> passo) : barra_(barra), passo_(std::move(passo)) {
    barra_.attach(*this);
  }
  ~Observador() override { barra_.detach(*this); }
  void controlChanged(Aspect) override {
    passos.emplace_back(barra_.value(), barra_.maximum());
    passo_();
  }
  std::vector<std::pair<int, int>> passos;

 private:
  ProgressBar& barra_;
  std::function<void()> passo_;
};

TEST_F(ZerarTitulosTest, TheBarMovesAndNobodyDisturbs) {
  inserirFatura(ladoReceber(), 3);
  frmZerarTitulos& tela = abrir();
  Observador observador(tela.pbBarrra, [&] {
    // A second command would ask again, which no script expects; no way out leads out.
    tela.userKey(Key::f3);
    tela.userKey(Key::escape);
    tela.cmdSalvar.userClick();
    tela.cmdFechar.userClick();
    tela.userClose();
    tela.optPagos.userClick();
    EXPECT_EQ(tela.state(), Screen::State::loaded);
    EXPECT_EQ(host.pointer(), Pointer::hourglass);
    EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 1);
  });
  const int antes = host.eventsLetThrough();
  zerar(tela, confirmacaoDosDois);
  using Passo = std::pair<int, int>;
  EXPECT_THAT(observador.passos,
              ElementsAre(Passo(0, 2), Passo(0, 2), Passo(1, 2), Passo(2, 2), Passo(0, 2),  // to pay, first
                          Passo(0, 3), Passo(0, 3), Passo(1, 3), Passo(2, 3), Passo(3, 3), Passo(0, 3)));
  EXPECT_GE(host.eventsLetThrough() - antes, 9) << "the window paints at every invoice of so few";
  EXPECT_THAT(contagens(), ElementsAre("1", "1", "1", "1"));
  tela.userKey(Key::escape);
  EXPECT_EQ(tela.state(), Screen::State::unloaded);
}

/// A table that the firm has added refers to the customers' invoices: the last one that the sweep comes to is refused.
class ZerarTitulosRecusadoTest : public ZerarTitulosTest {
 protected:
  ZerarTitulosRecusadoTest() {
    cenario.executar(
        "CREATE TABLE Notas (lCodigo COUNTER CONSTRAINT PK_Notas PRIMARY KEY, lFatura LONG NOT NULL, CONSTRAINT "
        "FK_Notas_lFatura FOREIGN KEY (lFatura) REFERENCES FaturasCliente (lCodigo))");
    cenario.executar("INSERT INTO Notas (lFatura) VALUES (1)");
  }
};

TEST_F(ZerarTitulosRecusadoTest, AFailureBetweenTheStatementsEndsTheProgramAndNothingOfThePurgeStays) {
  frmZerarTitulos& tela = abrir();
  host.expectBox(confirmacaoDosDois, BoxAnswer::yes);
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { tela.userKey(Key::f3); }), exitFailure);
  Connection& conexao = cenario.programa.dbEmpresa().Dados();
  EXPECT_EQ(conexao.transactionLevel(), 1) << "left as it is: the process ends here";
  EXPECT_EQ(contagens()[2], "1") << "the payable side was done before";
  const std::string relato = cenario.programa.pasta().ler("Erros/" + cenario.programa.pasta().nomes("Erros").at(0));
  EXPECT_THAT(relato, HasSubstr("frmZerarTitulos\r\n"));
  EXPECT_THAT(relato, HasSubstr("cmdSalvar_Click\r\n"));

  Connection outroPrograma(StoreEnvironment{cenario.programa.relogioDeTeste()});
  outroPrograma.setConnectionString(conexao.connectionString());
  outroPrograma.open();
  for (const std::string tabela : {"TitulosReceber", "TitulosPagar"})
    EXPECT_EQ(Recordset("SELECT COUNT(lCodigo) AS Quantos FROM " + tabela, outroPrograma)["Quantos"].toLong(), 4);
  for (const std::string tabela : {"FaturasCliente", "FaturasFornecedor"})
    EXPECT_EQ(Recordset("SELECT COUNT(lCodigo) AS Quantos FROM " + tabela, outroPrograma)["Quantos"].toLong(), 2);
}

TEST_F(ZerarTitulosRecusadoTest, AReportThatCannotBeMadeLetsTheProgramGoOnWithoutThePurge) {
  cenario.programa.pasta().gravar("Erros", "a file in the folder's place");
  frmZerarTitulos& tela = abrir();
  host.expectBox(confirmacaoDosDois, BoxAnswer::yes);
  host.expectBox(critica("Erro no tratador de excessões.\r\nNão foi possível criar a pasta " +
                             cenario.programa.pasta().arquivo("Erros") + ": o caminho não existe.",
                         "Erro"));
  tela.userKey(Key::f3);
  EXPECT_EQ(contagens(), tudo);
  EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 0);
  EXPECT_TRUE(tela.enabled());
}

TEST_F(ZerarTitulosTest, WithoutACompanyItIsAFailure) {
  cenario.programa.dbEmpresa().Dados().close();
  frmZerarTitulos& tela = abrir();
  host.expectBox(confirmacaoDosDois, BoxAnswer::yes);
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { tela.userKey(Key::f3); }), exitFailure);
}

/// The purge in a process of its own on a copy of the company, which dies at its write of that number. False when the
/// process came to its end.
class ZerarTitulosMortoTest : public ZerarTitulosTest {
 protected:
  ZerarTitulosMortoTest() {
    cenario.programa.dbEmpresa().Dados().close();
    cenario.programa.dbConectar().Dados().close();
    vInstalarEm(pasta);
    namespace fs = std::filesystem;
    fs::copy(cenario.programa.pasta().arquivo("Dados.MDB"), pasta.arquivo("Dados.MDB"));
  }

  bool bMorre(test::Fault falta, int numero) {
    namespace fs = std::filesystem;
    fs::copy_file(cenario.programa.pasta().arquivo("loja.MDB"), pasta.arquivo("loja.MDB"),
                  fs::copy_options::overwrite_existing);
    fs::remove(pasta.arquivo("loja.MDB-journal"));
    const pid_t filho = ::fork();
    if (filho == 0) {
      int codigo = 9;
      try {
        test::arm(test::Fault::none, 0);
        Rodada rodada(pasta, &vRegistrarZeramento);
        rodada.dbConectar().Dados().open();
        rodada.empresas().bSetEmpresa(1, "loja.MDB", pasta.caminho() + "/", false);
        auto& tela = rodada.telas().obter<frmZerarTitulos>("frmZerarTitulos");
        tela.ensureLoaded();
        tela.dtInicial.userType("01/03/2026");
        tela.dtFinal.userType("31/03/2026");
        rodada.hostDeTeste().expectBox(confirmacaoDosDois, BoxAnswer::yes);
        rodada.hostDeTeste().expectBox(concluida);
        test::arm(falta, numero);
        tela.userKey(Key::f3);
        codigo = test::countedWrites() < numero ? 0 : 8;
      } catch (const ProgramEnded&) {
        codigo = 6;
      } catch (const std::exception&) {
        codigo = 7;
      }
      ::_exit(codigo);
    }
    int estado = 0;
    ::waitpid(filho, &estado, 0);
    if (WIFEXITED(estado)) {
      EXPECT_EQ(WEXITSTATUS(estado), 0);
    }
    return WIFSIGNALED(estado) && WTERMSIG(estado) == SIGKILL;
  }

  std::vector<std::string> contagensDepois() {
    Rodada rodada(pasta, &vRegistrarZeramento);
    rodada.dbConectar().Dados().open();
    rodada.empresas().bSetEmpresa(1, "loja.MDB", pasta.caminho() + "/", false);
    std::vector<std::string> todas;
    for (const char* tabela : {"TitulosReceber", "FaturasCliente", "TitulosPagar", "FaturasFornecedor"})
      todas.push_back(Recordset(std::string("SELECT COUNT(lCodigo) AS Quantos FROM ") + tabela,
                                rodada.dbEmpresa().Dados())["Quantos"]
                          .toText());
    return todas;
  }

  PastaTemporaria pasta;
};

TEST_F(ZerarTitulosMortoTest, KilledAtAnyWriteItIsDoneWholeOrNotAtAll) {
  const std::vector<std::string> zerado{"1", "1", "1", "1"};
  for (const test::Fault falta : {test::Fault::kill, test::Fault::tear}) {
    int numero = 1;
    for (; bMorre(falta, numero); ++numero) {
      ASSERT_LT(numero, 500);
      EXPECT_THAT(contagensDepois(), AnyOf(tudo, zerado)) << "killed at write " << numero;
    }
    EXPECT_GT(numero, 20);
    EXPECT_EQ(contagensDepois(), zerado) << "the run that was left alone";
  }
}

}  // namespace
}  // namespace fenvale
