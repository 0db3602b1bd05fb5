#include "reports/services/ImpressaoList.h"

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/os/Process.h"
#include "platform/print/PrinterService.h"
#include "reports/services/OpcoesImpressaoList.h"
#include "reports/services/PortaParalela.h"
#include "shell/services/Contexto.h"
#include "shell/services/Tela.h"
#include "shell/services/TratadorExcessoes.h"

namespace fenvale {
namespace {

constexpr std::int16_t saidaImpressora = 0;
constexpr std::int16_t saidaTexto = 1;
constexpr std::int16_t saidaPDF = 2;

}  // namespace

ImpressaoList::ImpressaoList(Contexto& contexto) : contexto_(contexto), pdf_(contexto.host(), contexto.relogio()) {}

void ImpressaoList::vContruirArquivoImpressao(const OpcoesImpressaoList& opcoes) {
  if (!bConfirmarImpressao() || !bDimensionarColunas(opcoes) || !bImprimir(opcoes)) return;
  if (opcoes.iGetOpcaoSaida() == saidaTexto) vAbrirArquivo(opcoes.sGetCaminhoArquivo());
  if (opcoes.iGetOpcaoSaida() == saidaPDF) vGerarPDF(opcoes.sGetCaminhoArquivo());
}

bool ImpressaoList::bConfirmarImpressao() const { return Caixas(contexto_.host()).perguntar("Confirma a impressão?"); }

bool ImpressaoList::bDimensionarColunas(const OpcoesImpressaoList& opcoes) try {
  colunas_.vDimensionarColunas(opcoes.iGetColunas(), opcoes.lstGetList(), opcoes.iGetOpcaoDimensionamento());
  return true;
} catch (const Error& falha) {
  vRegistrarFalha(falha, ColunasImpressaoList::sGetName(), "vDimensionarColunas_LetrasCabecalho");
  return false;
}

bool ImpressaoList::bImprimir(const OpcoesImpressaoList& opcoes) {
  const char* sProcedimento = "vContruirArquivoImpressao";
  const auto vImprimirEm = [&](const ListagemTexto::Saida& saida) {
    ListagemTexto texto(opcoes, colunas_, saida);
    try {
      texto.vImprimir();
    } catch (const Error&) {
      sProcedimento = texto.sGetProcedimento();
      throw;
    }
  };
  try {
    if (opcoes.iGetOpcaoSaida() == saidaImpressora) {
      const auto porta = abrirPortaParalela(contexto_, opcoes.sGetTitulo());
      vImprimirEm([&porta](std::string_view bytes) { porta->write(bytes); });
      porta->finish();
    } else {
      files::Writer arquivo(opcoes.sGetCaminhoArquivo());
      vImprimirEm([&arquivo](std::string_view bytes) { arquivo.write(bytes); });
      arquivo.close();
    }
    return true;
  } catch (const Error& falha) {
    vRegistrarFalha(falha, sGetName(), sProcedimento);
    return false;
  }
}

void ImpressaoList::vGerarPDF(const std::string& sCaminhoTexto) {
  const std::string sPDF = sCaminhoTexto + ".PDF";
  pdf_.vGerarPDF(sCaminhoTexto, sPDF, sTituloCaixas, "", "", "", "", "Courier", 10, 0, 13, 11);
  vAbrirPDF(sPDF);
}

void ImpressaoList::vAbrirPDF(const std::string& sArquivo) const {
  const Caixas caixas(contexto_.host());
  const std::string quebra(lineBreak);
  if (!files::isFile(sArquivo))
    return caixas.avisar("Falha ao criar arquivo PDF. O arquivo não encontra-se no local especificado." + quebra +
                         quebra + sArquivo);
  if (caixas.perguntar("O arquivo PDF foi criado com sucesso." + quebra + "Deseja abrir o arquivo?"))
    vAbrirArquivo(sArquivo);
}

void ImpressaoList::vAbrirArquivo(const std::string& sArquivo) const try {
  contexto_.processo().openFile(sArquivo);
} catch (const Error& falha) {
  const std::string quebra(lineBreak);
  Caixas(contexto_.host())
      .criticar("O arquivo foi gravado, mas não pôde ser aberto." + quebra + quebra + falha.description);
}

void ImpressaoList::vRegistrarFalha(const Error& falha, const char* sModulo, const char* sProcedimento) const {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sModulo, sProcedimento);
}

}  // namespace fenvale
