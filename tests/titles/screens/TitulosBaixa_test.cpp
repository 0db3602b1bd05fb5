// The settlement of a title: the whole table of what a payment can be, and what it does to the invoice's other titles.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "titles/screens/CenarioDeTelas.h"
#include "titles/services/Parcelas.h"

namespace fenvale {
namespace {

class TitulosBaixaTest : public CenarioDeTelas {
 protected:
  static MessageBox excessoSemOutros(const std::string& pago, const std::string& valor, const std::string& resto) {
    return aviso("O valor pago informado (R$ " + pago + ") é maior que o valor do título (R$ " + valor +
                 ").\r\nDesta forma, R$ " + resto +
                 " deveriam ser descontados dos outros títulos não pagos desta fatura,\r\nporém não existem outros "
                 "títulos não pagos para realizar o desconto. Informe um valor igual ou menor a R$ " +
                 valor + " para realizar o pagamento do título.");
  }
  static MessageBox acimaDoRestante(const std::string& pago, const std::string& restante) {
    return aviso("O valor total restante para pagamento da fatura é de R$ " + restante +
                 ", sendo que o valor informado para o pagamento do título (R$ " + pago +
                 ") ultrapassa o valor da fatura.\r\n\r\nInforme um valor igual ou menor a R$ " + restante +
                 " para o pagamento do título.");
  }
  static MessageBox pagaFatura(const std::string& pago) {
    return pergunta("O valor total restante para pagamento da fatura é de R$ " + pago +
                    ", sendo que o valor informado para o pagamento (R$ " + pago +
                    ") pode pagar toda a fatura.\r\n\r\nDeseja continuar a operação e efetuar o pagamento de toda a "
                    "fatura?");
  }
  static MessageBox abateTitulos(const std::string& pago, const std::string& resto) {
    return pergunta("O valor pago informado (R$ " + pago + ") é superior ao valor do título.\r\nAssim, R$ " + resto +
                    " podem ser abatidos nos demais títulos não pagos desta fatura.\r\n\r\nDeseja continuar a "
                    "operação, pagando este título e efetuando o desconto nos demais títulos não pagos desta fatura?");
  }
  static MessageBox reajuste(const std::string& antigo, const std::string& novo, const std::string& motivo) {
    return aviso("Você está tentando alterar o valor deste título: \r\n\r\nValor antigo: R$ " + antigo +
                 "\r\nNovo valor: R$ " + novo + "\r\n\r\n" + motivo + "\r\n\r\nA operação será cancelada.");
  }
  void alterarValor(const std::string& codigo, std::string_view valor, const MessageBox& caixa) {
    abrirTitulo(codigo).txtValor.userType(valor);
    host.expectBox(caixa);
    titulos().userKey(Key::f3);
    host.verify();
  }
  void sim(const MessageBox& caixa) {
    host.expectBox(caixa, BoxAnswer::yes);
    host.expectBox(concluida);
    titulos().userKey(Key::f3);
    host.verify();
  }
};

const MessageBox jaPago = pergunta(
    "Este título já foi pago e os valores não será atualizados, \r\napenas os campos de identificação do mesmo.\r\n\r\n"
    "Deseja continuar?");

TEST_P(TitulosBaixaTest, PaidInFull) {
  criarFatura("300,00");
  pagarInteiro("000001/001", "100,00");
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 100,00", "000001/002 30/04/2026 100,00 pago 0,00",
                          "000001/003 30/05/2026 100,00 pago 0,00"));
  EXPECT_EQ(doTitulo("000001/001", "FORMAT(dtPagamento, 'dd/mm/yyyy')").at(0), "10/05/2026");
}

TEST_P(TitulosBaixaTest, ANoToThePaymentCancels) {
  criarFatura("300,00");
  pagar("000001/001", "100,00", {{perguntaPagamento("100,00"), BoxAnswer::no}, {cancelada, BoxAnswer::ok}});
  pagar("000001/001", "60,00",
        {{perguntaParcial("60,00", "100,00", "40,00"), BoxAnswer::no}, {cancelada, BoxAnswer::ok}});
  pagar("000001/001", "300,00", {{pagaFatura("300,00"), BoxAnswer::no}, {cancelada, BoxAnswer::ok}});
  pagar("000001/001", "150,00", {{abateTitulos("150,00", "50,00"), BoxAnswer::no}, {cancelada, BoxAnswer::ok}});
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 0,00", "000001/002 30/04/2026 100,00 pago 0,00",
                          "000001/003 30/05/2026 100,00 pago 0,00"));
}

TEST_P(TitulosBaixaTest, PaidWithItsInterestNothingIsAsked) {
  criarFatura("100,00", umaVez);
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.txtJuros.userType("5,00");
  tela.txtValorPago.userType("105,00");
  host.expectBox(concluida);
  tela.userKey(Key::f3);
  EXPECT_THAT(cenario.titulos(1), ElementsAre("000001/001 31/03/2026 100,00 pago 105,00"));
  EXPECT_EQ(doTitulo("000001/001", "fJuros").at(0), "5");
}

TEST_P(TitulosBaixaTest, APartialPaymentLeavesAComplement) {
  criarFatura("300,00");
  pagar("000001/001", "60,00",
        {{perguntaParcial("60,00", "100,00", "40,00"), BoxAnswer::yes}, {concluida, BoxAnswer::ok}});
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 60,00", "000001/002 30/04/2026 100,00 pago 0,00",
                          "000001/003 30/05/2026 100,00 pago 0,00", "000001/R01 31/03/2026 40,00 pago 0,00"));
  EXPECT_THAT(doTitulo("000001/R01", "FORMAT(dtPagamento, 'dd/mm/yyyy'), fJuros, fDesconto, lNF, sObs"),
              ElementsAre("10/05/2026", "0", "0", "0", ""));
}

TEST_P(TitulosBaixaTest, AComplementIsSettledInTheSameWay) {
  criarFatura("100,00", umaVez);
  pagar("000001/001", "60,00",
        {{perguntaParcial("60,00", "100,00", "40,00"), BoxAnswer::yes}, {concluida, BoxAnswer::ok}});
  pagar("000001/R01", "15,00",
        {{perguntaParcial("15,00", "40,00", "25,00"), BoxAnswer::yes}, {concluida, BoxAnswer::ok}});
  pagarInteiro("000001/R02", "25,00");
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 60,00", "000001/R01 31/03/2026 40,00 pago 15,00",
                          "000001/R02 31/03/2026 25,00 pago 25,00"));
}

TEST_P(TitulosBaixaTest, ADiscountedPaymentIsPartialAllTheSame) {
  criarFatura("100,00", umaVez);
  abrirTitulo("000001/001").txtDesconto.userType("10,00");
  titulos().txtValorPago.userType("90,00");
  sim(perguntaParcial("90,00", "100,00", "10,00"));
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 90,00", "000001/R01 31/03/2026 10,00 pago 0,00"));
  EXPECT_EQ(doTitulo("000001/001", "fDesconto").at(0), "10");
}

TEST_P(TitulosBaixaTest, PaidInFullWithADiscountIsAnExcess) {
  criarFatura("300,00");
  abrirTitulo("000001/001").txtDesconto.userType("10,00");
  titulos().txtValorPago.userType("100,00");
  host.expectBox(perguntaPagamento("100,00"), BoxAnswer::yes);
  sim(abateTitulos("100,00", "0,00"));
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 100,00", "000001/002 30/04/2026 100,00 pago 0,00",
                          "000001/003 30/05/2026 100,00 pago 0,00"));
}

TEST_P(TitulosBaixaTest, ADiscountThatMakesAPartialPaymentAnExcessLeavesNoComplement) {
  criarFatura("300,00");
  abrirTitulo("000001/001").txtDesconto.userType("10,00");
  titulos().txtValorPago.userType("95,00");
  host.expectBox(perguntaParcial("95,00", "100,00", "5,00"), BoxAnswer::yes);
  sim(abateTitulos("95,00", "-5,00"));
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 95,00", "000001/002 30/04/2026 102,50 pago 0,00",
                          "000001/003 30/05/2026 102,50 pago 0,00"));
}

TEST_P(TitulosBaixaTest, NothingPaidIsSavedOpen) {
  criarFatura("100,00", umaVez);
  abrirTitulo("000001/001").txtObs.userType("promessa para o dia 20");
  host.expectBox(concluida);
  titulos().userKey(Key::f3);
  EXPECT_THAT(cenario.titulos(1), ElementsAre("000001/001 31/03/2026 100,00 pago 0,00"));
}

TEST_P(TitulosBaixaTest, AnExcessIsTakenOffTheOtherOpenTitles) {
  criarFatura("300,00");
  pagar("000001/001", "150,00", {{abateTitulos("150,00", "50,00"), BoxAnswer::yes}, {concluida, BoxAnswer::ok}});
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 150,00", "000001/002 30/04/2026 75,00 pago 0,00",
                          "000001/003 30/05/2026 75,00 pago 0,00"));
}

TEST_P(TitulosBaixaTest, AnExcessOfTheWholeRestPaysTheInvoice) {
  criarFatura("300,00");
  pagar("000001/001", "300,00", {{pagaFatura("300,00"), BoxAnswer::yes}, {concluida, BoxAnswer::ok}});
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 100,00", "000001/002 30/04/2026 100,00 pago 100,00",
                          "000001/003 30/05/2026 100,00 pago 100,00"));
  EXPECT_EQ(doTitulo("000001/003", "FORMAT(dtPagamento, 'dd/mm/yyyy')").at(0), "30/05/2026");
}

TEST_P(TitulosBaixaTest, AnExcessBeyondTheRestIsRefused) {
  criarFatura("3.000,00");
  pagar("000001/001", "3.000,01", {{acimaDoRestante("3.000,01", "3.000,00"), BoxAnswer::ok}});
  pagarInteiro("000001/001", "1.000,00");
  pagar("000001/002", "2.500,00", {{acimaDoRestante("2.500,00", "2.000,00"), BoxAnswer::ok}});
  EXPECT_EQ(cenario.titulos(1).at(1), "000001/002 30/04/2026 1.000,00 pago 0,00");
}

TEST_P(TitulosBaixaTest, AnExcessWithoutOtherOpenTitlesIsRefused) {
  criarFatura("100,00", umaVez);
  pagar("000001/001", "101,00", {{excessoSemOutros("101,00", "100,00", "1,00"), BoxAnswer::ok}});
  criarFatura("200,00", duasVezes);
  pagarInteiro("000002/001", "100,00");
  pagar("000002/002", "150,00", {{excessoSemOutros("150,00", "100,00", "50,00"), BoxAnswer::ok}});
}

TEST_P(TitulosBaixaTest, AHandTypedTitleHasNoOthersToTakeAnExcess) {
  TelaTitulosCadastro& tela = titulos();
  escolherEntidades(tela.entidades);
  tela.txtCodigoInf.userType("avulso");
  tela.txtTotal.userType("100,00");
  tela.txtValor.userType("100,00");
  tela.txtValorPago.userType("120,00");
  host.expectBox(excessoSemOutros("120,00", "100,00", "20,00"));
  tela.userKey(Key::f3);
  EXPECT_EQ(contar(lado.sFaturas), "0");
}

TEST_P(TitulosBaixaTest, TheRestIsComparedByItsTwoDecimals) {
  cenario.inserirFatura("300,004");
  cenario.inserirTitulo(1, "000001/001", "100,00");
  cenario.inserirTitulo(1, "000001/002", "200,00");
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.txtTotal.setValue(reais("300,004"));
  tela.txtValorPago.userType("300,00");
  sim(pagaFatura("300,00"));
  EXPECT_EQ(cenario.titulos(1).at(1), "000001/002 31/03/2026 200,00 pago 100,00");
}

TEST_P(TitulosBaixaTest, SavingAPartlyPaidTitleAgainAddsAFurtherComplement) {
  criarFatura("100,00", umaVez);
  pagar("000001/001", "60,00",
        {{perguntaParcial("60,00", "100,00", "40,00"), BoxAnswer::yes}, {concluida, BoxAnswer::ok}});
  abrirTitulo("000001/001");
  sim(jaPago);
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 60,00", "000001/R01 31/03/2026 40,00 pago 0,00",
                          "000001/R02 31/03/2026 40,00 pago 0,00"));
}

TEST_P(TitulosBaixaTest, AnExcessIsRememberedUntilTheNextOpenTitleIsSaved) {
  criarFatura("300,00");
  pagar("000001/001", "150,00", {{abateTitulos("150,00", "50,00"), BoxAnswer::yes}, {concluida, BoxAnswer::ok}});
  cenario.executar("UPDATE " + lado.sTitulos + " SET fValor = 140 WHERE sCodigoInf = '000001/002'");
  abrirTitulo("000001/001");
  sim(jaPago);
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 150,00", "000001/002 30/04/2026 82,50 pago 0,00",
                          "000001/003 30/05/2026 82,50 pago 0,00"))
      << "levelled once more, on the sum of the values as they are";
  abrirTitulo("000001/002");
  host.expectBox(concluida);
  titulos().userKey(Key::f3);
  abrirTitulo("000001/001");
  sim(jaPago);
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 150,00", "000001/002 30/04/2026 82,50 pago 0,00",
                          "000001/003 30/05/2026 82,50 pago 0,00"))
      << "now only a complement would follow, and nothing is left for one";
}

TEST_P(TitulosBaixaTest, AnExcessIsStillRememberedAfterAPaymentThatWasCancelled) {
  criarFatura("300,00");
  pagar("000001/001", "150,00", {{abateTitulos("150,00", "50,00"), BoxAnswer::yes}, {concluida, BoxAnswer::ok}});
  cenario.executar("UPDATE " + lado.sTitulos + " SET fValor = 140 WHERE sCodigoInf = '000001/002'");
  pagar("000001/003", "75,00", {{perguntaPagamento("75,00"), BoxAnswer::no}, {cancelada, BoxAnswer::ok}});
  abrirTitulo("000001/001");
  sim(jaPago);
  EXPECT_EQ(cenario.titulos(1).at(1), "000001/002 30/04/2026 82,50 pago 0,00");
}

TEST_P(TitulosBaixaTest, APaidInvoiceIsRememberedEvenForTheNextInvoice) {
  criarFatura("300,00");
  for (const char* codigo : {"000002/001", "000003/001"}) {
    criarFatura("80,00", duasVezes);
    pagarInteiro(codigo, "40,00");
  }
  pagar("000001/001", "300,00", {{pagaFatura("300,00"), BoxAnswer::yes}, {concluida, BoxAnswer::ok}});
  abrirTitulo("000002/001");
  sim(jaPago);
  EXPECT_THAT(cenario.titulos(2),
              ElementsAre("000002/001 31/03/2026 40,00 pago 40,00", "000002/002 30/04/2026 40,00 pago 40,00"));

  abrirTitulo("000003/002");
  host.expectBox(concluida);
  titulos().userKey(Key::f3);
  abrirTitulo("000003/001");
  sim(jaPago);
  EXPECT_EQ(cenario.titulos(3).at(1), "000003/002 30/04/2026 40,00 pago 0,00") << "until an open title is saved";
}

TEST_P(TitulosBaixaTest, AFailureInTheMiddleOfASaveIsReportedAndUndone) {
  criarFatura("300,00");
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  cenario.executar("UPDATE " + lado.sTitulos + " SET fValor = 900000000000000 WHERE sCodigoInf <> '000001/001'");
  tela.entidades.pessoa.busca.vSet(2, "Bar do Élio");
  tela.txtValorPago.userType("150,00");
  host.expectBox(abateTitulos("150,00", "50,00"), BoxAnswer::yes);
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  tela.userKey(Key::f3);
  host.verify();
  EXPECT_EQ(cenario.titulos(1).at(0), "000001/001 31/03/2026 100,00 pago 0,00");
  EXPECT_EQ(cenario.valor("SELECT " + lado.sChavePessoa + " FROM " + lado.sFaturas), "1");
  EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 0);
  EXPECT_EQ(tela.lGetCodigo(), 1);
  EXPECT_EQ(tela.txtValorPago.value(), reais("150,00"));
  EXPECT_THAT(cenario.programa.pasta().ler("Erros/" + cenario.programa.pasta().nomes("Erros").at(0)),
              testing::HasSubstr("cmdSalvar_Click"));
}

TEST_P(TitulosBaixaTest, TheComplementOfAnInvoiceWithSevenDigitsIsAlwaysTheFirst) {
  cenario.executar("INSERT INTO " + lado.sFaturas + " (lCodigo, lNumeroFatura, dtEmissao, fTotal, fEntrada, " +
                   lado.sChavePessoa + ", lCondicoesPagamento, lPortador, " + (lado.bVendedor ? "lVendedor, " : "") +
                   "lCentroCusto) VALUES (1000123, 1, #03/01/2026#, 200, 0, 1, 1, 1, " + (lado.bVendedor ? "1, " : "") +
                   "1)");
  cenario.inserirTitulo(1000123, "1000123/001", "100,00");
  cenario.inserirTitulo(1000123, "1000123/002", "100,00");
  pagar("1000123/001", "60,00",
        {{perguntaParcial("60,00", "100,00", "40,00"), BoxAnswer::yes}, {concluida, BoxAnswer::ok}});
  EXPECT_EQ(cenario.titulos(1000123).at(2), "1000123/R01 31/03/2026 40,00 pago 0,00");
  const std::string texto = recusaDoStore(1000123);
  pagar("1000123/002", "60,00",
        {{perguntaParcial("60,00", "100,00", "40,00"), BoxAnswer::yes},
         {critica("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: \r\n\r\n" + texto),
          BoxAnswer::ok}});
  EXPECT_EQ(cenario.titulos(1000123).at(1), "1000123/002 31/03/2026 100,00 pago 0,00") << "the payment is undone too";
}

TEST_P(TitulosBaixaTest, TheHundredthComplementIsRefusedAndThePaymentUndone) {
  cenario.inserirFatura("100,00");
  cenario.inserirTitulo(1, "000001/001", "100,00");
  for (int i = 1; i <= 99; ++i) cenario.inserirTitulo(1, sCodigoComplemento(1, i), "1,00", "1,00");
  const std::string texto = recusaDoStore(1);
  pagar("000001/001", "60,00",
        {{perguntaParcial("60,00", "100,00", "40,00"), BoxAnswer::yes},
         {critica("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: \r\n\r\n" + texto),
          BoxAnswer::ok}});
  EXPECT_EQ(cenario.titulos(1).at(0), "000001/001 31/03/2026 100,00 pago 0,00");
  EXPECT_EQ(titulos().lGetCodigo(), 1);
  EXPECT_EQ(titulos().focused(), &titulos().txtCodigoInf);
}

TEST_P(TitulosBaixaTest, ARaisedTitleIsTakenOffTheOthers) {
  criarFatura("300,00");
  alterarValor("000001/001", "120,00", concluida);
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 120,00 pago 0,00", "000001/002 30/04/2026 90,00 pago 0,00",
                          "000001/003 30/05/2026 90,00 pago 0,00"));
}

TEST_P(TitulosBaixaTest, ALoweredTitleIsSpreadOverTheOthers) {
  criarFatura("300,00");
  alterarValor("000001/001", "99,99", concluida);
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 99,99 pago 0,00", "000001/002 30/04/2026 100,00 pago 0,00",
                          "000001/003 30/05/2026 100,01 pago 0,00"));
}

TEST_P(TitulosBaixaTest, ATitleRaisedToTheWholeIsRefusedAndUndone) {
  criarFatura("300,00");
  alterarValor("000001/001", "300,00",
               reajuste("100,00", "300,00",
                        "porém os títulos existentes não pagos nesta fatura não suportam tal desconto, sendo "
                        "impossível ajustar a diferença."));
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 0,00", "000001/002 30/04/2026 100,00 pago 0,00",
                          "000001/003 30/05/2026 100,00 pago 0,00"));
  EXPECT_EQ(titulos().lGetCodigo(), 1) << "the screen stays as it is";
  EXPECT_EQ(titulos().txtValor.value(), reais("300,00"));
  EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 0);
}

TEST_P(TitulosBaixaTest, ARefusalAtTheLastTitleUndoesTheOnesBefore) {
  cenario.inserirFatura("310,00");
  cenario.inserirTitulo(1, "000001/001", "100,00");
  cenario.inserirTitulo(1, "000001/002", "200,00");
  cenario.inserirTitulo(1, "000001/003", "10,00");
  alterarValor("000001/001", "120,00",
               reajuste("100,00", "120,00",
                        "porém os títulos existentes não pagos nesta fatura não suportam tal desconto, sendo "
                        "impossível ajustar a diferença."));
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 0,00", "000001/002 31/03/2026 200,00 pago 0,00",
                          "000001/003 31/03/2026 10,00 pago 0,00"));
}

TEST_P(TitulosBaixaTest, WithoutOtherOpenTitlesAValueStays) {
  criarFatura("200,00", duasVezes);
  pagarInteiro("000001/002", "100,00");
  alterarValor("000001/001", "0,50",
               reajuste("100,00", ",50",
                        "porém não existem títulos não pagos nesta fatura, não sendo possível ajustar a diferença."));
  EXPECT_EQ(cenario.titulos(1).at(0), "000001/001 31/03/2026 100,00 pago 0,00");
}

TEST_P(TitulosBaixaTest, TheOldValueHoldsWhenItsRowHasLeftTheList) {
  criarFatura("300,00");
  abrirTitulo("000001/001");
  titulos().vMontarLista(0, "WHERE sCodigoInf = '000001/003' ");
  titulos().txtValor.userType("120,00");
  host.expectBox(concluida);
  titulos().userKey(Key::f3);
  EXPECT_EQ(cenario.titulos(1).at(1), "000001/002 30/04/2026 90,00 pago 0,00");
}

TEST_P(TitulosBaixaTest, TheOldStateHoldsWhenItsRowHasLeftTheList) {
  criarFatura("100,00", umaVez);
  pagarInteiro("000001/001", "100,00");
  abrirTitulo("000001/001");
  titulos().vMontarLista(0, {});
  host.expectBox(jaPago, BoxAnswer::no);
  titulos().userKey(Key::f3);
}

INSTANTIATE_TEST_SUITE_P(Lados, TitulosBaixaTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

}  // namespace
}  // namespace fenvale
