// What the four lists hold, their totals, and what stands around them.

#include "gerador/Arquivo.h"
#include "overview/screens/CenarioDoQuadro.h"
#include "platform/base/Error.h"

namespace fenvale {
namespace {

class QuadroListas : public CenarioDoQuadro {
 protected:
  static std::vector<std::string> cabecalhos(const ListView& lista) {
    std::vector<std::string> textos;
    for (const ListColumn& coluna : lista.columns()) textos.push_back(coluna.heading);
    return textos;
  }
  /// The last failure that was reported: procedure and source stand among its lines.
  std::string relato() {
    const auto nomes = cenario.programa.pasta().nomes("Erros");
    return nomes.empty() ? std::string() : cenario.programa.pasta().ler("Erros/" + nomes.back());
  }
};

TEST_F(QuadroListas, BeforeItIsFilledTheScreenShowsNothingAndOwesNothing) {
  const auto& tela = telas.obter<frmMostrarContas>("frmMostrarContas");
  EXPECT_EQ(tela.caption(), "Gestor Fenvale");
  EXPECT_EQ(tela.title(), "Quadro geral de contas");
  EXPECT_THAT(totais(tela), Each("Total R$ 0,00"));
  std::vector<std::string> abas;
  for (const LayoutNode& parte : tela.layout().children)
    if (parte.kind == LayoutNode::Kind::tab) abas.push_back(parte.caption);
  EXPECT_THAT(abas, ElementsAre("Contas a pagar do dia", "Contas a receber do dia", "Contas vencidas a pagar",
                                "Contas vencidas a receber"));
  EXPECT_EQ(tela.mnuPopUp.items().size(), 1U);
  EXPECT_EQ(tela.mnuPopUp.item("mnuMotrarTitulo").caption, "&Mostrar título");
}

TEST_F(QuadroListas, ColumnsStandInTheOrderOfTheirSide) {
  const auto& tela = quadro();
  for (const ListView* lista : {&tela.lstPagarDia, &tela.lstPagarVencidas})
    EXPECT_THAT(cabecalhos(*lista),
                ElementsAre("Código", "Filial", "Emissão", "Vencimento", "Fornecedor", "Portador", "Centro de custo",
                            "Valor da fatura", "Valor do título", "Nota fiscal", "Observação", "Nº da fatura"));
  for (const ListView* lista : {&tela.lstReceberDia, &tela.lstReceberVencidas})
    EXPECT_THAT(cabecalhos(*lista),
                ElementsAre("Código", "Emissão", "Vencimento", "Cliente", "Portador", "Centro de custo", "Vendedor",
                            "Valor da fatura", "Valor do título", "Nota fiscal", "Observação", "Nº da fatura"));
}

TEST_F(QuadroListas, EachListHasTheCodeThatTellsItsSide) {
  std::vector<std::pair<std::string, int>> codigosDasListas;
  for (const ListaDoQuadro& lista : listasDoQuadro()) codigosDasListas.emplace_back(lista.sNome, lista.iCodigo);
  EXPECT_THAT(codigosDasListas, ElementsAre(std::pair{"PagarDia", -1}, std::pair{"ReceberDia", 1},
                                            std::pair{"PagarVencidas", 0}, std::pair{"ReceberVencidas", 2}));
}

TEST_F(QuadroListas, ARowHoldsTheTitleAndItsKeyAfterABlank) {
  for (int i = 0; i < 2; ++i) pagar("antes" + std::to_string(i), amanha);
  pagar("000001/001", hoje, "1234,50");
  receber("000007/002", ontem, "99,90");
  cenario.executar("UPDATE FaturasFornecedor SET fTotal = 5000");
  cenario.executar("UPDATE FaturasCliente SET fTotal = 199.8");
  const auto& tela = quadro();
  ASSERT_EQ(tela.lstPagarDia.items().size(), 1U);
  EXPECT_EQ(tela.lstPagarDia.item(0)->key(), "00000 3");
  EXPECT_THAT(celulas(*tela.lstPagarDia.item(0)),
              ElementsAre("000001/001", "MTZ", "01/03/2026", "10/05/2026", "Açougue São João Ltda.", "Carteira", "Loja",
                          "5.000,00", "1.234,50", "445", "Na porta", "3"));
  ASSERT_EQ(tela.lstReceberVencidas.items().size(), 1U);
  EXPECT_EQ(tela.lstReceberVencidas.item(0)->key(), "00000 1");
  EXPECT_THAT(celulas(*tela.lstReceberVencidas.item(0)),
              ElementsAre("000007/002", "01/03/2026", "09/05/2026", "Açougue São João Ltda.", "Carteira", "Loja",
                          "Maria Aparecida", "199,80", "99,90", "445", "Na porta", "4"));
  EXPECT_THAT(totais(tela), ElementsAre("Total R$ 1.234,50", "Total R$ 0,00", "Total R$ 0,00", "Total R$ 99,90"));
}

TEST_F(QuadroListas, TodayAndOverdueAreToldApartAndTomorrowIsInNeither) {
  for (const Lado* lado : {&ladoReceber(), &ladoPagar()})
    for (const auto& [codigo, dia] : {std::pair{"hoje", hoje}, {"ontem", ontem}, {"amanha", amanha}})
      inserir(*lado, codigo, dia);
  const auto& tela = quadro();
  EXPECT_THAT(todos(tela),
              ElementsAre(ElementsAre("hoje"), ElementsAre("hoje"), ElementsAre("ontem"), ElementsAre("ontem")));
}

TEST_F(QuadroListas, TodayIsTheDayOnWhichTheBoardOpens) {
  receber("R1", amanha);
  EXPECT_THAT(todos(quadro()), Each(IsEmpty()));
  EXPECT_EQ(quadro().note(), "10/05/2026");
  telas.obter("frmMostrarContas").unload();
  // As the start leaves it when no list is asked for: made, and opened from the menu on another day.
  telas.obter("frmMostrarContas");
  cenario.programa.relogioDeTeste().setDia(2026, 5, 11);
  EXPECT_THAT(codigos(quadro().lstReceberDia), ElementsAre("R1"));
  EXPECT_EQ(quadro().note(), "11/05/2026");
  telas.obter("frmMostrarContas").unload();
  cenario.programa.relogioDeTeste().setDia(2026, 5, 12);
  EXPECT_THAT(codigos(quadro().lstReceberVencidas), ElementsAre("R1"));
}

TEST_F(QuadroListas, APartlyPaidTitleIsNowhereWhateverRemains) {
  for (const Lado* lado : {&ladoReceber(), &ladoPagar()})
    for (const std::string dia : {hoje, ontem}) {
      inserir(*lado, "aberto " + dia.substr(3, 2), dia, "100,00", "0,00");
      inserir(*lado, "em parte " + dia.substr(3, 2), dia, "100,00", "0,01");
      inserir(*lado, "pago " + dia.substr(3, 2), dia, "100,00", "100,00");
    }
  EXPECT_THAT(todos(quadro()), ElementsAre(ElementsAre("aberto 10"), ElementsAre("aberto 10"), ElementsAre("aberto 09"),
                                           ElementsAre("aberto 09")));
}

TEST_F(QuadroListas, RowsComeByCodeAsADictionaryHasThem) {
  for (const Lado* lado : {&ladoReceber(), &ladoPagar()}) {
    for (const char* codigo : {"b", "Á2", "a1", "C"}) inserir(*lado, codigo, ontem);
    for (const char* codigo : {"10", "É", "9", "d"}) inserir(*lado, codigo, hoje);
  }
  const auto& tela = quadro();
  for (const ListView* lista : {&tela.lstPagarVencidas, &tela.lstReceberVencidas})
    EXPECT_THAT(codigos(*lista), ElementsAre("a1", "Á2", "b", "C"));
  for (const ListView* lista : {&tela.lstPagarDia, &tela.lstReceberDia})
    EXPECT_THAT(codigos(*lista), ElementsAre("10", "9", "d", "É"));
}

TEST_F(QuadroListas, TheTotalAddsWhatTheRowsShow) {
  receber("R1", ontem, "1.234.567,89");
  receber("R2", ontem, "0,11");
  receber("R3", ontem, "-10,00");
  pagar("P1", hoje, "0,005");
  pagar("P2", hoje, "0,005");
  const auto& tela = quadro();
  EXPECT_EQ(tela.lstPagarDia.item(0)->subItem(8), "0,01");
  EXPECT_THAT(totais(tela), ElementsAre("Total R$ 0,02", "Total R$ 0,00", "Total R$ 0,00", "Total R$ 1.234.558,00"));
}

TEST_F(QuadroListas, ATitleThatLostItsCustomerBearerCostCentreOrSalespersonIsNoLongerThere) {
  for (const char* codigo : {"R1", "R2", "R3", "R4", "R5"}) receber(codigo, ontem, "10,00");
  for (const char* codigo : {"P1", "P2", "P3", "P4"}) pagar(codigo, ontem, "10,00");
  Connection& empresa = cenario.programa.dbEmpresa().Dados();
  const std::string arquivo = empresa.dataSource();
  empresa.close();
  // The store refuses to lose them; a damaged file has no such manners.
  bancada::Arquivo(arquivo).executar(
      "PRAGMA foreign_keys = OFF; UPDATE FaturasCliente SET lCliente = 99 WHERE lCodigo = 1; UPDATE FaturasCliente SET "
      "lPortador = 99 WHERE lCodigo = 2; UPDATE FaturasCliente SET lCentroCusto = 99 WHERE lCodigo = 3; UPDATE "
      "FaturasCliente SET lVendedor = 99 WHERE lCodigo = 4; UPDATE FaturasFornecedor SET lFornecedor = 99 WHERE "
      "lCodigo = 1; UPDATE FaturasFornecedor SET lPortador = 99 WHERE lCodigo = 2; UPDATE FaturasFornecedor SET "
      "lCentroCusto = 99 WHERE lCodigo = 3");
  empresa.open();
  const auto& tela = quadro();
  EXPECT_THAT(codigos(tela.lstReceberVencidas), ElementsAre("R5"));
  EXPECT_THAT(codigos(tela.lstPagarVencidas), ElementsAre("P4"));
  EXPECT_THAT(totais(tela), ElementsAre("Total R$ 0,00", "Total R$ 0,00", "Total R$ 10,00", "Total R$ 10,00"));
}

TEST_F(QuadroListas, AListThatIsOffIsEmptyAndOutOfReach) {
  umEmCadaLista();
  ligar("bitMostrarContasVencidasReceber = -1");
  opcoes().vSetMotrarTodas(false);
  const auto& tela = aberto();
  EXPECT_THAT(todos(tela), ElementsAre(IsEmpty(), IsEmpty(), IsEmpty(), ElementsAre("R2")));
  for (const frmMostrarContas::Quadro& lista : tela.quadros) {
    const bool bLigada = &lista == &tela.quadros[3];
    EXPECT_EQ(lista.lst.visible(), bLigada);
    EXPECT_EQ(lista.lblContas.visible(), bLigada);
    EXPECT_EQ(lista.cmdEmitir.visible(), bLigada);
  }
  EXPECT_EQ(tela.focused(), &tela.lstReceberVencidas);
}

TEST_F(QuadroListas, ThePointerIsTheHourglassOnlyWhileTheListsAreFilled) {
  Pointer durante = Pointer::normal;
  cenario.programa.dbEmpresa().Dados().close();
  host.then([&] { durante = host.pointer(); });
  for (int i = 0; i < 4; ++i) host.expectBox(relatoDeFalha(), BoxAnswer::no);
  quadro();
  EXPECT_EQ(durante, Pointer::hourglass);
  EXPECT_EQ(host.pointer(), Pointer::normal);
}

TEST_F(QuadroListas, AListThatCannotBeReadIsReportedByNameAndTheScreenStays) {
  umEmCadaLista();
  Connection& empresa = cenario.programa.dbEmpresa().Dados();
  const std::string arquivo = empresa.dataSource();
  empresa.close();
  bancada::Arquivo(arquivo).executar("ALTER TABLE TitulosPagar RENAME TO Perdidos");
  empresa.open();
  std::vector<std::string> relatos;
  for (int i = 0; i < 2; ++i) {
    host.then([&] { relatos.push_back(relato()); });
    host.expectBox(relatoDeFalha(), BoxAnswer::no);
  }
  const auto& tela = quadro();
  ASSERT_EQ(relatos.size(), 2U);
  for (const std::string& texto : relatos) EXPECT_THAT(texto, testing::HasSubstr("frmMostrarContas"));
  EXPECT_THAT(relatos[0], testing::HasSubstr("vMontarListaContasPagarDia"));
  EXPECT_THAT(relatos[1], testing::HasSubstr("vMontarListaContasPagarVencidas"));
  EXPECT_EQ(tela.state(), Screen::State::loaded);
  EXPECT_THAT(todos(tela), ElementsAre(IsEmpty(), ElementsAre("R1"), IsEmpty(), ElementsAre("R2")));
}

TEST_F(QuadroListas, ARowThatTheTotalCannotTakeIsReportedByNameAndTheListGoesOn) {
  receber("R1", ontem, "900.000.000.000.000,00");
  receber("R2", ontem, "900.000.000.000.000,00");
  receber("R3", ontem, "1,00");
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  const auto& tela = quadro();
  EXPECT_THAT(relato(), testing::AllOf(testing::HasSubstr("bInserirListaContasReceberVencidas"),
                                       testing::HasSubstr("frmMostrarContas")));
  EXPECT_THAT(codigos(tela.lstReceberVencidas), ElementsAre("R1", "R2", "R3"));
  EXPECT_EQ(tela.lblContasReceberVencidas.caption(), "Total R$ 900.000.000.000.001,00");
}

}  // namespace
}  // namespace fenvale
