#pragma once
// Ten read-only questions about invoices and titles. Table and column names arrive as arguments, so that one question
// serves both sides: ("TitulosReceber", "lFaturaCliente") and ("TitulosPagar", "lFaturaFornecedor"), and where an
// invoice is asked for, "FaturasCliente" and "FaturasFornecedor".

#include <cstdint>
#include <string>

#include "platform/base/Currency.h"

namespace fenvale {

class Contexto;

/// Stateless, over the store of the open company. A failing statement raises its Error to the caller.
class Titulos {
 public:
  explicit Titulos(Contexto& contexto);
  static const char* sGetName() { return "Titulos"; }

  /// The invoice of the title with that code; Error 3021 when there is none.
  std::int32_t lGetCodigoFaturaCliente(const std::string& sCodigoInf);
  std::int32_t lGetCodigoFaturaFornecedor(const std::string& sCodigoInf);
  /// How many titles an invoice has, plus `iAcrescimo`: 0 to count, 1 for the next place. Error 6 beyond 16 bits.
  std::int16_t iGetNumeroTitulosFatura(const std::string& sTabela, const std::string& sCampo, std::int32_t lCodigo,
                                       std::int16_t iAcrescimo);
  /// `fValor` less what was paid: with the invoice's total what is still open, with 0 the sum paid, negated.
  Currency fGetValorRestanteRecPagFatura(const std::string& sTabela, const std::string& sCampo, std::int32_t lCodigo,
                                         Currency fValor);
  /// Whether the invoice is stored with that payment condition; false when it is not there.
  bool bVerificarCondicaoPagamento(std::int32_t lCondicoesPagamento, const std::string& sTabela, std::int32_t lCodigo);
  /// What becomes of the titles when an invoice is saved again: 0 makes the series anew, any other spreads what is
  /// open. From the firm's settings; 0 without them.
  std::uint8_t btGetOpcaoReparcelamento();
  /// The number of the next complement. Counts the codes with an R at their eighth place, which holds for invoice keys
  /// of six digits; for longer ones the answer is always 1.
  std::int16_t iGetNumeroProximoRefaturamento(const std::string& sTabela, const std::string& sCampo,
                                              std::int32_t lCodigo);
  std::int16_t iGetNumeroTitulosNaoPagos(const std::string& sTabela, const std::string& sCampo, std::int32_t lCodigo);
  /// The invoice's total; 0 when it is not there.
  Currency fGetValorFatura(const std::string& sTabela, std::int32_t lCodigo);
  /// The sum of the values of an invoice's titles.
  Currency fGetValorTotalTitulosFatura(const std::string& sTabela, const std::string& sCampo, std::int32_t lCodigo);

 private:
  Contexto& contexto_;
};

}  // namespace fenvale
