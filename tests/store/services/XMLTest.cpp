#include "store/services/XML.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz/xml_repair.h"
#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Revisao : public testing::Test {
 protected:
  void TearDown() override { host.verify(); }
  std::string caminho(const std::string& nome = "Cidades.XML") const { return programa.pasta().arquivo(nome); }
  std::string ler(const std::string& nome = "Cidades.XML") const { return programa.pasta().ler(nome); }
  void gravar(const std::string& bytes) { programa.pasta().gravar("Cidades.XML", bytes); }
  /// The question for the file as it now stands.
  MessageBox revisar(const std::string& nome = "Cidades.XML") {
    const XmlParseError erro = XmlDocument::load(caminho(nome)).parseError();
    return pergunta("O documento \r\n" + caminho(nome) + "\r\nestá mal formatado.\r\n\r\nInformação detalhada:\r\n" +
                    "errorCode: " + std::to_string(erro.code) + "\r\nfilepos: " + std::to_string(erro.filePosition) +
                    "\r\nLine: " + std::to_string(erro.line) + "\r\nlinepos: " + std::to_string(erro.column) +
                    "\r\nulr: " + erro.url + "\r\nreason: " + erro.reason +
                    "\r\n\r\nDeseja revisar a formatação e tentar processar novamente o arquivo?");
  }
  ProgramaDeTeste programa;
  TestHost& host = programa.hostDeTeste();
  XML xml{programa};
};

TEST(Substituicao, TheAmpersandComesFirstAndIsNeverUndone) {
  EXPECT_EQ(XML::sSubstituirCaracteres("Silva & Filhos"), "Silva &#38; Filhos");
  EXPECT_EQ(XML::sSubstituirCaracteres("&#231;"), "&#38;#231;");
  EXPECT_EQ(XML::sSubstituirCaracteres("ç&"), "&#231;&#38;");
}

TEST(Substituicao, OneHundredAndTwentyTwoCharactersBecomeReferences) {
  int quantos = 0;
  for (int codigo = 128; codigo < 256; ++codigo) {
    const std::string caractere =
        fromWindows1252(std::string(1, static_cast<char>(static_cast<unsigned char>(codigo))));
    const std::string substituido = XML::sSubstituirCaracteres(caractere);
    if (substituido == caractere) continue;
    EXPECT_EQ(substituido, "&#" + std::to_string(codigo) + ";");
    ++quantos;
  }
  EXPECT_EQ(quantos, 122);
  EXPECT_EQ(XML::sSubstituirCaracteres("€ ç ÿ"), "&#128; &#231; &#255;");
  EXPECT_EQ(XML::sSubstituirCaracteres("\xC2\xA0"), "\xC2\xA0");
}

TEST(Substituicao, WhatIsPlainOrBeyondTheTableStays) {
  EXPECT_EQ(XML::sSubstituirCaracteres("<a b=\"c\">'d'</a>\t"), "<a b=\"c\">'d'</a>\t");
  EXPECT_EQ(XML::sSubstituirCaracteres("Ω"), "Ω");
  EXPECT_EQ(XML::sSubstituirCaracteres(""), "");
}

TEST(Revisoes, WhatTheFuzzerFoundHoldsForGood) {
  int quantos = 0;
  for (const auto& entrada : std::filesystem::directory_iterator(FENVALE_SOURCE_DIR "/fuzz/corpus/xml_repair")) {
    std::ifstream arquivo(entrada.path(), std::ios::binary);
    SCOPED_TRACE(entrada.path().filename().string());
    fuzz::xmlRepair({std::istreambuf_iterator<char>(arquivo), std::istreambuf_iterator<char>()});
    ++quantos;
  }
  EXPECT_GE(quantos, 10);
}

TEST_F(Revisao, ASoundDocumentIsReadWithoutAWord) {
  gravar("<root><Cid><uf>SP</uf><nome>S&#227;o Paulo</nome></Cid></root>");
  EXPECT_EQ(xml.docPrepararArquivoXML(caminho()).elements("Cid").size(), 1U);
}

TEST_F(Revisao, ARawCedillaIsRepairedInPlace) {
  const std::string original = "<root>\r\n<Cid><uf>SP</uf><nome>Concei\xE7\xE3o</nome></Cid>\r\n</root>\r\n";
  gravar(original);
  host.expectBox(revisar(), BoxAnswer::yes);
  const XmlDocument documento = xml.docPrepararArquivoXML(caminho());
  ASSERT_TRUE(documento.sound());
  EXPECT_THAT(documento.elements("Cid").at(0).children, ElementsAre("SP", "Conceição"));
  EXPECT_EQ(ler(), "<root>\r\n<Cid><uf>SP</uf><nome>Concei&#231;&#227;o</nome></Cid>\r\n</root>\r\n");
  EXPECT_EQ(ler("Cidades.XML_INVALID_XML"), original);
  EXPECT_FALSE(programa.pasta().existe("BUFFER_XML_FILE_VALIDACION"));
}

TEST_F(Revisao, EveryCodeOf1252IsReadBackAsTheCharacterItWas) {
  std::string bytes;
  for (int codigo = 128; codigo < 256; ++codigo)
    if (codigo != 129 && codigo != 141 && codigo != 143 && codigo != 144 && codigo != 157 && codigo != 160)
      bytes += static_cast<char>(static_cast<unsigned char>(codigo));
  gravar("<a>" + bytes + "</a>");
  host.expectBox(revisar(), BoxAnswer::yes);
  EXPECT_THAT(xml.docPrepararArquivoXML(caminho()).elements("a").at(0).children, ElementsAre(fromWindows1252(bytes)));
}

TEST_F(Revisao, AnAmpersandInAFileOfTodayKeepsItsAccents) {
  gravar("<a>São & João Ω</a>\n");
  host.expectBox(revisar(), BoxAnswer::yes);
  EXPECT_THAT(xml.docPrepararArquivoXML(caminho()).elements("a").at(0).children, ElementsAre("São & João Ω"));
  EXPECT_EQ(ler(), "<a>S&#227;o &#38; Jo&#227;o Ω</a>\r\n");
}

TEST_F(Revisao, ANoLeavesTheFileAloneAndNoElements) {
  gravar("<a>\xE7</a>");
  host.expectBox(revisar(), BoxAnswer::no);
  EXPECT_THAT(xml.docPrepararArquivoXML(caminho()).elements("a"), IsEmpty());
  EXPECT_EQ(ler(), "<a>\xE7</a>");
  EXPECT_FALSE(programa.pasta().existe("Cidades.XML_INVALID_XML"));
}

TEST_F(Revisao, WhatIsStillBrokenAfterTheRepairEndsTheProgram) {
  gravar("<a>\xE7");
  host.expectBox(revisar(), BoxAnswer::yes);
  host.expectBox(critica("A verificação falhou.\r\nContate o suporte técnico pelo e-mail: suporte@norvane.example"));
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { xml.docPrepararArquivoXML(caminho()); }), exitFailure);
}

TEST_F(Revisao, ASecondFailureOfTheSameObjectIsFatalEvenAfterANo) {
  gravar("<a>\xE7</a>");
  host.expectBox(revisar(), BoxAnswer::no);
  xml.docPrepararArquivoXML(caminho());
  host.expectBox(critica("A verificação falhou.\r\nContate o suporte técnico pelo e-mail: suporte@norvane.example"));
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { xml.docPrepararArquivoXML(caminho()); }), exitFailure);
}

TEST_F(Revisao, AnotherObjectAsksAgain) {
  gravar("<a>\xE7</a>");
  host.expectBox(revisar(), BoxAnswer::no);
  host.expectBox(revisar(), BoxAnswer::no);
  xml.docPrepararArquivoXML(caminho());
  XML(programa).docPrepararArquivoXML(caminho());
}

TEST_F(Revisao, AnOlderUnrepairedFileIsReplaced) {
  programa.pasta().gravar("Cidades.XML_INVALID_XML", "de uma vez anterior");
  programa.pasta().gravar("BUFFER_XML_FILE_VALIDACION", "resto");
  gravar("<a>\xE7</a>");
  xml.vValidarCaracteresXML(caminho());
  EXPECT_EQ(ler("Cidades.XML_INVALID_XML"), "<a>\xE7</a>");
  EXPECT_EQ(ler(), "<a>&#231;</a>\r\n");
}

TEST_F(Revisao, ARepairThatFailsIsToldAndReportedAndTheFileStays) {
  gravar("<a>\xE7</a>");
  programa.pasta().gravar("Cidades.XML_INVALID_XML/ocupada", "x");
  host.expectBox(critica("Não foi possível apagar o arquivo " + caminho("Cidades.XML_INVALID_XML") + ": é uma pasta."));
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { xml.vValidarCaracteresXML(caminho()); }), exitFailure);
  EXPECT_EQ(ler(), "<a>\xE7</a>");
  EXPECT_THAT(programa.pasta().ler("Erros/260315143207.err"),
              testing::HasSubstr("Formul\xE1rio: XML\r\nFun\xE7\xE3o: vValidarCaracteresXML\r\n"));
}

TEST_F(Revisao, OfAFileThatIsNotThereNothingIsRepaired) {
  xml.vValidarCaracteresXML(caminho("nada.XML"));
  EXPECT_FALSE(programa.pasta().existe("nada.XML"));
}

TEST_F(Revisao, AFileThatTheProgramNeedsIsMissedWithItsName) {
  try {
    xml.docPrepararArquivoNecessario(caminho("nada.XML"));
    FAIL();
  } catch (const Error& falha) {
    EXPECT_EQ(falha.number, errors::objectNotSet);
    EXPECT_EQ(falha.description, "O arquivo " + caminho("nada.XML") + " não foi localizado.");
  }
}

TEST_F(Revisao, OfSeveralElementsTheLastOneIsTheTag) {
  gravar("<root><x>1</x><g><x>2</x></g><y/></root>");
  EXPECT_EQ(xml.sGetTag(caminho(), "x"), "2");
  EXPECT_EQ(xml.sGetTag(caminho(), "y"), "");
  EXPECT_EQ(xml.sGetTag(caminho(), "z"), "");
}

}  // namespace
}  // namespace fenvale
