// One salesperson's customers move to another.

#include <gmock/gmock.h>

#include "access/services/Permissoes.h"
#include "platform/base/Error.h"
#include "platform/os/Process.h"
#include "registers/screens/TelaBuscaRapida.h"
#include "registers/screens/TelasDosCadastros.h"
#include "shell/services/Telas.h"
#include "support/Rotulos.h"
#include "titles/Cenario.h"
#include "titles/screens/frmTransferenciaVendedores.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

void vRegistrarTransferencia(Telas& telas) {
  vRegistrarTelasDosCadastros(telas);
  telas.registrar<frmTransferenciaVendedores>("frmTransferenciaVendedores");
}

const MessageBox concluida = informacao("Operação concluída.");
constexpr int maria = 1, joao = 2;

class TransferenciaVendedoresTest : public testing::Test {
 protected:
  TransferenciaVendedoresTest() { host.show(tela); }
  void TearDown() override { host.verify(); }

  /// Space on the box that has the focus, and two presses on a row of the search.
  void escolher(std::size_t linha) {
    host.expectScreen("frmLocalizarVendedoresRapido", [linha](Screen& aberta) {
      auto& busca = dynamic_cast<TelaBuscaRapida&>(aberta);
      busca.lstLista.userClickRow(linha);
      busca.lstLista.userClickRow(linha);
      EXPECT_EQ(busca.state(), Screen::State::unloaded);
    });
    tela.userKey(Key::space);
    host.verify();
  }
  void escolherMariaParaJoao() {
    tela.txtVendedorOrigem.setFocus();
    escolher(0);
    escolher(1);
  }
  std::vector<std::string> vendedoresDosClientes() {
    std::vector<std::string> chaves;
    for (const auto& campos : cenario.programa.linhas("SELECT lVendedor FROM Clientes ORDER BY lCodigo"))
      chaves.push_back(campos[0]);
    return chaves;
  }

  Cenario cenario{ladoReceber(), &vRegistrarTransferencia};
  TestHost& host = cenario.programa.hostDeTeste();
  frmTransferenciaVendedores& tela =
      cenario.programa.telas().obter<frmTransferenciaVendedores>("frmTransferenciaVendedores");
};

TEST_F(TransferenciaVendedoresTest, OpensWithNobodyChosen) {
  EXPECT_EQ(tela.caption(), "Vendedores");
  EXPECT_EQ(tela.title(), "Transferência de vendedores entre clientes");
  EXPECT_THAT(rotulos(tela), ElementsAre("do vendedor", "para o vendedor"));
  EXPECT_TRUE(tela.txtVendedorOrigem.hasFocus());
  EXPECT_EQ(tela.origem.lGetCodigo(), -1);
  EXPECT_EQ(tela.destino.lGetCodigo(), -1);
  tela.userKey(Key::enter);
  EXPECT_TRUE(tela.txtVendedorDestino.hasFocus()) << "past the button in the box's end";
  tela.userKey(Key::escape);
  EXPECT_EQ(tela.state(), Screen::State::unloaded);
}

TEST_F(TransferenciaVendedoresTest, SpaceFillsTheBoxAndTheObjectBehindIt) {
  escolher(0);
  EXPECT_EQ(tela.origem.lGetCodigo(), maria);
  EXPECT_EQ(tela.origem.sGetNome(), "Maria Aparecida");
  EXPECT_EQ(tela.txtVendedorOrigem.text(), "Maria Aparecida");
  EXPECT_EQ(tela.destino.lGetCodigo(), -1);
  EXPECT_TRUE(tela.txtVendedorDestino.hasFocus()) << "on to the next lookup box";
  escolher(1);
  EXPECT_EQ(tela.destino.lGetCodigo(), joao);
  EXPECT_EQ(tela.txtVendedorDestino.text(), "João Batista");
  EXPECT_EQ(tela.origem.lGetCodigo(), maria);
}

TEST_F(TransferenciaVendedoresTest, ASearchThatPicksNobodyLeavesTheChoice) {
  escolherMariaParaJoao();
  tela.txtVendedorOrigem.setFocus();
  host.expectScreen("frmLocalizarVendedoresRapido", [](Screen& busca) { busca.userKey(Key::escape); });
  tela.userKey(Key::space);
  EXPECT_EQ(tela.origem.lGetCodigo(), maria);
  EXPECT_EQ(tela.txtVendedorOrigem.text(), "Maria Aparecida");
}

TEST_F(TransferenciaVendedoresTest, DeleteClearsTheBoxAndItsObjectAndKeepsTheFocus) {
  escolherMariaParaJoao();
  tela.txtVendedorDestino.setFocus();
  tela.userKey(Key::del);
  EXPECT_EQ(tela.destino.lGetCodigo(), -1);
  EXPECT_EQ(tela.destino.sGetNome(), "");
  EXPECT_EQ(tela.txtVendedorDestino.text(), "");
  EXPECT_TRUE(tela.txtVendedorDestino.hasFocus());
  EXPECT_EQ(tela.origem.lGetCodigo(), maria);
}

TEST_F(TransferenciaVendedoresTest, InsertAndTypingDoNothing) {
  tela.userKey(Key::insert);
  EXPECT_FALSE(tela.txtVendedorOrigem.userType("Maria"));
  EXPECT_EQ(tela.txtVendedorOrigem.text(), "");
}

TEST_F(TransferenciaVendedoresTest, TheOriginIsAskedForFirst) {
  tela.txtVendedorDestino.setFocus();
  host.expectBox(aviso("Informe o vendedor de origem."));
  tela.userKey(Key::f3);
  host.verify();
  EXPECT_TRUE(tela.txtVendedorOrigem.hasFocus());
  EXPECT_TRUE(tela.txtVendedorOrigem.wrong());

  escolher(0);
  tela.cmdSalvar.setFocus();
  host.expectBox(aviso("Informe o vendedor de destino."));
  tela.userKey(Key::f3);
  EXPECT_TRUE(tela.txtVendedorDestino.hasFocus());
}

TEST_F(TransferenciaVendedoresTest, WithoutTheRightNothingIsValidated) {
  cenario.programa.executarPrograma(
      "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
      "bPoderImprimir, bPoderAtualizar) VALUES ('Ana', 'ana', 'x', -1, -1, -1, -1, 0)");
  cenario.programa.permissoes().vSetPermissoes(1);
  host.expectBox(semPermissao());
  tela.userKey(Key::f3);
}

TEST_F(TransferenciaVendedoresTest, TheCustomersMoveAndTheInvoicesStay) {
  cenario.executar("UPDATE Clientes SET lVendedor = 2 WHERE lCodigo = 2");
  cenario.executar(
      "INSERT INTO Clientes (lCodigoInf, sNome, fLimiteCredito, dtNascimento, lCategoria, lCidade, lVendedor, "
      "lCidadeEntrega, lCidadeCobranca) VALUES (3, 'Casa Paraíba', 0, #01/01/1980#, 1, 1, 1, 1, 1)");
  cenario.inserirFatura("100,00");
  escolherMariaParaJoao();
  host.then([this] {
    EXPECT_THAT(vendedoresDosClientes(), ElementsAre("2", "2", "2"));
    EXPECT_EQ(tela.txtVendedorOrigem.text(), "Maria Aparecida") << "emptied when it was told";
  });
  host.expectBox(concluida);
  tela.userKey(Key::f3);
  EXPECT_EQ(cenario.valor("SELECT lVendedor FROM FaturasCliente"), "1");
  for (const Vendedor* vendedor : {&tela.origem, &tela.destino}) {
    EXPECT_EQ(vendedor->lGetCodigo(), -1);
    EXPECT_EQ(vendedor->sGetNome(), "");
  }
  EXPECT_EQ(tela.txtVendedorOrigem.text(), "");
  EXPECT_EQ(tela.txtVendedorDestino.text(), "");
  EXPECT_EQ(tela.state(), Screen::State::loaded);
}

TEST_F(TransferenciaVendedoresTest, ToTheSameSalespersonNothingChanges) {
  tela.txtVendedorOrigem.setFocus();
  escolher(0);
  escolher(0);
  host.expectBox(concluida);
  tela.userKey(Key::f3);
  EXPECT_THAT(vendedoresDosClientes(), ElementsAre("1", "1"));
}

TEST_F(TransferenciaVendedoresTest, ARefusalByTheStoreIsToldAndTheChoiceStays) {
  escolherMariaParaJoao();
  cenario.executar("DELETE * FROM Vendedores WHERE lCodigo = 2");  // at another machine, meanwhile
  std::string sDoStore;
  try {
    cenario.executar("UPDATE Clientes SET lVendedor = 2");
  } catch (const Error& falha) {
    EXPECT_EQ(falha.number, -2147467259);
    sDoStore = falha.description;
  }
  host.expectBox(
      critica("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: \r\n\r\n" + sDoStore));
  tela.userKey(Key::f3);
  EXPECT_THAT(vendedoresDosClientes(), ElementsAre("1", "1"));
  EXPECT_EQ(tela.destino.lGetCodigo(), joao);
  EXPECT_EQ(tela.txtVendedorDestino.text(), "João Batista");
}

TEST_F(TransferenciaVendedoresTest, AnyOtherFailureEndsTheProgramWithAReport) {
  escolherMariaParaJoao();
  cenario.programa.dbEmpresa().Dados().close();
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { tela.userKey(Key::f3); }), exitFailure);
  EXPECT_THAT(cenario.programa.pasta().ler("Erros/" + cenario.programa.pasta().nomes("Erros").at(0)),
              HasSubstr("cmdSalvar_Click"));
}

}  // namespace
}  // namespace fenvale
