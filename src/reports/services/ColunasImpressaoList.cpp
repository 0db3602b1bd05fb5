#include "reports/services/ColunasImpressaoList.h"

#include <algorithm>
#include <string>

#include "platform/base/Checked.h"
#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/ui/ListView.h"
#include "shell/services/Funcoes.h"

namespace fenvale {

void ColunasImpressaoList::vDimensionarColunas(std::int16_t iColunas, const ListView& lst,
                                               std::int16_t iOpcaoDimensionamento) {
  if (iOpcaoDimensionamento == 0) vDimensionarColunas_LetrasCabecalho(iColunas, lst);
}

void ColunasImpressaoList::vDimensionarColunas_LetrasCabecalho(std::int16_t iColunas, const ListView& lst) {
  const auto lColunas = static_cast<std::int64_t>(lst.columns().size());
  if (lColunas == 0) throw Error(errors::divisionByZero, "A lista não tem colunas.");
  std::int64_t lTamanho = Funcoes::iArrendondarValor_DOWN(
      Currency::fromDouble(static_cast<double>(iColunas - 1 - lColunas) / static_cast<double>(lColunas)));
  for (const ListColumn& coluna : lst.columns())
    lTamanho = std::max(lTamanho, static_cast<std::int64_t>(length(coluna.heading)));

  // A line of n columns has n + 1 bars.
  const auto lLinha = [&lTamanho](std::int64_t n) { return lTamanho * n + 1 + n; };
  std::int64_t lNumColLinha = 0;
  for (std::int64_t i = 1; i <= lColunas; ++i)
    if (lLinha(i) < iColunas) lNumColLinha = i;
  if (lNumColLinha == 0)
    throw Error(errors::overflow, "As colunas da lista, na largura dos cabeçalhos, não cabem em uma linha de " +
                                      std::to_string(iColunas) + " caracteres.");

  const std::int64_t lSobra = iColunas - lLinha(lNumColLinha);
  lTamanho += lSobra / lNumColLinha;
  iNumColLinha = toInt16(lNumColLinha);
  iTamanhoPadrao = toInt16(lTamanho);
  iUltimaColuna = toInt16(lTamanho + lSobra % lNumColLinha);
}

}  // namespace fenvale
