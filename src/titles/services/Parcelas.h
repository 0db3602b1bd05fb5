#pragma once
// The arithmetic of titles, without store or screen: their codes, the split of an amount, the series that a payment
// condition makes of an invoice, and what a payment above a title's value means for the invoice.

#include <cstdint>
#include <string>
#include <vector>

#include "platform/base/Currency.h"
#include "platform/base/Date.h"

namespace fenvale {

/// "000123/002": the invoice's key in six or more digits, the instalment in three or more.
std::string sCodigoTitulo(std::int32_t lFatura, std::int32_t iParcela);
/// The code of a title added to a paid-up invoice: as sCodigoTitulo, the instalment cut to its first three digits.
std::string sCodigoTituloAcrescentado(std::int32_t lFatura, std::int32_t iParcela);
/// "000123/R01": the code of a complement, its number cut to its first two digits.
std::string sCodigoComplemento(std::int32_t lFatura, std::int32_t iNumero);

/// Shares of `fValor` over `iQuantidade` titles: equal, rounded to two decimals half to even; the last one takes the
/// difference. Never loses or adds a cent. Empty for a quantity below 1.
std::vector<Currency> repartir(Currency fValor, std::int32_t iQuantidade);

/// What a series of titles is made from. Intervals are whole days; the entry value is 0 without an entry.
struct DadosSerie {
  Date dtEmissao{};
  Currency fTotal;
  Currency fEntrada;
  std::int16_t iNumeroParcelas = 1;
  std::int16_t iIntervalo = 0;
  bool bEntrada = false;
};

struct TituloDaSerie {
  Date dtVencimento{};
  Currency fValor;
  /// 0 but for the entry, which is paid from the start.
  Currency fValorPago;
  bool operator==(const TituloDaSerie&) const = default;
};

/// The titles of a series, in order. Due dates are a chain of fixed steps in days; the values add up to the total, but
/// for one instalment with entry, which is the entry alone. Error 6 for a due date beyond the year 9999.
std::vector<TituloDaSerie> serieTitulos(const DadosSerie& dados);

/// What can become of a payment above a title's value.
enum class Excesso {
  semOutrosTitulos,  ///< refused: there is no other open title to take it off
  acimaDoRestante,   ///< refused: more than the invoice still owes
  pagaFatura,        ///< exactly what the invoice still owes: may pay all of it
  abateTitulos,      ///< may be taken off the other open titles
};

/// Interest and discount count here, and only here: a payment may be above the value by its interest.
bool bHaExcesso(Currency fValor, Currency fValorPago, Currency fJuros, Currency fDesconto);
/// `iAbertos` counts the invoice's unpaid titles, this one among them.
Excesso classificarExcesso(Currency fValorPago, Currency fRestante, std::int32_t iAbertos);

}  // namespace fenvale
