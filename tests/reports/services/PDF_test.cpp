// Text files made into PDF files: byte for byte against files, and each rule of pages, lines and messages.

#include "reports/services/PDF.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <random>

#include "fuzz/pdf_text.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::Gt;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
namespace fs = std::filesystem;

std::string ouro(const std::string& nome) {
  return files::read(std::string(FENVALE_SOURCE_DIR) + "/tests/reports/services/ouro/" + nome + ".pdf");
}

/// What the list engine asks for, but for what a test changes.
struct Pedido {
  std::string sFonte = "Courier";
  std::int16_t iTamanho = 10;
  std::int16_t iRotacao = 0;
  float sngLargura = 13.0F;
  float sngAltura = 11.0F;
};

class ArquivoPDF : public testing::Test {
 protected:
  ~ArquivoPDF() override { host.verify(); }

  void vGerar(const Pedido& pedido = {}) {
    pdf.vGerarPDF(sOrigem, sDestino, "Norvane Sistemas", "", "", "", "", pedido.sFonte, pedido.iTamanho,
                  pedido.iRotacao, pedido.sngLargura, pedido.sngAltura);
  }
  /// The file that is made of a text.
  std::string sGerar(const std::string& sTexto, const Pedido& pedido = {}) {
    pasta.gravar("a.txt", sTexto);
    vGerar(pedido);
    return pasta.ler("a.txt.PDF");
  }
  /// What each page writes, line by line, as it stands between the brackets, its number last.
  std::vector<std::vector<std::string>> paginas(const std::string& sTexto, const Pedido& pedido = {}) {
    const fuzz::PdfReading leitura(sGerar(sTexto, pedido));
    EXPECT_EQ(leitura.fault(), "");
    std::vector<std::vector<std::string>> todas;
    for (const std::string& sLinha : leitura.lines()) {
      if (sLinha == "BT") todas.emplace_back();
      if (sLinha.starts_with("T* (")) todas.back().push_back(sLinha.substr(4, sLinha.size() - 10));
      if (sLinha.starts_with("(")) todas.back().push_back(sLinha);
    }
    return todas;
  }

  PastaTemporaria pasta;
  TestHost host;
  RelogioDeTeste relogio;
  PDF pdf{host, relogio};
  std::string sOrigem = pasta.arquivo("a.txt");
  std::string sDestino = pasta.arquivo("a.txt.PDF");
};

TEST_F(ArquivoPDF, OfOneLineByteForByte) { EXPECT_EQ(sGerar("Ol\xE1 (mundo)\r\n"), ouro("uma-linha")); }

TEST_F(ArquivoPDF, OfTwoPagesByteForByte) {
  std::string sTexto;
  for (int i = 1; i <= 61; ++i) sTexto += "linha " + std::to_string(i) + "\r\n";
  EXPECT_EQ(sGerar(sTexto), ouro("paginas"));
}

TEST_F(ArquivoPDF, WithEveryTextFontAndSizeByteForByte) {
  std::string sTexto = "\x0F  recuo\rbarra \\ e (par)\n\fsegunda p\xE1gina\r\nLista de n\xFAmeros: ";
  for (int i = 100; i < 145; ++i) sTexto += std::to_string(i) + (i < 144 ? " " : "\r\n");
  sTexto += std::string(112, 'x') + "\r\n\x12";
  pasta.gravar("a.txt", sTexto);
  pdf.vGerarPDF(sOrigem, sDestino, "Norvane Sistemas", "João", "a, b", "Açougue (1)", "Títulos", "Arial", 11, 90, 8.51F,
                11.0F);
  EXPECT_EQ(pasta.ler("a.txt.PDF"), ouro("quebras"));
}

TEST_F(ArquivoPDF, TellsTheMomentOfTheClock) {
  relogio.momento = DateTime(makeDate(2027, 1, 2)) + std::chrono::hours(3) + std::chrono::seconds(4);
  EXPECT_THAT(sGerar("x"), HasSubstr("/CreationDate (D:20270102030004)\r"));
}

TEST_F(ArquivoPDF, ACharacterThatTheCodePageLacksIsAQuestionMark) {
  pasta.gravar("a.txt", "x");
  pdf.vGerarPDF(sOrigem, sDestino, "Ω €", "", "", "", "", "Courier", 10, 0, 13.0F, 11.0F);
  EXPECT_THAT(pasta.ler("a.txt.PDF"), HasSubstr("/Author (? \x80)\r"));
}

TEST_F(ArquivoPDF, OfASingleLineHasOnePageAndNineObjects) {
  const std::string sArquivo = sGerar("uma");
  EXPECT_EQ(fuzz::PdfReading(sArquivo).fault(), "");
  EXPECT_THAT(sArquivo, HasSubstr("\r/Count 1\r"));
  EXPECT_THAT(sArquivo, HasSubstr("\r/Size 10\r"));
  EXPECT_THAT(sArquivo, HasSubstr("\r(1) Tj\r"));
}

TEST_F(ArquivoPDF, BracketsAreEscapedAndBackslashesAreNot) {
  EXPECT_THAT(paginas("f(x) = ((y)) \\ z"), ElementsAre(ElementsAre("f\\(x\\) = \\(\\(y\\)\\) \\ z", "(1) Tj")));
}

TEST_F(ArquivoPDF, BlanksAtBothEndsGo) {
  EXPECT_THAT(paginas("   recuo  \r\n\t tab \r\n   \r\n"), ElementsAre(ElementsAre("recuo", "\t tab", "", "(1) Tj")));
}

TEST_F(ArquivoPDF, ALineEndsInWhateverBreaksIt) {
  EXPECT_THAT(paginas("a\rb\nc\r\nd\n\re\r\r\nf"),
              ElementsAre(ElementsAre("a", "b", "c", "d", "", "e", "", "f", "(1) Tj")));
}

TEST_F(ArquivoPDF, ALineEndAcrossTwoBlocksIsOne) {
  const std::string sPonto(65535, '.');
  const auto todas = paginas(sPonto + "\r\nfim\r\n");
  EXPECT_EQ(todas.back()[todas.back().size() - 2], "fim");
  EXPECT_NE(todas.back()[todas.back().size() - 3], "");
}

TEST_F(ArquivoPDF, SixtyLinesMakeAPage) {
  std::string sTexto;
  for (int i = 0; i < 60; ++i) sTexto += "l\r\n";
  EXPECT_THAT(paginas(sTexto), ElementsAre(SizeIs(61)));
  EXPECT_THAT(paginas(sTexto + "ultima"), ElementsAre(SizeIs(61), ElementsAre("ultima", "(2) Tj")));
  // The second page holds as many.
  EXPECT_THAT(paginas(sTexto + sTexto), ElementsAre(SizeIs(61), SizeIs(61)));
  EXPECT_THAT(paginas(sTexto + sTexto + "ultima"), ElementsAre(SizeIs(61), SizeIs(61), SizeIs(2)));
}

TEST_F(ArquivoPDF, AFormFeedEndsThePageAheadOfItsLineAndStaysInIt) {
  EXPECT_THAT(paginas("a\r\nb\fc\r\nd"), ElementsAre(ElementsAre("a", "(1) Tj"), ElementsAre("b\fc", "d", "(2) Tj")));
  EXPECT_THAT(paginas("\fa"), ElementsAre(ElementsAre("(1) Tj"), ElementsAre("\fa", "(2) Tj")));
}

TEST_F(ArquivoPDF, ALongLineWithoutAPlaceForABreakIsCutAtTheColumn) {
  EXPECT_THAT(paginas(std::string(140, 'x')), ElementsAre(ElementsAre(std::string(140, 'x'), "(1) Tj")));
  EXPECT_THAT(paginas(std::string(141, 'x')), ElementsAre(ElementsAre(std::string(140, 'x'), "x", "(1) Tj")));
  EXPECT_THAT(paginas(std::string(281, 'x')),
              ElementsAre(ElementsAre(std::string(140, 'x'), std::string(140, 'x'), "x", "(1) Tj")));
}

TEST_F(ArquivoPDF, ALongLineBreaksBehindTheLastMarkOfItsSecondHalf) {
  for (const char marca : std::string("*&^%$#,. ;<=>[]}!\"")) {
    const std::string sParte = std::string(99, 'x') + marca;
    EXPECT_THAT(paginas(sParte + std::string(60, 'y')),
                ElementsAre(ElementsAre(sParte, std::string(60, 'y'), "(1) Tj")))
        << marca;
  }
  for (const char letra : std::string("-+:/@_|'?a\t"))
    EXPECT_EQ(paginas(std::string(99, 'x') + letra + std::string(60, 'y'))[0][0].size(), 140U) << letra;
  // A closing bracket has its escape before it.
  EXPECT_EQ(paginas(std::string(98, 'x') + ")" + std::string(60, 'y'))[0][0], std::string(98, 'x') + "\\)");
  // The 70th character is the first of the half, and the last mark wins.
  EXPECT_EQ(paginas(std::string(69, 'x') + "." + std::string(90, 'y'))[0][0].size(), 70U);
  EXPECT_EQ(paginas(std::string(68, 'x') + "." + std::string(90, 'y'))[0][0].size(), 140U);
  EXPECT_EQ(paginas(std::string(80, 'x') + ",a," + std::string(90, 'y'))[0][0].size(), 83U);
  EXPECT_EQ(paginas(std::string(139, 'x') + "." + std::string(90, 'y'))[0][0].size(), 140U);
}

TEST_F(ArquivoPDF, TheRestOfABrokenLineKeepsItsBlanks) {
  EXPECT_THAT(paginas(std::string(138, 'x') + ",    y"),
              ElementsAre(ElementsAre(std::string(138, 'x') + ", ", "   y", "(1) Tj")));
}

TEST_F(ArquivoPDF, ABreakMayFallBetweenABracketAndItsEscape) {
  EXPECT_THAT(paginas(std::string(139, 'x') + "(y"),
              ElementsAre(ElementsAre(std::string(139, 'x') + "\\", "(y", "(1) Tj")));
}

TEST_F(ArquivoPDF, ALineThatJustFitsCountsOnce) {
  std::string sTexto;
  for (int i = 0; i < 60; ++i) sTexto += std::string(140, 'x') + "\r\n";
  EXPECT_THAT(paginas(sTexto), ElementsAre(SizeIs(61)));
}

TEST_F(ArquivoPDF, ABrokenLineCountsOnceMoreThanItTakes) {
  // 57 lines and one of two parts make the counter 59, so that one more line fits.
  std::string sTexto;
  for (int i = 0; i < 57; ++i) sTexto += "l\r\n";
  sTexto += std::string(141, 'x') + "\r\n";
  EXPECT_THAT(paginas(sTexto + "a\r\n"), ElementsAre(SizeIs(60), ElementsAre("a", "(2) Tj")));
  EXPECT_THAT(paginas(sTexto.substr(3) + "a\r\nb\r\n"), ElementsAre(SizeIs(60), ElementsAre("b", "(2) Tj")));
}

TEST_F(ArquivoPDF, APageEndsInTheMiddleOfALongLine) {
  std::string sTexto;
  for (int i = 0; i < 59; ++i) sTexto += "l\r\n";
  EXPECT_THAT(paginas(sTexto + std::string(141, 'x')), ElementsAre(SizeIs(61), ElementsAre("x", "(2) Tj")));
  // Behind it the counter stands at 1.
  std::string sDepois;
  for (int i = 0; i < 58; ++i) sDepois += "m\r\n";
  EXPECT_THAT(paginas(sTexto + std::string(141, 'x') + "\r\n" + sDepois), ElementsAre(SizeIs(61), SizeIs(60)));
  EXPECT_THAT(paginas(sTexto + std::string(141, 'x') + "\r\n" + sDepois + "m"),
              ElementsAre(SizeIs(61), SizeIs(60), SizeIs(2)));
}

TEST_F(ArquivoPDF, EveryPartAheadOfAFormFeedEndsItsPage) {
  EXPECT_THAT(
      paginas(std::string(290, 'x') + "\fz" + std::string(200, 'y')),
      ElementsAre(ElementsAre("(1) Tj"), ElementsAre(std::string(140, 'x'), "(2) Tj"),
                  ElementsAre(std::string(140, 'x'), "(3) Tj"),
                  ElementsAre(std::string(10, 'x') + "\fz" + std::string(128, 'y'), std::string(72, 'y'), "(4) Tj")));
}

TEST_F(ArquivoPDF, AFormFeedAtTheBeginningOfTheRestEndsThePageToo) {
  EXPECT_THAT(
      paginas(std::string(140, 'x') + "\fz"),
      ElementsAre(ElementsAre("(1) Tj"), ElementsAre(std::string(140, 'x'), "(2) Tj"), ElementsAre("\fz", "(3) Tj")));
}

TEST_F(ArquivoPDF, TheHalfOfAnOddLineBeginsAtTheCharacterBeforeItsMiddle) {
  // 187 characters fit: the second half is looked through down to the 93rd.
  const auto parte = [this](std::size_t marca) {
    return paginas(std::string(marca - 1, 'x') + "." + std::string(200, 'y'), {.sFonte = "Arial"})[0][0].size();
  };
  EXPECT_EQ(parte(93), 93U);
  EXPECT_EQ(parte(92), 187U);
}

TEST_F(ArquivoPDF, SizesOfThePageAndOfTheFont) {
  const auto tem = [this](const Pedido& pedido, const std::string& sTrecho) {
    EXPECT_THAT(sGerar("x", pedido), HasSubstr("\r" + sTrecho + "\r"));
  };
  tem({.sngLargura = 8.5F}, "/MediaBox [ 0 0 612 792 ]");
  tem({.sngLargura = 8.5F}, "1 0 0 1 306 25 Tm");
  tem({.sngLargura = 8.51F}, "/MediaBox [ 0 0 613 792 ]");
  tem({.sngLargura = 8.51F}, "1 0 0 1 306,5 25 Tm");
  tem({.sngAltura = 5.5F}, "1 0 0 1 50 356 Tm");
  tem({.iTamanho = 8}, "/F1 8 Tf");
  tem({.iTamanho = 8}, "9,6 TL");
  tem({.iRotacao = 270}, "/Rotate 270");
  tem({.sFonte = "Times-Roman"}, "/BaseFont /Times-Roman");
}

TEST_F(ArquivoPDF, AHalfIsRoundedToTheEvenNeighbour) {
  // 616.5 and 607.5 points; 66.5 and 67.5 lines of 24 points.
  EXPECT_THAT(sGerar("x", {.sngLargura = 8.5625F}), HasSubstr(" 616 792 ]"));
  EXPECT_THAT(sGerar("x", {.sngLargura = 8.4375F}), HasSubstr(" 608 792 ]"));
  std::string sTexto;
  for (int i = 0; i < 100; ++i) sTexto += "l\r\n";
  EXPECT_EQ(paginas(sTexto, {.iTamanho = 20, .sngAltura = (72 + 66.5F * 24) / 72})[0].size(), 67U);
  EXPECT_EQ(paginas(sTexto, {.iTamanho = 20, .sngAltura = (72 + 67.5F * 24) / 72})[0].size(), 69U);
  // 136.5 and 139.5 characters.
  EXPECT_EQ(paginas(std::string(300, 'x'), {.sngLargura = 910.0F / 72})[0][0].size(), 136U);
  EXPECT_EQ(paginas(std::string(300, 'x'), {.sngLargura = 930.0F / 72})[0][0].size(), 140U);
}

TEST_F(ArquivoPDF, TheFontTellsHowManyCharactersFit) {
  const auto colunas = [this](const std::string& sFonte, std::int16_t iTamanho) {
    return paginas(std::string(1000, 'x'), {.sFonte = sFonte, .iTamanho = iTamanho})[0][0].size();
  };
  EXPECT_EQ(colunas("Courier", 10), 140U);
  EXPECT_EQ(colunas("COURIER", 10), 140U);
  EXPECT_EQ(colunas("Arial", 10), 187U);
  EXPECT_EQ(colunas("arial", 12), 156U);
  EXPECT_EQ(colunas("Helvetica", 10), 206U);
  EXPECT_EQ(colunas("Courier-Bold", 10), 206U);
}

TEST_F(ArquivoPDF, AnOldFileIsDeletedFirst) {
  pasta.gravar("A.TXT.pdf", std::string(100000, 'z'));
  const std::string sArquivo = sGerar("Ol\xE1 (mundo)\r\n");
  EXPECT_EQ(sArquivo, ouro("uma-linha"));
  EXPECT_THAT(pasta.nomes(), ElementsAre("a.txt", "a.txt.PDF"));
}

TEST_F(ArquivoPDF, ASecondRunStartsAnew) {
  sGerar(std::string(300, '\f'));
  EXPECT_EQ(sGerar("Ol\xE1 (mundo)\r\n"), ouro("uma-linha"));
}

TEST_F(ArquivoPDF, BothNamesMustBeGiven) {
  sOrigem.clear();
  sDestino.clear();
  host.expectBox(aviso("Informe o arquivo de origem."));
  vGerar();
  sOrigem = pasta.arquivo("nada.txt");
  host.expectBox(aviso("Informe o arquivo de saída."));
  vGerar();
  EXPECT_THAT(pasta.nomes(), IsEmpty());
}

TEST_F(ArquivoPDF, ASourceThatIsMissingOrEmptyLeavesTheOldFileAlone) {
  pasta.gravar("a.txt.PDF", "velho");
  host.expectBox(aviso("Arquivo '" + sOrigem + "' não existe."));
  vGerar();
  pasta.gravar("a.txt", "");
  host.expectBox(aviso("Arquivo '" + sOrigem + "' não existe."));
  vGerar();
  sOrigem = pasta.caminho();
  host.expectBox(aviso("Arquivo '" + sOrigem + "' não existe."));
  vGerar();
  EXPECT_EQ(pasta.ler("a.txt.PDF"), "velho");
}

TEST_F(ArquivoPDF, ADestinationThatCannotBeWrittenIsToldOnce) {
  pasta.gravar("a.txt", "x");
  sDestino = pasta.arquivo("nada/a.PDF");
  host.expectBox(critica("Não foi possível gravar o arquivo " + sDestino + ": o caminho não existe."));
  vGerar();
  sDestino = pasta.caminho();
  host.expectBox(critica("Não foi possível gravar o arquivo " + sDestino + ": é uma pasta."));
  vGerar();
}

TEST_F(ArquivoPDF, ASourceThatIsItsOwnDestinationIsGone) {
  pasta.gravar("a.txt", "x");
  sDestino = sOrigem;
  host.expectBox(critica("Não foi possível abrir o arquivo " + sOrigem + ": o caminho não existe."));
  vGerar();
  EXPECT_THAT(pasta.nomes(), IsEmpty());
}

TEST_F(ArquivoPDF, SizesThatMakeNoPageAreToldOnce) {
  pasta.gravar("a.txt", std::string(10, 'x'));
  host.expectBox(critica("Divisão por zero."));
  vGerar({.iTamanho = 0});
  host.expectBox(critica("A página é estreita demais para o texto."));
  vGerar({.sngLargura = 0});
  host.expectBox(critica("A página é estreita demais para o texto."));
  vGerar({.sngLargura = -1});
  host.expectBox(critica("Estouro de capacidade."));
  vGerar({.sngAltura = 1e9F});
}

TEST_F(ArquivoPDF, HoldsOneThousandSixHundredAndSixtyFourPages) {
  const fuzz::PdfReading leitura(sGerar("a\r\n" + [] {
    std::string sAvancos;
    for (int i = 0; i < 1663; ++i) sAvancos += "\f\r\n";
    return sAvancos;
  }()));
  EXPECT_EQ(leitura.fault(), "");
  EXPECT_EQ(leitura.pages(), 1664U);
}

TEST_F(ArquivoPDF, APageMoreEndsTheRunAndLeavesWhatWasWritten) {
  std::string sTexto = "a\r\n";
  for (int i = 0; i < 1664; ++i) sTexto += "\f\r\n";
  const std::string sInteiro = sGerar(sTexto.substr(0, sTexto.size() - 3));
  host.expectBox(
      critica("O texto é longo demais para um arquivo PDF, que comporta 1664 páginas. Imprima menos registros."));
  const std::string sMetade = sGerar(sTexto);
  EXPECT_THAT(sMetade.size(), Gt(300000U));
  EXPECT_TRUE(sInteiro.starts_with(sMetade)) << "what had been written stays, the rest is lost";
  EXPECT_THAT(sMetade, Not(HasSubstr("trailer")));
}

TEST_F(ArquivoPDF, AFullDiskIsToldOnceAndLeavesWhatWasWritten) {
  std::string sTexto;
  for (int i = 0; i < 1000; ++i) sTexto += std::string(100, 'x') + "\r\n";
  const std::string sInteiro = sGerar(sTexto);
  // No file grows beyond this size: the second block breaks off.
  const auto antes = std::signal(SIGXFSZ, SIG_IGN);
  rlimit folgado{};
  ::getrlimit(RLIMIT_FSIZE, &folgado);
  const rlimit apertado{40000, folgado.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &apertado);
  host.expectBox(critica("Não foi possível gravar o arquivo " + sDestino + ": File too large."));
  vGerar();
  ::setrlimit(RLIMIT_FSIZE, &folgado);
  std::signal(SIGXFSZ, antes);
  EXPECT_EQ(pasta.ler("a.txt.PDF"), sInteiro.substr(0, 40000));
}

TEST_F(ArquivoPDF, LeavesBlockByBlock) {
  // The first block ends with the line that takes it above 32,000 bytes; the limit of objects keeps the last one back.
  std::string sTexto;
  for (int i = 0; i < 1665; ++i) sTexto += "\f\r\n";
  host.expectBox(
      critica("O texto é longo demais para um arquivo PDF, que comporta 1664 páginas. Imprima menos registros."));
  const std::string sMetade = sGerar(sTexto);
  std::size_t blocos = 0;
  for (std::size_t inicio = 0; inicio < sMetade.size(); ++blocos) {
    std::size_t fim = inicio + 32000;
    do fim = sMetade.find('\r', fim);
    while (fim != std::string::npos && sMetade.compare(fim, 2, "\r\n") == 0 && ++fim != 0);
    ASSERT_NE(fim, std::string::npos) << "the last block is whole";
    inicio = fim + 1;
    ASSERT_LE(inicio, sMetade.size());
  }
  EXPECT_THAT(blocos, Gt(10U));
}

TEST_F(ArquivoPDF, OfAnyTextKeepsItsPromises) {
  std::mt19937 sorte(7);
  const std::string sLetras("a (),.\\\f\r\n \xE7\x80\0", 14);
  for (int vez = 0; vez < 200; ++vez) {
    std::string sTexto;
    const std::size_t tamanho = sorte() % 3000;
    const bool bLinhasCurtas = vez % 2 == 0;
    while (sTexto.size() < tamanho) {
      const char letra = sLetras[sorte() % sLetras.size()];
      const bool bQuebra = letra == '\r' || letra == '\n' || letra == '\f';
      sTexto += bQuebra && !bLinhasCurtas && sorte() % 50 != 0 ? 'b' : letra;
    }
    ASSERT_EQ(fuzz::pdfText(sTexto, pasta.caminho()), "") << "seed 7, turn " << vez;
  }
}

TEST(PDFCorpus, EveryTextKeepsThePromises) {
  const PastaTemporaria pasta;
  std::size_t quantos = 0;
  for (const auto& um : fs::directory_iterator(FENVALE_SOURCE_DIR "/fuzz/corpus/pdf_text")) {
    EXPECT_EQ(fuzz::pdfText(files::read(um.path().string()), pasta.caminho()), "") << um.path();
    ++quantos;
  }
  EXPECT_GE(quantos, 16U);
}

}  // namespace
}  // namespace fenvale
