#include "reports/services/PortaParalela.h"

#include "platform/print/PrinterService.h"
#include "shell/services/Contexto.h"
#include "shell/services/Funcoes.h"

namespace fenvale {

std::string sGetFilaPortaParalela(Contexto& contexto) {
  std::string sImpressora = Funcoes(contexto).sGetNomeImpressora();
  if (!sImpressora.empty() && sImpressora != pdfPrinterName) return sImpressora;
  return contexto.impressoras().defaultPrinter();
}

std::unique_ptr<RawJob> abrirPortaParalela(Contexto& contexto, const std::string& sTitulo) {
  const std::string sFila = sGetFilaPortaParalela(contexto);
  if (sFila.empty()) {
    throw Error(errors::fileAccess, "Não foi possível abrir a porta LPT1: não há impressora instalada.");
  }
  return contexto.impressoras().openRaw(sFila, sTitulo);
}

}  // namespace fenvale
