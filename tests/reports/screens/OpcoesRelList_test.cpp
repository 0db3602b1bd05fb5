// The options of list printing, as a clerk meets them: what is proposed, what is refused, and the bytes that come out.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "access/services/Permissoes.h"
#include "app/Registro.h"
#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/ui/ListView.h"
#include "reports/screens/frmOpcoesRelList.h"
#include "shell/services/Telas.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string regua80 = "+" + std::string(78, '-') + "+\r\n";

/// A line of 80 characters that starts so.
std::string linha80(const std::string& inicio) {
  return toWindows1252(inicio) + std::string(79 - length(inicio), ' ') + "|\r\n";
}

/// What the list of two categories is, by the widths of the list, below a line with that title.
std::string listagem80(const std::string& titulo) {
  return regua80 + linha80(titulo) + regua80 + linha80("|Código   |Nome") + regua80 + linha80("|1        |Revenda") +
         linha80("|2        |Consumidor") + regua80;
}

class OpcoesRelList : public testing::Test {
 protected:
  OpcoesRelList() {
    programa.abrirPrograma();
    lst.addItem("", "1")->setSubItem(1, "Revenda");
    lst.addItem("", "2")->setSubItem(1, "Consumidor");
  }

  /// Opens the options for the list of categories; `acao` must leave them closed.
  void abrir(const std::function<void(frmOpcoesRelList&)>& acao, const std::string& titulo = "Cadastro de categorias",
             std::int16_t colunas = 80) {
    host.expectScreen("frmOpcoesRelList", [&](Screen& tela) { acao(dynamic_cast<frmOpcoesRelList&>(tela)); });
    programa.telas().obter<OpcoesRelatorioLista>("frmOpcoesRelList").vCarregar(titulo, colunas, lst);
    host.verify();
  }

  /// Prints with what `preparar` sets, and answers the question.
  void imprimir(
      const std::function<void(frmOpcoesRelList&)>& preparar = [](frmOpcoesRelList&) {},
      BoxAnswer resposta = BoxAnswer::yes) {
    abrir([&](frmOpcoesRelList& tela) {
      preparar(tela);
      host.expectBox(pergunta("Confirma a impressão?"), resposta);
      tela.userKey(Key::f5);
      EXPECT_EQ(tela.state(), Screen::State::unloaded);
    });
  }

  /// Prints, and the failure ends the program; what its report says of the place.
  std::string imprimirEFalhar(const std::function<void(frmOpcoesRelList&)>& preparar = [](frmOpcoesRelList&) {}) {
    host.expectScreen("frmOpcoesRelList", [&](Screen& aberta) {
      auto& tela = dynamic_cast<frmOpcoesRelList&>(aberta);
      preparar(tela);
      host.expectBox(pergunta("Confirma a impressão?"), BoxAnswer::yes);
      host.expectBox(relatoDeFalha(), BoxAnswer::no);
      tela.userKey(Key::f5);
    });
    const auto codigo = programa.codigoDeSaida([&] {
      programa.telas().obter<OpcoesRelatorioLista>("frmOpcoesRelList").vCarregar("Cadastro de categorias", 80, lst);
    });
    host.verify();
    EXPECT_EQ(codigo, 1);
    const std::string relato = fromWindows1252(programa.pasta().ler("Erros/260315143207.err"));
    const std::size_t inicio = relato.find("Formulário: ");
    return inicio == std::string::npos ? relato : relato.substr(inicio, relato.find("\r\n\r\n") - inicio);
  }

  std::string ler(const std::string& nome) const { return programa.pasta().ler(nome); }
  std::string caminho(const std::string& nome) const { return programa.pasta().arquivo(nome); }
  const std::vector<std::string>& abertos() { return programa.processoDeTeste().abertos; }

  ProgramaDeTeste programa{vRegistrarTelas};
  TestHost& host = programa.hostDeTeste();
  Screen chamadora{host, "frmChamadora"};
  ListView lst{chamadora, "lstLista", {{"Código", 1000}, {"Nome", 6000}}};
};

std::vector<std::string> textos(const ComboBox& combo) {
  std::vector<std::string> lista;
  for (const auto& item : combo.items()) lista.push_back(item.text);
  return lista;
}

TEST_F(OpcoesRelList, ProposeWhatTheScreenHandedOver) {
  abrir(
      [](frmOpcoesRelList& tela) {
        EXPECT_EQ(tela.caption(), "Impressão");
        EXPECT_EQ(tela.title(), "Opções para impressão de listagem");
        EXPECT_THAT(textos(tela.cmbSaida),
                    ElementsAre("Direto para a impressora (porta LPT1)", "Arquivo de texto puro (.txt)",
                                "Arquivo em formato PDF (.pdf)"));
        EXPECT_EQ(tela.cmbSaida.listIndex(), -1) << "nothing is remembered yet";
        EXPECT_THAT(textos(tela.cmbOpcaoDimensionamento),
                    ElementsAre("Tamanho máximo do texto do cabeçalho das colunas", "Tamanho das colunas da listagem"));
        EXPECT_EQ(tela.cmbOpcaoDimensionamento.listIndex(), 1);
        EXPECT_EQ(tela.txtTitulo.text(), "Cadastro de clientes");
        EXPECT_THAT(textos(tela.cmbColunas), ElementsAre("80", "130"));
        EXPECT_EQ(tela.cmbColunas.text(), "130");
        EXPECT_EQ(tela.cmbSaida.label(), "Selecione o tipo de saída para o relatório");
        EXPECT_EQ(tela.cmbOpcaoDimensionamento.label(), "Opção de dimensionamento das colunas do relatório");
        EXPECT_EQ(tela.txtTitulo.label(), "Título do relatório");
        EXPECT_EQ(tela.cmbColunas.label(), "Número de colunas");
        tela.userKey(Key::escape);
        EXPECT_EQ(tela.state(), Screen::State::unloaded);
      },
      "Cadastro de clientes", 130);
  EXPECT_FALSE(programa.pasta().existe("outputRep.XML"));
}

TEST_F(OpcoesRelList, ForgetTheDimensioningAndTheTitleBetweenTwoPrintings) {
  abrir([](frmOpcoesRelList& tela) {
    tela.cmbOpcaoDimensionamento.userChoose(0);
    tela.txtTitulo.userType("Outro");
    tela.userKey(Key::escape);
  });
  abrir([](frmOpcoesRelList& tela) {
    EXPECT_EQ(tela.cmbOpcaoDimensionamento.listIndex(), 1);
    EXPECT_EQ(tela.txtTitulo.text(), "Cadastro de categorias");
    tela.userKey(Key::escape);
  });
}

TEST_F(OpcoesRelList, RememberTheOutputWhenTheyAreClosed) {
  abrir([](frmOpcoesRelList& tela) {
    tela.cmbSaida.userChoose(1);
    tela.userKey(Key::escape);
  });
  EXPECT_EQ(ler("outputRep.XML"), "<root><opt>1</opt></root>\r\n");
  abrir([](frmOpcoesRelList& tela) {
    EXPECT_EQ(tela.cmbSaida.listIndex(), 1);
    tela.cmbSaida.userChoose(2);
    tela.userClose();
  });
  EXPECT_EQ(ler("outputRep.XML"), "<root><opt>2</opt></root>\r\n");
  abrir([](frmOpcoesRelList& tela) {
    tela.cmbSaida.userChoose(0);
    tela.cmdFechar.userClick();
  });
  EXPECT_EQ(ler("outputRep.XML"), "<root><opt>0</opt></root>\r\n");
}

TEST_F(OpcoesRelList, WithoutAnOutputChosenTheFileStaysAsItWas) {
  programa.pasta().gravar("outputRep.XML", "<root>\n <opt>0</opt>\n</root>");
  abrir([](frmOpcoesRelList& tela) {
    EXPECT_EQ(tela.cmbSaida.listIndex(), 0);
    tela.cmbSaida.setListIndex(-1);
    tela.userKey(Key::escape);
  });
  EXPECT_EQ(ler("outputRep.XML"), "<root>\n <opt>0</opt>\n</root>");
}

TEST_F(OpcoesRelList, AMemoryThatTellsNoOutputChoosesNone) {
  for (const char* memoria : {"", "<root><opt>1</opt>", "<root><opt>3</opt></root>", "<root><opt>-1</opt></root>",
                              "<root><opt>x</opt></root>", "<root><opt/></root>", "<root/>"}) {
    programa.pasta().gravar("outputRep.XML", memoria);
    abrir([&](frmOpcoesRelList& tela) {
      EXPECT_EQ(tela.cmbSaida.listIndex(), -1) << memoria;
      tela.userKey(Key::escape);
    });
    EXPECT_EQ(ler("outputRep.XML"), memoria);
  }
}

TEST_F(OpcoesRelList, AMemoryThatCannotBeWrittenIsReported) {
  std::filesystem::create_directory(caminho("outputRep.XML"));
  host.expectScreen("frmOpcoesRelList", [&](Screen& tela) {
    dynamic_cast<frmOpcoesRelList&>(tela).cmbSaida.userChoose(1);
    host.expectBox(relatoDeFalha(), BoxAnswer::no);
    tela.userKey(Key::escape);
  });
  EXPECT_EQ(programa.codigoDeSaida(
                [&] { programa.telas().obter<OpcoesRelatorioLista>("frmOpcoesRelList").vCarregar("X", 80, lst); }),
            1);
  EXPECT_THAT(fromWindows1252(ler("Erros/260315143207.err")),
              HasSubstr("Formulário: frmOpcoesRelList\r\nFunção: Form_Unload\r\nNúmero do erro: 75\r\n"));
}

TEST_F(OpcoesRelList, AMemoryThatCannotBeReadChoosesNone) {
  std::filesystem::create_symlink("/proc/self/mem", caminho("outputRep.XML"));
  abrir([](frmOpcoesRelList& tela) {
    EXPECT_EQ(tela.cmbSaida.listIndex(), -1);
    tela.userKey(Key::escape);
  });
}

TEST_F(OpcoesRelList, WithoutTheRightToPrintNothingElseIsChecked) {
  programa.executarPrograma(
      "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
      "bPoderImprimir, bPoderAtualizar) VALUES ('Ana', 'ana', 'x', -1, -1, -1, 0, -1)");
  programa.permissoes().vSetPermissoes(1);
  abrir([&](frmOpcoesRelList& tela) {
    tela.txtTitulo.setText("");
    host.expectBox(semPermissao());
    tela.userKey(Key::f5);
    host.verify();
    EXPECT_EQ(tela.state(), Screen::State::loaded);
    tela.userKey(Key::escape);
  });
}

TEST_F(OpcoesRelList, TheTitleIsAskedForBeforeTheColumns) {
  abrir([&](frmOpcoesRelList& tela) {
    tela.txtTitulo.userType("");
    tela.cmbColunas.setListIndex(-1);
    host.expectBox(aviso("Informe o título."));
    tela.cmdEmitir.userClick();
    host.verify();
    EXPECT_TRUE(tela.txtTitulo.hasFocus());
    tela.txtTitulo.userType("Categorias");
    host.expectBox(aviso("Informe o número de colunas."));
    tela.cmdEmitir.userClick();
    host.verify();
    EXPECT_TRUE(tela.cmbColunas.hasFocus());
    EXPECT_THAT(abertos(), IsEmpty());
    tela.cmdFechar.userClick();
    EXPECT_EQ(tela.state(), Screen::State::unloaded);
  });
}

TEST_F(OpcoesRelList, OptionsAsAWholeFillTheScreenButForTheDimensioning) {
  auto& tela = programa.telas().obter<frmOpcoesRelList>("frmOpcoesRelList");
  OpcoesImpressaoList opcoes;
  opcoes.vSetTitulo("Categorias");
  opcoes.vSetList(lst);
  opcoes.vSetOpcaoDimensionamento(0);
  tela.vSetOpcoes(opcoes);
  EXPECT_EQ(tela.txtTitulo.text(), "Categorias");
  EXPECT_EQ(tela.cmbColunas.text(), "130");
  EXPECT_EQ(tela.cmbOpcaoDimensionamento.listIndex(), 1);
  tela.cmbColunas.setListIndex(-1);
  tela.cmbOpcaoDimensionamento.userChoose(0);
  opcoes.vSetColunas(100);
  tela.vSetOpcoes(opcoes);
  EXPECT_EQ(tela.cmbOpcaoDimensionamento.listIndex(), 1);
  EXPECT_EQ(tela.cmbColunas.listIndex(), -1) << "a width that is none of the two";
  host.expectBox(aviso("Informe o número de colunas."));
  tela.cmdEmitir.userClick();
  tela.cmbColunas.userChoose(0);
  host.expectBox(pergunta("Confirma a impressão?"), BoxAnswer::yes);
  tela.cmdEmitir.userClick();
  host.verify();
  EXPECT_EQ(ler("Categorias.txt"), listagem80("|" + std::string(35, ' ') + "Categorias"))
      << "by the widths of the list";
}

TEST_F(OpcoesRelList, ATextIsWrittenBesideTheProgramAndOpened) {
  imprimir();
  EXPECT_EQ(ler("Cadastro de categorias.txt"), listagem80("|                             Cadastro de categorias"));
  EXPECT_THAT(abertos(), ElementsAre(caminho("Cadastro de categorias.txt")));
  EXPECT_FALSE(programa.pasta().existe("buffer.rep"));
  EXPECT_FALSE(programa.pasta().existe("outputRep.XML")) << "without an output chosen a text is made, and nothing kept";
}

TEST_F(OpcoesRelList, TheSameTitleOverwritesItsFileWithoutAQuestion) {
  programa.pasta().gravar("cadastro de CATEGORIAS.txt", std::string(100000, 'x'));
  imprimir([](frmOpcoesRelList& tela) { tela.cmbSaida.userChoose(1); });
  EXPECT_EQ(ler("cadastro de CATEGORIAS.txt"), listagem80("|                             Cadastro de categorias"));
  EXPECT_EQ(ler("outputRep.XML"), "<root><opt>1</opt></root>\r\n");
}

TEST_F(OpcoesRelList, AnswerNoMakesNothingAndClosesTheScreen) {
  for (const int saida : {0, 1, 2}) {
    imprimir([&](frmOpcoesRelList& tela) { tela.cmbSaida.userChoose(saida); }, BoxAnswer::no);
    EXPECT_FALSE(programa.pasta().existe("Cadastro de categorias.txt"));
    EXPECT_FALSE(programa.pasta().existe("Cadastro de categorias.txt.PDF"));
    EXPECT_THAT(programa.impressorasDeTeste().trabalhos, IsEmpty());
    EXPECT_THAT(abertos(), IsEmpty());
    EXPECT_EQ(ler("outputRep.XML"), "<root><opt>" + std::to_string(saida) + "</opt></root>\r\n");
  }
}

TEST_F(OpcoesRelList, ATitleThatNoFileCanHavePrintsUnchangedUnderACleanName) {
  imprimir([](frmOpcoesRelList& tela) { tela.txtTitulo.userType(R"(1/2\3:4*5?6"7<8>9|Fim)"); });
  EXPECT_EQ(ler("1-2-3-4-5-6-7-8-9-Fim.txt"), listagem80("|" + std::string(29, ' ') + R"(1/2-3:4*5?6"7<8>9|Fim)"));
}

TEST_F(OpcoesRelList, ATitleLongerThanTheLineIsCutInTheHeadingButNotInTheName) {
  const std::string titulo = std::string(80, 'a') + "bcd";
  imprimir([&](frmOpcoesRelList& tela) { tela.txtTitulo.userType(titulo); });
  EXPECT_EQ(ler(titulo + ".txt"), listagem80("| " + std::string(77, 'a')));
}

TEST_F(OpcoesRelList, ALineOf130HasRoomForALongerTitle) {
  const auto titulo130 = [this](const std::string& titulo) {
    imprimir([&](frmOpcoesRelList& tela) {
      tela.txtTitulo.userType(titulo);
      tela.cmbColunas.userChoose(1);
    });
    return files::lines(ler(titulo + ".txt")).at(1);
  };
  EXPECT_EQ(titulo130(std::string(100, 'a')),
            "|" + std::string(15, ' ') + std::string(100, 'a') + std::string(13, ' ') + "|");
  EXPECT_EQ(titulo130(std::string(140, 'b')), "| " + std::string(127, 'b') + "|");
}

TEST_F(OpcoesRelList, ATitleLongerThanANameCanBeIsCutInTheNameToo) {
  std::string titulo;
  for (int i = 0; i < 200; ++i) titulo += "ç";
  imprimir([&](frmOpcoesRelList& tela) { tela.txtTitulo.userType(titulo); });
  EXPECT_EQ(ler(left(titulo, 115) + ".txt"), listagem80("| " + left(titulo, 77)));
}

TEST_F(OpcoesRelList, TheHeadingsDecideTheColumnsWhenTheClerkChoosesSo) {
  const std::string esperado = regua80 + linha80("|                             Cadastro de categorias") + regua80 +
                               linha80("|Código                                |Nome") + regua80 +
                               linha80("|1                                     |Revenda") +
                               linha80("|2                                     |Consumidor") + regua80;
  imprimir([](frmOpcoesRelList& tela) {
    tela.cmbOpcaoDimensionamento.setFocus();
    tela.cmbOpcaoDimensionamento.userChoose(0);
    tela.userKey(Key::enter);
    EXPECT_TRUE(tela.txtTitulo.hasFocus());
  });
  EXPECT_EQ(ler("Cadastro de categorias.txt"), esperado);
  programa.pasta().gravar("Cadastro de categorias.txt", "");
  imprimir([](frmOpcoesRelList& tela) {
    tela.cmbOpcaoDimensionamento.setFocus();
    tela.cmbOpcaoDimensionamento.userChoose(0);
  });
  EXPECT_EQ(ler("Cadastro de categorias.txt"), esperado) << "F5 counts as leaving the box";
}

TEST_F(OpcoesRelList, LinesOf130ComeInCondensedMode) {
  imprimir([](frmOpcoesRelList& tela) { tela.cmbColunas.userChoose(1); });
  const std::string bytes = ler("Cadastro de categorias.txt");
  EXPECT_TRUE(bytes.starts_with("\x0F+" + std::string(128, '-') + "+\r\n|"));
  EXPECT_TRUE(bytes.ends_with("+\r\n\x12"));
}

TEST_F(OpcoesRelList, AColumnMadeNarrowOnTheScreenIsHiddenOnPaper) {
  lst.userResizeColumn(1, 50);
  imprimir();
  EXPECT_THAT(ler("Cadastro de categorias.txt"), HasSubstr("\r\n" + linha80("|Nome") + regua80 + linha80("|Revenda")));
}

TEST_F(OpcoesRelList, EnterMovesOnAndTypingCompletes) {
  abrir([&](frmOpcoesRelList& tela) {
    tela.cmbSaida.setFocus();
    tela.cmbSaida.select(0, 0);
    tela.cmbSaida.userKeyPress("a");
    EXPECT_EQ(tela.cmbSaida.listIndex(), 1);
    EXPECT_EQ(tela.cmbSaida.selectionStart(), 1u);
    for (const Control* seguinte : std::initializer_list<const Control*>{
             &tela.cmbOpcaoDimensionamento, &tela.txtTitulo, &tela.cmbColunas, &tela.cmdEmitir, &tela.cmdFechar}) {
      EXPECT_TRUE(tela.userKey(Key::enter));
      EXPECT_TRUE(seguinte->hasFocus()) << seguinte->name();
    }
    tela.cmbColunas.select(0, 3);
    tela.cmbColunas.userKeyPress("1");
    EXPECT_EQ(tela.cmbColunas.text(), "130");
    tela.cmbOpcaoDimensionamento.select(0, 50);
    tela.cmbOpcaoDimensionamento.userKeyPress("t");
    EXPECT_EQ(tela.cmbOpcaoDimensionamento.listIndex(), 0);
    EXPECT_EQ(tela.cmbOpcaoDimensionamento.selectionStart(), 1u);
    tela.userKey(Key::escape);
  });
}

TEST_F(OpcoesRelList, AFileThatNoProgramOpensIsStillThere) {
  programa.processoDeTeste().abreArquivos = false;
  abrir([&](frmOpcoesRelList& tela) {
    host.expectBox(pergunta("Confirma a impressão?"), BoxAnswer::yes);
    host.expectBox(
        critica("O arquivo foi gravado, mas não pôde ser aberto.\r\n\r\nNão há programa que abra o arquivo " +
                caminho("Cadastro de categorias.txt") + "."));
    tela.userKey(Key::f5);
  });
  EXPECT_TRUE(programa.pasta().existe("Cadastro de categorias.txt"));
}

TEST_F(OpcoesRelList, AColumnThatFitsOnNoLineIsReportedAndLeavesNoFile) {
  lst.setColumnWidth(2, 20000);
  EXPECT_EQ(
      imprimirEFalhar(),
      "Formulário: ImpressaoList\r\nFunção: vMontarCabecalho_1\r\nNúmero do erro: 6\r\nDescrição do erro: A coluna "
      "\"Nome\" da listagem não cabe em uma linha de 80 caracteres.");
  EXPECT_FALSE(programa.pasta().existe("Cadastro de categorias.txt"));
  EXPECT_THAT(abertos(), IsEmpty());
}

TEST_F(OpcoesRelList, AHeadingThatFitsOnNoLineIsReportedBeforeAnythingIsOpened) {
  lst.setColumns({{std::string(78, 'x'), 1000}, {"Nome", 1000}});
  programa.pasta().gravar("Cadastro de categorias.txt", "velho");
  EXPECT_EQ(imprimirEFalhar([](frmOpcoesRelList& tela) {
              tela.cmbOpcaoDimensionamento.setFocus();
              tela.cmbOpcaoDimensionamento.userChoose(0);
            }),
            "Formulário: ColunasImpressaoList\r\nFunção: vDimensionarColunas_LetrasCabecalho\r\nNúmero do erro: 6\r\n"
            "Descrição do erro: As colunas da lista, na largura dos cabeçalhos, não cabem em uma linha de 80 "
            "caracteres.");
  EXPECT_EQ(ler("Cadastro de categorias.txt"), "velho");
}

TEST_F(OpcoesRelList, AFileThatCannotBeWrittenIsReported) {
  std::filesystem::create_directory(caminho("Cadastro de categorias.txt"));
  EXPECT_THAT(imprimirEFalhar(),
              HasSubstr("Formulário: ImpressaoList\r\nFunção: vContruirArquivoImpressao\r\nNúmero do "
                        "erro: 75\r\nDescrição do erro: Não foi possível gravar o arquivo "));
  EXPECT_THAT(programa.pasta().nomes("Cadastro de categorias.txt"), IsEmpty());
}

TEST_F(OpcoesRelList, TheFirmsPrinterGetsTheBytesOfTheText) {
  programa.executarPrograma("INSERT INTO Configuracoes (sNomeImpressora) VALUES ('Laser do balcão')");
  imprimir([](frmOpcoesRelList& tela) { tela.cmbSaida.userChoose(0); });
  const auto& trabalhos = programa.impressorasDeTeste().trabalhos;
  ASSERT_EQ(trabalhos.size(), 1u);
  EXPECT_EQ(trabalhos[0]->fila, "Laser do balcão");
  EXPECT_EQ(trabalhos[0]->titulo, "Cadastro de categorias");
  EXPECT_EQ(trabalhos[0]->bytes, listagem80("|                             Cadastro de categorias"));
  EXPECT_TRUE(trabalhos[0]->terminado);
  EXPECT_FALSE(programa.pasta().existe("Cadastro de categorias.txt"));
  EXPECT_THAT(abertos(), IsEmpty());
  EXPECT_EQ(ler("outputRep.XML"), "<root><opt>0</opt></root>\r\n");
}

TEST_F(OpcoesRelList, WithoutAPrinterTheFailureIsReportedAndNothingIsPrinted) {
  EXPECT_THAT(imprimirEFalhar([](frmOpcoesRelList& tela) { tela.cmbSaida.userChoose(0); }),
              HasSubstr("Formulário: ImpressaoList\r\nFunção: vContruirArquivoImpressao\r\nNúmero do erro: 75\r\n"));
  EXPECT_THAT(programa.impressorasDeTeste().trabalhos, IsEmpty());
}

TEST_F(OpcoesRelList, APrinterThatStopsGetsNoHalfListing) {
  programa.impressorasDeTeste().padrao = "Laser do balcão";
  programa.impressorasDeTeste().limite = 100;
  EXPECT_THAT(imprimirEFalhar([](frmOpcoesRelList& tela) { tela.cmbSaida.userChoose(0); }),
              HasSubstr("Descrição do erro: A impressora Laser do balcão parou."));
  ASSERT_EQ(programa.impressorasDeTeste().trabalhos.size(), 1u);
  EXPECT_TRUE(programa.impressorasDeTeste().trabalhos[0]->desistido);
}

const MessageBox pdfPronto = pergunta("O arquivo PDF foi criado com sucesso.\r\nDeseja abrir o arquivo?");

TEST_F(OpcoesRelList, APdfIsMadeFromTheTextAndOpenedIfTheClerkWants) {
  for (const bool abrirPDF : {false, true}) {
    abrir([&](frmOpcoesRelList& tela) {
      tela.cmbSaida.userChoose(2);
      host.expectBox(pergunta("Confirma a impressão?"), BoxAnswer::yes);
      host.expectBox(pdfPronto, abrirPDF ? BoxAnswer::yes : BoxAnswer::no);
      tela.userKey(Key::f5);
    });
    EXPECT_EQ(abertos().size(), abrirPDF ? 1u : 0u);
  }
  EXPECT_THAT(abertos(), ElementsAre(caminho("Cadastro de categorias.txt.PDF")));
  EXPECT_EQ(ler("Cadastro de categorias.txt"), listagem80("|                             Cadastro de categorias"));
  const std::string pdf = ler("Cadastro de categorias.txt.PDF");
  EXPECT_TRUE(pdf.starts_with("%PDF-1.2\r"));
  EXPECT_THAT(pdf, HasSubstr("/Author (Norvane Sistemas)\r"));
  for (const char* vazio : {"/Creator ()\r", "/Title ()\r", "/Subject ()\r", "/Keywords ()\r"})
    EXPECT_THAT(pdf, HasSubstr(vazio));
  EXPECT_THAT(pdf, HasSubstr("/BaseFont /Courier\r"));
  EXPECT_THAT(pdf, HasSubstr("/Rotate 0\r"));
  EXPECT_THAT(pdf, HasSubstr("/F1 10 Tf\r"));
  EXPECT_THAT(pdf, HasSubstr("/MediaBox [ 0 0 936 792 ]\r"));
  EXPECT_THAT(pdf, HasSubstr("T* (|1        |Revenda"));
}

TEST_F(OpcoesRelList, TheControlCharactersOf130StandInThePdfToo) {
  abrir([&](frmOpcoesRelList& tela) {
    tela.cmbSaida.userChoose(2);
    tela.cmbColunas.userChoose(1);
    host.expectBox(pergunta("Confirma a impressão?"), BoxAnswer::yes);
    host.expectBox(pdfPronto, BoxAnswer::no);
    tela.userKey(Key::f5);
  });
  const std::string pdf = ler("Cadastro de categorias.txt.PDF");
  const std::string regua = "+" + std::string(128, '-') + "+\r\n) Tj\r";
  EXPECT_THAT(pdf, HasSubstr("12 TL\rT* (\x0F" + regua + "T* (|"));
  EXPECT_THAT(pdf, HasSubstr("T* (" + regua + "T* (\x12\r\n) Tj\r1 0 0 1 468 25 Tm\r(1) Tj\r"));
}

TEST_F(OpcoesRelList, APdfThatDidNotComeAboutIsTold) {
  std::filesystem::create_directory(caminho("Cadastro de categorias.txt.PDF"));
  abrir([&](frmOpcoesRelList& tela) {
    tela.cmbSaida.userChoose(2);
    host.expectBox(pergunta("Confirma a impressão?"), BoxAnswer::yes);
    host.expectBox(
        critica("Não foi possível gravar o arquivo " + caminho("Cadastro de categorias.txt.PDF") + ": é uma pasta."));
    host.expectBox(aviso("Falha ao criar arquivo PDF. O arquivo não encontra-se no local especificado.\r\n\r\n" +
                         caminho("Cadastro de categorias.txt.PDF")));
    tela.userKey(Key::f5);
  });
  EXPECT_THAT(abertos(), IsEmpty());
}

}  // namespace
}  // namespace fenvale
