#pragma once
// How the columns of a list share the lines of a printout when the headings decide it.

#include <cstdint>

namespace fenvale {

class ListView;

class ColunasImpressaoList {
 public:
  static const char* sGetName() { return "ColunasImpressaoList"; }

  /// The width of an ordinary column.
  std::int16_t iGetTamanhoPadrao() const { return iTamanhoPadrao; }
  /// The width of the last column of a line.
  std::int16_t iGetUltimaColuna() const { return iUltimaColuna; }
  /// How many columns go on one line.
  std::int16_t iGetNumColLinha() const { return iNumColLinha; }

  /// Nothing happens for an option other than 0.
  void vDimensionarColunas(std::int16_t iColunas, const ListView& lst, std::int16_t iOpcaoDimensionamento);
  /// Every column, hidden ones too, becomes wide enough for the longest heading, and a full line has exactly `iColunas`
  /// characters. Error 6 when not even one column fits, 11 for a list without columns.
  void vDimensionarColunas_LetrasCabecalho(std::int16_t iColunas, const ListView& lst);

 private:
  std::int16_t iTamanhoPadrao = 0;
  std::int16_t iUltimaColuna = 0;
  std::int16_t iNumColLinha = 0;
};

}  // namespace fenvale
