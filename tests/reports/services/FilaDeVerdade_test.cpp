// A listing on its way to the printer, through a real print server: the bytes of the file arrive.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/os/Files.h"
#include "platform/print/PrintServer.h"
#include "platform/print/cups/CupsPrinters.h"
#include "reports/services/ImpressaoList.h"
#include "reports/services/ListaDeTeste.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

/// Prints the list with the output of that number, on the queues of the machine.
void vImprimir(OpcoesImpressaoList opcoes, std::int16_t iSaida, const std::string& sImpressora) {
  CupsPrinters filas;
  ProgramaDeTeste programa;
  programa.impressorasDeTeste().verdadeiras = &filas;
  programa.abrirPrograma();
  if (!sImpressora.empty())
    programa.executarPrograma("INSERT INTO Configuracoes (sNomeImpressora) VALUES ('" + sImpressora + "')");
  opcoes.vSetOpcaoSaida(iSaida);
  programa.hostDeTeste().expectBox(pergunta("Confirma a impressão?"), BoxAnswer::yes);
  ImpressaoList(programa).vContruirArquivoImpressao(opcoes);
  programa.hostDeTeste().verify();
}

class FilaDeVerdade : public testing::Test {
 protected:
  /// Condensed print, so control characters and accents too, over several blocks.
  FilaDeVerdade() {
    ListaDeTeste::Linhas linhas;
    for (int i = 1; i <= 3000; ++i) linhas.push_back({std::to_string(i), "Açougue São João \\ Cia.", "1.500,00"});
    lista = std::make_unique<ListaDeTeste>(
        std::vector<ListColumn>{{"Código", 1000}, {"Nome", 6000}, {"Limite de crédito", 2000}}, linhas);
    opcoes = lista->opcoes(130, 1, "Cadastro de clientes");
    opcoes.vSetCaminhoArquivo(pasta.arquivo("lista.txt"));
  }
  /// The bytes of the same listing in a file.
  std::string sArquivo() {
    vImprimir(opcoes, 1, "");
    return pasta.ler("lista.txt");
  }

  PastaTemporaria pasta;
  std::unique_ptr<ListaDeTeste> lista;
  OpcoesImpressaoList opcoes;
  NetworkPrinter impressora;
};

TEST_F(FilaDeVerdade, OfTheFirmsPrinterGetsTheBytesOfTheFile) {
  const PrintServer servidor(queueAt("Matricial", impressora.address()) + queueAt("Outra", "socket://127.0.0.1:9"));
  servidor.serve([this] { vImprimir(opcoes, 0, "Matricial"); });
  const std::vector<std::string> chegaram = impressora.prints(1);
  ASSERT_EQ(chegaram.size(), 1U);
  EXPECT_GT(chegaram[0].size(), 300000U);
  EXPECT_TRUE(chegaram[0] == sArquivo());
}

TEST_F(FilaDeVerdade, OfTheMachinesDefaultGetsThemWhereTheFirmHasAPdfFileForAPrinter) {
  std::string sPadrao = queueAt("Matricial", impressora.address());
  sPadrao.replace(0, sPadrao.find(' '), "<DefaultPrinter");
  sPadrao.replace(sPadrao.rfind("</Printer>"), 10, "</DefaultPrinter>");
  const PrintServer servidor(queueAt("Outra", "socket://127.0.0.1:9") + sPadrao);
  servidor.serve([this] { vImprimir(opcoes, 0, pdfPrinterName); });
  const std::vector<std::string> chegaram = impressora.prints(1);
  ASSERT_EQ(chegaram.size(), 1U);
  EXPECT_TRUE(chegaram[0] == sArquivo());
}

TEST_F(FilaDeVerdade, TakesTheLongestTitleThereCanBe) {
  std::string sTitulo;
  for (int i = 0; i < 130; ++i) sTitulo += "ç";
  opcoes.vSetTitulo(sTitulo);
  const PrintServer servidor(queueAt("Matricial", impressora.address()));
  servidor.serve([this] { vImprimir(opcoes, 0, "Matricial"); });
  const std::vector<std::string> chegaram = impressora.prints(1);
  ASSERT_EQ(chegaram.size(), 1U);
  EXPECT_TRUE(chegaram[0] == sArquivo());
}

}  // namespace
}  // namespace fenvale
