// The searches of invoices and titles: what they ask for, what they find, and how a title goes from a search to the
// title screen.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/services/Permissoes.h"
#include "store/services/ConfiguracoesPrograma.h"
#include "titles/screens/CenarioDeTelas.h"
#include "titles/screens/TelaBuscaBaixa.h"
#include "titles/screens/TelaBuscaFiltro.h"
#include "titles/screens/TelasDosTitulos.h"

namespace fenvale {
namespace {

void vRegistrarTudo(Telas& telas) {
  vRegistrarTelasDosCadastros(telas);
  vRegistrarTelasDosTitulos(telas);
}

/// One thing typed into a search, the clause that it makes and what is found by it.
template <typename Formulario>
struct Passo {
  std::function<void(Formulario&)> digitar;
  std::string clausula;
  std::vector<std::string> achados;
};

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

/// A screen with a list, which notes what it was asked for.
struct Listadora final : Screen, TelaComLista {
  explicit Listadora(UiHost& quem) : Screen(quem, "frmListadora") {}
  void vMontarLista(std::int16_t iInicio, const std::string& sWhere) override {
    pedidos.push_back(std::to_string(iInicio) + " " + sWhere);
  }
  std::vector<std::string> pedidos;
};

class BuscasTest : public CenarioDeTelas {
 protected:
  BuscasTest() : CenarioDeTelas(&vRegistrarTudo) {}

  /// Three invoices that differ in everything, and their titles.
  void encher() {
    cenario.inserirFatura("300,00", tresVezes, 10);
    cenario.inserirTitulo(1, "000001/001", "100,00", "100,00", "03/31/2026");
    cenario.inserirTitulo(1, "000001/002", "100,00", "0,00", "04/30/2026");
    cenario.inserirTitulo(1, "000001/003", "100,00", "0,00", "05/30/2026");
    cenario.inserirFatura("50,00", umaVez, 20);
    cenario.inserirTitulo(2, "000002/001", "50,00", "0,00", "05/15/2026");
    cenario.inserirFatura("80,00", umaVez, 20);
    cenario.inserirTitulo(3, "d''avulso", "80,00", "0,00", "05/15/2026");
    const std::string mudar = "UPDATE " + lado.sFaturas + " SET lPortador = 2, lCentroCusto = 2, ";
    cenario.executar(mudar + "dtEmissao = #04/15/2026#, fEntrada = 10, " + lado.sChavePessoa + " = 2" +
                     (lado.bVendedor ? ", lVendedor = 2" : "") + " WHERE lCodigo = 2");
    cenario.executar(mudar + "dtEmissao = #04/20/2026# WHERE lCodigo = 3");
    cenario.executar("UPDATE " + lado.sTitulos + " SET lNF = 445 WHERE lCodigo = 4");
    cenario.executar("UPDATE " + lado.sTitulos + " SET dtPagamento = #04/05/2026# WHERE lCodigo = 1");
  }

  /// A user who may do all but that.
  void cadastrarAnaSem(const std::string& sDireito) {
    cenario.programa.executarPrograma(
        "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
        "bPoderImprimir, bPoderAtualizar) VALUES ('Ana', 'ana', 'x', -1, -1, -1, -1, -1)");
    cenario.programa.executarPrograma("UPDATE Usuarios SET " + sDireito + " = 0");
  }

  /// The search for settlement, opened by its key from the title screen.
  void naBaixa(const std::function<void(TelaBuscaBaixa&)>& agir) {
    host.expectScreen(lado.titulos.sBuscaBaixa, [&](Screen& tela) { agir(dynamic_cast<TelaBuscaBaixa&>(tela)); });
    titulos().userKey(Key::f7);
    host.verify();
  }
  void noFiltroDeTitulos(const std::function<void(TelaBuscaTitulos&)>& agir) {
    host.expectScreen(lado.titulos.sBusca, [&](Screen& tela) { agir(dynamic_cast<TelaBuscaTitulos&>(tela)); });
    titulos().userKey(Key::f6);
    host.verify();
  }
  void noFiltroDeFaturas(const std::function<void(TelaBuscaFaturas&)>& agir) {
    host.expectScreen(lado.faturas.sBusca, [&](Screen& tela) { agir(dynamic_cast<TelaBuscaFaturas&>(tela)); });
    faturas().userKey(Key::f6);
    host.verify();
  }
  static void periodo(PeriodoBusca& periodo, std::string_view inicial, std::string_view final) {
    periodo.chk.userClick();
    periodo.dtInicial.userType(inicial);
    periodo.dtFinal.userType(final);
  }

  /// What the title searches ask for, one thing at a time, with `situacao` in the place of the titles' state.
  std::vector<Passo<FormularioBuscaTitulos>> passosDosTitulos(const std::string& situacao,
                                                              const std::vector<std::string>& todos) {
    using Tela = FormularioBuscaTitulos;
    const std::string inicio = "WHERE MID(sCodigoInf, 1, 0) = '' AND " + situacao;
    const std::string avulso = "d'avulso";
    std::vector<Passo<Tela>> passos{
        {[](Tela&) {}, inicio, todos},
        {[](Tela& tela) { tela.txtNumeroFatura.userType("20"); },
         "WHERE lNumeroFatura = 20 AND MID(sCodigoInf, 1, 0) = '' AND " + situacao,
         {"000002/001", avulso}},
        {[](Tela& tela) { tela.txtCodigoInf.userType("000001"); },
         "WHERE MID(sCodigoInf, 1, 6) = '000001' AND " + situacao,
         {"000001/002", "000001/003"}},
        {[](Tela& tela) { tela.txtCodigoInf.userType("D'a"); },
         "WHERE MID(sCodigoInf, 1, 3) = 'D''a' AND " + situacao,
         {avulso}},
        {[](Tela& tela) { tela.txtNF.userType("445,00"); },
         "WHERE MID(sCodigoInf, 1, 0) = '' AND lNF = 445 AND " + situacao,
         {"000002/001"}},
        {[](Tela& tela) { tela.txtNF.userType("0,99"); }, inicio, todos},
        {[](Tela& tela) { tela.txtNF.userType("1,00"); },
         "WHERE MID(sCodigoInf, 1, 0) = '' AND lNF = 1 AND " + situacao,
         {}},
        {[](Tela& tela) { tela.entidades.pessoa.busca.vSet(2, "Bar do Élio"); },
         inicio + "AND " + lado.sChavePessoa + " = 2 ",
         {"000002/001"}},
        {[](Tela& tela) { tela.entidades.portador.busca.vSet(2, "Banco do Brasil"); },
         inicio + "AND lPortador = 2 ",
         {"000002/001", avulso}},
        {[](Tela& tela) { tela.entidades.centroCusto.busca.vSet(1, "Loja"); },
         inicio + (lado.bVendedor ? "AND FaturasCliente.lCentroCusto = 1 " : "AND lCentroCusto = 1 "),
         {"000001/002", "000001/003"}},
        {[](Tela& tela) { periodo(tela.emissao, "15/04/2026", "16/04/2026"); },
         inicio + "AND dtEmissao BETWEEN #04/15/2026# AND #04/16/2026# ",
         {"000002/001"}},
        {[](Tela& tela) { periodo(tela.vencimento, "01/04/2026", "15/05/2026"); },
         inicio + "AND dtVencimento BETWEEN #04/01/2026# AND #05/15/2026# ",
         {"000001/002", "000002/001", avulso}},
        {[](Tela& tela) { periodo(tela.pagamento, "30/04/2026", "30/04/2026"); },
         inicio + "AND dtPagamento BETWEEN #04/30/2026# AND #04/30/2026# ",
         {"000001/002"}},
        {[](Tela& tela) {
           periodo(tela.pagamento, "30/04/2026", "30/04/2026");
           tela.pagamento.chk.userClick();
         },
         inicio, todos},
    };
    if (lado.bVendedor)
      passos.push_back({[](Tela& tela) { tela.entidades.vendedor->busca.vSet(2, "João Batista"); },
                        inicio + "AND FaturasCliente.lVendedor = 2 ",
                        {"000002/001"}});
    passos.push_back({[](Tela& tela) {
                        periodo(tela.pagamento, "01/05/2026", "31/05/2026");
                        periodo(tela.vencimento, "01/05/2026", "31/05/2026");
                        periodo(tela.emissao, "01/04/2026", "30/04/2026");
                        tela.entidades.centroCusto.busca.vSet(2, "Depósito");
                        if (tela.entidades.vendedor) tela.entidades.vendedor->busca.vSet(1, "Maria Aparecida");
                        tela.entidades.portador.busca.vSet(2, "Banco do Brasil");
                        tela.entidades.pessoa.busca.vSet(1, "Açougue São João Ltda.");
                        tela.txtCodigoInf.userType("d");
                        tela.txtNumeroFatura.userType("20");
                      },
                      "WHERE lNumeroFatura = 20 AND MID(sCodigoInf, 1, 1) = 'd' AND " + situacao + "AND " +
                          lado.sChavePessoa + " = 1 AND lPortador = 2 " +
                          (lado.bVendedor ? "AND FaturasCliente.lVendedor = 1 AND FaturasCliente.lCentroCusto = 2 "
                                          : "AND lCentroCusto = 2 ") +
                          "AND dtEmissao BETWEEN #04/01/2026# AND #04/30/2026# AND dtVencimento BETWEEN #05/01/2026# "
                          "AND #05/31/2026# AND dtPagamento BETWEEN #05/01/2026# AND #05/31/2026# ",
                      {avulso}});
    return passos;
  }

  const std::vector<std::string> abertos{"000001/002", "000001/003", "000002/001", "d'avulso"};
};

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

TEST_P(BuscasTest, WhatTheSearchForSettlementAsksForAndFinds) {
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

TEST_P(BuscasTest, TheStatementOfTheSearchForSettlement) {
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

TEST_P(BuscasTest, TheListForSettlementHasTheColumnsOfTheTitleScreenAndTheInvoicesNumber) {
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

TEST_P(BuscasTest, TwoClicksOnOneRowBringItsTitleToBeSettled) {
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

TEST_P(BuscasTest, TheRowIsHandedOverByItsSidesNameWhileTheSearchStillStands) {
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

TEST_P(BuscasTest, ASortedListHandsOverTheRowThatWasClicked) {
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

TEST_P(BuscasTest, ARowThatWasClickedOnInTheTitleScreenNeedsTwoClicksInTheSearch) {
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

TEST_P(BuscasTest, APageIsTurnedUnderTheFilter) {
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

TEST_P(BuscasTest, WidthsAreKeptWhicheverWayTheSearchIsClosed) {
  encher();
  float fEsperada = 1700;
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
  EXPECT_EQ(titulos().lstLista.columns()[0].width, 1700) << "the title screen has widths of its own";
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

TEST_P(BuscasTest, TheListForSettlementIsPrintedOnlyWithTheRight) {
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

TEST_P(BuscasTest, TheListForSettlementIsPrintedInLinesOf80) {
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

TEST_P(BuscasTest, AScreenThatTakesNoTitleIsReportedAndTheSearchStays) {
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

TEST_P(BuscasTest, ASearchThatNobodyOpenedForItselfReportsIt) {
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

INSTANTIATE_TEST_SUITE_P(Lados, BuscasTest, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

}  // namespace
}  // namespace fenvale
