// The worked cases of docs/manual.md, with its numbers.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "titles/screens/CenarioDeTelas.h"

namespace fenvale {
namespace {

class ManualTest : public CenarioDeTelas {
 protected:
  static constexpr Condicao quatroComEntrada{8, 4, 30, true};

  void SetUp() override {
    cenario.executar(
        "INSERT INTO CondicoesPagamento (btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada) VALUES (8, 4, 30, -1)");
    cenario.programa.relogioDeTeste().setDia(2026, 4, 20);
  }
  static MessageBox abatimento(const std::string& pago, const std::string& resto) {
    return pergunta("O valor pago informado (R$ " + pago + ") é superior ao valor do título.\r\nAssim, R$ " + resto +
                    " podem ser abatidos nos demais títulos não pagos desta fatura.\r\n\r\nDeseja continuar a "
                    "operação, pagando este título e efetuando o desconto nos demais títulos não pagos desta fatura?");
  }
  void pagarSim(const std::string& codigo, std::string_view valor, const MessageBox& caixa) {
    pagar(codigo, valor, {{caixa, BoxAnswer::yes}, {concluida, BoxAnswer::ok}});
  }
  std::string totalDaFatura(int fatura) {
    return cenario.valor("SELECT FORMAT(fTotal, '#,##0.00') AS Total FROM " + lado.sFaturas +
                         " WHERE lCodigo = " + std::to_string(fatura));
  }
};

TEST_P(ManualTest, TheFirstExampleFromItsInvoiceToTheExcessThatGrows) {
  criarFatura("1000,00", quatroComEntrada, "100,00");
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 01/03/2026 100,00 pago 100,00", "000001/002 31/03/2026 300,00 pago 0,00",
                          "000001/003 30/04/2026 300,00 pago 0,00", "000001/004 30/05/2026 300,00 pago 0,00"));
  TelaTitulosCadastro& tela = abrirTitulo("000001/002");
  if (tela.cmdCalcularJuros) {
    tela.cmdCalcularJuros->userClick();
    EXPECT_EQ(tela.txtJuros.text(), "12,12");
    EXPECT_EQ(tela.txtValorPago.text(), "312,12");
  } else {
    tela.txtJuros.userType("12,12");
    tela.txtValorPago.userType("312,12");
  }
  host.expectBox(concluida);
  tela.userKey(Key::f3);
  pagarSim("000001/003", "100,00", perguntaParcial("100,00", "300,00", "200,00"));
  EXPECT_EQ(cenario.titulos(1).back(), "000001/R01 30/04/2026 200,00 pago 0,00");
  pagarSim("000001/004", "350,00", abatimento("350,00", "50,00"));
  EXPECT_EQ(cenario.titulos(1).back(), "000001/R01 30/04/2026 337,88 pago 0,00");
}

TEST_P(ManualTest, APartlyPaidTitleThatIsSavedAgainMakesOneMoreComplement) {
  criarFatura("300,00");
  pagarSim("000001/001", "60,00", perguntaParcial("60,00", "100,00", "40,00"));
  pagar("000001/001", "60,00",
        {{pergunta("Este título já foi pago e os valores não será atualizados, \r\napenas os campos de identificação "
                   "do mesmo.\r\n\r\nDeseja continuar?"),
          BoxAnswer::yes},
         {concluida, BoxAnswer::ok}});
  EXPECT_THAT(cenario.titulos(1), SizeIs(5));
  EXPECT_EQ(cenario.titulos(1).back(), "000001/R02 31/03/2026 40,00 pago 0,00");
  abrirTitulo("000001/R02");
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  titulos().userKey(Key::f4);
  EXPECT_EQ(totalDaFatura(1), "340,00") << "the partly paid title counts whole, and its complement too";
}

TEST_P(ManualTest, AnExcessLevelsTheOpenTitles) {
  criarFatura("300,00");
  pagarSim("000001/001", "150,00", abatimento("150,00", "50,00"));
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 150,00", "000001/002 30/04/2026 75,00 pago 0,00",
                          "000001/003 30/05/2026 75,00 pago 0,00"));
}

TEST_P(ManualTest, AWholeInvoiceIsPaidAtOnceAndTheOthersArePaidOnTheirDueDates) {
  criarFatura("300,00");
  pagarSim("000001/001", "300,00",
           pergunta("O valor total restante para pagamento da fatura é de R$ 300,00, sendo que o valor informado para "
                    "o pagamento (R$ 300,00) pode pagar toda a fatura.\r\n\r\nDeseja continuar a operação e efetuar o "
                    "pagamento de toda a fatura?"));
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 100,00", "000001/002 30/04/2026 100,00 pago 100,00",
                          "000001/003 30/05/2026 100,00 pago 100,00"));
  EXPECT_EQ(doTitulo("000001/001", "FORMAT(dtPagamento, 'dd/mm/yyyy')").at(0), "20/04/2026");
  EXPECT_EQ(doTitulo("000001/003", "FORMAT(dtPagamento, 'dd/mm/yyyy')").at(0), "30/05/2026");
}

TEST_P(ManualTest, ADiscountIsGrantedByDeletingItsComplement) {
  criarFatura("300,00");
  pagarInteiro("000001/001", "100,00");
  abrirTitulo("000001/002").txtDesconto.userType("10,00");
  titulos().txtValorPago.userType("90,00");
  host.expectBox(perguntaParcial("90,00", "100,00", "10,00"), BoxAnswer::yes);
  host.expectBox(concluida);
  titulos().userKey(Key::f3);
  EXPECT_EQ(cenario.titulos(1).back(), "000001/R01 30/04/2026 10,00 pago 0,00");
  abrirTitulo("000001/R01");
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  titulos().userKey(Key::f4);
  EXPECT_THAT(cenario.titulos(1), SizeIs(3));
  EXPECT_EQ(totalDaFatura(1), "300,00");
}

TEST_P(ManualTest, AValueThatIsRaisedLowersTheOthers) {
  criarFatura("300,00");
  abrirTitulo("000001/001").txtValor.userType("120,00");
  host.expectBox(concluida);
  titulos().userKey(Key::f3);
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 120,00 pago 0,00", "000001/002 30/04/2026 90,00 pago 0,00",
                          "000001/003 30/05/2026 90,00 pago 0,00"));
}

TEST_P(ManualTest, SavingAnInvoiceAgainLevelsTheOpenTitlesOrLosesTheSettlements) {
  criarFatura("300,00");
  abrirTitulo("000001/001").txtValor.userType("120,00");
  host.expectBox(concluida);
  titulos().userKey(Key::f3);
  pagarInteiro("000001/002", "90,00");
  abrirFatura(1);
  salvarFatura();
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 105,00 pago 0,00", "000001/002 30/04/2026 90,00 pago 90,00",
                          "000001/003 30/05/2026 105,00 pago 0,00"));
  cenario.opcaoReparcelamento(0);
  abrirFatura(1);
  salvarFatura();
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 0,00", "000001/002 30/04/2026 100,00 pago 0,00",
                          "000001/003 30/05/2026 100,00 pago 0,00"));
}

TEST_P(ManualTest, AnInvoiceThatLostItsPaidTitlesIsSpreadWholeWhenItIsSavedAgain) {
  criarFatura("300,00");
  pagarInteiro("000001/001", "100,00");
  cenario.executar("DELETE * FROM " + lado.sTitulos + " WHERE fValorPago > 0");
  abrirFatura(1);
  salvarFatura();
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/002 30/04/2026 150,00 pago 0,00", "000001/003 30/05/2026 150,00 pago 0,00"));
}

TEST_P(ManualTest, TheCentsFallOnTheLastInstalment) {
  criarFatura("100,00");
  EXPECT_EQ(doTitulo("000001/001", "FORMAT(fValor, '0.00')").at(0), "33,33");
  EXPECT_EQ(doTitulo("000001/003", "FORMAT(fValor, '0.00')").at(0), "33,34");
}

INSTANTIATE_TEST_SUITE_P(Lados, ManualTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

}  // namespace
}  // namespace fenvale
