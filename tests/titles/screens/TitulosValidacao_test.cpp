// What the title screen asks and refuses before it saves, in its order.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "titles/screens/CenarioDeTelas.h"

namespace fenvale {
namespace {

class TitulosValidacaoTest : public CenarioDeTelas {
 protected:
  void recusa(const MessageBox& caixa, const Control* foco) {
    host.expectBox(caixa);
    titulos().userKey(Key::f3);
    host.verify();
    EXPECT_EQ(titulos().focused(), foco);
  }
  /// The save stops at that box, whatever the focus.
  void para(const MessageBox& caixa, BoxAnswer resposta = BoxAnswer::ok) {
    host.expectBox(caixa, resposta);
    titulos().userKey(Key::f3);
    host.verify();
  }
  /// A title typed by hand, whole but for what a test leaves out.
  TelaTitulosCadastro& digitarTitulo(const std::string& codigo, std::string_view total, std::string_view valor) {
    TelaTitulosCadastro& tela = titulos();
    escolherEntidades(tela.entidades);
    tela.txtCodigoInf.userType(codigo);
    tela.txtTotal.userType(total);
    tela.txtValor.userType(valor);
    return tela;
  }
};

const MessageBox jaPago = pergunta(
    "Este título já foi pago e os valores não será atualizados, \r\napenas os campos de identificação do mesmo.\r\n\r\n"
    "Deseja continuar?");

TEST_P(TitulosValidacaoTest, ChecksInTheirOrder) {
  TelaTitulosCadastro& tela = titulos();
  recusa(aviso("Informe o código."), &tela.txtCodigoInf);
  tela.txtCodigoInf.userType("avulso");
  recusa(aviso(lado.sInformePessoaTitulo), &tela.entidades.pessoa.caixa);
  tela.entidades.pessoa.busca.vSet(1, "Açougue São João Ltda.");
  recusa(aviso("Informe o portador."), &tela.entidades.portador.caixa);
  tela.entidades.portador.busca.vSet(1, "Carteira");
  if (lado.bVendedor) {
    recusa(aviso("Informe o vendedor."), &tela.entidades.vendedor->caixa);
    tela.entidades.vendedor->busca.vSet(1, "Maria Aparecida");
  }
  recusa(aviso("Informe o valor da fatura."), &tela.txtTotal);
  tela.txtTotal.userType("100,00");
  recusa(aviso("Informe o valor do título."), &tela.txtValor);
  tela.txtValor.userType("100,00");
  tela.txtValorPago.userType("-1,00");
  recusa(aviso("Informe o valor pago do título."), &tela.txtValorPago);
  tela.txtValorPago.userType("0,00");
  tela.txtJuros.userType("-1,00");
  recusa(aviso("Informe o valor dos juros."), &tela.txtJuros);
  tela.txtJuros.userType("0,00");
  tela.txtDesconto.userType("-1,00");
  recusa(aviso("Informe o valor dos descontos."), &tela.txtDesconto);
  tela.txtDesconto.userType("0,00");
  EXPECT_EQ(contar(lado.sTitulos), "0");
  para(concluida);
  EXPECT_EQ(contar(lado.sTitulos), "1");
}

TEST_P(TitulosValidacaoTest, ATitleTypedByHandGetsAnInvoiceOfItsOwn) {
  cenario.inserirFatura("10,00", tresVezes, 30);
  TelaTitulosCadastro& tela = digitarTitulo("avulso", "150,00", "100,00");
  tela.dtEmissao.userType("05/05/2026");
  tela.dtVencimento.userType("15/06/2026");
  tela.txtNF.userType("991");
  tela.txtObs.userType("d'água");
  para(concluida);
  EXPECT_THAT(cenario.programa.linhas("SELECT lNumeroFatura, FORMAT(dtEmissao, 'dd/mm/yyyy') AS E, fTotal, fEntrada, " +
                                      lado.sChavePessoa + ", lCondicoesPagamento, lPortador, lCentroCusto FROM " +
                                      lado.sFaturas + " WHERE lCodigo = 2"),
              ElementsAre(ElementsAre("31", "05/05/2026", "150", "0", "1", "3", "1", "1")))
      << "with the first condition of one instalment";
  EXPECT_THAT(cenario.titulos(2), ElementsAre("avulso 15/06/2026 100,00 pago 0,00"));
  EXPECT_THAT(doTitulo("avulso", "FORMAT(dtPagamento, 'dd/mm/yyyy'), fJuros, fDesconto, lNF, sObs"),
              ElementsAre("10/05/2026", "0", "0", "991", "d'água"));
}

TEST_P(TitulosValidacaoTest, WithoutConditionsTheHiddenOneIsMade) {
  cenario.executar("DELETE * FROM CondicoesPagamento");
  digitarTitulo("avulso", "150,00", "100,00");
  para(concluida);
  EXPECT_THAT(cenario.programa.linhas("SELECT btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada FROM "
                                      "CondicoesPagamento"),
              ElementsAre(ElementsAre("1", "1", "0", "0")));
}

TEST_P(TitulosValidacaoTest, WithoutACostCentreTheHiddenOneIsTaken) {
  digitarTitulo("avulso", "150,00", "100,00").entidades.centroCusto.busca.vLimpar();
  para(concluida);
  EXPECT_EQ(cenario.valor("SELECT sDescricao FROM CentroCusto INNER JOIN " + lado.sFaturas +
                          " ON CentroCusto.lCodigo = " + lado.sFaturas + ".lCentroCusto"),
            "");
}

TEST_P(TitulosValidacaoTest, ATitleAboveItsInvoiceIsAskedAboutAndTheInvoiceKeepsWhatWasTyped) {
  digitarTitulo("avulso", "1.000,00", "1.250,50");
  const MessageBox caixa{BoxStyle::exclamation, BoxButtons::yesNo, "Norvane Sistemas",
                         "O valor do título (R$ 1.250,50) é maior que o valor total da fatura (R$ 1.000,00).\r\n"
                         "Assim, o valor total será igualado ao valor do título.\r\n\r\nDeseja continuar?"};
  para(caixa, BoxAnswer::no);
  EXPECT_EQ(contar(lado.sTitulos), "0");
  host.expectBox(caixa, BoxAnswer::yes);
  para(concluida);
  EXPECT_EQ(cenario.valor("SELECT fTotal FROM " + lado.sFaturas), "1000");
  EXPECT_EQ(cenario.valor("SELECT fValor FROM " + lado.sTitulos), "1250.5");
}

TEST_P(TitulosValidacaoTest, TheTotalOfAnInvoiceIsNotChangedHere) {
  criarFatura("1.500,00");
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  const auto caixa = [&](const std::string& digitado) {
    return aviso("O valor total da fatura (R$ 1.500,00) é diferente do valor informado (R$ " + digitado +
                 ").\r\nPara alterar o valor total da fatura, vá até o formulário " + lado.sOndeMudarTotal + ".");
  };
  tela.txtTotal.userType("1.600,00");
  para(caixa("1.600,00"));
  tela.txtTotal.userType("0,50");
  para(caixa(",50"));
}

TEST_P(TitulosValidacaoTest, AValueIsNotChangedAndPaidAtOnce) {
  criarFatura("300,00");
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.txtValor.userType("110,00");
  tela.txtValorPago.userType("110,00");
  tela.txtCodigoInf.userType("");
  para(aviso("Não é possível alterar o valor de um título e realizar o pagamento do mesmo em apenas uma operação."));
}

TEST_P(TitulosValidacaoTest, ATitleTypedByHandMayBePaidAtOnce) {
  TelaTitulosCadastro& tela = digitarTitulo("avulso", "100,00", "100,00");
  tela.txtValorPago.userType("100,00");
  host.expectBox(perguntaPagamento("100,00"), BoxAnswer::yes);
  para(concluida);
  EXPECT_THAT(cenario.titulos(1), ElementsAre("avulso 10/05/2026 100,00 pago 100,00"));
}

TEST_P(TitulosValidacaoTest, ATitleTypedByHandAfterAPaidOneCountsAsUnpaid) {
  criarFatura("100,00", umaVez);
  pagarInteiro("000001/001", "100,00");
  abrirTitulo("000001/001").userKey(Key::f2);
  digitarTitulo("avulso", "50,00", "50,00");
  para(concluida);
  EXPECT_EQ(contar(lado.sTitulos), "2");
}

TEST_P(TitulosValidacaoTest, APaidTitleTakesOnlyItsIdentification) {
  criarFatura("100,00", umaVez);
  pagarInteiro("000001/001", "100,00");
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.txtCodigoInf.userType("000001/00A");
  tela.dtVencimento.userType("01/01/2027");
  tela.dtPagamento.userType("07/05/2026");
  tela.txtJuros.userType("9,00");
  tela.txtDesconto.userType("8,00");
  tela.txtValorPago.userType("1.000,00");
  tela.txtNF.userType("12");
  tela.txtObs.userType("conferido");
  para(jaPago, BoxAnswer::no);
  EXPECT_EQ(doTitulo("000001/001", "lNF").at(0), "0");
  host.expectBox(jaPago, BoxAnswer::yes);
  para(concluida);
  EXPECT_THAT(cenario.titulos(1), ElementsAre("000001/00A 31/03/2026 100,00 pago 100,00"));
  EXPECT_THAT(doTitulo("000001/00A", "FORMAT(dtPagamento, 'dd/mm/yyyy'), fJuros, fDesconto, lNF, sObs"),
              ElementsAre("07/05/2026", "0", "0", "12", "conferido"));
}

TEST_P(TitulosValidacaoTest, APaidTitleStillNeedsACode) {
  criarFatura("100,00", umaVez);
  pagarInteiro("000001/001", "100,00");
  abrirTitulo("000001/001").txtCodigoInf.userType("");
  host.expectBox(jaPago, BoxAnswer::yes);
  recusa(aviso("Informe o código."), &titulos().txtCodigoInf);
}

TEST_P(TitulosValidacaoTest, ASaveChangesTheHeaderOfTheInvoice) {
  criarFatura("100,00", umaVez);
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.dtEmissao.userType("02/02/2026");
  tela.entidades.pessoa.busca.vSet(2, "Bar do Élio");
  tela.entidades.portador.busca.vSet(2, "Banco do Brasil");
  tela.entidades.centroCusto.busca.vSet(2, "Depósito");
  para(concluida);
  EXPECT_THAT(cenario.programa.linhas("SELECT FORMAT(dtEmissao, 'dd/mm/yyyy') AS E, fTotal, " + lado.sChavePessoa +
                                      ", lPortador, lCentroCusto FROM " + lado.sFaturas),
              ElementsAre(ElementsAre("02/02/2026", "100", "2", "2", "2")));
}

TEST_P(TitulosValidacaoTest, SavedUnpaidTheDateOnTheScreenIsTheFiller) {
  criarFatura("100,00", umaVez);
  abrirTitulo("000001/001").dtPagamento.userType("04/04/2026");
  para(concluida);
  EXPECT_EQ(doTitulo("000001/001", "FORMAT(dtPagamento, 'dd/mm/yyyy')").at(0), "04/04/2026");
  EXPECT_THAT(cenario.titulos(1), ElementsAre("000001/001 31/03/2026 100,00 pago 0,00"));
}

TEST_P(TitulosValidacaoTest, ACodeThatExistsIsRefusedAndNothingStays) {
  criarFatura("100,00", umaVez);
  digitarTitulo("000001/001", "50,00", "50,00").entidades.centroCusto.busca.vLimpar();
  recusa(critica("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: \r\n\r\n" + recusaDoStore(1)),
         &titulos().txtCodigoInf);
  EXPECT_EQ(contar(lado.sFaturas), "1");
  EXPECT_EQ(contar(lado.sTitulos), "1");
  EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 0);
  EXPECT_EQ(titulos().entidades.centroCusto.busca.lCodigo, -1) << "keys are what they were before the save";
  titulos().txtCodigoInf.userType("avulso");
  para(concluida);
  EXPECT_EQ(contar(lado.sFaturas), "2");
}

TEST_P(TitulosValidacaoTest, ATitleWhoseInvoiceWentInTheMeantimeGetsAnother) {
  criarFatura("100,00", umaVez);
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.txtTotal.setValue(Currency());
  cenario.executar("DELETE * FROM " + lado.sFaturas);
  recusa(aviso("Informe o valor da fatura."), &tela.txtTotal);
  tela.txtTotal.userType("100,00");
  para(
      aviso("O valor total da fatura (R$ 0,00) é diferente do valor informado (R$ 100,00).\r\nPara alterar o valor "
            "total da fatura, vá até o formulário " +
            lado.sOndeMudarTotal + "."));
}

INSTANTIATE_TEST_SUITE_P(Lados, TitulosValidacaoTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

}  // namespace
}  // namespace fenvale
