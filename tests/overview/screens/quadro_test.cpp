// What a clerk does at the overview: mark, jump to a title, sort, print, close.

#include "overview/screens/CenarioDoQuadro.h"
#include "platform/base/Error.h"
#include "shell/services/TelasDeApoio.h"
#include "titles/screens/TelaTitulosCadastro.h"

namespace fenvale {
namespace {

/// A title screen that remembers the clauses it was filled with.
class TitulosDeTeste : public Tela, public TelaTitulos {
 public:
  TitulosDeTeste(Contexto& contexto, std::string sNome) : Tela(contexto, std::move(sNome)) {}
  void vMontarLista(std::int16_t iInicio, const std::string& sWhere) override {
    if (bFalha()) throw Error(errors::invalidCall, "O arquivo está em uso.");
    pedidos().push_back(sGetName() + " | " + std::to_string(iInicio) + " | " + sWhere + "|");
  }
  void vSetFaturaPreview(std::int32_t) override {}
  static std::vector<std::string>& pedidos() {
    static std::vector<std::string> lista;
    return lista;
  }
  static bool& bFalha() {
    static bool bFalhar = false;
    return bFalhar;
  }
};

class OpcoesDeTeste final : public Tela, public OpcoesRelatorioLista {
 public:
  explicit OpcoesDeTeste(Contexto& contexto) : Tela(contexto, "frmOpcoesRelList") {}
  void vCarregar(const std::string& sTitulo, std::int16_t iColunas, ListView& lst) override {
    pedidos().push_back(sTitulo + " | " + std::to_string(iColunas) + " | " + lst.name());
  }
  static std::vector<std::string>& pedidos() {
    static std::vector<std::string> lista;
    return lista;
  }
};

void registrarComTitulosDeTeste(Telas& telas) {
  telas.registrar<frmMostrarContas>("frmMostrarContas");
  telas.registrar<OpcoesDeTeste>("frmOpcoesRelList");
  for (const Lado* lado : {&ladoReceber(), &ladoPagar()})
    telas.registrar(lado->titulos.sNome, [sNome = lado->titulos.sNome](Contexto& contexto) {
      return std::make_unique<TitulosDeTeste>(contexto, sNome);
    });
}

void registrarSomenteOQuadro(Telas& telas) { telas.registrar<frmMostrarContas>("frmMostrarContas"); }

class QuadroTest : public CenarioDoQuadro {
 protected:
  explicit QuadroTest(void (*registrar)(Telas&) = &registrarComTitulosDeTeste) : CenarioDoQuadro(registrar) {
    TitulosDeTeste::pedidos().clear();
    TitulosDeTeste::bFalha() = false;
    OpcoesDeTeste::pedidos().clear();
  }
  static bool bMarcado(const ListItem& item) { return item.bold() && item.colour() == 192; }
  static bool bLimpo(const ListItem& item) { return !item.bold() && item.colour() == 0; }
  static std::function<void(Screen&)> fechar() {
    return [](Screen& tela) { tela.unload(); };
  }
};

class QuadroSozinho : public QuadroTest {
 protected:
  QuadroSozinho() : QuadroTest(&registrarSomenteOQuadro) {}
};

class QuadroDoPrograma : public CenarioDoQuadro {};

TEST_F(QuadroTest, ALeftClickOnlyMarksTheRow) {
  receber("R1", ontem);
  receber("R2", ontem);
  auto& tela = quadro();
  tela.lstReceberVencidas.userClickRow(0);
  EXPECT_TRUE(bMarcado(*tela.lstReceberVencidas.item(0)));
  EXPECT_TRUE(bLimpo(*tela.lstReceberVencidas.item(1)));
  tela.lstReceberVencidas.userClickRow(1);
  EXPECT_TRUE(bLimpo(*tela.lstReceberVencidas.item(0)));
  EXPECT_TRUE(bMarcado(*tela.lstReceberVencidas.item(1)));
}

TEST_F(QuadroTest, OneRowIsMarkedOnTheWholeScreen) {
  umEmCadaLista();
  auto& tela = quadro();
  tela.lstPagarDia.userClickRow(0);
  tela.lstReceberVencidas.userClickRow(0);
  EXPECT_TRUE(bLimpo(*tela.lstPagarDia.item(0)));
  EXPECT_TRUE(bMarcado(*tela.lstReceberVencidas.item(0)));
}

TEST_F(QuadroTest, ARightClickMarksTheRowAndThenOpensTheMenu) {
  umEmCadaLista();
  auto& tela = quadro();
  bool bMarcadoAntes = false;
  host.then([&] { bMarcadoAntes = bMarcado(*tela.lstPagarDia.item(0)); });
  host.expectPopup("mnuPopUp", "");
  tela.lstPagarDia.userClickRow(0, MouseButton::right);
  EXPECT_TRUE(bMarcadoAntes);
  host.verify();
  EXPECT_THAT(TitulosDeTeste::pedidos(), IsEmpty()) << "the menu was closed without a choice";
  tela.lstPagarDia.userClickRow(0);
}

TEST_F(QuadroTest, TheMenuOpensOnceForOnePressOfTheRightButton) {
  umEmCadaLista();
  auto& tela = quadro();
  host.expectPopup("mnuPopUp", "");
  tela.lstPagarDia.userClickRow(0, MouseButton::right);
  host.verify();
  tela.lstReceberDia.onItemClick(tela.lstReceberDia.item(0));  // picked without the mouse
  EXPECT_TRUE(bMarcado(*tela.lstReceberDia.item(0)));
}

TEST_F(QuadroTest, WhereNoRowIsTheRightButtonOpensNothing) {
  auto& tela = quadro();
  tela.lstPagarDia.userRightClickEmpty();
}

TEST_F(QuadroTest, TheMenuLeadsToTheTitleOnTheScreenOfItsSide) {
  umEmCadaLista();
  auto& tela = quadro();
  const std::string sReceber = "frmCadastroTitulosReceber", sPagar = "frmCadastroTitulosPagar";
  for (const auto& [lista, sTela] : {std::pair{&tela.lstPagarDia, sPagar},
                                     {&tela.lstReceberDia, sReceber},
                                     {&tela.lstPagarVencidas, sPagar},
                                     {&tela.lstReceberVencidas, sReceber}}) {
    host.expectPopup("mnuPopUp", "mnuMotrarTitulo");
    host.expectScreen(sTela, fechar());
    lista->userClickRow(0, MouseButton::right);
    host.verify();
  }
  EXPECT_THAT(TitulosDeTeste::pedidos(),
              ElementsAre("frmCadastroTitulosPagar | 0 | WHERE TitulosPagar.lCodigo = 1 |",
                          "frmCadastroTitulosReceber | 0 | WHERE TitulosReceber.lCodigo = 1 |",
                          "frmCadastroTitulosPagar | 0 | WHERE TitulosPagar.lCodigo = 2 |",
                          "frmCadastroTitulosReceber | 0 | WHERE TitulosReceber.lCodigo = 2 |"));
}

TEST_F(QuadroTest, BackFromTheTitleOnlyTheListThatWasClickedIsFilledAnew) {
  umEmCadaLista();
  receber("R3", ontem, "50,00");
  auto& tela = quadro();
  ASSERT_EQ(tela.lblContasReceberVencidas.caption(), "Total R$ 150,00");
  host.expectPopup("mnuPopUp", "mnuMotrarTitulo");
  host.expectScreen("frmCadastroTitulosReceber", [&](Screen& titulos) {
    cenario.executar("UPDATE TitulosReceber SET fValorPago = fValor WHERE sCodigoInf <> 'R3'");
    cenario.executar("UPDATE TitulosPagar SET fValorPago = fValor");
    titulos.unload();
  });
  tela.lstReceberVencidas.userClickRow(0, MouseButton::right);
  EXPECT_THAT(todos(tela), ElementsAre(ElementsAre("P1"), ElementsAre("R1"), ElementsAre("P2"), ElementsAre("R3")));
  EXPECT_THAT(totais(tela), ElementsAre("Total R$ 100,00", "Total R$ 100,00", "Total R$ 100,00", "Total R$ 50,00"));
  EXPECT_EQ(host.pointer(), Pointer::normal);
}

TEST_F(QuadroTest, AListThatCannotBeFilledAnewIsReportedUnderTheHourglass) {
  umEmCadaLista();
  auto& tela = quadro();
  host.expectPopup("mnuPopUp", "mnuMotrarTitulo");
  host.expectScreen("frmCadastroTitulosPagar", [&](Screen& titulos) {
    titulos.unload();
    cenario.programa.dbEmpresa().Dados().close();
  });
  Pointer durante = Pointer::normal;
  host.then([&] { durante = host.pointer(); });
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  tela.lstPagarVencidas.userClickRow(0, MouseButton::right);
  EXPECT_EQ(durante, Pointer::hourglass);
  EXPECT_EQ(host.pointer(), Pointer::normal);
  EXPECT_THAT(todos(tela), ElementsAre(ElementsAre("P1"), ElementsAre("R1"), IsEmpty(), ElementsAre("R2")));
  EXPECT_THAT(totais(tela), Each("Total R$ 100,00")) << "the total is written when the list is whole";
  EXPECT_EQ(tela.state(), Screen::State::loaded);
}

TEST_F(QuadroTest, TheCursorGoesOnWhereTheSettledTitleStood) {
  for (const char* codigo : {"R1", "R2", "R3"}) receber(codigo, ontem);
  auto& tela = quadro();
  const auto baixar = [&](std::size_t linha) {
    host.expectPopup("mnuPopUp", "mnuMotrarTitulo");
    host.expectScreen("frmCadastroTitulosReceber", [&](Screen& titulos) {
      cenario.executar("UPDATE TitulosReceber SET fValorPago = fValor WHERE sCodigoInf = '" +
                       tela.lstReceberVencidas.item(linha)->text() + "'");
      titulos.unload();
    });
    tela.lstReceberVencidas.userClickRow(linha, MouseButton::right);
  };
  baixar(1);
  EXPECT_EQ(tela.lstReceberVencidas.selectedItem()->text(), "R3");
  EXPECT_TRUE(bLimpo(*tela.lstReceberVencidas.selectedItem())) << "it is under the cursor, not picked";
  baixar(1);
  EXPECT_EQ(tela.lstReceberVencidas.selectedItem()->text(), "R1");
  baixar(0);
  EXPECT_EQ(tela.lstReceberVencidas.selectedItem(), nullptr);
  EXPECT_EQ(tela.lblContasReceberVencidas.caption(), "Total R$ 0,00");
}

TEST_F(QuadroTest, AListThatWasSortedComesBackSorted) {
  receber("R1", ontem);
  receber("R2", ontem);
  auto& tela = quadro();
  for (int i = 0; i < 2; ++i) tela.lstReceberVencidas.userClickColumn(1);
  ASSERT_THAT(codigos(tela.lstReceberVencidas), ElementsAre("R2", "R1"));
  host.expectPopup("mnuPopUp", "mnuMotrarTitulo");
  host.expectScreen("frmCadastroTitulosReceber", fechar());
  tela.lstReceberVencidas.userClickRow(0, MouseButton::right);
  EXPECT_THAT(codigos(tela.lstReceberVencidas), ElementsAre("R2", "R1"));
}

TEST_F(QuadroTest, AHeadingSortsItsListByTextUpAndDownInTurnWhicheverItIs) {
  receber("R1", ontem, "9,00");
  receber("R2", ontem, "10,00");
  pagar("P1", ontem);
  pagar("P2", ontem);
  auto& tela = quadro();
  constexpr std::size_t valorDoTitulo = 9;
  tela.lstReceberVencidas.userClickColumn(valorDoTitulo);
  EXPECT_THAT(codigos(tela.lstReceberVencidas), ElementsAre("R2", "R1"));
  tela.lstPagarVencidas.userClickColumn(1);
  EXPECT_THAT(codigos(tela.lstPagarVencidas), ElementsAre("P2", "P1")) << "the turn is the screen's";
  tela.lstReceberVencidas.userClickColumn(1);
  EXPECT_THAT(codigos(tela.lstReceberVencidas), ElementsAre("R1", "R2"));
}

TEST_F(QuadroTest, ATitleThatCannotBeOpenedIsReportedAndTheListStays) {
  receber("R1", ontem);
  auto& tela = quadro();
  TitulosDeTeste::bFalha() = true;
  host.expectPopup("mnuPopUp", "mnuMotrarTitulo");
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  tela.lstReceberVencidas.userClickRow(0, MouseButton::right);
  const auto nomes = cenario.programa.pasta().nomes("Erros");
  ASSERT_EQ(nomes.size(), 1U);
  EXPECT_THAT(cenario.programa.pasta().ler("Erros/" + nomes[0]),
              testing::AllOf(testing::HasSubstr("mnuMotrarTitulo_Click"), testing::HasSubstr("frmMostrarContas")));
  EXPECT_EQ(tela.state(), Screen::State::loaded);
  EXPECT_THAT(codigos(tela.lstReceberVencidas), ElementsAre("R1"));
}

TEST_F(QuadroSozinho, WithoutTheScreensItLeadsToTheMenuEntryAndTheButtonsAreOff) {
  umEmCadaLista();
  auto& tela = quadro();
  for (frmMostrarContas::Quadro& lista : tela.quadros) {
    EXPECT_FALSE(lista.cmdEmitir.enabled());
    host.expectPopup("mnuPopUp", "");
    lista.lst.userClickRow(0, MouseButton::right);
    EXPECT_FALSE(tela.mnuPopUp.item("mnuMotrarTitulo").enabled);
  }
}

TEST_F(QuadroTest, EachListIsPrintedUnderItsOwnTitle) {
  umEmCadaLista();
  auto& tela = quadro();
  for (Button* botao : {&tela.cmdEmitirPagarDia, &tela.cmdEmitirPagarVencidas, &tela.cmdEmitirReceberDia,
                        &tela.cmdEmitirReceberVencidas})
    botao->userClick();
  EXPECT_THAT(OpcoesDeTeste::pedidos(),
              ElementsAre("Contas a pagar de 10/05/2026 | 130 | lstPagarDia",
                          "Contas a pagar vencidas em 10/05/2026 | 130 | lstPagarVencidas",
                          "Contas a receber de 10/05/2026 | 130 | lstReceberDia",
                          "Contas a receber vencidas em 10/05/2026 | 130 | lstReceberVencidas"));
}

TEST_F(QuadroTest, WithoutTheRightToPrintItIsToldAndNothingIsPrinted) {
  auto& tela = quadro();
  semDireito("bPoderImprimir");
  for (frmMostrarContas::Quadro& lista : tela.quadros) {
    host.expectBox(semPermissao());
    lista.cmdEmitir.userClick();
    host.verify();
  }
  EXPECT_THAT(OpcoesDeTeste::pedidos(), IsEmpty());
}

TEST_F(QuadroTest, EnterMovesOnAndEscCloses) {
  auto& tela = quadro();
  EXPECT_EQ(tela.focused(), &tela.lstPagarDia);
  EXPECT_TRUE(tela.userKey(Key::enter));
  EXPECT_EQ(tela.focused(), &tela.cmdEmitirPagarDia);
  EXPECT_FALSE(tela.userKey(Key::f5));
  EXPECT_FALSE(tela.userKey(Key::down));
  tela.userKey(Key::escape);
  EXPECT_EQ(tela.state(), Screen::State::unloaded);
}

TEST_F(QuadroTest, HoweverItIsClosedTheWidthsOfAllFourListsAreKept) {
  const auto fecharPor = [](frmMostrarContas& tela, int modo) {
    if (modo == 0) tela.userKey(Key::escape);
    if (modo == 1) tela.cmdFechar.userClick();
    if (modo == 2) tela.userClose();
  };
  const PastaTemporaria& pasta = cenario.programa.pasta();
  for (int modo = 0; modo < 3; ++modo) {
    umEmCadaLista();
    auto& tela = quadro();
    const float largura = 2000 + 100 * static_cast<float>(modo);
    for (frmMostrarContas::Quadro& lista : tela.quadros) lista.lst.userResizeColumn(1, largura);
    fecharPor(tela, modo);
    ASSERT_EQ(tela.state(), Screen::State::unloaded);
    EXPECT_THAT(todos(tela), Each(IsEmpty()));
    for (const frmMostrarContas::Quadro& lista : tela.quadros) EXPECT_EQ(lista.crcTotal, Currency());
    EXPECT_THAT(pasta.nomes("list"),
                ElementsAre("frmMostrarContas.lstPagarDia.XML", "frmMostrarContas.lstPagarVencidas.XML",
                            "frmMostrarContas.lstReceberDia.XML", "frmMostrarContas.lstReceberVencidas.XML"));
    for (const std::string& nome : pasta.nomes("list"))
      EXPECT_THAT(pasta.ler("list/" + nome),
                  testing::StartsWith("<root>\r\n<size>" + std::to_string(static_cast<int>(largura)) + "</size>\r\n"));
    cenario.executar("DELETE * FROM TitulosReceber");
    cenario.executar("DELETE * FROM TitulosPagar");
  }
}

TEST_F(QuadroTest, TheWidthsOfTheOverdueReceivablesAreNeverReadBack) {
  auto& primeira = quadro();
  const float desenhada = primeira.lstReceberVencidas.columnWidth(1);
  for (frmMostrarContas::Quadro& lista : primeira.quadros) lista.lst.userResizeColumn(1, 777);
  primeira.unload();
  auto& segunda = quadro();
  std::vector<float> larguras;
  for (const frmMostrarContas::Quadro& lista : segunda.quadros) larguras.push_back(lista.lst.columnWidth(1));
  EXPECT_THAT(larguras, ElementsAre(777, 777, 777, desenhada));
}

TEST_F(QuadroTest, TheOverdueReceivablesLookForTheirWidthsUnderAnotherName) {
  auto& primeira = quadro();
  primeira.unload();
  cenario.programa.pasta().gravar("list/frmMostrarContas.ReceberVencidas.XML", "<root><size>555</size></root>");
  EXPECT_FLOAT_EQ(quadro().lstReceberVencidas.columnWidth(1), 555);
}

TEST_F(QuadroTest, AListThatWasOffSavesTheWidthsItWasDesignedWith) {
  auto& primeira = quadro();
  for (frmMostrarContas::Quadro& lista : primeira.quadros) lista.lst.userResizeColumn(1, 777);
  const auto desenhada = static_cast<int>(listasDoQuadro()[0].colunas[0].fLargura);
  primeira.unload();
  opcoes().vSetMotrarTodas(false);
  auto& segunda = aberto();
  ASSERT_FALSE(segunda.lstPagarDia.visible());
  segunda.unload();
  EXPECT_THAT(cenario.programa.pasta().ler("list/frmMostrarContas.lstPagarDia.XML"),
              testing::StartsWith("<root>\r\n<size>" + std::to_string(desenhada) + "</size>"));
}

TEST_F(QuadroDoPrograma, ATitleIsSettledFromTheBoardAndLeavesIt) {
  receber("000001/001", ontem, "100,00");
  receber("000002/001", ontem, "40,00");
  auto& tela = quadro();
  host.expectPopup("mnuPopUp", "mnuMotrarTitulo");
  host.expectScreen("frmCadastroTitulosReceber", [&](Screen& aberta) {
    auto& titulos = dynamic_cast<TelaTitulosCadastro&>(aberta);
    EXPECT_THAT(codigos(titulos.lstLista), ElementsAre("000001/001"));
    titulos.lstLista.userClickRow(0);
    titulos.txtValorPago.userType("100,00");
    host.expectBox(pergunta("O valor pago informado (R$ 100,00) é igual ao valor do título.\r\nEsta operação "
                            "determinará o pagamento do título.\r\n\r\nConfirma o pagamento do título?"),
                   BoxAnswer::yes);
    host.expectBox(informacao("Operação concluída."));
    titulos.userKey(Key::f3);
    titulos.unload();
  });
  tela.lstReceberVencidas.userClickRow(0, MouseButton::right);
  EXPECT_THAT(codigos(tela.lstReceberVencidas), ElementsAre("000002/001"));
  EXPECT_EQ(tela.lblContasReceberVencidas.caption(), "Total R$ 40,00");
}

}  // namespace
}  // namespace fenvale
