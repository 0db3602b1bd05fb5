#pragma once
// One printing of a list: to the printer, to a text file, or through the text file to a PDF file.

#include <string>

#include "reports/services/ColunasImpressaoList.h"
#include "reports/services/ListagemTexto.h"
#include "reports/services/PDF.h"

namespace fenvale {

class Contexto;
struct Error;

class ImpressaoList {
 public:
  explicit ImpressaoList(Contexto& contexto);
  static const char* sGetName() { return "ImpressaoList"; }

  /// Asks, prints and opens what was made. A failure is reported under the name of the step; neither the printer nor
  /// the file gets half a listing.
  void vContruirArquivoImpressao(const OpcoesImpressaoList& opcoes);

 private:
  bool bConfirmarImpressao() const;
  bool bDimensionarColunas(const OpcoesImpressaoList& opcoes);
  bool bImprimir(const OpcoesImpressaoList& opcoes);
  void vGerarPDF(const std::string& sCaminhoTexto);
  void vAbrirPDF(const std::string& sArquivo) const;
  /// With the program that the system has for it. That there is none is told and harms nothing: the file is there.
  void vAbrirArquivo(const std::string& sArquivo) const;
  void vRegistrarFalha(const Error& falha, const char* sModulo, const char* sProcedimento) const;

  Contexto& contexto_;
  ColunasImpressaoList colunas_;
  PDF pdf_;
};

}  // namespace fenvale
