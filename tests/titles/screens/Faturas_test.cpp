// The invoice screen: its form, its list, what it refuses and what it writes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "access/services/Permissoes.h"
#include "support/Gestos.h"
#include "support/Rotulos.h"
#include "titles/screens/CenarioDeTelas.h"

namespace fenvale {
namespace {

class FaturasTest : public CenarioDeTelas {
 protected:
  /// The save is refused with that box, the focus is on that control, and nothing is stored.
  void recusa(const MessageBox& caixa, const Control* foco) {
    salvarRecusado(host, faturas(), caixa, *foco);
    EXPECT_EQ(contar(lado.sFaturas), "0");
    EXPECT_EQ(contar("CentroCusto"), "2") << "the hidden one is made for a form that is whole";
  }
};

TEST_P(FaturasTest, OpensOnANewInvoice) {
  cenario.inserirFatura("10,00", tresVezes, 41);
  TelaFaturas& tela = faturas();
  EXPECT_EQ(tela.caption(), lado.faturas.sLegenda);
  EXPECT_EQ(tela.title(), lado.faturas.sTitulo);
  EXPECT_EQ(tela.txtNumeroFatura.text(), "42");
  EXPECT_EQ(formatDate(tela.dtEmissao.value()), "10/05/2026");
  EXPECT_EQ(tela.lGetCodigo(), -1);
  EXPECT_EQ(tela.condicao.busca.lCodigo, -1);
  EXPECT_THAT(tela.entidades.chaves(), testing::Each(-1));
  EXPECT_EQ(tela.focused(), &tela.txtNumeroFatura);
  EXPECT_THAT(primeiraColuna(tela.lstLista), ElementsAre("41"));
}

TEST_P(FaturasTest, TheFirstInvoiceIsNumberOneAndAGapIsNeverRefilled) {
  EXPECT_EQ(faturas().txtNumeroFatura.text(), "1");
  cenario.inserirFatura("10,00", tresVezes, 1);
  cenario.inserirFatura("10,00", tresVezes, 9);
  faturas().userKey(Key::f2);
  EXPECT_EQ(faturas().txtNumeroFatura.text(), "10");
}

TEST_P(FaturasTest, SearchAndPrintWaitForTheirScreens) {
  EXPECT_FALSE(faturas().cmdLocalizar.enabled());
  EXPECT_FALSE(faturas().cmdEmitir.enabled());
  faturas().userKey(Key::f6);
  faturas().userKey(Key::f5);
}

TEST_P(FaturasTest, ChecksInTheirOrder) {
  TelaFaturas& tela = faturas();
  tela.txtNumeroFatura.userType("");
  recusa(aviso("Informe o número da fatura."), &tela.txtNumeroFatura);
  tela.txtNumeroFatura.userType("1");
  recusa(aviso("Informe o valor total."), &tela.txtTotal);
  tela.txtTotal.userType("-1,00");
  recusa(aviso("Informe o valor total."), &tela.txtTotal);
  tela.txtTotal.userType("100,00");
  tela.txtEntrada.userType("-0,01");
  recusa(aviso("Informe o valor da entrada."), &tela.txtEntrada);
  tela.txtEntrada.userType("100,01");
  recusa(aviso("O valor da entrada é superior ao total da fatura.\r\nVerifique os valores."), &tela.txtTotal);
  tela.txtEntrada.userType("10,00");
  recusa(aviso(lado.sInformePessoaFatura), &tela.entidades.pessoa.caixa);
  tela.entidades.pessoa.busca.vSet(1, "Açougue São João Ltda.");
  recusa(aviso("Informe a condição de pagamento."), &tela.txtCondPagCodigoInf);
  escolherCondicao(tresVezes);
  recusa(
      aviso("A condição de pagamento selecionada não tem entrada, porém um valor foi informado no campo Entrada (R$ "
            "10,00).\r\nSelecione outra condição de pagamento com entrada ou deixe o valor da entrada igual a zero."),
      &tela.txtEntrada);
  escolherCondicao(tresComEntrada);
  tela.txtEntrada.userType("0,00");
  recusa(aviso("A condição de pagamento selecionada exige um valor para a entrada, porém o valor informado no campo "
               "Entrada foi zero.\r\nSelecione outra condição de pagamento sem entrada ou informe o valor da entrada."),
         &tela.txtEntrada);
  tela.txtEntrada.userType("10,00");
  recusa(aviso("Informe o portador."), &tela.entidades.portador.caixa);
  tela.entidades.portador.busca.vSet(1, "Carteira");
  if (lado.bVendedor) {
    recusa(aviso("Informe o vendedor."), &tela.entidades.vendedor->caixa);
    tela.entidades.vendedor->busca.vSet(1, "Maria Aparecida");
  }
  salvarFatura();
}

TEST_P(FaturasTest, WhatWasPaidIsLookedAtBeforeTheEntryAndTheFocusStays) {
  const int chave = criarFatura("100,00", duasVezes);
  pagarInteiro("000001/001", "50,00");
  TelaFaturas& tela = abrirFatura(chave);
  tela.txtTotal.userType("49,99");
  tela.txtEntrada.userType("-1,00");
  tela.dtEmissao.setFocus();
  host.expectBox(
      aviso("O valor informado para a fatura (R$ 49,99) é inferior ao valor dos títulos já pagos (R$ 50,00).\r\n"
            "Informe outro valor."));
  tela.userKey(Key::f3);
  host.verify();
  EXPECT_EQ(tela.focused(), &tela.dtEmissao);
}

TEST_P(FaturasTest, WithoutACostCentreTheHiddenOneIsTaken) {
  digitarFatura("100,00").entidades.centroCusto.busca.vLimpar();
  salvarFatura();
  EXPECT_EQ(cenario.valor("SELECT sDescricao FROM CentroCusto INNER JOIN " + lado.sFaturas +
                          " ON CentroCusto.lCodigo = " + lado.sFaturas + ".lCentroCusto"),
            "");
  EXPECT_EQ(contar("CentroCusto"), "3");
}

TEST_P(FaturasTest, ASavedInvoiceWithAllItsColumns) {
  digitarFatura("100,00", tresComEntrada, "10,00").txtNumeroFatura.userType("77");
  salvarFatura();
  EXPECT_THAT(cenario.programa.linhas("SELECT lNumeroFatura, FORMAT(dtEmissao, 'dd/mm/yyyy') AS E, fTotal, fEntrada, " +
                                      lado.sChavePessoa + ", lCondicoesPagamento, lPortador, lCentroCusto FROM " +
                                      lado.sFaturas),
              ElementsAre(ElementsAre("77", "01/03/2026", "100", "10", "1", "2", "1", "1")));
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 01/03/2026 10,00 pago 10,00", "000001/002 31/03/2026 45,00 pago 0,00",
                          "000001/003 30/04/2026 45,00 pago 0,00"));
  EXPECT_EQ(faturas().lGetCodigo(), -1);
  EXPECT_EQ(faturas().txtNumeroFatura.text(), "78");
}

TEST_P(FaturasTest, AnInvoiceNumberMayRepeat) {
  criarFatura("100,00");
  digitarFatura("50,00").txtNumeroFatura.userType("1");
  salvarFatura();
  EXPECT_EQ(contar(lado.sFaturas), "2");
}

TEST_P(FaturasTest, ARowBringsTheInvoiceBackIntoTheForm) {
  const int chave = criarFatura("1.234,50", tresComEntrada, "234,50");
  const TelaFaturas& tela = abrirFatura(chave);
  EXPECT_EQ(tela.lGetCodigo(), chave);
  EXPECT_EQ(tela.txtNumeroFatura.text(), "1");
  EXPECT_EQ(formatDate(tela.dtEmissao.value()), "01/03/2026");
  EXPECT_EQ(tela.txtTotal.value(), reais("1.234,50"));
  EXPECT_EQ(tela.txtEntrada.value(), reais("234,50"));
  EXPECT_EQ(tela.entidades.pessoa.caixa.text(), "Açougue São João Ltda.");
  EXPECT_EQ(tela.entidades.portador.caixa.text(), "Carteira");
  EXPECT_EQ(tela.entidades.centroCusto.caixa.text(), "Loja");
  EXPECT_EQ(tela.entidades.pessoa.busca.lCodigo, 1);
  EXPECT_EQ(tela.condicao.busca.lCodigo, tresComEntrada.chave);
  EXPECT_EQ(tela.txtCondPagCodigoInf.text(), "2");
  EXPECT_EQ(tela.txtNumeroParcelas.text(), "3");
  EXPECT_EQ(tela.txtIntervalo.text(), "30");
  EXPECT_TRUE(tela.chkEntrada.checked());
  if (lado.bVendedor) {
    EXPECT_EQ(tela.entidades.vendedor->caixa.text(), "Maria Aparecida");
    EXPECT_EQ(tela.entidades.vendedor->busca.lCodigo, 1);
  }
}

TEST_P(FaturasTest, ARowWithNothingInItLoadsAsZerosAndTodaysDate) {
  const int chave = cenario.inserirFatura("10,00");
  cenario.executar("UPDATE " + lado.sFaturas +
                   " SET lNumeroFatura = NULL, dtEmissao = NULL, fTotal = NULL, fEntrada = "
                   "NULL");
  faturas().dtEmissao.userType("01/03/2020");
  faturas().txtEntrada.userType("5,00");
  const TelaFaturas& tela = abrirFatura(chave);
  EXPECT_EQ(tela.lGetCodigo(), chave);
  EXPECT_TRUE(tela.txtNumeroFatura.empty());
  EXPECT_EQ(formatDate(tela.dtEmissao.value()), "10/05/2026");
  EXPECT_EQ(tela.txtTotal.value(), Currency());
  EXPECT_EQ(tela.txtEntrada.value(), Currency());
  EXPECT_EQ(tela.entidades.centroCusto.busca.lCodigo, 1);
}

TEST_P(FaturasTest, TheTickOfTheConditionIsNotTheUsersToChange) {
  digitarFatura("100,00").chkEntrada.userClick();
  EXPECT_FALSE(faturas().chkEntrada.checked());
}

TEST_P(FaturasTest, AnAlteredInvoice) {
  const int chave = criarFatura("100,00");
  TelaFaturas& tela = abrirFatura(chave);
  tela.txtNumeroFatura.userType("900");
  tela.dtEmissao.userType("02/03/2026");
  tela.entidades.pessoa.busca.vSet(2, "Bar do Élio");
  tela.entidades.portador.busca.vSet(2, "Banco do Brasil");
  tela.entidades.centroCusto.busca.vSet(2, "Depósito");
  salvarFatura();
  EXPECT_THAT(cenario.programa.linhas("SELECT lNumeroFatura, FORMAT(dtEmissao, 'dd/mm/yyyy') AS E, " +
                                      lado.sChavePessoa + ", lPortador, lCentroCusto FROM " + lado.sFaturas),
              ElementsAre(ElementsAre("900", "02/03/2026", "2", "2", "2")));
}

TEST_P(FaturasTest, RightsAreAskedForByWhatTheSaveIs) {
  cenario.programa.executarPrograma(
      "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
      "bPoderImprimir, bPoderAtualizar) VALUES ('Ana', 'ana', 'x', -1, 0, -1, -1, 0)");
  const int chave = criarFatura("100,00");
  cenario.programa.permissoes().vSetPermissoes(1);
  criarFatura("50,00");
  abrirFatura(chave);
  host.expectBox(semPermissao());
  faturas().userKey(Key::f3);
  host.expectBox(semPermissao());
  faturas().userKey(Key::f4);
  EXPECT_EQ(contar(lado.sFaturas), "2");
}

TEST_P(FaturasTest, DeletingTakesTheOpenTitlesAlong) {
  const int chave = criarFatura("100,00");
  abrirFatura(chave);
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::no);
  faturas().userKey(Key::f4);
  EXPECT_EQ(contar(lado.sFaturas), "1");
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  faturas().userKey(Key::f4);
  EXPECT_EQ(contar(lado.sFaturas), "0");
  EXPECT_EQ(contar(lado.sTitulos), "0");
  EXPECT_EQ(faturas().lGetCodigo(), -1);
}

TEST_P(FaturasTest, DeletingWithoutAChosenInvoice) {
  host.expectBox(aviso("Selecione o registro que deseja excluir."));
  faturas().userKey(Key::f4);
  EXPECT_EQ(faturas().focused(), &faturas().lstLista);
}

TEST_P(FaturasTest, AnInvoiceWithAPaidTitleIsNotDeleted) {
  const int chave = criarFatura("100,00", tresComEntrada, "10,00");
  abrirFatura(chave);
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  host.expectBox(
      critica("O registro não pode ser excluído.\r\n\r\nInformação detalhada: \r\n\r\n"
              "A fatura tem títulos pagos."));
  faturas().userKey(Key::f4);
  EXPECT_EQ(contar(lado.sTitulos), "3");
  EXPECT_EQ(faturas().lGetCodigo(), chave);
  EXPECT_EQ(faturas().focused(), &faturas().txtNumeroFatura);
}

TEST_P(FaturasTest, TheQuickSearchAnswersAndTheFocusMovesOn) {
  TelaFaturas& tela = faturas();
  tela.entidades.pessoa.caixa.setFocus();
  host.expectScreen(lado.sBuscaPessoa, [](Screen& busca) {
    auto& lista = dynamic_cast<ListView&>(*busca.control("lstLista"));
    lista.userClickRow(1);
    lista.userClickRow(1);
  });
  tela.userKey(Key::space);
  EXPECT_EQ(tela.entidades.pessoa.caixa.text(), "Bar do Élio");
  EXPECT_EQ(tela.entidades.pessoa.busca.lCodigo, 2);
  EXPECT_EQ(tela.focused(), &tela.txtCondPagCodigoInf);

  host.expectScreen("frmLocalizarCondicoesPagamentoRapido", [](Screen& busca) {
    auto& lista = dynamic_cast<ListView&>(*busca.control("lstLista"));
    lista.userClickRow(1);
    lista.userClickRow(1);
  });
  tela.userKey(Key::space);
  EXPECT_EQ(tela.condicao.busca.lCodigo, 2);
  EXPECT_EQ(tela.txtCondPagCodigoInf.text(), "2");
  EXPECT_EQ(tela.txtNumeroParcelas.text(), "3");
  EXPECT_EQ(tela.txtIntervalo.text(), "30");
  EXPECT_TRUE(tela.chkEntrada.checked());
  EXPECT_EQ(tela.focused(), &tela.entidades.portador.caixa);
}

TEST_P(FaturasTest, SpaceMovesThroughTheLookupBoxes) {
  TelaFaturas& tela = faturas();
  const auto fechar = [](Screen& busca) { busca.userKey(Key::escape); };
  tela.entidades.portador.caixa.setFocus();
  host.expectScreen("frmLocalizarPortadoresRapido", fechar);
  tela.userKey(Key::space);
  if (lado.bVendedor) {
    EXPECT_EQ(tela.focused(), &tela.entidades.vendedor->caixa);
    host.expectScreen("frmLocalizarVendedoresRapido", fechar);
    tela.userKey(Key::space);
  }
  EXPECT_EQ(tela.focused(), &tela.entidades.centroCusto.caixa);
  host.expectScreen("frmLocalizarCentroCustoRapido", fechar);
  tela.userKey(Key::space);
  EXPECT_EQ(tela.focused(), &tela.entidades.centroCusto.caixa);
}

TEST_P(FaturasTest, InsertAndTheButtonOpenThePersonsRegister) {
  TelaFaturas& tela = faturas();
  const auto fechar = [](Screen& cadastro) { cadastro.userKey(Key::escape); };
  tela.entidades.pessoa.busca.vSet(2, "Bar do Élio");
  tela.entidades.pessoa.caixa.setFocus();
  host.expectScreen(lado.sCadastroPessoa, fechar);
  tela.userKey(Key::insert);
  EXPECT_EQ(tela.focused(), &tela.entidades.pessoa.caixa);
  tela.txtTotal.setFocus();
  host.expectScreen(lado.sCadastroPessoa, fechar);
  tela.entidades.pessoa.cmdNovo->userClick();
  EXPECT_EQ(tela.focused(), &tela.entidades.pessoa.caixa);
  EXPECT_EQ(tela.entidades.pessoa.busca.lCodigo, 2) << "the register fills nothing in";
}

TEST_P(FaturasTest, EachSmallButtonAndItsKeyOpenTheRegisterOfTheirField) {
  TelaFaturas& tela = faturas();
  std::vector<std::array<std::string, 3>> campos{
      {"txt" + lado.sPessoa, "cmdNovo" + lado.sPessoa, lado.sCadastroPessoa},
      {"txtCondPagCodigoInf", "cmdNovaCondicaoPagamento", "frmCadastroCondicoesPagamento"},
      {"txtPortador", "cmdNovoPortador", "frmCadastroPortadores"},
      {"txtCentroCusto", "cmdNovoCentroCusto", "frmCadastroCentroCusto"}};
  if (lado.bVendedor) campos.push_back({"txtVendedor", "cmdNovoVendedor", "frmCadastroVendedores"});
  const auto fechar = [](Screen& cadastro) { cadastro.userKey(Key::escape); };
  for (const auto& [caixa, botao, cadastro] : campos) {
    ASSERT_NE(tela.control(caixa), nullptr) << caixa;
    ASSERT_NE(tela.control(botao), nullptr) << botao;
    tela.control(caixa)->setFocus();
    host.expectScreen(cadastro, fechar);
    tela.userKey(Key::insert);
    host.expectScreen(cadastro, fechar);
    dynamic_cast<Button&>(*tela.control(botao)).userClick();
    host.verify();
    EXPECT_EQ(tela.focused(), tela.control(caixa)) << botao;
  }
}

TEST_P(FaturasTest, TheFourControlsOfTheConditionActAsOne) {
  for (const char* nome : {"txtCondPagCodigoInf", "txtNumeroParcelas", "txtIntervalo", "chkEntrada"}) {
    escolherCondicao(tresComEntrada);
    TelaFaturas& tela = faturas();
    Control& controle = *tela.control(nome);
    controle.setFocus();
    host.expectScreen("frmLocalizarCondicoesPagamentoRapido", [](Screen& busca) { busca.userKey(Key::escape); });
    tela.userKey(Key::space);
    EXPECT_EQ(tela.focused(), &tela.entidades.portador.caixa) << nome;
    controle.setFocus();
    host.expectScreen("frmCadastroCondicoesPagamento", [](Screen& cadastro) { cadastro.userKey(Key::escape); });
    tela.userKey(Key::insert);
    EXPECT_EQ(tela.focused(), &controle) << nome;
    EXPECT_EQ(tela.condicao.busca.lCodigo, tresComEntrada.chave);
    tela.userKey(Key::del);
    EXPECT_EQ(tela.condicao.busca.lCodigo, -1) << nome;
    EXPECT_EQ(tela.txtCondPagCodigoInf.text() + tela.txtNumeroParcelas.text() + tela.txtIntervalo.text(), "");
    EXPECT_FALSE(tela.chkEntrada.checked());
  }
}

TEST_P(FaturasTest, DeleteEmptiesALookupBox) {
  TelaFaturas& tela = digitarFatura("100,00");
  std::vector<CampoEntidade*> entidades{&tela.entidades.pessoa, &tela.entidades.portador, &tela.entidades.centroCusto};
  if (lado.bVendedor) entidades.push_back(tela.entidades.vendedor.get());
  for (CampoEntidade* entidade : entidades) {
    EXPECT_EQ(entidade->busca.lCodigo, 1);
    entidade->caixa.setFocus();
    tela.userKey(Key::del);
    EXPECT_EQ(entidade->busca.lCodigo, -1);
    EXPECT_EQ(entidade->caixa.text(), "");
  }
}

TEST_P(FaturasTest, ARightClickShowsTheTitlesOfTheInvoice) {
  const int outra = criarFatura("30,00");
  const int chave = criarFatura("100,00", tresComEntrada, "10,00");
  const std::vector<std::pair<const char*, std::vector<std::string>>> entradas{
      {"mnuVerificarTitulos", {"000002/001", "000002/002", "000002/003"}},
      {"mnuMostrarPagos", {"000002/001"}},
      {"mnuMostrarNaoPagos", {"000002/002", "000002/003"}}};
  ASSERT_NE(outra, chave);
  for (const auto& entrada : entradas) {
    faturas().vMontarLista(0, {});
    host.expectPopup("mnuPopUp", entrada.first);
    host.expectScreen(lado.titulos.sNome, [&](Screen& tela) {
      EXPECT_EQ(primeiraColuna(dynamic_cast<TelaTitulosCadastro&>(tela).lstLista), entrada.second) << entrada.first;
      tela.userKey(Key::escape);
    });
    faturas().lstLista.userClickRow(1, MouseButton::right);
    host.verify();
    EXPECT_EQ(faturas().lGetCodigo(), -1) << "the form is ready for a new invoice";
  }
  EXPECT_EQ(faturas().control("mnuPopUp")->name(), "mnuPopUp");
}

TEST_P(FaturasTest, ALeftClickAfterARightClickOpensNoMenu) {
  criarFatura("30,00");
  host.expectPopup("mnuPopUp", "");
  faturas().lstLista.userClickRow(0, MouseButton::right);
  faturas().lstLista.userClickRow(0);
}

TEST_P(FaturasTest, OnlyTheKeysThatARowCarriesAreHidden) {
  for (TelaCadastro* tela : {static_cast<TelaCadastro*>(&faturas()), static_cast<TelaCadastro*>(&titulos())})
    for (const ListColumn& coluna : tela->lstLista.columns())
      EXPECT_EQ(coluna.width <= 0, coluna.heading.starts_with("Código interno")) << coluna.heading;
}

INSTANTIATE_TEST_SUITE_P(Lados, FaturasTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

TEST(FaturasCliente, TheForm) {
  Cenario cenario{ladoReceber(), &vRegistrarTelasDeTitulos};
  const auto& tela = cenario.programa.telas().obter<frmCadastroFaturasCliente>("frmCadastroFaturasCliente");
  EXPECT_EQ(tela.caption(), "Faturas do cliente");
  EXPECT_EQ(tela.title(), "Cadastro de faturas do cliente");
  EXPECT_THAT(rotulos(tela),
              ElementsAre("Nº da fatura", "Emissão", "Total da fatura", "Entrada", "Cliente", "Código",
                          "Nº de parcelas", "Intervalo de venc.", "Portador", "Vendedor", "Centro de custo"));
  EXPECT_THAT(quadros(tela), ElementsAre("Condição de pagamento"));
  EXPECT_EQ(tela.chkEntrada.caption(), "C&om entrada");
}

TEST(FaturasCliente, ColumnsOfTheList) {
  Cenario cenario{ladoReceber(), &vRegistrarTelasDeTitulos};
  std::vector<std::string> cabecalhos;
  for (const ListColumn& coluna :
       cenario.programa.telas().obter<frmCadastroFaturasCliente>("frmCadastroFaturasCliente").lstLista.columns())
    cabecalhos.push_back(coluna.heading);
  EXPECT_THAT(cabecalhos, ElementsAre("Nº da fatura", "Emissão", "Total da fatura", "Entrada",
                                      "Código interno do cliente", "Cliente", "Código interno da condição de pagamento",
                                      "Código Cond. Pag.", "Nº de parcelas", "Intervalo de venc.", "Com entrada",
                                      "Código interno do portador", "Portador", "Código interno do vendedor",
                                      "Vendedor", "Código interno do centro de custo", "Centro de custo"));
}

class FaturasClienteTest : public CenarioDeTelas {};

TEST_P(FaturasClienteTest, TheRowsOfTheList) {
  criarFatura("1.000,00", duasVezes);
  const ListItem& linha = *faturas().lstLista.item(0);
  EXPECT_EQ(linha.key(), "000001");
  EXPECT_THAT(celulas(linha), ElementsAre("1", "01/03/2026", "1.000,00", "0,00", "1", "Açougue São João Ltda.", "7",
                                          "7", "2", "30", "Não", "1", "Carteira", "1", "Maria Aparecida", "1", "Loja"));
}

TEST_P(FaturasClienteTest, TheCustomerIsAskedFor) {
  digitarFatura("100,00").entidades.pessoa.busca.vLimpar();
  host.expectBox(aviso("Informe o cliente."));
  faturas().userKey(Key::f3);
  EXPECT_EQ(faturas().focused(), faturas().control("txtCliente"));
}

INSTANTIATE_TEST_SUITE_P(Receber, FaturasClienteTest, testing::Values(&ladoReceber), nomeDoLado);

TEST(FaturasCliente, TheListsStatement) {
  Cenario cenario{ladoReceber(), &vRegistrarTelasDeTitulos};
  auto& tela = cenario.programa.telas().obter<frmCadastroFaturasCliente>("frmCadastroFaturasCliente");
  EXPECT_EQ(
      tela.sConsulta("WHERE lNumeroFatura = 1 "),
      "SELECT lCentroCusto, (CentroCusto.sDescricao) AS CentroCusto, FaturasCliente.lCodigo, lNumeroFatura, "
      "FORMAT(dtEmissao, 'dd/mm/yyyy') AS Emissao, FORMAT(fTotal, '#,##0.00') AS TotalFatura, FORMAT(fEntrada, "
      "'#,##0.00') AS TotalEntrada, lCliente, (Clientes.sNome) AS Cliente, lCondicoesPagamento, "
      "(CondicoesPagamento.btCodigoInf) AS CondPagCodigoInf, iNumeroParcelas, iIntervalo, IIF(bitEntrada = 0, 'Não', "
      "'Sim') AS ComEntrada, lPortador, (Portadores.sNome) AS Portador, FaturasCliente.lVendedor, (Vendedores.sNome) "
      "AS Vendedores FROM ((((FaturasCliente INNER JOIN Clientes ON FaturasCliente.lCliente = Clientes.lCodigo) INNER "
      "JOIN CondicoesPagamento ON CondicoesPagamento.lCodigo = FaturasCliente.lCondicoesPagamento) INNER JOIN "
      "Portadores ON Portadores.lCodigo = FaturasCliente.lPortador) INNER JOIN Vendedores ON Vendedores.lCodigo = "
      "FaturasCliente.lVendedor) INNER JOIN CentroCusto ON CentroCusto.lCodigo = FaturasCliente.lCentroCusto WHERE "
      "lNumeroFatura = 1  ORDER BY lNumeroFatura ");
}

}  // namespace
}  // namespace fenvale
