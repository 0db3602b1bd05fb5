// What a save of an invoice does to its titles: the two options, a change of condition, the preview inside the open
// transaction, and failures in the middle.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "store/services/ConfiguracoesPrograma.h"
#include "titles/screens/CenarioDeTelas.h"

namespace fenvale {
namespace {

const MessageBox trocaDeCondicao = pergunta(
    "A condição de pagamento informada é diferente da que a fatura apresenta.\r\n"
    "Alterar a condição de pagamento fará com que todos os títulos desta fatura sejam excluídos\r\n"
    "e criados novamente, atendendo as especificações da nova condição de pagamento.\r\n\r\nDeseja continuar?");

class FaturasTitulosTest : public CenarioDeTelas {};

TEST_P(FaturasTitulosTest, ThreeInstalments) {
  criarFatura("100,00");
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 33,33 pago 0,00", "000001/002 30/04/2026 33,33 pago 0,00",
                          "000001/003 30/05/2026 33,34 pago 0,00"));
}

TEST_P(FaturasTitulosTest, OneInstalment) {
  criarFatura("100,00", umaVez);
  criarFatura("100,00", aVista);
  criarFatura("100,00", umaComEntrada, "40,00");
  EXPECT_THAT(cenario.titulos(1), ElementsAre("000001/001 31/03/2026 100,00 pago 0,00"));
  EXPECT_THAT(cenario.titulos(2), ElementsAre("000002/001 01/03/2026 100,00 pago 0,00"));
  EXPECT_THAT(cenario.titulos(3), ElementsAre("000003/001 01/03/2026 40,00 pago 40,00"));
}

TEST_P(FaturasTitulosTest, WithoutIntervalAllFallDueOnTheSameDay) {
  criarFatura("100,00", mesmoDia);
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 01/03/2026 33,33 pago 0,00", "000001/002 01/03/2026 33,33 pago 0,00",
                          "000001/003 01/03/2026 33,34 pago 0,00"));
}

TEST_P(FaturasTitulosTest, NoInstalmentsCountAsOne) {
  cenario.executar("UPDATE CondicoesPagamento SET iNumeroParcelas = 0 WHERE lCodigo = 3");
  digitarFatura("100,00", {3, 0, 30, false});
  host.expectBox(visualizarTitulos, BoxAnswer::no);
  host.then([&] { EXPECT_EQ(faturas().txtNumeroParcelas.text(), "1"); });
  host.expectBox(concluida);
  faturas().userKey(Key::f3);
  EXPECT_THAT(cenario.titulos(1), ElementsAre("000001/001 31/03/2026 100,00 pago 0,00"));
}

TEST_P(FaturasTitulosTest, NoInstalmentsAreMendedWhereASeriesIsMadeAndNowhereElse) {
  const int chave = criarFatura("100,00", umaVez);
  cenario.executar("UPDATE CondicoesPagamento SET iNumeroParcelas = 0 WHERE lCodigo = 3");
  for (const auto& [opcao, esperado] : {std::pair(1, "0"), std::pair(0, "1")}) {
    cenario.opcaoReparcelamento(opcao);
    abrirFatura(chave).txtTotal.userType("150,00");
    host.then([&, texto = std::string(esperado)] { EXPECT_EQ(faturas().txtNumeroParcelas.text(), texto); });
    salvarFatura();
    EXPECT_THAT(cenario.titulos(chave), ElementsAre("000001/001 31/03/2026 150,00 pago 0,00"));
  }
}

TEST_P(FaturasTitulosTest, APaidOffInvoiceSavedUnchangedTouchesNothing) {
  const int chave = criarFatura("100,00", duasVezes);
  pagarInteiro("000001/001", "50,00");
  pagarInteiro("000001/002", "50,00");
  for (const int opcao : {0, 1}) {
    cenario.opcaoReparcelamento(opcao);
    abrirFatura(chave);
    salvarFatura();
    EXPECT_THAT(cenario.titulos(chave),
                ElementsAre("000001/001 31/03/2026 50,00 pago 50,00", "000001/002 30/04/2026 50,00 pago 50,00"));
  }
}

TEST_P(FaturasTitulosTest, ATotalLoweredToWhatWasPaidLeavesTheOpenTitlesAlone) {
  const int chave = criarFatura("100,00", duasVezes);
  pagarInteiro("000001/001", "50,00");
  abrirFatura(chave).txtTotal.userType("50,00");
  salvarFatura();
  EXPECT_THAT(cenario.titulos(chave),
              ElementsAre("000001/001 31/03/2026 50,00 pago 50,00", "000001/002 30/04/2026 50,00 pago 0,00"));
}

TEST_P(FaturasTitulosTest, ATotalBelowWhatWasPaidIsRefused) {
  const int chave = criarFatura("3.000,00", duasVezes);
  pagarInteiro("000001/001", "1.500,00");
  abrirFatura(chave).txtTotal.userType("1.499,99");
  host.expectBox(
      aviso("O valor informado para a fatura (R$ 1.499,99) é inferior ao valor dos títulos já pagos (R$ "
            "1.500,00).\r\nInforme outro valor."));
  faturas().userKey(Key::f3);
  EXPECT_EQ(cenario.valor("SELECT fTotal FROM " + lado.sFaturas), "3000");
}

TEST_P(FaturasTitulosTest, OptionOneSpreadsTheOpenAmountOnEverySave) {
  const int chave = criarFatura("100,00");
  pagarInteiro("000001/001", "33,33");
  abrirFatura(chave).txtTotal.userType("200,00");
  salvarFatura();
  EXPECT_THAT(cenario.titulos(chave),
              ElementsAre("000001/001 31/03/2026 33,33 pago 33,33", "000001/002 30/04/2026 83,34 pago 0,00",
                          "000001/003 30/05/2026 83,33 pago 0,00"));
  cenario.executar("UPDATE " + lado.sTitulos + " SET fValor = 1 WHERE sCodigoInf = '000001/002'");
  abrirFatura(chave);
  salvarFatura();
  EXPECT_EQ(cenario.titulos(chave).at(1), "000001/002 30/04/2026 83,34 pago 0,00");
}

TEST_P(FaturasTitulosTest, OptionOneGivesTheOnlyOpenTitleTheWholeRest) {
  const int chave = criarFatura("100,00", duasVezes);
  pagarInteiro("000001/001", "50,00");
  abrirFatura(chave).txtTotal.userType("170,00");
  salvarFatura();
  EXPECT_EQ(cenario.titulos(chave).at(1), "000001/002 30/04/2026 120,00 pago 0,00");
}

TEST_P(FaturasTitulosTest, OptionOneAddsATitleToAPaidUpInvoice) {
  const int chave = criarFatura("100,00", umaVez);
  pagarInteiro("000001/001", "100,00");
  abrirFatura(chave).txtTotal.userType("150,00");
  salvarFatura();
  EXPECT_THAT(cenario.titulos(chave),
              ElementsAre("000001/001 31/03/2026 100,00 pago 100,00", "000001/002 10/05/2026 50,00 pago 0,00"));
}

TEST_P(FaturasTitulosTest, OptionZeroMakesTheSeriesAnewAndSettlementsVanish) {
  cenario.opcaoReparcelamento(0);
  const int chave = criarFatura("100,00", tresComEntrada, "10,00");
  pagarInteiro("000001/002", "45,00");
  abrirFatura(chave).txtTotal.userType("110,00");
  salvarFatura();
  EXPECT_THAT(cenario.titulos(chave),
              ElementsAre("000001/001 01/03/2026 10,00 pago 10,00", "000001/002 31/03/2026 50,00 pago 0,00",
                          "000001/003 30/04/2026 50,00 pago 0,00"));
}

TEST_P(FaturasTitulosTest, AnotherConditionMakesTheSeriesAnewUnderEitherOption) {
  for (const int opcao : {0, 1}) {
    cenario.opcaoReparcelamento(opcao);
    const int chave = criarFatura("90,00");
    const std::string codigo = formatNumber(std::int64_t{chave}, "000000");
    pagarInteiro(codigo + "/001", "30,00");
    abrirFatura(chave);
    escolherCondicao(duasVezes);
    host.expectBox(trocaDeCondicao, BoxAnswer::yes);
    salvarFatura();
    EXPECT_THAT(cenario.titulos(chave),
                ElementsAre(codigo + "/001 31/03/2026 45,00 pago 0,00", codigo + "/002 30/04/2026 45,00 pago 0,00"));
  }
}

TEST_P(FaturasTitulosTest, AnotherConditionMakesTheSeriesOfAPaidOffInvoiceAnewToo) {
  const int chave = criarFatura("90,00", umaVez);
  pagarInteiro("000001/001", "90,00");
  abrirFatura(chave);
  escolherCondicao(duasVezes);
  host.expectBox(trocaDeCondicao, BoxAnswer::yes);
  salvarFatura();
  EXPECT_THAT(cenario.titulos(chave),
              ElementsAre("000001/001 31/03/2026 45,00 pago 0,00", "000001/002 30/04/2026 45,00 pago 0,00"));
}

TEST_P(FaturasTitulosTest, AnyOptionButZeroReworksTheTitles) {
  const int chave = criarFatura("100,00", duasVezes);
  pagarInteiro("000001/001", "50,00");
  cenario.opcaoReparcelamento(2);
  abrirFatura(chave).txtTotal.userType("120,00");
  salvarFatura();
  EXPECT_THAT(cenario.titulos(chave),
              ElementsAre("000001/001 31/03/2026 50,00 pago 50,00", "000001/002 30/04/2026 70,00 pago 0,00"));
}

TEST_P(FaturasTitulosTest, ANoToTheNewConditionCancelsTheSave) {
  const int chave = criarFatura("90,00");
  abrirFatura(chave).txtTotal.userType("95,00");
  escolherCondicao(duasVezes);
  host.expectBox(trocaDeCondicao, BoxAnswer::no);
  host.expectBox(aviso("A operação foi cancelada."));
  faturas().userKey(Key::f3);
  EXPECT_THAT(cenario.titulos(chave), SizeIs(3));
  EXPECT_EQ(cenario.valor("SELECT fTotal FROM " + lado.sFaturas), "90");
  EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 0);
  EXPECT_EQ(faturas().lGetCodigo(), chave);
  EXPECT_EQ(faturas().txtTotal.value(), reais("95,00"));
}

TEST_P(FaturasTitulosTest, ThePreviewShowsTheNewTitlesInsideTheOpenTransaction) {
  digitarFatura("100,00");
  host.expectBox(visualizarTitulos, BoxAnswer::yes);
  host.expectScreen(lado.titulos.sNome, [&](Screen& tela) {
    auto& cadastro = dynamic_cast<TelaTitulosCadastro&>(tela);
    EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 1);
    EXPECT_THAT(primeiraColuna(cadastro.lstLista), ElementsAre("000001/001", "000001/002", "000001/003"));

    cadastro.lstLista.userClickRow(0);
    cadastro.txtValorPago.userType("33,33");
    host.expectBox(perguntaPagamento("33,33"), BoxAnswer::yes);
    host.expectBox(concluida);
    tela.userKey(Key::f3);
    EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 1);
    EXPECT_THAT(primeiraColuna(cadastro.lstLista), ElementsAre("000001/001", "000001/002", "000001/003"))
        << "the paid one is still among them";
    tela.userKey(Key::escape);
    host.expectBox(concluida);
  });
  faturas().userKey(Key::f3);
  EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 0);
  EXPECT_EQ(cenario.titulos(1).at(0), "000001/001 31/03/2026 33,33 pago 33,33");
}

TEST_P(FaturasTitulosTest, TheQuestionComesBeforeTheCommitAndTheLastWordAfterIt) {
  const auto nivel = [this] { return cenario.programa.dbEmpresa().Dados().transactionLevel(); };
  digitarFatura("100,00");
  host.then([&] { EXPECT_EQ(nivel(), 1); });
  host.expectBox(visualizarTitulos, BoxAnswer::no);
  host.then([&] { EXPECT_EQ(nivel(), 0); });
  host.expectBox(concluida);
  faturas().userKey(Key::f3);
}

TEST_P(FaturasTitulosTest, ASaveThatFailsInThePreviewLeavesTheInvoiceToBeSaved) {
  digitarFatura("100,00");
  host.expectBox(visualizarTitulos, BoxAnswer::yes);
  host.expectScreen(lado.titulos.sNome, [&](Screen& tela) {
    auto& cadastro = dynamic_cast<TelaTitulosCadastro&>(tela);
    cadastro.lstLista.userClickRow(0);
    cadastro.txtValor.userType("100,00");
    host.expectBox(
        aviso("Você está tentando alterar o valor deste título: \r\n\r\nValor antigo: R$ 33,33\r\n"
              "Novo valor: R$ 100,00\r\n\r\nporém os títulos existentes não pagos nesta fatura não suportam "
              "tal desconto, sendo impossível ajustar a diferença.\r\n\r\nA operação será cancelada."));
    tela.userKey(Key::f3);
    EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 1);
    tela.userKey(Key::escape);
    host.expectBox(concluida);
  });
  faturas().userKey(Key::f3);
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 33,33 pago 0,00", "000001/002 30/04/2026 33,33 pago 0,00",
                          "000001/003 30/05/2026 33,34 pago 0,00"));
}

TEST_P(FaturasTitulosTest, ACodeThatExistsStopsTheSaveAndLeavesNothing) {
  const int alheia = cenario.inserirFatura("10,00");
  cenario.inserirTitulo(alheia, "000002/003", "10,00");
  digitarFatura("100,00");
  host.expectBox(
      {BoxStyle::critical, BoxButtons::ok, "Norvane Sistemas",
       "Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: \r\n\r\n" + recusaDoStore(alheia)});
  faturas().userKey(Key::f3);
  EXPECT_EQ(contar(lado.sFaturas), "1");
  EXPECT_EQ(contar(lado.sTitulos), "1");
  EXPECT_EQ(faturas().lGetCodigo(), -1) << "the key is what it was before the save";
  EXPECT_EQ(faturas().focused(), &faturas().txtNumeroFatura);
  EXPECT_EQ(faturas().txtTotal.value(), reais("100,00"));
  EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 0);

  cenario.executar("DELETE * FROM " + lado.sTitulos);
  salvarFatura();
  EXPECT_THAT(cenario.titulos(std::stoi(cenario.valor("SELECT MAX(lCodigo) FROM " + lado.sFaturas))), SizeIs(3));
}

TEST_P(FaturasTitulosTest, AFailedChangeOfConditionGivesInvoiceAndTitlesBack) {
  const int chave = criarFatura("90,00", umaVez);
  pagarInteiro("000001/001", "90,00");
  const int alheia = cenario.inserirFatura("10,00");
  cenario.inserirTitulo(alheia, "000001/002", "10,00");
  const std::string texto = recusaDoStore(alheia);
  abrirFatura(chave).txtTotal.userType("95,00");
  escolherCondicao(duasVezes);
  host.expectBox(trocaDeCondicao, BoxAnswer::yes);
  host.expectBox(critica("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: \r\n\r\n" + texto));
  faturas().userKey(Key::f3);
  EXPECT_THAT(cenario.titulos(chave), ElementsAre("000001/001 31/03/2026 90,00 pago 90,00"));
  EXPECT_THAT(cenario.programa.linhas("SELECT fTotal, lCondicoesPagamento FROM " + lado.sFaturas +
                                      " WHERE lCodigo = " + std::to_string(chave)),
              ElementsAre(ElementsAre("90", std::to_string(umaVez.chave))));
  EXPECT_EQ(faturas().lGetCodigo(), chave);
  EXPECT_EQ(faturas().txtTotal.value(), reais("95,00"));
  EXPECT_EQ(faturas().condicao.busca.lCodigo, duasVezes.chave);
  EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 0);
}

TEST_P(FaturasTitulosTest, AnyOtherFailureIsReportedAndLeavesNothing) {
  digitarFatura("100,00", {1, 3, 32767, false}).dtEmissao.userType("01/01/9990");
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  faturas().userKey(Key::f3);
  host.verify();
  EXPECT_EQ(contar(lado.sFaturas), "0");
  EXPECT_EQ(faturas().lGetCodigo(), -1);
  const auto relatos = cenario.programa.pasta().nomes("Erros");
  ASSERT_THAT(relatos, SizeIs(1));
  const std::string texto = cenario.programa.pasta().ler("Erros/" + relatos.front());
  EXPECT_THAT(texto, testing::HasSubstr("cmdSalvar_Click"));
  EXPECT_THAT(texto, testing::HasSubstr(lado.faturas.sNome));
}

TEST_P(FaturasTitulosTest, ARolledBackSaveGivesTheCostCentreBackToo) {
  const int alheia = cenario.inserirFatura("10,00");
  cenario.inserirTitulo(alheia, "000002/001", "10,00");
  digitarFatura("100,00").entidades.centroCusto.busca.vLimpar();
  const std::string texto = recusaDoStore(alheia);
  host.expectBox(critica("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: \r\n\r\n" + texto));
  faturas().userKey(Key::f3);
  EXPECT_EQ(faturas().entidades.centroCusto.busca.lCodigo, -1);
}

INSTANTIATE_TEST_SUITE_P(Lados, FaturasTitulosTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

}  // namespace
}  // namespace fenvale
