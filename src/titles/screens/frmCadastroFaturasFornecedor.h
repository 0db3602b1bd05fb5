#pragma once
// The invoices from suppliers.

#include "titles/screens/TelaFaturas.h"

namespace fenvale {

class frmCadastroFaturasFornecedor final : public TelaFaturas, public ReceptorFornecedor {
 public:
  explicit frmCadastroFaturasFornecedor(Contexto& contexto);

  LookupBox& txtFornecedor{entidades.pessoa.caixa};
  LookupBox& txtPortador{entidades.portador.caixa};
  LookupBox& txtCentroCusto{entidades.centroCusto.caixa};

  void vSetFornecedor(std::int32_t lChave, const std::string& sNome) override;
};

}  // namespace fenvale
