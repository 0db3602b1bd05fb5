#pragma once
// The interfaces by which one screen reaches another of any folder: a list to be refilled, and the receivers of what a
// search picked.

#include <cstdint>
#include <string>

namespace fenvale {

class ListItem;

/// A screen with a paged list, which search screens and menus drive.
class TelaComLista {
 public:
  virtual ~TelaComLista() = default;
  /// Fills the list with the page that starts at record `iInicio` (0-based) of the rows that `sWhere` selects (empty,
  /// or a clause that begins with "WHERE"). Loads the screen first when it is not, so that the opening's own first fill
  /// never replaces what the clause selected.
  virtual void vMontarLista(std::int16_t iInicio, const std::string& sWhere) = 0;
};

class ReceptorCategoria {
 public:
  virtual ~ReceptorCategoria() = default;
  virtual void vSetCategoria(std::int32_t lCodigo, const std::string& sNome) = 0;
};

class ReceptorVendedor {
 public:
  virtual ~ReceptorVendedor() = default;
  virtual void vSetVendedor(std::int32_t lCodigo, const std::string& sNome) = 0;
};

class ReceptorCliente {
 public:
  virtual ~ReceptorCliente() = default;
  virtual void vSetCliente(std::int32_t lCodigo, const std::string& sNome) = 0;
};

class ReceptorFornecedor {
 public:
  virtual ~ReceptorFornecedor() = default;
  virtual void vSetFornecedor(std::int32_t lCodigo, const std::string& sNome) = 0;
};

class ReceptorPortador {
 public:
  virtual ~ReceptorPortador() = default;
  virtual void vSetPortador(std::int32_t lCodigo, const std::string& sNome) = 0;
};

class ReceptorCentroCusto {
 public:
  virtual ~ReceptorCentroCusto() = default;
  virtual void vSetCentroCusto(std::int32_t lCodigo, const std::string& sDescricao) = 0;
};

class ReceptorCondicaoPagamento {
 public:
  virtual ~ReceptorCondicaoPagamento() = default;
  /// `bitEntrada` is -1 with entry, 0 without.
  virtual void vSetCondicaoPagamento(std::int32_t lCodigo, std::int32_t btCodigoInf, std::int32_t iNumeroParcelas,
                                     std::int32_t iIntervalo, std::int32_t bitEntrada) = 0;
};

/// The title screens, as the searches for settlement hand them a title: from a row with their own columns, the key
/// included.
class ReceptorTituloReceber {
 public:
  virtual ~ReceptorTituloReceber() = default;
  virtual void vSetTituloReceberBaixa(const ListItem& item) = 0;
};

class ReceptorTituloPagar {
 public:
  virtual ~ReceptorTituloPagar() = default;
  virtual void vSetTituloPagarBaixa(const ListItem& item) = 0;
};

/// A quick search or full search, opened for the screen that is to be driven or called back.
class TelaBusca {
 public:
  virtual ~TelaBusca() = default;
  /// Shows itself modally; all but the filters of invoices and titles search once before, with empty boxes. `chamador`
  /// is reached only by the interface that this search needs; one without it gets a failure through the reporter.
  virtual void vLocalizar(class Screen& chamador) = 0;
};

/// The title screens, as invoice screens show them inside their open transaction.
class TelaTitulos : public virtual TelaComLista {
 public:
  /// The invoice whose titles are shown; 0 is off.
  virtual void vSetFaturaPreview(std::int32_t lFatura) = 0;
};

}  // namespace fenvale
