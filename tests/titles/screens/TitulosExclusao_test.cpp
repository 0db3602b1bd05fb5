// Deleting titles: the invoice shrinks with them and never loses the last one.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/services/Permissoes.h"
#include "titles/screens/CenarioDeTelas.h"

namespace fenvale {
namespace {

class TitulosExclusaoTest : public CenarioDeTelas {
 protected:
  void excluir(BoxAnswer resposta = BoxAnswer::yes) {
    host.expectBox(pergunta("Confirma a remoção do registro?"), resposta);
    titulos().userKey(Key::f4);
    host.verify();
  }
};

TEST_P(TitulosExclusaoTest, WithoutAChosenTitle) {
  host.expectBox(aviso("Selecione o registro que deseja excluir."));
  titulos().userKey(Key::f4);
  EXPECT_EQ(titulos().focused(), &titulos().lstLista);
}

TEST_P(TitulosExclusaoTest, TheInvoiceShrinksByTheTitle) {
  criarFatura("100,00");
  abrirTitulo("000001/002");
  excluir(BoxAnswer::no);
  EXPECT_THAT(cenario.titulos(1), SizeIs(3));
  excluir();
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 33,33 pago 0,00", "000001/003 30/05/2026 33,34 pago 0,00"));
  EXPECT_EQ(cenario.valor("SELECT fTotal FROM " + lado.sFaturas), "66.67");
  EXPECT_EQ(titulos().lGetCodigo(), -1);
}

TEST_P(TitulosExclusaoTest, APaidTitleMayGo) {
  criarFatura("100,00", duasVezes);
  pagarInteiro("000001/001", "50,00");
  abrirTitulo("000001/001");
  excluir();
  EXPECT_THAT(cenario.titulos(1), ElementsAre("000001/002 30/04/2026 50,00 pago 0,00"));
}

TEST_P(TitulosExclusaoTest, TheLastTitleOfAnInvoiceStays) {
  criarFatura("50,00", duasVezes);
  criarFatura("100,00", umaVez);
  abrirTitulo("000002/001");
  host.expectBox(aviso("Não será possível excluir este título pois é o único relacionado com a fatura de " +
                       lado.sPessoaMinuscula + " nº 2."));
  titulos().userKey(Key::f4);
  EXPECT_THAT(cenario.titulos(2), SizeIs(1));
}

TEST_P(TitulosExclusaoTest, TheInvoiceShownStaysWithTheTickOn) {
  criarFatura("90,00", tresComEntrada, "30,00");
  criarFatura("50,00", umaVez);
  titulos().chkManterFatura.userClick();
  abrirTitulo("000001/002");
  excluir();
  EXPECT_TRUE(titulos().chkManterFatura.checked());
  EXPECT_THAT(primeiraColuna(titulos().lstLista), ElementsAre("000001/001", "000001/003"));
  titulos().chkManterFatura.userClick();
  abrirTitulo("000001/001");
  excluir();
  EXPECT_THAT(primeiraColuna(titulos().lstLista), ElementsAre("000001/003", "000002/001"));
}

TEST_P(TitulosExclusaoTest, TheInvoiceThatIsPreviewedStaysWithoutTheTick) {
  criarFatura("90,00");
  criarFatura("50,00", umaVez);
  titulos().vSetFaturaPreview(1);
  abrirTitulo("000001/002");
  excluir();
  EXPECT_THAT(primeiraColuna(titulos().lstLista), ElementsAre("000001/001", "000001/003"));
}

TEST_P(TitulosExclusaoTest, ATitleThatTheStoreKeepsIsNotDeletedAndTheInvoiceStaysWhole) {
  criarFatura("90,00");
  cenario.executar(
      "CREATE TABLE Notas (lCodigo COUNTER CONSTRAINT PK_Notas PRIMARY KEY, lTitulo LONG NOT NULL, CONSTRAINT "
      "FK_Notas_lTitulo FOREIGN KEY (lTitulo) REFERENCES " +
      lado.sTitulos + " (lCodigo))");
  cenario.executar("INSERT INTO Notas (lTitulo) VALUES (2)");
  std::string texto;
  try {
    cenario.executar("DELETE * FROM " + lado.sTitulos + " WHERE lCodigo = 2");
  } catch (const Error& falha) {
    texto = falha.description;
  }
  abrirTitulo("000001/002");
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  host.expectBox(critica("O registro não pode ser excluído.\r\n\r\nInformação detalhada: \r\n\r\n" + texto));
  titulos().userKey(Key::f4);
  host.verify();
  EXPECT_THAT(cenario.titulos(1), SizeIs(3));
  EXPECT_EQ(cenario.valor("SELECT fTotal FROM " + lado.sFaturas), "90");
  EXPECT_EQ(titulos().lGetCodigo(), 2);
  EXPECT_EQ(titulos().focused(), &titulos().txtCodigoInf);
  EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 0);

  titulos().txtObs.userType("fica");
  host.expectBox(concluida);
  titulos().userKey(Key::f3);
  EXPECT_EQ(contar(lado.sFaturas), "1") << "the form still knew the invoice";
  EXPECT_EQ(doTitulo("000001/002", "sObs").at(0), "fica");
}

TEST_P(TitulosExclusaoTest, WithoutTheRightNothingIsAsked) {
  cenario.programa.executarPrograma(
      "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
      "bPoderImprimir, bPoderAtualizar) VALUES ('Ana', 'ana', 'x', -1, 0, -1, -1, -1)");
  criarFatura("90,00");
  cenario.programa.permissoes().vSetPermissoes(1);
  abrirTitulo("000001/001");
  host.expectBox(semPermissao());
  titulos().userKey(Key::f4);
  EXPECT_THAT(cenario.titulos(1), SizeIs(3));
}

TEST_P(TitulosExclusaoTest, AFailureAfterTheDeletionUndoesItAndIsReported) {
  criarFatura("90,00");
  cenario.executar("UPDATE " + lado.sTitulos + " SET fValor = 900000000000000");
  abrirTitulo("000001/001");
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  titulos().userKey(Key::f4);
  host.verify();
  EXPECT_THAT(cenario.titulos(1), SizeIs(3));
  EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 0);
  EXPECT_EQ(titulos().lGetCodigo(), 1);
  EXPECT_THAT(cenario.programa.pasta().ler("Erros/" + cenario.programa.pasta().nomes("Erros").at(0)),
              testing::HasSubstr("cmdExcluir_Click"));
}

INSTANTIATE_TEST_SUITE_P(Lados, TitulosExclusaoTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

}  // namespace
}  // namespace fenvale
