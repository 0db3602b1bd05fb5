#pragma once
// The titles that are owed to suppliers.

#include "titles/screens/TelaTitulosCadastro.h"

namespace fenvale {

class frmCadastroTitulosPagar final : public TelaTitulosCadastro,
                                      public ReceptorTituloPagar,
                                      public ReceptorFornecedor {
 public:
  explicit frmCadastroTitulosPagar(Contexto& contexto);

  LookupBox& txtFornecedor{entidades.pessoa.caixa};
  LookupBox& txtPortador{entidades.portador.caixa};
  LookupBox& txtCentroCusto{entidades.centroCusto.caixa};

  void vSetFornecedor(std::int32_t lChave, const std::string& sNome) override;
  void vSetTituloPagarBaixa(const ListItem& item) override { vSetTituloBaixa(item); }
};

}  // namespace fenvale
