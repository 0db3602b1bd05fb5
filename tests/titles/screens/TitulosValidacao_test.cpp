// What the title screen asks and refuses before it saves, in its order.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/Gestos.h"
#include "titles/screens/CenarioDeTelas.h"

namespace fenvale {
namespace {

class TitulosValidacaoTest : public CenarioDeTelas {
 protected:
  void recusa(const MessageBox& caixa, const Control* foco) { salvarRecusado(host, titulos(), caixa, *foco); }
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
  EXPECT_EQ(contar("CentroCusto"), "2");
  recusa(aviso("Informe o valor da fatura."), &tela.txtTotal);
  EXPECT_EQ(contar("CentroCusto"), "3") << "the hidden one is taken with the others";
  tela.txtTotal.userType("100,00");
  tela.txtValorPago.userType("-1,00");
  tela.txtJuros.userType("-1,00");
  tela.txtDesconto.userType("-1,00");
  recusa(aviso("Informe o valor do título."), &tela.txtValor);
  tela.txtValor.userType("100,00");
  recusa(aviso("Informe o valor pago do título."), &tela.txtValorPago);
  tela.txtValorPago.userType("100,00");  // its question waits for the two that follow
  recusa(aviso("Informe o valor dos juros."), &tela.txtJuros);
  tela.txtJuros.userType("0,00");
  recusa(aviso("Informe o valor dos descontos."), &tela.txtDesconto);
  tela.txtValorPago.userType("0,00");
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

TEST_P(TitulosValidacaoTest, TheInvoiceIsLookedAtBeforeTheAmountsOfTheTitle) {
  digitarTitulo("avulso", "100,00", "150,00").txtValorPago.userType("-1,00");
  host.expectBox({BoxStyle::exclamation, BoxButtons::yesNo, "Norvane Sistemas",
                  "O valor do título (R$ 150,00) é maior que o valor total da fatura (R$ 100,00).\r\n"
                  "Assim, o valor total será igualado ao valor do título.\r\n\r\nDeseja continuar?"},
                 BoxAnswer::yes);
  recusa(aviso("Informe o valor pago do título."), &titulos().txtValorPago);

  criarFatura("100,00", umaVez);
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.txtTotal.userType("200,00");
  tela.txtValor.userType("0,00");
  para(
      aviso("O valor total da fatura (R$ 100,00) é diferente do valor informado (R$ 200,00).\r\nPara alterar o valor "
            "total da fatura, vá até o formulário " +
            lado.sOndeMudarTotal + "."));
  tela.txtTotal.userType("100,00");
  recusa(aviso("Informe o valor do título."), &tela.txtValor);
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
  tela.txtTotal.userType("0,00");
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

TEST_P(TitulosValidacaoTest, OfAPaidTitleNothingMoreIsCheckedAndTheStoreHasTheLastWord) {
  criarFatura("100,00", umaVez);
  pagarInteiro("000001/001", "100,00");
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.entidades.portador.busca.vLimpar();
  tela.entidades.centroCusto.busca.vLimpar();
  std::string texto;
  try {
    cenario.executar("UPDATE " + lado.sFaturas + " SET lPortador = -1, lCentroCusto = -1");
  } catch (const Error& falha) {
    texto = falha.description;
  }
  host.expectBox(jaPago, BoxAnswer::yes);
  recusa(critica("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: \r\n\r\n" + texto),
         &tela.txtCodigoInf);
  EXPECT_EQ(contar("CentroCusto"), "2");
  EXPECT_EQ(tela.lGetCodigo(), 1);
}

TEST_P(TitulosValidacaoTest, ValuesTypedOverAPaidTitleAreNotItsOwnButStillMoveTheOthers) {
  criarFatura("300,00");
  pagarInteiro("000001/001", "100,00");
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.txtValor.userType("120,00");
  host.expectBox(jaPago, BoxAnswer::yes);
  para(concluida);
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 100,00", "000001/002 30/04/2026 93,33 pago 0,00",
                          "000001/003 30/05/2026 93,33 pago 0,00", "000001/R01 31/03/2026 13,34 pago 0,00"))
      << "a complement of 20,00 first, then the difference off the three that are open";
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

TEST_P(TitulosValidacaoTest, TheTotalOfAnInvoiceThatWentInTheMeantimeIsZero) {
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

TEST_P(TitulosValidacaoTest, APaidTitleWhoseInvoiceWentInTheMeantimeBringsTheInvoiceBack) {
  criarFatura("100,00", umaVez);
  pagarInteiro("000001/001", "100,00");
  abrirTitulo("000001/001");
  cenario.executar("DELETE * FROM " + lado.sTitulos);  // a purge at another machine
  cenario.executar("DELETE * FROM " + lado.sFaturas);
  host.expectBox(jaPago, BoxAnswer::yes);
  para(concluida);
  EXPECT_THAT(cenario.programa.linhas("SELECT lNumeroFatura, fTotal, fEntrada, " + lado.sChavePessoa + " FROM " +
                                      lado.sFaturas),
              ElementsAre(ElementsAre("1", "100", "0", "1")));
  EXPECT_EQ(contar(lado.sTitulos), "0");
}

/// A box that cannot be shown stands for whatever fails within a check.
TEST_P(TitulosValidacaoTest, TheTwoFirstChecksReportTheirFailuresUnderTheirOwnNames) {
  const auto falhar = [] { throw Error(errors::overflow, "Estouro de capacidade."); };
  const auto relato = [this](std::size_t vez) {
    const auto nomes = cenario.programa.pasta().nomes("Erros");
    EXPECT_THAT(nomes, SizeIs(vez));
    return cenario.programa.pasta().ler("Erros/" + nomes.back());
  };
  criarFatura("100,00", umaVez);
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.txtValor.userType("90,00");
  tela.txtValorPago.userType("90,00");
  host.then(falhar);
  para(relatoDeFalha(), BoxAnswer::no);
  EXPECT_THAT(relato(1), testing::HasSubstr("bVerificarAcaoPagamentoAlteracaoValor"));

  cenario.programa.relogioDeTeste().setDia(2026, 5, 11);  // the reports bear the day in their names
  pagarInteiro("000001/001", "100,00");
  abrirTitulo("000001/001");
  host.then(falhar);
  para(relatoDeFalha(), BoxAnswer::no);
  EXPECT_THAT(relato(2), testing::HasSubstr("bVerificarTituloJaPago"));
  EXPECT_EQ(titulos().lGetCodigo(), 1) << "nothing was saved and the form stays";
}

TEST_P(TitulosValidacaoTest, TheLastWordComesAfterTheCommit) {
  digitarTitulo("avulso", "100,00", "100,00");
  host.then([this] { EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 0); });
  para(concluida);
}

TEST_P(TitulosValidacaoTest, ATitleTypedByHandHadNoInvoiceToKeepShowing) {
  criarFatura("100,00", umaVez);
  titulos().chkManterFatura.userClick();
  digitarTitulo("avulso", "100,00", "100,00");
  para(concluida);
  EXPECT_THAT(titulos().lstLista.items(), IsEmpty()) << "the invoice remembered is that of before the save: none";
}

INSTANTIATE_TEST_SUITE_P(Lados, TitulosValidacaoTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

}  // namespace
}  // namespace fenvale
