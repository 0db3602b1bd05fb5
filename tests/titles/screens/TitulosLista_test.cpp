// The title screen: how it opens, what a row brings into the form, keys, interest, and the invoice it keeps showing.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/services/Permissoes.h"
#include "store/services/ConfiguracoesPrograma.h"
#include "support/Rotulos.h"
#include "titles/screens/CenarioDeTelas.h"

namespace fenvale {
namespace {

class TitulosListaTest : public CenarioDeTelas {};

/// A search that remembers who opened it.
class BuscaDeTeste final : public Tela, public TelaBusca {
 public:
  explicit BuscaDeTeste(Contexto& contexto) : Tela(contexto, "frmBuscaDeTeste") {}
  void vLocalizar(Screen& chamador) override {
    sChamador = chamador.sGetName();
    vMostrarFormModal(*this);
  }
  std::string sChamador;
};

TEST_P(TitulosListaTest, OpensOnTheOpenTitlesByCode) {
  criarFatura("90,00", tresComEntrada, "30,00");
  criarFatura("50,00", umaVez);
  TelaTitulosCadastro& tela = titulos();
  EXPECT_EQ(tela.caption(), lado.titulos.sLegenda);
  EXPECT_EQ(tela.title(), lado.titulos.sTitulo);
  EXPECT_THAT(primeiraColuna(tela.lstLista), ElementsAre("000001/002", "000001/003", "000002/001"));
  EXPECT_EQ(tela.focused(), &tela.txtCodigoInf);
  EXPECT_TRUE(tela.txtCodigoInf.empty()) << "no code is proposed";
  EXPECT_EQ(tela.lGetCodigo(), -1);
  EXPECT_THAT(tela.entidades.chaves(), testing::Each(-1));
}

TEST_P(TitulosListaTest, TheBoxesTakeWhatTheStoreHolds) {
  TelaTitulosCadastro& tela = titulos();
  EXPECT_EQ(tela.chkManterFatura.caption(), "Após salvar ou excluir, &manter os títulos da fatura atual");
  EXPECT_EQ(tela.txtCodigoInf.maxLength(), 15U);
  EXPECT_EQ(tela.txtObs.maxLength(), 255U);
  if (tela.txtFilial) {
    EXPECT_EQ(tela.txtFilial->maxLength(), 3U);
  }
}

TEST_P(TitulosListaTest, SearchesAndPrintWaitForTheirScreens) {
  TelaTitulosCadastro& tela = titulos();
  EXPECT_FALSE(tela.cmdLocalizar.enabled());
  EXPECT_FALSE(tela.cmdLocalizarBaixa.enabled());
  EXPECT_FALSE(tela.cmdEmitir.enabled());
  for (const Key tecla : {Key::f5, Key::f6, Key::f7}) tela.userKey(tecla);
}

TEST_P(TitulosListaTest, SearchesAndPrintWorkOnceTheirScreensAreThere) {
  Telas& telas = cenario.programa.telas();
  for (const std::string& nome : {lado.titulos.sBusca, lado.titulos.sBuscaBaixa, lado.faturas.sBusca})
    telas.registrar<BuscaDeTeste>(nome);
  telas.registrar<OpcoesDeTeste>("frmOpcoesRelList");
  criarFatura("90,00");

  const auto abrir = [&](Screen& tela, Key tecla) {
    host.expectScreen("frmBuscaDeTeste", [&](Screen& aberta) {
      EXPECT_EQ(dynamic_cast<BuscaDeTeste&>(aberta).sChamador, tela.sGetName());
      aberta.userClose();
    });
    tela.userKey(tecla);
    host.verify();
  };
  abrir(titulos(), Key::f6);
  abrir(titulos(), Key::f7);
  abrir(faturas(), Key::f6);

  titulos().userKey(Key::f5);
  EXPECT_EQ(telas.obter<OpcoesDeTeste>("frmOpcoesRelList").pedido, lado.titulos.sTitulo + " | 130 | 3");
  faturas().userKey(Key::f5);
  EXPECT_EQ(telas.obter<OpcoesDeTeste>("frmOpcoesRelList").pedido, lado.faturas.sTitulo + " | 130 | 1");
}

TEST_P(TitulosListaTest, WithoutTheRightToSearchEachWayAsksOnceAndDoesNothing) {
  cenario.programa.executarPrograma(
      "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
      "bPoderImprimir, bPoderAtualizar) VALUES ('Ana', 'ana', 'x', -1, -1, 0, 0, -1)");
  Telas& telas = cenario.programa.telas();
  for (const std::string& nome : {lado.titulos.sBusca, lado.titulos.sBuscaBaixa}) telas.registrar<BuscaDeTeste>(nome);
  telas.registrar<OpcoesDeTeste>("frmOpcoesRelList");
  criarFatura("90,00");
  TelaTitulosCadastro& tela = titulos();
  cenario.programa.permissoes().vSetPermissoes(1);
  for (const Key tecla : {Key::f2, Key::f5, Key::f6, Key::f7}) {
    host.expectBox(semPermissao());
    tela.userKey(tecla);
    host.verify();
  }
  EXPECT_THAT(tela.lstLista.items(), IsEmpty()) << "a new form clears the list, and it is not filled again";
}

TEST_P(TitulosListaTest, ARowBringsTheTitleIntoTheForm) {
  criarFatura("90,00");
  cenario.executar("UPDATE " + lado.sTitulos +
                   " SET fValorPago = 31.5, fJuros = 2.5, fDesconto = 1, lNF = 445, sObs = 'Pago em mãos', "
                   "dtPagamento = #04/02/2026# WHERE sCodigoInf = '000001/001'");
  const TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  EXPECT_EQ(tela.lGetCodigo(), 1);
  EXPECT_EQ(tela.txtCodigoInf.text(), "000001/001");
  EXPECT_EQ(formatDate(tela.dtEmissao.value()), "01/03/2026");
  EXPECT_EQ(formatDate(tela.dtVencimento.value()), "31/03/2026");
  EXPECT_EQ(formatDate(tela.dtPagamento.value()), "02/04/2026");
  EXPECT_EQ(tela.txtTotal.value(), reais("90,00"));
  EXPECT_EQ(tela.txtValor.value(), reais("30,00"));
  EXPECT_EQ(tela.txtValorPago.value(), reais("31,50"));
  EXPECT_EQ(tela.txtJuros.value(), reais("2,50"));
  EXPECT_EQ(tela.txtDesconto.value(), reais("1,00"));
  EXPECT_EQ(tela.txtNF.text(), "445");
  EXPECT_EQ(tela.txtObs.text(), "Pago em mãos");
  EXPECT_EQ(tela.entidades.pessoa.caixa.text(), "Açougue São João Ltda.");
  EXPECT_EQ(tela.entidades.portador.caixa.text(), "Carteira");
  EXPECT_EQ(tela.entidades.centroCusto.caixa.text(), "Loja");
  EXPECT_THAT(tela.entidades.chaves(), testing::Each(1));
  EXPECT_EQ(cenario.programa.configuracoes().lGetClickAnterior(), 1);
}

TEST_P(TitulosListaTest, AnOpenTitleShowsNoPaymentDateAndIsSettledToday) {
  criarFatura("90,00");
  const TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  EXPECT_EQ(formatDate(tela.dtPagamento.value()), "10/05/2026");
}

TEST_P(TitulosListaTest, ARowWithNothingInItLoadsAsZerosAndTodaysDate) {
  criarFatura("90,00", umaVez);
  cenario.executar("UPDATE " + lado.sTitulos +
                   " SET dtVencimento = NULL, fValor = NULL, dtPagamento = NULL, fValorPago = NULL, fJuros = NULL, "
                   "fDesconto = NULL, lNF = NULL, sObs = NULL");
  const TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  EXPECT_EQ(tela.lGetCodigo(), 1);
  EXPECT_EQ(formatDate(tela.dtVencimento.value()), "10/05/2026");
  EXPECT_EQ(formatDate(tela.dtPagamento.value()), "10/05/2026");
  EXPECT_EQ(tela.txtValor.value(), Currency());
  EXPECT_TRUE(tela.txtObs.empty());
}

TEST_P(TitulosListaTest, ATitleThatIsGoneIsReportedUnderTheNameOfTheClick) {
  criarFatura("90,00");
  criarFatura("50,00", umaVez);
  TelaTitulosCadastro& tela = titulos();
  tela.vMontarLista(0, {});
  cenario.executar("DELETE * FROM " + lado.sTitulos + " WHERE lCodigo = 1");
  tela.lstLista.userClickRow(3);
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  tela.lstLista.userClickRow(0);
  host.verify();
  EXPECT_EQ(tela.state(), Screen::State::loaded);
  EXPECT_THAT(cenario.programa.pasta().ler("Erros/" + cenario.programa.pasta().nomes("Erros").at(0)),
              testing::HasSubstr("lstLista_itemClick"));

  // What is saved then is not written to the invoice of the title that was shown before.
  tela.entidades.pessoa.busca.vSet(2, "Bar do Élio");
  host.expectBox(concluida);
  tela.userKey(Key::f3);
  EXPECT_EQ(cenario.valor("SELECT " + lado.sChavePessoa + " FROM " + lado.sFaturas + " WHERE lCodigo = 2"), "1");
}

TEST_P(TitulosListaTest, NewGoesBackToTheOpenTitles) {
  criarFatura("90,00", tresComEntrada, "30,00");
  abrirTitulo("000001/001").userKey(Key::f2);
  EXPECT_EQ(titulos().lGetCodigo(), -1);
  EXPECT_TRUE(titulos().entidades.pessoa.caixa.empty());
  EXPECT_THAT(primeiraColuna(titulos().lstLista), ElementsAre("000001/002", "000001/003"));
}

TEST_P(TitulosListaTest, AnotherPageOfASearchIsAPageOfTheOpenTitles) {
  criarFatura("90,00", tresComEntrada, "30,00");
  criarFatura("90,00");
  cenario.programa.configuracoes().vSetTamanhoPagina(2);
  TelaTitulosCadastro& tela = titulos();
  tela.vMontarLista(0, "WHERE " + lado.sTitulos + "." + lado.sLigacao + " = 1 ");
  EXPECT_THAT(primeiraColuna(tela.lstLista), ElementsAre("000001/001", "000001/002"));
  tela.scrPaginas.setValue(1);
  EXPECT_THAT(primeiraColuna(tela.lstLista), ElementsAre("000002/001", "000002/002"));
}

TEST_P(TitulosListaTest, SpaceMovesThroughTheLookupBoxes) {
  TelaTitulosCadastro& tela = titulos();
  const auto fechar = [](Screen& busca) { busca.userKey(Key::escape); };
  tela.entidades.pessoa.caixa.setFocus();
  host.expectScreen(lado.sBuscaPessoa, fechar);
  tela.userKey(Key::space);
  EXPECT_EQ(tela.focused(), &tela.entidades.portador.caixa);
  host.expectScreen("frmLocalizarPortadoresRapido", fechar);
  tela.userKey(Key::space);
  if (lado.bVendedor) {
    EXPECT_EQ(tela.focused(), &tela.entidades.vendedor->caixa);
    host.expectScreen("frmLocalizarVendedoresRapido", fechar);
    tela.userKey(Key::space);
  }
  EXPECT_EQ(tela.focused(), &tela.entidades.centroCusto.caixa);
}

TEST_P(TitulosListaTest, InsertOpensTheRegisterAndDeleteEmptiesTheBox) {
  criarFatura("90,00");
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.entidades.portador.caixa.setFocus();
  host.expectScreen("frmCadastroPortadores", [](Screen& cadastro) { cadastro.userKey(Key::escape); });
  tela.userKey(Key::insert);
  EXPECT_EQ(tela.focused(), &tela.entidades.portador.caixa);
  EXPECT_EQ(tela.entidades.portador.busca.lCodigo, 1);
  tela.userKey(Key::del);
  EXPECT_EQ(tela.entidades.portador.busca.lCodigo, -1);
  EXPECT_TRUE(tela.entidades.portador.caixa.empty());
}

TEST_P(TitulosListaTest, TheInvoiceShownStaysWithTheTickOn) {
  criarFatura("90,00");
  criarFatura("50,00", umaVez);
  titulos().chkManterFatura.userClick();
  abrirTitulo("000001/002").txtObs.userType("conferido");
  host.expectBox(concluida);
  titulos().userKey(Key::f3);
  EXPECT_TRUE(titulos().chkManterFatura.checked());
  EXPECT_THAT(primeiraColuna(titulos().lstLista), ElementsAre("000001/001", "000001/002", "000001/003"));
}

TEST_P(TitulosListaTest, WithoutTheTickTheOpenTitlesComeBack) {
  criarFatura("90,00");
  criarFatura("50,00", umaVez);
  abrirTitulo("000001/002").txtObs.userType("conferido");
  host.expectBox(concluida);
  titulos().userKey(Key::f3);
  EXPECT_THAT(primeiraColuna(titulos().lstLista), SizeIs(4));
}

TEST_P(TitulosListaTest, TheInvoiceThatIsPreviewedStaysWithoutTheTick) {
  criarFatura("90,00");
  criarFatura("50,00", umaVez);
  titulos().vSetFaturaPreview(1);
  for (const bool bManter : {false, true}) {
    titulos().chkManterFatura.setChecked(bManter);
    abrirTitulo("000002/001").txtObs.userType("conferido");
    host.expectBox(concluida);
    titulos().userKey(Key::f3);
    EXPECT_THAT(primeiraColuna(titulos().lstLista), SizeIs(bManter ? 1 : 3)) << "the tick goes before the preview";
  }
}

TEST_P(TitulosListaTest, ThePersonsTitlesAreReachedFromTheirRegister) {
  criarFatura("90,00");
  pagarInteiro("000001/002", "30,00");
  const std::vector<std::pair<const char*, std::vector<std::string>>> entradas{
      {"mnuVerificarTitulos", {"000001/001", "000001/002", "000001/003"}},
      {"mnuMostrarPagos", {"000001/002"}},
      {"mnuMostrarNaoPagos", {"000001/001", "000001/003"}}};
  auto& pessoas = carregada<TelaCadastro>(lado.sCadastroPessoa);
  for (const auto& entrada : entradas) {
    host.expectPopup("mnuPopUp", entrada.first);
    host.expectScreen(lado.titulos.sNome, [&entrada](Screen& tela) {
      EXPECT_EQ(primeiraColuna(dynamic_cast<TelaTitulosCadastro&>(tela).lstLista), entrada.second);
      tela.userKey(Key::escape);
    });
    pessoas.lstLista.userClickRow(0, MouseButton::right);
    host.verify();
    EXPECT_EQ(pessoas.lGetCodigo(), -1) << "the form is ready for a new record";
  }
  host.expectPopup("mnuPopUp", "mnuVerificarTitulos");
  host.expectScreen(lado.titulos.sNome, [](Screen& tela) {
    EXPECT_THAT(dynamic_cast<TelaTitulosCadastro&>(tela).lstLista.items(), IsEmpty())
        << "another's titles are not shown";
    tela.userKey(Key::escape);
  });
  pessoas.lstLista.userClickRow(1, MouseButton::right);
}

TEST_P(TitulosListaTest, TheScreenThatLedToThePersonIsNotOpenedOverItself) {
  criarFatura("90,00");
  TelaTitulosCadastro& aberta = titulos();
  host.expectScreen(lado.titulos.sNome, [&](Screen& tela) {
    aberta.entidades.pessoa.caixa.setFocus();
    host.expectScreen(lado.sCadastroPessoa, [&](Screen& pessoas) {
      host.expectPopup("mnuPopUp", "mnuVerificarTitulos");
      host.expectBox(aviso("Esta tela já está aberta."));
      dynamic_cast<TelaCadastro&>(pessoas).lstLista.userClickRow(0, MouseButton::right);
      pessoas.userKey(Key::escape);
    });
    tela.userKey(Key::insert);
    EXPECT_EQ(&titulos(), &aberta);
    EXPECT_EQ(aberta.focused(), &aberta.entidades.pessoa.caixa);
    tela.userKey(Key::escape);
  });
  host.showModal(aberta);
}

INSTANTIATE_TEST_SUITE_P(Lados, TitulosListaTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

class TitulosReceberTest : public CenarioDeTelas {
 protected:
  frmCadastroTitulosReceber& receber() { return dynamic_cast<frmCadastroTitulosReceber&>(titulos()); }
};

TEST_P(TitulosReceberTest, TheForm) {
  EXPECT_EQ(titulos().caption(), "Títulos a receber");
  EXPECT_EQ(titulos().title(), "Cadastro de títulos a receber");
  EXPECT_THAT(rotulos(titulos()),
              ElementsAre("Emissão", "Cliente", "Portador", "Valor da fatura", "Vendedor", "Centro de custo", "Código",
                          "Vencimento", "Valor do título", "Nota fiscal", "Observação", "Pagamento", "Juro cobrado",
                          "Desconto", "Valor pago"));
  for (const char* doPagar : {"txtFilial", "txtFornecedor", "cmdNovoFornecedor"})
    EXPECT_EQ(titulos().control(doPagar), nullptr) << doPagar;
  for (const char* nome : {"txtCliente", "txtVendedor", "cmdNovoCliente", "cmdNovoPortador", "cmdNovoVendedor",
                           "cmdNovoCentroCusto", "cmdCalcularJuros", "cmdLocalizarBaixa"})
    EXPECT_NE(titulos().control(nome), nullptr) << nome;
}

TEST_P(TitulosReceberTest, ColumnsOfTheList) {
  std::vector<std::string> cabecalhos;
  for (const ListColumn& coluna : titulos().lstLista.columns()) cabecalhos.push_back(coluna.heading);
  EXPECT_THAT(cabecalhos,
              ElementsAre("Código", "Emissão", "Vencimento", "Pago", "Código interno do cliente", "Cliente",
                          "Código interno do portador", "Portador", "Código interno do vendedor", "Vendedor",
                          "Valor da fatura", "Valor do título", "Código interno do centro de custo", "Centro de custo",
                          "Pagamento", "Valor pago", "Juros cobrado", "Desconto", "Nota fiscal", "Observação"));
}

TEST_P(TitulosReceberTest, TheListsStatement) {
  EXPECT_EQ(
      titulos().sConsulta(""),
      "SELECT lCentroCusto, (CentroCusto.sDescricao) AS CentroCusto, TitulosReceber.lCodigo, sCodigoInf, "
      "FORMAT(dtVencimento, 'dd/mm/yyyy') AS Vencimento, FORMAT(fValor, '#,##0.00') AS ValorTitulo, IIF(fValorPago > "
      "0, FORMAT(dtPagamento, 'dd/mm/yyyy'), '') AS Pagamento, FORMAT(fValorPago, '#,##0.00') AS ValorPago, "
      "FORMAT(fJuros, '#,##0.00') AS Juros, FORMAT(fDesconto, '#,##0.00') AS Desconto, lNF, sObs, IIF(fValorPago <= "
      "0, 'Não', 'Sim') AS Pago, FORMAT(dtEmissao, 'dd/mm/yyyy') AS Emissao, FORMAT(fTotal, '#,##0.00') AS "
      "ValorFatura, lCliente, (Clientes.sNome) AS Cliente, lPortador, (Portadores.sNome) AS Portador, "
      "FaturasCliente.lVendedor, (Vendedores.sNome) AS Vendedores FROM ((((TitulosReceber INNER JOIN FaturasCliente ON "
      "FaturasCliente.lCodigo = TitulosReceber.lFaturaCliente) INNER JOIN Clientes ON FaturasCliente.lCliente = "
      "Clientes.lCodigo) INNER JOIN Portadores ON FaturasCliente.lPortador = Portadores.lCodigo) INNER JOIN "
      "Vendedores ON FaturasCliente.lVendedor = Vendedores.lCodigo) INNER JOIN CentroCusto ON "
      "FaturasCliente.lCentroCusto = CentroCusto.lCodigo WHERE (fValorPago <= 0)  ORDER BY sCodigoInf ");
}

TEST_P(TitulosReceberTest, TheCustomerIsAskedFor) {
  TelaTitulosCadastro& tela = titulos();
  tela.txtCodigoInf.userType("avulso");
  host.expectBox(aviso("Informe o cliente."));
  tela.userKey(Key::f3);
  EXPECT_EQ(tela.focused(), &receber().txtCliente);
}

TEST_P(TitulosReceberTest, TheTotalIsChangedInTheRegisterOfTheCustomersInvoices) {
  criarFatura("1.000,00", umaVez);
  abrirTitulo("000001/001").txtTotal.userType("1.234,50");
  host.expectBox(aviso(
      "O valor total da fatura (R$ 1.000,00) é diferente do valor informado (R$ 1.234,50).\r\nPara alterar o valor "
      "total da fatura, vá até o formulário Cadastro de Faturas de Clientes (Cadastros -> Faturas de clientes)."));
  titulos().userKey(Key::f3);
}

TEST_P(TitulosReceberTest, TheLastTitleOfACustomersInvoiceStays) {
  criarFatura("100,00", umaVez);
  abrirTitulo("000001/001");
  host.expectBox(
      aviso("Não será possível excluir este título pois é o único relacionado com a fatura de cliente nº 1."));
  titulos().userKey(Key::f4);
  EXPECT_THAT(cenario.titulos(1), SizeIs(1));
}

TEST_P(TitulosReceberTest, TheRowsOfTheList) {
  criarFatura("1.000,00", duasVezes);
  pagarInteiro("000001/001", "500,00");
  TelaTitulosCadastro& tela = titulos();
  tela.vMontarLista(0, "WHERE TitulosReceber.lFaturaCliente = 1 ");
  EXPECT_THAT(celulas(*tela.lstLista.item(0)),
              ElementsAre("000001/001", "01/03/2026", "31/03/2026", "Sim", "1", "Açougue São João Ltda.", "1",
                          "Carteira", "1", "Maria Aparecida", "1.000,00", "500,00", "1", "Loja", "10/05/2026", "500,00",
                          "0,00", "0,00", "0", ""));
  EXPECT_THAT(
      celulas(*tela.lstLista.item(1)),
      ElementsAre("000001/002", "01/03/2026", "30/04/2026", "Não", "1", "Açougue São João Ltda.", "1", "Carteira", "1",
                  "Maria Aparecida", "1.000,00", "500,00", "1", "Loja", "", "0,00", "0,00", "0,00", "0", ""));
  EXPECT_EQ(tela.lstLista.item(1)->key(), "000002");
}

TEST_P(TitulosReceberTest, ASearchsRowBringsItsDateWithIt) {
  criarFatura("90,00");
  ListView resultado(titulos(), "lstResultado", titulos().lstLista.columns());
  const auto item = resultado.addItem("000002", "000001/002");
  const std::vector<std::string> celulasDaBusca{"01/03/2026",
                                                "30/04/2026",
                                                "Não",
                                                "1",
                                                "Açougue São João Ltda.",
                                                "1",
                                                "Carteira",
                                                "1",
                                                "Maria Aparecida",
                                                "90,00",
                                                "30,00",
                                                "1",
                                                "Loja",
                                                "30/04/2026",
                                                "0,00",
                                                "0,00",
                                                "0,00",
                                                "0",
                                                ""};
  for (std::size_t i = 0; i < celulasDaBusca.size(); ++i) item->setSubItem(i + 1, celulasDaBusca[i]);
  receber().vSetTituloReceberBaixa(*item);
  EXPECT_EQ(receber().lGetCodigo(), 2);
  EXPECT_EQ(formatDate(receber().dtPagamento.value()), "30/04/2026");
  EXPECT_EQ(cenario.programa.configuracoes().lGetClickAnterior(), 2);
  receber().txtValorPago.userType("30,00");
  host.expectBox(perguntaPagamento("30,00"), BoxAnswer::yes);
  host.expectBox(concluida);
  receber().userKey(Key::f3);
  EXPECT_EQ(cenario.titulos(1).at(1), "000001/002 30/04/2026 30,00 pago 30,00");
}

TEST_P(TitulosReceberTest, InterestOfAnOverdueTitle) {
  criarFatura("1.000,00", umaVez);
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.txtDesconto.userType("0,80");
  tela.cmdCalcularJuros->userClick();  // 40 days late
  EXPECT_EQ(tela.txtJuros.value(), reais("60,80"));
  EXPECT_EQ(tela.txtValorPago.value(), reais("1.060,00"));
  EXPECT_EQ(cenario.titulos(1).at(0), "000001/001 31/03/2026 1.000,00 pago 0,00") << "the button saves nothing";
}

TEST_P(TitulosReceberTest, ATitleThatIsNotDueKeepsItsInterestAndIsToBePaidWithIt) {
  criarFatura("100,00", umaVez);
  TelaTitulosCadastro& tela = abrirTitulo("000001/001");
  tela.dtVencimento.userType("10/05/2026");
  tela.txtJuros.userType("3,00");
  tela.txtDesconto.userType("1,00");
  host.expectBox(aviso("Este título ainda não venceu, portanto os juros não podem ser calculados."));
  tela.cmdCalcularJuros->userClick();
  EXPECT_EQ(tela.txtJuros.value(), reais("3,00"));
  EXPECT_EQ(tela.txtValorPago.value(), reais("102,00"));
}

TEST_P(TitulosReceberTest, InterestBeyondAllBoundsIsReported) {
  criarFatura("100,00", umaVez);
  abrirTitulo("000001/001").dtVencimento.setValue(data("10/05/2026") - std::chrono::days(1'000'000));
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  titulos().cmdCalcularJuros->userClick();
  host.verify();
  EXPECT_THAT(cenario.programa.pasta().ler("Erros/" + cenario.programa.pasta().nomes("Erros").at(0)),
              testing::HasSubstr("cmdCalcularJuros_Click"));
}

INSTANTIATE_TEST_SUITE_P(Receber, TitulosReceberTest, testing::Values(&ladoReceber), nomeDoLado);

}  // namespace
}  // namespace fenvale
