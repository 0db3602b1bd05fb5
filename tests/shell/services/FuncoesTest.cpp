#include "shell/services/Funcoes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/base/Error.h"
#include "platform/os/Process.h"
#include "platform/sql/Store.h"
#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/ListView.h"
#include "shell/services/Telas.h"
#include "store/services/DBConectar.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::HasSubstr;

Currency valor(const char* texto) { return Currency::fromDecimal(texto); }

TEST(Meses, TheirNamesAndNothingElse) {
  std::string nomes;
  for (std::int16_t mes = 0; mes <= 13; ++mes) nomes += Funcoes::sGetMes(mes) + ";";
  EXPECT_EQ(nomes, ";Janeiro;Fevereiro;Março;Abril;Maio;Junho;Julho;Agosto;Setembro;Outubro;Novembro;Dezembro;;");
  EXPECT_EQ(Funcoes::sGetMes(-1), "");
}

TEST(Arredondamento, TowardsHigher) {
  EXPECT_EQ(Funcoes::iArrendondarValor_UP(valor("2")), 2);
  EXPECT_EQ(Funcoes::iArrendondarValor_UP(valor("2.01")), 3);
  EXPECT_EQ(Funcoes::iArrendondarValor_UP(valor("2.5")), 3);
  EXPECT_EQ(Funcoes::iArrendondarValor_UP(valor("3.5")), 4);
  EXPECT_EQ(Funcoes::iArrendondarValor_UP(valor("2.0001")), 3);
  EXPECT_EQ(Funcoes::iArrendondarValor_UP(valor("-2.5")), -2);
  EXPECT_EQ(Funcoes::iArrendondarValor_UP(valor("-2.99")), -2);
}

TEST(Arredondamento, TowardsLower) {
  EXPECT_EQ(Funcoes::iArrendondarValor_DOWN(valor("2.99")), 2);
  EXPECT_EQ(Funcoes::iArrendondarValor_DOWN(valor("3")), 3);
  EXPECT_EQ(Funcoes::iArrendondarValor_DOWN(valor("2.5")), 2);
  EXPECT_EQ(Funcoes::iArrendondarValor_DOWN(valor("3.5")), 3);
  EXPECT_EQ(Funcoes::iArrendondarValor_DOWN(valor("-2.01")), -3);
}

TEST(Arredondamento, TheTwoEmbraceEveryAmount) {
  for (std::int64_t unidades = -50000; unidades <= 50000; unidades += 37) {
    const Currency fValor = Currency::fromUnits(unidades);
    const auto acima = Funcoes::iArrendondarValor_UP(fValor);
    const auto abaixo = Funcoes::iArrendondarValor_DOWN(fValor);
    ASSERT_GE(Currency::fromInteger(acima), fValor);
    ASSERT_LE(Currency::fromInteger(abaixo), fValor);
    ASSERT_EQ(acima - abaixo, unidades % 10000 == 0 ? 0 : 1);
  }
}

TEST(Arredondamento, WhatDoesNotFitIsAnOverflow) {
  for (const char* texto : {"32768", "-32769", "32767.01"}) {
    try {
      Funcoes::iArrendondarValor_UP(valor(texto));
      ADD_FAILURE() << texto;
    } catch (const Error& falha) {
      EXPECT_EQ(falha.number, errors::overflow);
    }
  }
  EXPECT_EQ(Funcoes::iArrendondarValor_DOWN(valor("32767.01")), 32767);
}

TEST(Tempo, HoursAndMinutesOnlyWhenThereAreAny) {
  EXPECT_EQ(Funcoes::sFormatarTempo(3661000), "1h 1min 1s");
  EXPECT_EQ(Funcoes::sFormatarTempo(1000), "1s");
  EXPECT_EQ(Funcoes::sFormatarTempo(0), "0s");
  EXPECT_EQ(Funcoes::sFormatarTempo(999), "0s");
  EXPECT_EQ(Funcoes::sFormatarTempo(61999), "1min 1s");
  EXPECT_EQ(Funcoes::sFormatarTempo(3600000), "1h 0s");
  EXPECT_EQ(Funcoes::sFormatarTempo(2147483647), "596h 31min 23s");
}

TEST(CaracteresInvalidos, ControlsGoAndBlanksOnlyWhenTold) {
  EXPECT_EQ(Funcoes::sRetirarCaracterInvalido("a\tb\r\n c\x7F €ç", false), "ab c ç");
  EXPECT_EQ(Funcoes::sRetirarCaracterInvalido(" a b ", true), "ab");
  EXPECT_EQ(Funcoes::sRetirarCaracterInvalido("", true), "");
}

TEST(Caminhos, AreCutAtTheLastSeparatorOfEitherKind) {
  EXPECT_EQ(Funcoes::sGetNomeArquivoCaminho("C:\\dados\\loja.MDB"), "loja.MDB");
  EXPECT_EQ(Funcoes::sGetPathCaminho("C:\\dados\\loja.MDB"), "C:\\dados\\");
  EXPECT_EQ(Funcoes::sGetNomeArquivoCaminho("/home/ana/loja.MDB"), "loja.MDB");
  EXPECT_EQ(Funcoes::sGetPathCaminho("/home/ana/loja.MDB"), "/home/ana/");
  EXPECT_EQ(Funcoes::sGetNomeArquivoCaminho("loja.MDB"), "loja.MDB");
  EXPECT_EQ(Funcoes::sGetPathCaminho("loja.MDB"), "");
  EXPECT_EQ(Funcoes::sGetNomeArquivoCaminho("/home/"), "");
}

TEST(Cores, RedBelowZero) {
  EXPECT_EQ(Funcoes::lGetCor(valor("-0.01")), 192);
  EXPECT_EQ(Funcoes::lGetCor(valor("0")), 0);
  EXPECT_EQ(Funcoes::lGetCor(valor("7")), 0);
}

/// A screen with one control of each kind that the toolbox works on.
class Bancada final : public Screen {
 public:
  explicit Bancada(Contexto& contexto, const std::string& nome = "frmBancada") : Screen(contexto.host(), nome) {
    setLayout({solto(txtA), solto(cmb), solto(chk)});
  }
  TextBox txtA{*this, "txtA"};
  ComboBox cmb{*this, "cmb"};
  CheckBox chk{*this, "chk", "Marca"};
  MoneyBox valor{*this, "valor"};
  DatePicker data{*this, "data"};
  MaskBox cep{*this, "cep", masks::cep};
  CodeBox codigo{*this, "codigo"};
  ListView lst{*this, "lst", {{"A"}}};
  ProgressBar pb{*this, "pb"};
  Label rotulo{*this, "rotulo", "fica"};
};

class Ferramentas : public testing::Test {
 protected:
  void TearDown() override { host.verify(); }
  ProgramaDeTeste programa;
  TestHost& host = programa.hostDeTeste();
  Funcoes funcoes{programa};
  Bancada tela{programa};
};

TEST_F(Ferramentas, FilesAndFolders) {
  programa.pasta().gravar("sub/Loja.MDB", "x");
  const std::string base = programa.pasta().caminho();
  EXPECT_TRUE(funcoes.bVerificarArquivo(base + "\\SUB\\loja.mdb"));
  EXPECT_FALSE(funcoes.bVerificarArquivo(base + "/sub"));
  EXPECT_FALSE(funcoes.bVerificarArquivo(""));
  EXPECT_TRUE(funcoes.bExisteDiretorio(base + "\\sub\\"));
  EXPECT_FALSE(funcoes.bExisteDiretorio(base + "/nada"));
  EXPECT_FALSE(funcoes.bExisteDiretorio(""));
  funcoes.vVerificarCriarDiretorio(base + "/novo");
  funcoes.vVerificarCriarDiretorio(base + "/novo");
  EXPECT_TRUE(funcoes.bExisteDiretorio(base + "/novo"));
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { funcoes.vVerificarCriarDiretorio(base + "/sub/Loja.MDB/x"); }),
            exitFailure);
}

TEST_F(Ferramentas, ThePointerAnswersItsArgument) {
  EXPECT_FALSE(funcoes.bSetAmpulhetaMouse(false));
  EXPECT_EQ(host.pointer(), Pointer::hourglass);
  EXPECT_TRUE(funcoes.bSetAmpulhetaMouse(true));
  EXPECT_EQ(host.pointer(), Pointer::normal);
}

TEST_F(Ferramentas, EnterIsATab) {
  host.show(tela);
  ASSERT_TRUE(tela.txtA.hasFocus());
  EXPECT_TRUE(funcoes.bTestarTecla(13));
  EXPECT_TRUE(tela.cmb.hasFocus());
  EXPECT_FALSE(funcoes.bTestarTecla(9));
  EXPECT_FALSE(funcoes.bTestarTecla(114));
  EXPECT_TRUE(tela.cmb.hasFocus());
}

TEST_F(Ferramentas, APrintScreenIsShutWhileItPrints) {
  funcoes.vHabilitarFormImpressao(tela, false);
  EXPECT_FALSE(tela.enabled());
  EXPECT_EQ(host.pointer(), Pointer::hourglass);
  funcoes.vHabilitarFormImpressao(tela, true);
  EXPECT_TRUE(tela.enabled());
  EXPECT_EQ(host.pointer(), Pointer::normal);
}

TEST_F(Ferramentas, TheBackgroundFollowsTheMonitor) {
  for (const char* nome : {"FiguraFundo800x600.gif", "FiguraFundo1024x768.gif", "FiguraFundo1280x1024.gif"})
    programa.pasta().gravar(nome, "x");
  const auto figura = [&](int largura, int altura) {
    host.setMonitorSize({largura, altura});
    funcoes.vColocarFiguraFundo();
    return programa.janelaDeTeste().background().substr(programa.pasta().caminho().size());
  };
  EXPECT_EQ(figura(1024, 768), "/FiguraFundo1024x768.gif");
  EXPECT_EQ(figura(1280, 1024), "/FiguraFundo1280x1024.gif");
  EXPECT_EQ(figura(1920, 1080), "/FiguraFundo800x600.gif");
}

TEST_F(Ferramentas, WithoutThePictureTheBackgroundStays) {
  funcoes.vColocarFiguraFundo();
  EXPECT_EQ(programa.janelaDeTeste().background(), "");
}

TEST_F(Ferramentas, AScreenThatIsNotThereIsReported) {
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { funcoes.vMostrarFormModal("frmNaoHa"); }), exitFailure);
  EXPECT_THAT(programa.pasta().ler("Erros/260315143207.err"),
              HasSubstr("Formul\xE1rio: Funcoes\r\nFun\xE7\xE3o: vMostrarFormModal\r\nN\xFAmero do erro: 91\r\n"));
}

TEST_F(Ferramentas, ACombosEntriesCarryTheirKeys) {
  programa.abrirPrograma();
  tela.cmb.addItem("velha", 9);
  Recordset rs("SELECT sNome, sUF, lCodigo FROM Cidades ORDER BY lCodigo", programa.dbConectar().Dados());
  rs.moveNext();
  const int antes = host.eventsLetThrough();
  funcoes.vMontarCombo(tela.cmb, rs, "lCodigo", "sNome");
  ASSERT_EQ(tela.cmb.items().size(), 2U);
  EXPECT_EQ(tela.cmb.items()[0].text, "Londrina");
  EXPECT_EQ(tela.cmb.items()[1].data, 2);
  EXPECT_EQ(host.eventsLetThrough() - antes, 2);
  funcoes.vMontarComboCustomizado(tela.cmb, rs, "lCodigo", "sNome", "sUF");
  EXPECT_EQ(tela.cmb.items().at(1).text, "São Paulo - SP");
  EXPECT_EQ(tela.cmb.items().at(1).data, 2);
  funcoes.vMontarComboSemChave(tela.cmb, rs, "sUF");
  EXPECT_EQ(tela.cmb.items().at(0).text, "PR");
  EXPECT_EQ(tela.cmb.items().at(0).data, 0);
}

TEST_F(Ferramentas, AnEmptyAnswerEmptiesTheCombo) {
  programa.abrirPrograma();
  tela.cmb.addItem("velha", 9);
  Recordset rs("SELECT sLogin, lCodigo FROM Usuarios ", programa.dbConectar().Dados());
  funcoes.vMontarCombo(tela.cmb, rs, "lCodigo", "sLogin");
  EXPECT_TRUE(tela.cmb.items().empty());
}

TEST_F(Ferramentas, ACombosUnknownFieldIsReported) {
  programa.abrirPrograma();
  Recordset rs("SELECT sNome FROM Cidades", programa.dbConectar().Dados());
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { funcoes.vMontarCombo(tela.cmb, rs, "lCodigo", "sNome"); }),
            exitFailure);
}

TEST_F(Ferramentas, MonthsAndDays) {
  funcoes.vMontarComboMeses(tela.cmb);
  ASSERT_EQ(tela.cmb.items().size(), 12U);
  EXPECT_EQ(tela.cmb.items()[2].text, "Março");
  tela.cmb.clear();
  funcoes.vMontarComboDiasMes(tela.cmb);
  ASSERT_EQ(tela.cmb.items().size(), 31U);
  EXPECT_EQ(tela.cmb.items()[0].text, "1");
  EXPECT_EQ(tela.cmb.items()[30].text, "31");
}

TEST_F(Ferramentas, AnEntryIsFoundByItsWholeText) {
  for (const char* texto : {"Laser do balcão", "Laser", "Arquivo PDF"}) tela.cmb.addItem(texto);
  EXPECT_TRUE(funcoes.bLookCombo(tela.cmb, "LASER"));
  EXPECT_EQ(tela.cmb.listIndex(), 1);
  EXPECT_FALSE(funcoes.bLookCombo(tela.cmb, "Arquivo"));
  EXPECT_FALSE(funcoes.bLookCombo(tela.cmb, ""));
  EXPECT_EQ(tela.cmb.listIndex(), 1);
}

TEST_F(Ferramentas, TypingCompletesTheEntry) {
  for (const char* texto : {"Ana", "Antônio", "Beatriz"}) tela.cmb.addItem(texto, 7);
  tela.cmb.onKeyPress = [&](std::string_view letra) { return funcoes.vComboMagico(tela.cmb, letra); };
  tela.cmb.userKeyPress("a");
  EXPECT_EQ(tela.cmb.text(), "Ana");
  EXPECT_EQ(tela.cmb.selectionStart(), 1U);
  EXPECT_EQ(tela.cmb.selectionLength(), 2U);
  tela.cmb.userKeyPress("n");
  tela.cmb.userKeyPress("t");
  EXPECT_EQ(tela.cmb.text(), "Antônio");
  EXPECT_EQ(tela.cmb.listIndex(), 1);
  EXPECT_EQ(tela.cmb.selectionStart(), 3U);
  EXPECT_EQ(tela.cmb.selectionLength(), 4U);
  tela.cmb.userKeyPress("x");
  EXPECT_EQ(tela.cmb.text(), "Antônio");
  EXPECT_EQ(tela.cmb.selectionStart(), 3U);
  EXPECT_FALSE(funcoes.vComboMagico(tela.cmb, "z"));
}

TEST_F(Ferramentas, ThePrinterOfTheSettings) {
  programa.abrirPrograma();
  EXPECT_EQ(funcoes.sGetNomeImpressora(), "");
  programa.executarPrograma("INSERT INTO Configuracoes (sNomeImpressora) VALUES ('Laser do balcão')");
  EXPECT_EQ(funcoes.sGetNomeImpressora(), "Laser do balcão");
}

TEST_F(Ferramentas, WhatTheReportControlReported) {
  const std::vector<std::pair<std::int32_t, const char*>> casos{
      {-2147467259, "Erro na consulta SQL."},
      {1001, "É necessário existir uma impressora instalada no Windows."},
      {1002, "Não há registros a imprimir."},
      {1003, "Erro na configuração interna do relatório."},
      {1004, "Erro na configuração interna do relatório."},
      {1005, "Erro na configuração interna do relatório."},
      {1006, "A página configurada para o relatório não possuí espaço suficiente para a impressão."},
      {1007, "Já existe um relatório em andamento."},
      {1008, ""}};
  for (const auto& [codigo, texto] : casos) {
    host.expectBox(aviso(texto, "Impressão"));
    funcoes.Rpx_MsgErro(codigo);
  }
}

TEST_F(Ferramentas, ClearingAScreenGivesEachKindItsEmptyState) {
  tela.txtA.setText("x");
  tela.cmb.addItem("um", 1);
  tela.cmb.setListIndex(0);
  tela.chk.setChecked(true);
  tela.valor.setValue(valor("12.5"));
  tela.data.setValue(makeDate(2020, 1, 1));
  tela.cep.setText("86000-000");
  tela.codigo.setText("7");
  tela.lst.addItem("000001", "linha");
  tela.pb.setMaximum(50);
  tela.pb.setValue(20);
  const int antes = host.eventsLetThrough();
  funcoes.vLimparTudo(tela.controls());
  EXPECT_EQ(tela.txtA.text() + tela.cmb.text() + tela.cep.text() + tela.codigo.text(), "");
  EXPECT_EQ(tela.cmb.listIndex(), -1);
  EXPECT_EQ(tela.cmb.items().size(), 1U);
  EXPECT_FALSE(tela.chk.checked());
  EXPECT_EQ(tela.valor.value(), Currency());
  EXPECT_EQ(tela.data.value(), makeDate(2026, 3, 15));
  EXPECT_TRUE(tela.lst.items().empty());
  EXPECT_EQ(tela.pb.value(), 0);
  EXPECT_EQ(tela.pb.maximum(), 50);
  EXPECT_EQ(tela.rotulo.caption(), "fica");
  EXPECT_EQ(host.eventsLetThrough() - antes, 10);
}

}  // namespace
}  // namespace fenvale
