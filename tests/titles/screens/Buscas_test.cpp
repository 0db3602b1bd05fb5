// The searches of invoices and titles: what stands on them, what they ask for and what they find.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/services/Permissoes.h"
#include "titles/screens/CenarioDeBuscas.h"

namespace fenvale {
namespace {

/// The caption of the group in which a control stands; empty where it stands in none.
std::string grupoDe(const LayoutNode& no, const Control& controle, const std::string& legenda = {}) {
  if (no.control == &controle) return legenda;
  for (const LayoutNode& filho : no.children) {
    const bool bGrupo = no.kind == LayoutNode::Kind::frame;
    if (std::string achado = grupoDe(filho, controle, bGrupo ? no.caption : legenda); !achado.empty()) return achado;
  }
  return {};
}

/// Notes when a button goes out of reach and comes back, and when a list is filled between.
class Anotador final : public ControlView {
 public:
  Anotador(Control& controle, std::vector<std::string>& notas) : controle_(controle), notas_(notas) {
    controle_.attach(*this);
  }
  ~Anotador() override { controle_.detach(*this); }
  Anotador(const Anotador&) = delete;
  Anotador& operator=(const Anotador&) = delete;
  void controlChanged(Aspect aspecto) override {
    if (aspecto == Aspect::enabled) anotar(controle_.enabled() ? "livre" : "presa");
    if (aspecto == Aspect::items) anotar("lista");
  }

 private:
  void anotar(const char* nota) {
    if (notas_.empty() || notas_.back() != nota) notas_.emplace_back(nota);
  }
  Control& controle_;
  std::vector<std::string>& notas_;
};

/// A screen with a list, which notes what it was asked for.
struct Listadora final : Screen, TelaComLista {
  explicit Listadora(UiHost& quem) : Screen(quem, "frmListadora") {}
  void vMontarLista(std::int16_t iInicio, const std::string& sWhere) override {
    pedidos.push_back(std::to_string(iInicio) + " " + sWhere);
  }
  std::vector<std::string> pedidos;
};

class BuscasTest : public CenarioDeBuscas {};

TEST_P(BuscasTest, TheScreensAndTheirControls) {
  const auto pessoa = lado.sPessoa;
  const std::vector<std::string> comuns{"txtNumeroFatura",  "txt" + pessoa,   "cmdBusca" + pessoa,   "txtPortador",
                                        "cmdBuscaPortador", "txtCentroCusto", "cmdBuscaCentroCusto", "chkEmissao",
                                        "dtEmissaoInicial", "dtEmissaoFinal", "cmdLocalizar",        "cmdFechar"};
  const std::vector<std::string> deTitulos{"txtCodigoInf",
                                           "txtNF",
                                           "chkPago",
                                           "chkVencimento",
                                           "dtVencimentoInicial",
                                           "dtVencimentoFinal",
                                           "chkPagamento",
                                           "dtPagamentoInicial",
                                           "dtPagamentoFinal"};
  const std::vector<std::string> deFaturas{"txtTotal",          "txtEntrada",   "txtCondPagCodigoInf",
                                           "txtNumeroParcelas", "txtIntervalo", "chkEntrada"};
  const auto confere = [&](const std::string& nome, const std::string& legenda,
                           const std::vector<std::string>& controles) {
    const Screen& tela = carregada<Screen>(nome);
    EXPECT_EQ(tela.caption(), legenda);
    for (const auto& lista : {comuns, controles})
      for (const std::string& controle : lista) EXPECT_NE(tela.control(controle), nullptr) << nome << " " << controle;
    for (const char* controle : {"txtVendedor", "cmdBuscaVendedor"})
      EXPECT_EQ(tela.control(controle) != nullptr, lado.bVendedor) << nome;
    EXPECT_EQ(tela.control("cmdNovo" + pessoa), nullptr) << nome;
    EXPECT_EQ(tela.control("txtFilial") != nullptr, nome == "frmLocalizarTitulosPagar") << nome;
    EXPECT_EQ(tela.control("lstLista") != nullptr, nome == lado.titulos.sBuscaBaixa) << nome;
  };
  const bool bReceber = lado.sTitulos == "TitulosReceber";
  const std::string sTitulos = bReceber ? "Títulos a receber" : "Títulos a pagar";
  confere(bReceber ? "frmLocalizarTitulosReceber" : "frmLocalizarTitulosPagar", sTitulos, deTitulos);
  confere(bReceber ? "frmLocalizarTitulosReceberAvancado" : "frmLocalizarTitulosPagarAvancado", sTitulos, deTitulos);
  confere(bReceber ? "frmLocalizarFaturasCliente" : "frmLocalizarFaturasFornecedor",
          bReceber ? "Faturas cliente" : "Faturas do fornecedor", deFaturas);
}

TEST_P(BuscasTest, TheGroupsAndWhatStandsInThem) {
  for (const std::string& nome : {lado.titulos.sBuscaBaixa, lado.titulos.sBusca, lado.faturas.sBusca}) {
    const Screen& tela = carregada<Screen>(nome);
    const auto grupo = [&](const std::string& controle) { return grupoDe(tela.layout(), *tela.control(controle)); };
    const auto especie = [&](const std::string& controle) { return tela.control(controle)->kind(); };
    std::vector<std::pair<std::string, std::string>> periodos{{"Emissao", "Emissão"}};
    if (nome != lado.faturas.sBusca) {
      periodos.insert(periodos.end(), {{"Vencimento", "Vencimento"}, {"Pagamento", "Pagamento"}});
      EXPECT_EQ(dynamic_cast<const CheckBox&>(*tela.control("chkPago")).caption(), "Pa&go") << nome;
      EXPECT_EQ(especie("txtCodigoInf"), ControlKind::textBox);
      EXPECT_EQ(especie("txtNF"), ControlKind::moneyBox);
    } else {
      for (const char* controle : {"txtCondPagCodigoInf", "txtNumeroParcelas", "txtIntervalo", "chkEntrada"})
        EXPECT_EQ(grupo(controle), "Condição de pagamento") << controle;
      for (const char* controle : {"txtTotal", "txtEntrada"}) EXPECT_EQ(especie(controle), ControlKind::moneyBox);
    }
    EXPECT_EQ(especie("txtNumeroFatura"), ControlKind::numberBox);
    for (const auto& [periodoBuscado, legenda] : periodos) {
      for (const std::string& controle :
           {"chk" + periodoBuscado, "dt" + periodoBuscado + "Inicial", "dt" + periodoBuscado + "Final"})
        EXPECT_EQ(grupo(controle), legenda) << nome << " " << controle;
      EXPECT_EQ(tela.control("dt" + periodoBuscado + "Inicial")->label(), "Incial");
      EXPECT_EQ(tela.control("dt" + periodoBuscado + "Final")->label(), "Final");
    }
  }
}

TEST_P(BuscasTest, APeriodIsTodayAndOutOfReachUntilItsBoxIsTicked) {
  auto& tela = carregada<TelaBuscaTitulos>(lado.titulos.sBusca);
  for (PeriodoBusca* p :
       {&tela.emissao, &tela.vencimento, &tela.pagamento, &carregada<TelaBuscaFaturas>(lado.faturas.sBusca).emissao,
        &carregada<TelaBuscaBaixa>(lado.titulos.sBuscaBaixa).vencimento}) {
    EXPECT_EQ(formatDate(p->dtInicial.value()) + formatDate(p->dtFinal.value()), "10/05/202610/05/2026");
    for (const bool bLigado : {false, true, false}) {
      EXPECT_EQ(p->dtInicial.enabled(), bLigado);
      EXPECT_EQ(p->dtFinal.enabled(), bLigado);
      p->chk.userClick();
    }
  }
}

TEST_P(BuscasTest, WhatTheFilterOfTitlesAsksForAndFinds) {
  encher();
  noFiltroDeTitulos([](Screen& tela) { tela.userKey(Key::escape); });
  for (const bool bPago : {false, true}) {
    for (const auto& passo : passosDosTitulos(bPago ? "(fValorPago > 0) " : "(fValorPago <= 0) ", abertos))
      noFiltroDeTitulos([&](TelaBuscaTitulos& tela) {
        passo.digitar(tela);
        if (bPago) tela.chkPago.userClick();
        EXPECT_EQ(tela.sClausula(), passo.clausula);
        tela.userKey(Key::f6);
        if (!bPago) {
          EXPECT_THAT(primeiraColuna(titulos().lstLista), testing::ElementsAreArray(passo.achados)) << passo.clausula;
        }
        EXPECT_EQ(tela.state(), Screen::State::loaded) << "it stays for another search";
        EXPECT_TRUE(tela.cmdLocalizar.enabled());
        tela.userKey(Key::escape);
      });
  }
}

TEST_P(BuscasTest, PaidTitlesShowUntilANewTitleIsBegun) {
  encher();
  noFiltroDeTitulos([&](TelaBuscaTitulos& tela) {
    tela.chkPago.userClick();
    tela.userKey(Key::f6);
    EXPECT_THAT(primeiraColuna(titulos().lstLista), ElementsAre("000001/001"));
    periodo(tela.pagamento, "05/04/2026", "05/04/2026");
    tela.userKey(Key::f6);
    EXPECT_THAT(primeiraColuna(titulos().lstLista), ElementsAre("000001/001"));
    tela.pagamento.dtInicial.userType("06/04/2026");
    tela.userKey(Key::f6);
    EXPECT_THAT(titulos().lstLista.items(), IsEmpty());
    tela.userKey(Key::escape);
  });
  titulos().userKey(Key::f2);
  EXPECT_EQ(primeiraColuna(titulos().lstLista), abertos);
}

TEST_P(BuscasTest, OpeningAFilterChangesNothingInTheListBelow) {
  encher();
  titulos().vMontarLista(0, "WHERE sCodigoInf = '000001/001' ");
  noFiltroDeTitulos([&](TelaBuscaTitulos& tela) { tela.userKey(Key::escape); });
  EXPECT_THAT(primeiraColuna(titulos().lstLista), ElementsAre("000001/001"));
  faturas().vMontarLista(0, "WHERE lNumeroFatura = 10 ");
  noFiltroDeFaturas([&](TelaBuscaFaturas& tela) { tela.userClose(); });
  EXPECT_THAT(primeiraColuna(faturas().lstLista), ElementsAre("10"));
}

TEST_P(BuscasTest, AFilterAsksTheScreenBelowForItsFirstPageOncePerSearchAndAtNoOtherTime) {
  const std::string abertosDeTodos = "0 WHERE MID(sCodigoInf, 1, 0) = '' AND (fValorPago <= 0) ";
  for (const auto& [nome, esperado] : {std::pair(lado.titulos.sBusca, abertosDeTodos), {lado.faturas.sBusca, "0 "}}) {
    Listadora listadora(host);
    host.expectScreen(nome, [&, esperado = esperado](Screen& tela) {
      EXPECT_THAT(listadora.pedidos, IsEmpty());
      tela.userKey(Key::f6);
      EXPECT_THAT(listadora.pedidos, ElementsAre(esperado));
      dynamic_cast<NumberBox&>(*tela.control("txtNumeroFatura")).userType("7");
      dynamic_cast<Button&>(*tela.control("cmdLocalizar")).userClick();
      EXPECT_THAT(listadora.pedidos, ElementsAre(esperado, testing::StartsWith("0 WHERE lNumeroFatura = 7 ")));
      tela.userClose();
    });
    cenario.programa.telas().obter<TelaBusca>(nome).vLocalizar(listadora);
    host.verify();
    EXPECT_THAT(listadora.pedidos, SizeIs(2));
  }
}

TEST_P(BuscasTest, WhatTheFilterOfInvoicesAsksForAndFinds) {
  encher();
  using Tela = FormularioBuscaFaturas;
  std::vector<Passo<Tela>> passos{
      {[](Tela&) {}, "", {"10", "20", "20"}},
      {[](Tela& tela) { tela.txtNumeroFatura.userType("20"); }, "WHERE lNumeroFatura = 20 ", {"20", "20"}},
      {[](Tela& tela) { periodo(tela.emissao, "01/03/2026", "15/04/2026"); },
       "WHERE dtEmissao BETWEEN #03/01/2026# AND #04/15/2026# ",
       {"10", "20"}},
      {[](Tela& tela) { tela.txtTotal.userType("300,00"); }, "WHERE fTotal = 300 ", {"10"}},
      {[](Tela& tela) { tela.txtTotal.userType("-0,50"); }, "WHERE fTotal = -0.5 ", {}},
      {[](Tela& tela) { tela.txtEntrada.userType("10,00"); }, "WHERE fEntrada = 10 ", {"20"}},
      {[](Tela& tela) { tela.entidades.pessoa.busca.vSet(2, "Bar do Élio"); },
       "WHERE " + lado.sChavePessoa + " = 2 ",
       {"20"}},
      {[](Tela& tela) { tela.vSetCondicaoPagamento(1, 1, 3, 30, 0); }, "WHERE lCondicoesPagamento = 1 ", {"10"}},
      {[](Tela& tela) { tela.entidades.portador.busca.vSet(2, "Banco do Brasil"); },
       "WHERE lPortador = 2 ",
       {"20", "20"}},
      {[](Tela& tela) { tela.entidades.centroCusto.busca.vSet(1, "Loja"); },
       lado.bVendedor ? "WHERE FaturasCliente.lCentroCusto = 1 " : "WHERE lCentroCusto = 1 ",
       {"10"}},
      {[](Tela& tela) {
         tela.entidades.centroCusto.busca.vSet(2, "Depósito");
         if (tela.entidades.vendedor) tela.entidades.vendedor->busca.vSet(2, "João Batista");
         tela.entidades.portador.busca.vSet(2, "Banco do Brasil");
         tela.vSetCondicaoPagamento(3, 3, 1, 30, 0);
         tela.entidades.pessoa.busca.vSet(2, "Bar do Élio");
         tela.txtEntrada.userType("10,00");
         tela.txtTotal.userType("50,00");
         periodo(tela.emissao, "15/04/2026", "15/04/2026");
         tela.txtNumeroFatura.userType("20");
       },
       "WHERE lNumeroFatura = 20 AND dtEmissao BETWEEN #04/15/2026# AND #04/15/2026# AND fTotal = 50 AND fEntrada = 10 "
       "AND " +
           lado.sChavePessoa + " = 2 AND lCondicoesPagamento = 3 AND lPortador = 2 " +
           (lado.bVendedor ? "AND FaturasCliente.lVendedor = 2 AND FaturasCliente.lCentroCusto = 2 "
                           : "AND lCentroCusto = 2 "),
       {"20"}},
  };
  if (lado.bVendedor)
    passos.push_back({[](Tela& tela) { tela.entidades.vendedor->busca.vSet(1, "Maria Aparecida"); },
                      "WHERE FaturasCliente.lVendedor = 1 ",
                      {"10", "20"}});
  for (const auto& passo : passos)
    noFiltroDeFaturas([&](TelaBuscaFaturas& tela) {
      passo.digitar(tela);
      EXPECT_EQ(tela.sClausula(), passo.clausula);
      tela.userKey(Key::f6);
      EXPECT_THAT(primeiraColuna(faturas().lstLista), testing::ElementsAreArray(passo.achados)) << passo.clausula;
      EXPECT_EQ(tela.state(), Screen::State::loaded);
      tela.userKey(Key::escape);
    });
}

TEST_P(BuscasTest, OnlyAKeyFromOneOnAsksForSomething) {
  for (const std::int32_t lChave : {0, -1}) {
    const auto escolher = [lChave](FormularioBuscaLado& tela) {
      for (CampoBusca* busca : tela.entidades.buscas()) busca->lCodigo = lChave;
    };
    auto& titulosBuscados = carregada<TelaBuscaTitulos>(lado.titulos.sBusca);
    escolher(titulosBuscados);
    EXPECT_EQ(titulosBuscados.sClausula(), "WHERE MID(sCodigoInf, 1, 0) = '' AND (fValorPago <= 0) ");
    auto& faturasBuscadas = carregada<TelaBuscaFaturas>(lado.faturas.sBusca);
    escolher(faturasBuscadas);
    faturasBuscadas.condicao.busca.lCodigo = lChave;
    EXPECT_EQ(faturasBuscadas.sClausula(), "");
  }
}

TEST_P(BuscasTest, LookupBoxesOfASearch) {
  encher();
  naBaixa([&](TelaBuscaBaixa& tela) {
    const auto escolher = [this](const std::string& sBusca, std::size_t linha) {
      host.expectScreen(sBusca, [linha](Screen& busca) {
        auto& lista = dynamic_cast<TelaPaginada&>(busca).lstLista;
        lista.userClickRow(linha);
        lista.userClickRow(linha);
      });
    };
    tela.entidades.pessoa.caixa.setFocus();
    escolher(lado.sBuscaPessoa, 1);
    tela.userKey(Key::space);
    EXPECT_EQ(tela.entidades.pessoa.caixa.text(), "Bar do Élio");
    ASSERT_EQ(tela.focused(), &tela.entidades.portador.caixa);
    escolher("frmLocalizarPortadoresRapido", 1);
    tela.userKey(Key::space);
    EXPECT_EQ(tela.entidades.portador.caixa.text(), "Banco do Brasil");
    if (lado.bVendedor) {
      ASSERT_EQ(tela.focused(), &tela.entidades.vendedor->caixa);
      escolher("frmLocalizarVendedoresRapido", 1);
      tela.userKey(Key::space);
      EXPECT_EQ(tela.entidades.vendedor->caixa.text(), "João Batista");
    }
    ASSERT_EQ(tela.focused(), &tela.entidades.centroCusto.caixa);
    escolher("frmLocalizarCentroCustoRapido", 0);
    tela.entidades.centroCusto.busca.cmdBuscar.userClick();
    EXPECT_EQ(tela.entidades.centroCusto.caixa.text(), "Loja");
    tela.userKey(Key::f6);
    EXPECT_THAT(tela.lstLista.items(), IsEmpty());
    tela.entidades.centroCusto.caixa.setFocus();
    tela.userKey(Key::insert);
    tela.userKey(Key::del);
    EXPECT_TRUE(tela.entidades.centroCusto.caixa.empty());
    tela.userKey(Key::f6);
    EXPECT_THAT(primeiraColuna(tela.lstLista), ElementsAre("000002/001"));
    tela.userKey(Key::escape);
  });
}

TEST_P(BuscasTest, TheConditionOfASearchForInvoices) {
  encher();
  noFiltroDeFaturas([&](TelaBuscaFaturas& tela) {
    const auto escolher = [this] {
      host.expectScreen("frmLocalizarCondicoesPagamentoRapido", [](Screen& busca) {
        auto& lista = dynamic_cast<TelaPaginada&>(busca).lstLista;
        lista.userClickRow(1);
        lista.userClickRow(1);
      });
    };
    for (const char* nome : {"txtCondPagCodigoInf", "txtNumeroParcelas", "txtIntervalo", "chkEntrada"}) {
      tela.control(nome)->setFocus();
      escolher();
      tela.userKey(Key::space);
      EXPECT_EQ(tela.condicao.busca.lCodigo, tresComEntrada.chave) << nome;
      EXPECT_EQ(tela.condicao.txtCondPagCodigoInf.text() + tela.condicao.txtNumeroParcelas.text() +
                    tela.condicao.txtIntervalo.text(),
                "2330");
      EXPECT_TRUE(tela.condicao.chkEntrada.checked());
      EXPECT_EQ(tela.focused(), &tela.entidades.portador.caixa);
      tela.control(nome)->setFocus();
      tela.userKey(Key::del);
      EXPECT_EQ(tela.condicao.busca.lCodigo, -1) << nome;
      EXPECT_FALSE(tela.condicao.chkEntrada.checked());
      EXPECT_EQ(tela.sClausula(), "");
    }
    tela.entidades.pessoa.caixa.setFocus();
    host.expectScreen(lado.sBuscaPessoa, [](Screen& busca) { busca.userKey(Key::escape); });
    tela.userKey(Key::space);
    EXPECT_EQ(tela.focused(), &tela.condicao.txtCondPagCodigoInf);
    tela.userKey(Key::escape);
  });
}

TEST_P(BuscasTest, EnterGoesOnToTheNextBox) {
  encher();
  const auto confere = [](Screen& tela, Control& primeira, Control& segunda) {
    EXPECT_EQ(tela.focused(), &primeira);
    tela.userKey(Key::enter);
    EXPECT_EQ(tela.focused(), &segunda);
    tela.userKey(Key::escape);
    EXPECT_EQ(tela.state(), Screen::State::unloaded);
  };
  naBaixa([&](TelaBuscaBaixa& tela) { confere(tela, tela.txtNumeroFatura, tela.txtCodigoInf); });
  noFiltroDeTitulos([&](TelaBuscaTitulos& tela) { confere(tela, tela.txtNumeroFatura, tela.txtCodigoInf); });
  noFiltroDeFaturas([&](TelaBuscaFaturas& tela) { confere(tela, tela.txtNumeroFatura, tela.txtTotal); });
}

TEST_P(BuscasTest, TheButtonIsOutOfReachWhileTheListIsFilled) {
  encher();
  const auto confere = [](Screen& busca, ListView& lista) {
    std::vector<std::string> notas;
    {
      const Anotador doBotao(*busca.control("cmdLocalizar"), notas);
      const Anotador daLista(lista, notas);
      busca.userKey(Key::f6);
    }
    EXPECT_THAT(notas, ElementsAre("presa", "lista", "livre")) << busca.sGetName();
    busca.userKey(Key::escape);
  };
  naBaixa([&](TelaBuscaBaixa& tela) { confere(tela, tela.lstLista); });
  noFiltroDeTitulos([&](TelaBuscaTitulos& tela) { confere(tela, titulos().lstLista); });
  noFiltroDeFaturas([&](TelaBuscaFaturas& tela) { confere(tela, faturas().lstLista); });
}

TEST_P(BuscasTest, SearchingNeedsTheRightEachTime) {
  cadastrarAnaSem("bPoderPesquisar");
  encher();
  const auto semDireito = [this](Screen& tela) {
    std::vector<std::string> notas;
    cenario.programa.permissoes().vSetPermissoes(1);
    host.expectBox(semPermissao());
    {
      const Anotador doBotao(*tela.control("cmdLocalizar"), notas);
      tela.userKey(Key::f6);
    }
    host.verify();
    EXPECT_THAT(notas, IsEmpty()) << "asked before the button is taken out of reach";
    cenario.programa.permissoes().vSetPermissoes(0);
  };
  naBaixa([&](TelaBuscaBaixa& tela) {
    tela.txtCodigoInf.userType("000002");
    semDireito(tela);
    EXPECT_EQ(primeiraColuna(tela.lstLista), abertos);
    tela.userKey(Key::escape);
  });
  noFiltroDeTitulos([&](TelaBuscaTitulos& tela) {
    tela.txtCodigoInf.userType("000002");
    semDireito(tela);
    EXPECT_EQ(primeiraColuna(titulos().lstLista), abertos);
    tela.userKey(Key::escape);
  });
  noFiltroDeFaturas([&](TelaBuscaFaturas& tela) {
    tela.txtNumeroFatura.userType("10");
    semDireito(tela);
    EXPECT_THAT(primeiraColuna(faturas().lstLista), ElementsAre("10", "20", "20"));
    tela.userKey(Key::escape);
  });
}

TEST_P(BuscasTest, WithoutTheRightToSearchNoSearchOpens) {
  cadastrarAnaSem("bPoderPesquisar");
  encher();
  Screen& dosTitulos = titulos();
  Screen& dasFaturas = faturas();
  cenario.programa.permissoes().vSetPermissoes(1);
  for (const auto& [tela, tecla] : {std::pair(&dosTitulos, Key::f6), {&dosTitulos, Key::f7}, {&dasFaturas, Key::f6}}) {
    host.expectBox(semPermissao());
    tela->userKey(tecla);
    host.verify();
  }
  // Its own one search at the opening asks as well.
  host.expectBox(semPermissao());
  host.expectScreen(lado.titulos.sBuscaBaixa, [](Screen& tela) {
    EXPECT_THAT(dynamic_cast<TelaBuscaBaixa&>(tela).lstLista.items(), IsEmpty());
    tela.userKey(Key::escape);
  });
  cenario.programa.telas().obter<TelaBusca>(lado.titulos.sBuscaBaixa).vLocalizar(dosTitulos);
}

INSTANTIATE_TEST_SUITE_P(Lados, BuscasTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

}  // namespace
}  // namespace fenvale
