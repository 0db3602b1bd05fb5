#pragma once
// The invoices of an invented company and their titles, one invoice after another in the order of their emission.
// Titles come from the same arithmetic as those of the program: equal split, remainder on the last, entry paid at once.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "exemplo/Sorteio.h"
#include "platform/base/Currency.h"
#include "platform/base/Date.h"
#include "titles/services/Parcelas.h"

namespace fenvale::bancada {

/// How many rows a generated store has. One to twelve titles for an invoice, on the average.
struct Volume {
  std::uint32_t clientes;
  std::uint32_t faturas;
  std::uint32_t titulos;
};

struct Condicao {
  std::int16_t iNumeroParcelas;
  std::int16_t iIntervalo;
  bool bEntrada;
};

/// 1 to 12 instalments without entry, then 2 to 12 with entry, 30 days apart.
inline constexpr std::size_t maiorParcelamento = 12;
const std::array<Condicao, 2 * maiorParcelamento - 1>& condicoes();

struct Titulo {
  std::string sCodigoInf;
  Date dtVencimento{};
  Currency fValor;
  Date dtPagamento{};  ///< while unpaid a filler, as the program writes one
  Currency fValorPago, fJuros, fDesconto;
  std::int32_t lNF = 0;
  std::string sObs;
};

/// References are places from 0 in the order in which the rows were made.
struct Fatura {
  std::uint32_t cliente = 0, vendedor = 0, portador = 0, centroCusto = 0;
  std::size_t condicao = 0;
  Date dtEmissao{};
  Currency fTotal, fEntrada;
  std::vector<Titulo> titulos;
};

/// How many rows of the small registers an invoice may point at.
struct Cadastros {
  std::uint32_t vendedores, portadores, centrosCusto;
};

class Negocios {
 public:
  /// Two years of business up to `hoje`. The titles number exactly `volume.titulos`, complements of partial payments
  /// (one in two hundred) among them; about 70 % are paid, and of the others most are overdue.
  Negocios(std::uint64_t semente, Date hoje, Volume volume, Cadastros cadastros);

  /// The invoice at a place from 0, whose key is `lCodigo`.
  Fatura fatura(std::uint32_t lugar, std::int32_t lCodigo) const;

 private:
  bool bTemComplemento(std::uint32_t lugar) const;
  Date dtEmissao(std::uint32_t lugar) const;
  void vBaixar(exemplo::Sorteio& sorteio, Titulo& titulo, Date dtEmissao) const;
  void vPagarEmParte(exemplo::Sorteio& sorteio, Fatura& fatura, std::size_t titulo, std::int32_t lCodigo) const;

  std::uint64_t semente_;
  Date hoje_;
  Volume volume_;
  Cadastros cadastros_;
  std::uint32_t complementos_;
  std::vector<std::uint8_t> parcelas_;  ///< of each invoice
};

}  // namespace fenvale::bancada
