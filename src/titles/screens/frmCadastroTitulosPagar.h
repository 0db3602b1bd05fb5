#pragma once
// The titles that are owed to suppliers.

#include "titles/screens/TelaTitulosCadastro.h"

namespace fenvale {

class frmCadastroTitulosPagar final : public TelaTitulosCadastro, public ReceptorFornecedor {
 public:
  explicit frmCadastroTitulosPagar(Contexto& contexto);

  LookupBox& txtFornecedor{entidades.pessoa.caixa};
  LookupBox& txtPortador{entidades.portador.caixa};
  LookupBox& txtCentroCusto{entidades.centroCusto.caixa};

  void vSetFornecedor(std::int32_t lChave, const std::string& sNome) override;
  /// Loads a title from a row of this screen's list or of a search.
  void vSetTituloPagarBaixa(const ListItem& item) { vSetTituloBaixa(item); }
};

}  // namespace fenvale
