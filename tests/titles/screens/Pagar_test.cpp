// The payable side where it differs from the receivable one. All that is alike is tested on both sides at once.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "store/services/ConfiguracoesPrograma.h"
#include "support/Rotulos.h"
#include "titles/screens/CenarioDeTelas.h"

namespace fenvale {
namespace {

std::vector<std::string> cabecalhos(const ListView& lista) {
  std::vector<std::string> textos;
  for (const ListColumn& coluna : lista.columns()) textos.push_back(coluna.heading);
  return textos;
}

class PagarTest : public CenarioDeTelas {
 protected:
  frmCadastroTitulosPagar& pagar() { return carregada<frmCadastroTitulosPagar>("frmCadastroTitulosPagar"); }
  frmCadastroFaturasFornecedor& doFornecedor() {
    return carregada<frmCadastroFaturasFornecedor>("frmCadastroFaturasFornecedor");
  }
  std::string filial(const std::string& codigo) { return doTitulo(codigo, "IIF(ISNULL(sFilial), '', sFilial)").at(0); }
};

class FaturasFornecedorTest : public PagarTest {};

TEST_P(FaturasFornecedorTest, TheForm) {
  EXPECT_EQ(doFornecedor().caption(), "Faturas do fornecedor");
  EXPECT_EQ(doFornecedor().title(), "Cadastro de faturas do fornecedor");
  EXPECT_THAT(rotulos(doFornecedor()),
              ElementsAre("Nº da fatura", "Emissão", "Total da fatura", "Entrada", "Fornecedor", "Código",
                          "Nº de parcelas", "Intervalo de venc.", "Portador", "Centro de custo"));
  EXPECT_EQ(doFornecedor().control("txtFornecedor"), &doFornecedor().txtFornecedor);
  EXPECT_NE(doFornecedor().control("cmdNovoFornecedor"), nullptr);
  for (const char* doCliente : {"txtCliente", "cmdNovoCliente", "txtVendedor", "cmdNovoVendedor"})
    EXPECT_EQ(doFornecedor().control(doCliente), nullptr) << doCliente;
}

TEST_P(FaturasFornecedorTest, ColumnsOfTheList) {
  EXPECT_THAT(cabecalhos(doFornecedor().lstLista),
              ElementsAre("Nº da fatura", "Emissão", "Total da fatura", "Entrada", "Código interno do fornecedor",
                          "Fornecedor", "Código interno da condição de pagamento", "Código Cond. Pag.",
                          "Nº de parcelas", "Intervalo de venc.", "Com entrada", "Código interno do portador",
                          "Portador", "Código interno do centro de custo", "Centro de custo"));
}

TEST_P(FaturasFornecedorTest, TheListsStatement) {
  EXPECT_EQ(
      doFornecedor().sConsulta("WHERE lNumeroFatura = 1 "),
      "SELECT (CentroCusto.sDescricao) AS CentroCusto, lCentroCusto, FaturasFornecedor.lCodigo, lNumeroFatura, "
      "FORMAT(dtEmissao, 'dd/mm/yyyy') AS Emissao, FORMAT(fTotal, '#,##0.00') AS TotalFatura, FORMAT(fEntrada, "
      "'#,##0.00') AS TotalEntrada, lFornecedor, (Fornecedores.sNome) AS Fornecedor, lCondicoesPagamento, "
      "(CondicoesPagamento.btCodigoInf) AS CondPagCodigoInf, iNumeroParcelas, iIntervalo, IIF(bitEntrada = 0, 'Não', "
      "'Sim') AS ComEntrada, lPortador, (Portadores.sNome) AS Portador FROM (((FaturasFornecedor INNER JOIN "
      "Fornecedores ON FaturasFornecedor.lFornecedor = Fornecedores.lCodigo) INNER JOIN CondicoesPagamento ON "
      "CondicoesPagamento.lCodigo = FaturasFornecedor.lCondicoesPagamento) INNER JOIN Portadores ON "
      "Portadores.lCodigo = FaturasFornecedor.lPortador) INNER JOIN CentroCusto ON centroCusto.lCodigo = "
      "FaturasFornecedor.lCentroCusto WHERE lNumeroFatura = 1  ORDER BY lNumeroFatura ");
}

TEST_P(FaturasFornecedorTest, TheRowsOfTheList) {
  criarFatura("1.000,00", duasVezes);
  EXPECT_THAT(celulas(*doFornecedor().lstLista.item(0)),
              ElementsAre("1", "01/03/2026", "1.000,00", "0,00", "1", "Açougue São João Ltda.", "7", "7", "2", "30",
                          "Não", "1", "Carteira", "1", "Loja"));
}

TEST_P(FaturasFornecedorTest, TheSupplierIsAskedForWithACapitalAndASalespersonNever) {
  digitarFatura("100,00").entidades.pessoa.busca.vLimpar();
  host.expectBox(aviso("Informe o Fornecedor."));
  doFornecedor().userKey(Key::f3);
  host.verify();
  EXPECT_EQ(doFornecedor().focused(), &doFornecedor().txtFornecedor);
  doFornecedor().vSetFornecedor(2, "Bar do Élio");
  salvarFatura();
  EXPECT_EQ(cenario.valor("SELECT lFornecedor FROM FaturasFornecedor"), "2");
  EXPECT_EQ(contar("FaturasCliente"), "0");
  EXPECT_EQ(contar("TitulosReceber"), "0");
}

TEST_P(FaturasFornecedorTest, GeneratedTitlesHaveNoBranch) {
  criarFatura("90,00");
  for (const char* codigo : {"000001/001", "000001/002", "000001/003"}) EXPECT_EQ(filial(codigo), "") << codigo;
}

TEST_P(FaturasFornecedorTest, ThePopUpMenuLeadsToTheTitlesToPay) {
  criarFatura("90,00", tresComEntrada, "30,00");
  criarFatura("50,00", umaVez);
  const auto abrir = [this](const char* entrada, std::vector<std::string> codigos) {
    host.expectPopup("mnuPopUp", entrada);
    host.expectScreen("frmCadastroTitulosPagar", [&codigos](Screen& tela) {
      EXPECT_THAT(primeiraColuna(dynamic_cast<TelaTitulosCadastro&>(tela).lstLista),
                  testing::ElementsAreArray(codigos));
      tela.userKey(Key::escape);
    });
    doFornecedor().lstLista.userClickRow(0, MouseButton::right);
    host.verify();
    EXPECT_EQ(doFornecedor().lGetCodigo(), -1) << "back on a new invoice";
  };
  abrir("mnuVerificarTitulos", {"000001/001", "000001/002", "000001/003"});
  abrir("mnuMostrarPagos", {"000001/001"});
  abrir("mnuMostrarNaoPagos", {"000001/002", "000001/003"});
}

TEST_P(FaturasFornecedorTest, TheTitlesAreShownBeforeTheCommitInTheScreenOfTitlesToPay) {
  digitarFatura("90,00");
  host.expectBox(visualizarTitulos, BoxAnswer::yes);
  host.expectScreen("frmCadastroTitulosPagar", [this](Screen& tela) {
    EXPECT_EQ(cenario.programa.dbEmpresa().Dados().transactionLevel(), 1);
    EXPECT_THAT(dynamic_cast<TelaTitulosCadastro&>(tela).lstLista.items(), SizeIs(3));
    tela.userKey(Key::escape);
  });
  host.expectBox(concluida);
  doFornecedor().userKey(Key::f3);
}

INSTANTIATE_TEST_SUITE_P(Pagar, FaturasFornecedorTest, testing::Values(&ladoPagar), nomeDoLado);

class TitulosPagarTest : public PagarTest {};

TEST_P(TitulosPagarTest, TheForm) {
  EXPECT_EQ(pagar().caption(), "Títulos a pagar");
  EXPECT_EQ(pagar().title(), "Cadastro de títulos a pagar");
  EXPECT_THAT(rotulos(pagar()), ElementsAre("Emissão", "Fornecedor", "Valor da fatura", "Portador", "Centro de custo",
                                            "Código", "Filial", "Vencimento", "Valor do título", "Nota fiscal",
                                            "Observação", "Pagamento", "Juro cobrado", "Desconto", "Valor pago"));
  for (const char* doReceber : {"txtCliente", "cmdNovoCliente", "txtVendedor", "cmdNovoVendedor", "cmdCalcularJuros"})
    EXPECT_EQ(pagar().control(doReceber), nullptr) << doReceber;
}

TEST_P(TitulosPagarTest, ColumnsOfTheList) {
  EXPECT_THAT(cabecalhos(pagar().lstLista),
              ElementsAre("Código", "Filial", "Emissão", "Vencimento", "Pago", "Código interno do fornecedor",
                          "Fornecedor", "Código interno do portador", "Portador", "Valor da fatura", "Valor do título",
                          "Código interno do centro de custo", "Centro de custo", "Pagamento", "Valor pago",
                          "Juros cobrado", "Desconto", "Nota fiscal", "Observação"));
}

TEST_P(TitulosPagarTest, TheListsStatement) {
  EXPECT_EQ(
      pagar().sConsulta(""),
      "SELECT (CentroCusto.sDescricao) AS CentroCusto, lCentroCusto, TitulosPagar.lCodigo, sCodigoInf, "
      "FORMAT(dtVencimento, 'dd/mm/yyyy') AS Vencimento, FORMAT(fValor, '#,##0.00') AS ValorTitulo, IIF(fValorPago > "
      "0, FORMAT(dtPagamento, 'dd/mm/yyyy'), '') AS Pagamento, FORMAT(fValorPago, '#,##0.00') AS ValorPago, "
      "FORMAT(fJuros, '#,##0.00') AS Juros, FORMAT(fDesconto, '#,##0.00') AS Desconto, lNF, sObs, IIF(fValorPago <= "
      "0, 'Não', 'Sim') AS Pago, FORMAT(dtEmissao, 'dd/mm/yyyy') AS Emissao, FORMAT(fTotal, '#,##0.00') AS "
      "ValorFatura, lFornecedor, (Fornecedores.sNome) AS Fornecedor, lPortador, (Portadores.sNome) AS Portador, "
      "sFilial FROM (((TitulosPagar INNER JOIN FaturasFornecedor ON FaturasFornecedor.lCodigo = "
      "TitulosPagar.lFaturaFornecedor) INNER JOIN Fornecedores ON FaturasFornecedor.lFornecedor = "
      "Fornecedores.lCodigo) INNER JOIN Portadores ON FaturasFornecedor.lPortador = Portadores.lCodigo) INNER JOIN "
      "CentroCusto ON FaturasFornecedor.lCentroCusto = CentroCusto.lCodigo WHERE (fValorPago <= 0)  ORDER BY "
      "sCodigoInf ");
}

TEST_P(TitulosPagarTest, TheRowsOfTheList) {
  criarFatura("1.000,00", duasVezes);
  cenario.executar("UPDATE TitulosPagar SET sFilial = 'SUL' WHERE lCodigo = 2");
  pagarInteiro("000001/001", "500,00");
  pagar().vMontarLista(0, "WHERE TitulosPagar.lFaturaFornecedor = 1 ");
  EXPECT_THAT(
      celulas(*pagar().lstLista.item(0)),
      ElementsAre("000001/001", "", "01/03/2026", "31/03/2026", "Sim", "1", "Açougue São João Ltda.", "1", "Carteira",
                  "1.000,00", "500,00", "1", "Loja", "10/05/2026", "500,00", "0,00", "0,00", "0", ""));
  EXPECT_THAT(celulas(*pagar().lstLista.item(1)),
              ElementsAre("000001/002", "SUL", "01/03/2026", "30/04/2026", "Não", "1", "Açougue São João Ltda.", "1",
                          "Carteira", "1.000,00", "500,00", "1", "Loja", "", "0,00", "0,00", "0,00", "0", ""));
}

TEST_P(TitulosPagarTest, TheBranchIsFreeTextThatEverySaveWrites) {
  TelaTitulosCadastro& tela = titulos();
  escolherEntidades(tela.entidades);
  tela.txtCodigoInf.userType("avulso");
  tela.txtTotal.userType("100,00");
  tela.txtValor.userType("100,00");
  tela.txtFilial->userType("d'N");
  host.expectBox(concluida);
  tela.userKey(Key::f3);
  host.verify();
  EXPECT_EQ(filial("avulso"), "d'N") << "with the new title";

  EXPECT_EQ(abrirTitulo("avulso").txtFilial->text(), "d'N");
  tela.txtFilial->userType("SUL");
  host.expectBox(concluida);
  tela.userKey(Key::f3);
  host.verify();
  EXPECT_EQ(filial("avulso"), "SUL") << "with a title that is altered";

  pagarInteiro("avulso", "100,00");
  abrirTitulo("avulso").txtFilial->userType("");
  host.expectBox(pergunta("Este título já foi pago e os valores não será atualizados, \r\napenas os campos de "
                          "identificação do mesmo.\r\n\r\nDeseja continuar?"),
                 BoxAnswer::yes);
  host.expectBox(concluida);
  tela.userKey(Key::f3);
  EXPECT_EQ(filial("avulso"), "") << "with a paid title";
}

TEST_P(TitulosPagarTest, AComplementHasNoBranchThoughItsTitleHasOne) {
  criarFatura("100,00", umaVez);
  abrirTitulo("000001/001").txtFilial->userType("SUL");
  titulos().txtValorPago.userType("40,00");
  host.expectBox(perguntaParcial("40,00", "100,00", "60,00"), BoxAnswer::yes);
  host.expectBox(concluida);
  titulos().userKey(Key::f3);
  EXPECT_EQ(filial("000001/001"), "SUL");
  EXPECT_EQ(filial("000001/R01"), "");
  EXPECT_EQ(doTitulo("000001/R01", "FORMAT(fValor, '0.00')").at(0), "60,00");
}

TEST_P(TitulosPagarTest, TheSupplierIsAskedForAndASalespersonNever) {
  TelaTitulosCadastro& tela = titulos();
  tela.txtCodigoInf.userType("avulso");
  host.expectBox(aviso("Informe o fornecedor."));
  tela.userKey(Key::f3);
  host.verify();
  EXPECT_EQ(tela.focused(), &pagar().txtFornecedor);
  pagar().vSetFornecedor(1, "Açougue São João Ltda.");
  host.expectBox(aviso("Informe o portador."));
  tela.userKey(Key::f3);
  host.verify();
  EXPECT_EQ(tela.focused(), &pagar().txtPortador);
  pagar().vSetPortador(1, "Carteira");
  host.expectBox(aviso("Informe o valor da fatura."));
  tela.userKey(Key::f3);
}

TEST_P(TitulosPagarTest, TheTotalIsChangedInTheRegisterOfTheSuppliersInvoices) {
  criarFatura("1.000,00", umaVez);
  abrirTitulo("000001/001").txtTotal.userType("1.234,50");
  host.expectBox(aviso(
      "O valor total da fatura (R$ 1.000,00) é diferente do valor informado (R$ 1.234,50).\r\nPara alterar o valor "
      "total da fatura, vá até o formulário Cadastro de Faturas de Fornecedores (Cadastros -> Faturas de "
      "fornecedores)."));
  titulos().userKey(Key::f3);
}

TEST_P(TitulosPagarTest, TheLastTitleOfASuppliersInvoiceStays) {
  criarFatura("100,00", umaVez);
  abrirTitulo("000001/001");
  host.expectBox(
      aviso("Não será possível excluir este título pois é o único relacionado com a fatura de fornecedor nº 1."));
  titulos().userKey(Key::f4);
  EXPECT_THAT(cenario.titulos(1), SizeIs(1));
}

TEST_P(TitulosPagarTest, ASearchsRowBringsItsDateWithIt) {
  criarFatura("90,00");
  ListView resultado(titulos(), "lstResultado", titulos().lstLista.columns());
  const auto item = resultado.addItem("000002", "000001/002");
  std::size_t i = 0;
  for (const char* celula : {"SUL", "01/03/2026", "30/04/2026", "Não", "1", "Açougue São João Ltda.", "1", "Carteira",
                             "90,00", "30,00", "1", "Loja", "30/04/2026", "0,00", "0,00", "0,00", "0", ""})
    item->setSubItem(++i, celula);
  pagar().vSetTituloPagarBaixa(*item);
  EXPECT_EQ(pagar().lGetCodigo(), 2);
  EXPECT_EQ(pagar().txtFilial->text(), "SUL");
  EXPECT_EQ(formatDate(pagar().dtPagamento.value()), "30/04/2026");
  EXPECT_EQ(cenario.programa.configuracoes().lGetClickAnterior(), 2);
  pagar().txtValorPago.userType("30,00");
  host.expectBox(perguntaPagamento("30,00"), BoxAnswer::yes);
  host.expectBox(concluida);
  pagar().userKey(Key::f3);
  EXPECT_EQ(cenario.titulos(1).at(1), "000001/002 30/04/2026 30,00 pago 30,00");
}

INSTANTIATE_TEST_SUITE_P(Pagar, TitulosPagarTest, testing::Values(&ladoPagar), nomeDoLado);

/// A failure of the checks before a save is reported by each side under a name of its own.
class FalhaDaVerificacaoTest : public CenarioDeTelas {};

TEST_P(FalhaDaVerificacaoTest, IsReportedUnderTheNameOfTheSide) {
  criarFatura("100,00", umaVez);
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.txtValorPago.setValue(Currency::fromUnits(std::numeric_limits<std::int64_t>::max()));
  tela.txtDesconto.userType("1,00");
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  tela.userKey(Key::f3);
  host.verify();
  EXPECT_EQ(tela.state(), Screen::State::loaded);
  EXPECT_EQ(tela.lGetCodigo(), 1);
  EXPECT_EQ(cenario.titulos(1).at(0), "000001/001 31/03/2026 100,00 pago 0,00");
  const std::string relato = cenario.programa.pasta().ler("Erros/" + cenario.programa.pasta().nomes("Erros").at(0));
  EXPECT_THAT(relato, testing::HasSubstr(lado.bRelataVerificacao ? "bTestarPreenchimento" : "cmdSalvar_Click"));
  EXPECT_EQ(lado.bRelataVerificacao, lado.sTitulos == "TitulosPagar");
}

INSTANTIATE_TEST_SUITE_P(Lados, FalhaDaVerificacaoTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

}  // namespace
}  // namespace fenvale
