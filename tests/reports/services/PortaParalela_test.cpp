#include "reports/services/PortaParalela.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

class Porta : public testing::Test {
 protected:
  Porta() { programa.abrirPrograma(); }
  void vEscolher(const std::string& sImpressora) {
    programa.executarPrograma("INSERT INTO Configuracoes (sNomeImpressora) VALUES ('" + sImpressora + "')");
  }
  std::string sFalha() {
    try {
      abrirPortaParalela(programa, "Cadastro de categorias");
      return "nenhuma";
    } catch (const Error& falha) {
      return std::to_string(falha.number) + ": " + falha.description;
    }
  }
  ProgramaDeTeste programa;
  ImpressorasDeTeste& impressoras = programa.impressorasDeTeste();
};

TEST_F(Porta, IsTheQueueOfTheFirmsPrinter) {
  impressoras.nomes = {"Laser", "Matricial", pdfPrinterName};
  impressoras.padrao = "Laser";
  vEscolher("Matricial");
  const auto trabalho = abrirPortaParalela(programa, "Cadastro de categorias");
  trabalho->write("\x0F+--+\r\n");
  trabalho->write("\x12");
  trabalho->finish();
  ASSERT_EQ(impressoras.trabalhos.size(), 1U);
  EXPECT_EQ(impressoras.trabalhos[0]->fila, "Matricial");
  EXPECT_EQ(impressoras.trabalhos[0]->titulo, "Cadastro de categorias");
  EXPECT_EQ(impressoras.trabalhos[0]->bytes, "\x0F+--+\r\n\x12");
  EXPECT_TRUE(impressoras.trabalhos[0]->terminado);
}

TEST_F(Porta, IsTheMachinesDefaultWhereTheFirmChoseNone) {
  impressoras.padrao = "Laser";
  EXPECT_EQ(sGetFilaPortaParalela(programa), "Laser");
  vEscolher("");
  EXPECT_EQ(sGetFilaPortaParalela(programa), "Laser");
}

TEST_F(Porta, APdfFileIsNoPrinterForBytes) {
  vEscolher(pdfPrinterName);
  EXPECT_EQ(sGetFilaPortaParalela(programa), "");
  impressoras.padrao = "Laser";
  EXPECT_EQ(sGetFilaPortaParalela(programa), "Laser");
}

TEST_F(Porta, WithoutAQueueTheOpeningFails) {
  EXPECT_EQ(sFalha(), "75: Não foi possível abrir a porta LPT1: não há impressora instalada.");
}

TEST_F(Porta, AFirmsPrinterThatIsGoneIsNotReplacedByAnother) {
  impressoras.padrao = "Laser do balcão";
  vEscolher("Matricial");
  EXPECT_EQ(sFalha(), "75: Não foi possível abrir a impressora Matricial: a impressora não existe.");
  EXPECT_TRUE(impressoras.trabalhos.empty());
}

}  // namespace
}  // namespace fenvale
