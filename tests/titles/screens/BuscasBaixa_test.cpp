// The searches for settlement: their list of open titles, and how a title goes from there to the title screen.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/services/Permissoes.h"
#include "store/services/ConfiguracoesPrograma.h"
#include "titles/screens/CenarioDeBuscas.h"

namespace fenvale {
namespace {

/// Takes a title of either side, and notes by which way it came and how the search stood then.
struct Recebedora final : Screen, ReceptorTituloReceber, ReceptorTituloPagar {
  explicit Recebedora(UiHost& quem) : Screen(quem, "frmRecebedora") {}
  void vSetTituloReceberBaixa(const ListItem& item) override { receber("receber", item); }
  void vSetTituloPagarBaixa(const ListItem& item) override { receber("pagar", item); }
  void receber(const std::string& sPor, const ListItem& item) {
    recebido = sPor + " " + item.key() + " " + item.text();
    aoReceber();
  }
  std::string recebido;
  std::function<void()> aoReceber;
};

class BuscasBaixaTest : public CenarioDeBuscas {};

TEST_P(BuscasBaixaTest, WhatTheSearchForSettlementAsksForAndFinds) {
  encher();
  const std::string fim = " ORDER BY sCodigoInf ";
  for (const auto& passo : passosDosTitulos("(fValorPago <= 0) ", abertos))
    for (const bool bPago : {false, true})
      naBaixa([&](TelaBuscaBaixa& tela) {
        EXPECT_EQ(primeiraColuna(tela.lstLista), abertos) << "all open titles at first";
        passo.digitar(tela);
        if (bPago) tela.chkPago.userClick();
        if (tela.txtFilial) tela.txtFilial->userType("SUL");
        EXPECT_EQ(tela.sConsulta(), lado.titulos.sSelecaoBaixa + passo.clausula + fim) << "paid or not, of any branch";
        tela.userKey(Key::f6);
        EXPECT_THAT(primeiraColuna(tela.lstLista), testing::ElementsAreArray(passo.achados)) << passo.clausula;
        EXPECT_TRUE(tela.cmdLocalizar.enabled());
        tela.userKey(Key::escape);
      });
}

TEST_P(BuscasBaixaTest, TheStatementOfTheSearchForSettlement) {
  const std::string titulo =
      "sCodigoInf, FORMAT(dtVencimento, 'dd/mm/yyyy') AS Vencimento, FORMAT(fValor, '#,##0.00') AS ValorTitulo, "
      "FORMAT(dtPagamento, 'dd/mm/yyyy') AS Pagamento, FORMAT(fValorPago, '#,##0.00') AS ValorPago, FORMAT(fJuros, "
      "'#,##0.00') AS Juros, FORMAT(fDesconto, '#,##0.00') AS Desconto, lNF, sObs, IIF(fValorPago <= 0, 'Não', 'Sim') "
      "AS Pago, FORMAT(dtEmissao, 'dd/mm/yyyy') AS Emissao, FORMAT(fTotal, '#,##0.00') AS ValorFatura, ";
  EXPECT_EQ(
      lado.titulos.sSelecaoBaixa,
      lado.bVendedor
          ? "SELECT lCentroCusto, (CentroCusto.sDescricao) AS CentroCusto, lNumeroFatura, TitulosReceber.lCodigo, " +
                titulo +
                "lCliente, (Clientes.sNome) AS Cliente, lPortador, (Portadores.sNome) AS Portador, "
                "FaturasCliente.lVendedor, (Vendedores.sNome) AS Vendedores FROM ((((TitulosReceber INNER JOIN "
                "FaturasCliente ON FaturasCliente.lCodigo = TitulosReceber.lFaturaCliente) INNER JOIN Clientes ON "
                "FaturasCliente.lCliente = Clientes.lCodigo) INNER JOIN Portadores ON FaturasCliente.lPortador = "
                "Portadores.lCodigo) INNER JOIN Vendedores ON FaturasCliente.lVendedor = Vendedores.lCodigo) INNER "
                "JOIN CentroCusto ON FaturasCliente.lCentroCusto = CentroCusto.lCodigo "
          : "SELECT (CentroCusto.sDescricao) AS CentroCusto, lCentroCusto, lNumeroFatura, TitulosPagar.lCodigo, " +
                titulo +
                "lFornecedor, (Fornecedores.sNome) AS Fornecedor, lPortador, (Portadores.sNome) AS Portador, sFilial "
                "FROM (((TitulosPagar INNER JOIN FaturasFornecedor ON FaturasFornecedor.lCodigo = "
                "TitulosPagar.lFaturaFornecedor) INNER JOIN Fornecedores ON FaturasFornecedor.lFornecedor = "
                "Fornecedores.lCodigo) INNER JOIN Portadores ON FaturasFornecedor.lPortador = Portadores.lCodigo) "
                "INNER JOIN CentroCusto ON FaturasFornecedor.lCentroCusto = CentroCusto.lCodigo ");
}

TEST_P(BuscasBaixaTest, TheListForSettlementHasTheColumnsOfTheTitleScreenAndTheInvoicesNumber) {
  encher();
  naBaixa([&](TelaBuscaBaixa& tela) {
    const auto& colunas = titulos().lstLista.columns();
    ASSERT_EQ(tela.lstLista.columns().size(), colunas.size() + 1);
    for (std::size_t i = 0; i < colunas.size(); ++i) {
      EXPECT_EQ(tela.lstLista.columns()[i].heading, colunas[i].heading);
      EXPECT_EQ(tela.lstLista.columns()[i].width, colunas[i].width) << colunas[i].heading;
      EXPECT_EQ(tela.lstLista.columns()[i].align, colunas[i].align) << colunas[i].heading;
      if (colunas[i].heading != "Pagamento") {
        EXPECT_EQ(celulas(*tela.lstLista.item(0))[i], celulas(*titulos().lstLista.item(0))[i]) << colunas[i].heading;
      } else {
        EXPECT_EQ(celulas(*tela.lstLista.item(0))[i], "30/04/2026") << "the date that is stored while it is open";
      }
    }
    EXPECT_EQ(tela.lstLista.columns().back().heading, "Nº da fatura");
    EXPECT_GT(tela.lstLista.columns().back().width, 0);
    EXPECT_EQ(celulas(*tela.lstLista.item(2)).back(), "20");
    EXPECT_EQ(tela.lstLista.item(2)->key(), "000004");
    tela.userKey(Key::escape);
  });
}

TEST_P(BuscasBaixaTest, TwoClicksOnOneRowBringItsTitleToBeSettled) {
  encher();
  naBaixa([&](TelaBuscaBaixa& tela) {
    tela.lstLista.userClickRow(0);
    EXPECT_EQ(cenario.programa.configuracoes().lGetClickAnterior(), 2);
    tela.lstLista.userClickRow(1);
    tela.lstLista.userClickRow(0);
    EXPECT_EQ(tela.state(), Screen::State::loaded) << "another row between begins anew";
    EXPECT_EQ(titulos().lGetCodigo(), -1);
    tela.lstLista.userClickRow(0);
    EXPECT_EQ(tela.state(), Screen::State::unloaded);
  });
  TelaTitulosCadastro& tela = titulos();
  EXPECT_EQ(tela.lGetCodigo(), 2);
  EXPECT_EQ(tela.txtCodigoInf.text(), "000001/002");
  EXPECT_EQ(formatDate(tela.dtPagamento.value()), "30/04/2026") << "the stored date, not today";
  EXPECT_EQ(tela.txtTotal.value(), reais("300,00"));
  EXPECT_THAT(tela.entidades.chaves(), testing::Each(1));
  EXPECT_EQ(cenario.programa.configuracoes().lGetClickAnterior(), 2) << "loading a title makes it the one last clicked";

  tela.txtValorPago.userType("100,00");
  host.expectBox(perguntaPagamento("100,00"), BoxAnswer::yes);
  host.expectBox(concluida);
  tela.userKey(Key::f3);
  EXPECT_THAT(cenario.titulos(1),
              ElementsAre("000001/001 31/03/2026 100,00 pago 100,00", "000001/002 30/04/2026 100,00 pago 100,00",
                          "000001/003 30/05/2026 100,00 pago 0,00"));
  naBaixa([&](TelaBuscaBaixa& busca) {
    EXPECT_THAT(primeiraColuna(busca.lstLista), ElementsAre("000001/003", "000002/001", "d'avulso"));
    busca.userClose();
  });
}

TEST_P(BuscasBaixaTest, TheRowIsHandedOverByItsSidesNameWhileTheSearchStillStands) {
  encher();
  Recebedora chamadora(host);
  host.expectScreen(lado.titulos.sBuscaBaixa, [&](Screen& tela) {
    auto& busca = dynamic_cast<TelaBuscaBaixa&>(tela);
    chamadora.aoReceber = [&] {
      EXPECT_EQ(cenario.programa.configuracoes().lGetClickAnterior(), -1) << "forgotten before it is handed over";
      EXPECT_EQ(busca.state(), Screen::State::loaded) << "closed only after";
    };
    busca.lstLista.userClickRow(1);
    host.sleep(std::chrono::hours(1));
    EXPECT_EQ(chamadora.recebido, "");
    busca.lstLista.userClickRow(1);
    EXPECT_EQ(tela.state(), Screen::State::unloaded);
  });
  carregada<TelaBuscaBaixa>(lado.titulos.sBuscaBaixa).vLocalizar(chamadora);
  EXPECT_EQ(chamadora.recebido,
            (lado.sTitulos == "TitulosReceber" ? "receber" : "pagar") + std::string(" 000003 000001/003"));
}

TEST_P(BuscasBaixaTest, ASortedListHandsOverTheRowThatWasClicked) {
  encher();
  naBaixa([&](TelaBuscaBaixa& tela) {
    tela.lstLista.userClickColumn(1);
    EXPECT_EQ(primeiraColuna(tela.lstLista), abertos) << "ascending first";
    tela.lstLista.userClickColumn(1);
    EXPECT_THAT(primeiraColuna(tela.lstLista), ElementsAre("d'avulso", "000002/001", "000001/003", "000001/002"));
    tela.lstLista.userClickRow(1);
    tela.lstLista.userClickRow(1);
  });
  EXPECT_EQ(titulos().txtCodigoInf.text(), "000002/001");
  EXPECT_EQ(titulos().lGetCodigo(), 4);
}

TEST_P(BuscasBaixaTest, ARowThatWasClickedOnInTheTitleScreenNeedsTwoClicksInTheSearch) {
  encher();
  titulos().lstLista.userClickRow(1);
  titulos().txtObs.userType("desfeito ao carregar de novo");
  naBaixa([&](TelaBuscaBaixa& tela) {
    tela.lstLista.userClickRow(1);
    EXPECT_EQ(tela.state(), Screen::State::loaded);
    tela.lstLista.userClickRow(1);
    EXPECT_EQ(tela.state(), Screen::State::unloaded);
  });
  EXPECT_EQ(titulos().lGetCodigo(), 3);
  EXPECT_TRUE(titulos().txtObs.empty());
}

TEST_P(BuscasBaixaTest, APageIsTurnedUnderTheFilter) {
  encher();
  cenario.programa.configuracoes().vSetTamanhoPagina(2);
  naBaixa([&](TelaBuscaBaixa& tela) {
    tela.entidades.portador.busca.vSet(2, "Banco do Brasil");
    cenario.inserirTitulo(3, "z", "1,00");
    tela.userKey(Key::f6);
    EXPECT_THAT(primeiraColuna(tela.lstLista), ElementsAre("000002/001", "d'avulso"));
    tela.scrPaginas.userMove(1);
    EXPECT_THAT(primeiraColuna(tela.lstLista), ElementsAre("z"));
    tela.userKey(Key::f6);
    EXPECT_THAT(primeiraColuna(tela.lstLista), ElementsAre("000002/001", "d'avulso")) << "a search starts over";
    EXPECT_EQ(tela.scrPaginas.value(), 0);
    tela.userKey(Key::escape);
  });
}

TEST_P(BuscasBaixaTest, WidthsAreKeptWhicheverWayTheSearchIsClosed) {
  encher();
  constexpr float fDesenhada = 1500;
  float fEsperada = fDesenhada;
  const std::string sLarguras = "list/" + lado.titulos.sBuscaBaixa + ".lstList.XML";
  EXPECT_FALSE(cenario.programa.pasta().existe(sLarguras));
  for (const auto& fechar : std::vector<std::function<void(TelaBuscaBaixa&)>>{
           [](TelaBuscaBaixa& tela) { tela.userKey(Key::escape); }, [](TelaBuscaBaixa& tela) { tela.userClose(); },
           [](TelaBuscaBaixa& tela) { tela.cmdFechar.userClick(); },
           [](TelaBuscaBaixa& tela) {
             tela.lstLista.userClickRow(2);
             tela.lstLista.userClickRow(2);
           }}) {
    naBaixa([&](TelaBuscaBaixa& tela) {
      EXPECT_EQ(tela.lstLista.columns()[0].width, fEsperada);
      fEsperada += 100;
      tela.lstLista.userResizeColumn(1, fEsperada);
      fechar(tela);
      EXPECT_EQ(tela.state(), Screen::State::unloaded);
    });
    EXPECT_THAT(cenario.programa.pasta().ler(sLarguras),
                testing::StartsWith("<root>\r\n<size>" + std::to_string(static_cast<int>(fEsperada)) + "</size>\r\n"));
  }
  naBaixa([&](TelaBuscaBaixa& tela) {
    EXPECT_EQ(tela.lstLista.columns()[0].width, fEsperada);
    tela.txtNumeroFatura.userType("10");
    tela.emissao.chk.userClick();
    tela.entidades.pessoa.busca.vSet(2, "Bar do Élio");
    tela.userKey(Key::escape);
  });
  naBaixa([&](TelaBuscaBaixa& tela) {
    EXPECT_EQ(primeiraColuna(tela.lstLista), abertos) << "a search begins empty again";
    EXPECT_FALSE(tela.emissao.chk.checked());
    EXPECT_TRUE(tela.txtNumeroFatura.empty());
    tela.userKey(Key::escape);
  });
  EXPECT_EQ(titulos().lstLista.columns()[0].width, fDesenhada) << "the title screen has widths of its own";
}

TEST_P(BuscasBaixaTest, TheListForSettlementIsPrintedOnlyWithTheRight) {
  cadastrarAnaSem("bPoderImprimir");
  encher();
  cenario.programa.telas().registrar<OpcoesDeTeste>("frmOpcoesRelList");
  cenario.programa.permissoes().vSetPermissoes(1);
  naBaixa([&](TelaBuscaBaixa& tela) {
    host.expectBox(semPermissao());
    tela.userKey(Key::f5);
    host.verify();
    tela.userKey(Key::escape);
  });
  EXPECT_EQ(cenario.programa.telas().obter<OpcoesDeTeste>("frmOpcoesRelList").pedido, "");
}

TEST_P(BuscasBaixaTest, TheListForSettlementIsPrintedInLinesOf80) {
  encher();
  naBaixa([](TelaBuscaBaixa& tela) {
    EXPECT_FALSE(tela.cmdEmitir.enabled()) << "until there is a screen for it";
    tela.userKey(Key::f5);
    tela.userKey(Key::escape);
  });
  Telas& telas = cenario.programa.telas();
  telas.registrar<OpcoesDeTeste>("frmOpcoesRelList");
  naBaixa([](TelaBuscaBaixa& tela) {
    tela.userKey(Key::f5);
    tela.userKey(Key::escape);
  });
  EXPECT_EQ(telas.obter<OpcoesDeTeste>("frmOpcoesRelList").pedido, lado.titulos.sTitulo + " | 80 | 4");
}

TEST_P(BuscasBaixaTest, AScreenThatTakesNoTitleIsReportedAndTheSearchStays) {
  encher();
  host.expectScreen(lado.titulos.sBuscaBaixa, [&](Screen& tela) {
    auto& busca = dynamic_cast<TelaBuscaBaixa&>(tela);
    busca.lstLista.userClickRow(0);
    host.expectBox(relatoDeFalha(), BoxAnswer::no);
    busca.lstLista.userClickRow(0);
    EXPECT_EQ(busca.state(), Screen::State::loaded);
    busca.lstLista.userClickRow(0);
    EXPECT_EQ(cenario.programa.configuracoes().lGetClickAnterior(), 2) << "two clicks anew";
    tela.userKey(Key::escape);
  });
  carregada<TelaBuscaBaixa>(lado.titulos.sBuscaBaixa).vLocalizar(faturas());
  host.verify();
  const std::string relato = cenario.programa.pasta().ler("Erros/" + cenario.programa.pasta().nomes("Erros").at(0));
  EXPECT_THAT(relato, testing::HasSubstr("438\r\nDescri"));
  EXPECT_THAT(relato, testing::HasSubstr(lado.faturas.sNome));
  EXPECT_THAT(relato, testing::HasSubstr("lstLista_itemClick"));
}

TEST_P(BuscasBaixaTest, ASearchThatNobodyOpenedForItselfReportsIt) {
  encher();
  auto& busca = carregada<TelaBuscaBaixa>(lado.titulos.sBuscaBaixa);
  busca.userKey(Key::f6);
  busca.lstLista.userClickRow(0);
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  busca.lstLista.userClickRow(0);
  host.verify();
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  carregada<TelaBuscaFaturas>(lado.faturas.sBusca).userKey(Key::f6);
}

INSTANTIATE_TEST_SUITE_P(Lados, BuscasBaixaTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

}  // namespace
}  // namespace fenvale
