#pragma once
// What one printing of a list is told.

#include <cstdint>
#include <string>

namespace fenvale {

class ListView;

class OpcoesImpressaoList {
 public:
  /// Characters in a line: 80 or 130.
  std::int16_t iGetColunas() const { return iColunas; }
  void vSetColunas(std::int16_t iValor) { iColunas = iValor; }
  const std::string& sGetTitulo() const { return sTitulo; }
  void vSetTitulo(std::string sValor) { sTitulo = std::move(sValor); }
  /// What is printed. Error 91 while none was set.
  const ListView& lstGetList() const;
  void vSetList(const ListView& lst) { lstFonte = &lst; }
  /// 0: columns by the texts of the headings; 1: by the widths of the list.
  std::int16_t iGetOpcaoDimensionamento() const { return iOpcaoDimensionamento; }
  void vSetOpcaoDimensionamento(std::int16_t iValor) { iOpcaoDimensionamento = iValor; }
  /// The path of the text file.
  const std::string& sGetCaminhoArquivo() const { return sCaminhoArquivo; }
  void vSetCaminhoArquivo(std::string sValor) { sCaminhoArquivo = std::move(sValor); }
  /// 0: the printer; 1: a text file; 2: a PDF file.
  std::int16_t iGetOpcaoSaida() const { return iOpcaoSaida; }
  void vSetOpcaoSaida(std::int16_t iValor) { iOpcaoSaida = iValor; }

 private:
  std::int16_t iColunas = 130;
  std::string sTitulo;
  const ListView* lstFonte = nullptr;
  std::int16_t iOpcaoDimensionamento = 1;
  std::string sCaminhoArquivo;
  std::int16_t iOpcaoSaida = 1;
};

}  // namespace fenvale
