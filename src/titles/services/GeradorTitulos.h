#pragma once
// What writes titles: the series that an invoice is turned into, the re-working of that series when the invoice is
// saved again, and what a settlement does to the other titles of its invoice. Told by the side of the ledger; knows no
// screen. None of it opens a transaction: that is the caller's, around the whole of its operation.

#include <cstdint>
#include <string>
#include <vector>

#include "platform/base/Currency.h"
#include "platform/base/Date.h"
#include "titles/services/Parcelas.h"
#include "titles/services/Titulos.h"

namespace fenvale {

class Contexto;
struct Lado;

/// The outcome of spreading the difference when the value of an open title was changed.
enum class Reajuste {
  feito,
  semTitulosAbertos,  ///< nothing was written
  semSaldo,           ///< a title would fall to 0 or below; the caller undoes what was written before it
};

class GeradorTitulos {
 public:
  GeradorTitulos(Contexto& contexto, const Lado& lado);

  /// The whole series anew. `lFatura` below 1 is an invoice that was just inserted: it becomes its key.
  void vCriarTitulosFatura(std::int32_t& lFatura, const DadosSerie& dados);
  /// Paid titles stay; what is open is spread over the unpaid ones, or becomes one more title due today. An invoice
  /// without titles gets its series.
  void vReajustarTitulosFatura(std::int32_t& lFatura, const DadosSerie& dados);

  /// Every open title of the invoice gets that paid amount, whatever its own value.
  void vPagarTitulosFatura(std::int32_t lFatura, Currency fValorPago);
  /// Levels the open titles, but for `lTitulo`, on what the invoice's titles still lack.
  void vAbaterTitulos(std::int32_t lFatura, std::int32_t lTitulo);
  /// The unpaid rest of a partial payment goes on in a title of its own; nothing when there is no such rest.
  void vCriarTituloComplementar(std::int32_t lFatura, Date dtVencimento, Currency fValor, Currency fValorPago);
  /// The other open titles take the difference between the old value of `lTitulo` and the new one.
  Reajuste reajustarTitulos(std::int32_t lFatura, std::int32_t lTitulo, Currency fAntigo, Currency fNovo);

  /// Whether re-working the invoice makes its series, as it has no titles: one that was just inserted (-1) has none.
  bool bSemTitulos(std::int32_t lFatura);
  /// The sum of what was paid on the invoice's titles.
  Currency fGetValorPago(std::int32_t lFatura);
  /// The highest key of the invoices: that of the one just inserted, as long as nobody else inserts.
  std::int32_t lGetCodigoUltimaFatura();

 private:
  void vExecutar(const std::string& sSQL);
  void vInserir(std::int32_t lFatura, const std::string& sCodigo, const TituloDaSerie& titulo, Date dtPagamento);
  void vGravarValores(const std::vector<std::int32_t>& titulos, const std::vector<Currency>& valores);
  std::vector<std::int32_t> titulosAbertos(std::int32_t lFatura, const std::string& sCondicao = {});

  Contexto& contexto_;
  const Lado& lado_;
  Titulos titulos_;
};

}  // namespace fenvale
