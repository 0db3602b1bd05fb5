#pragma once
// The invoices to customers.

#include "titles/screens/TelaFaturas.h"

namespace fenvale {

class frmCadastroFaturasCliente final : public TelaFaturas, public ReceptorCliente, public ReceptorVendedor {
 public:
  explicit frmCadastroFaturasCliente(Contexto& contexto);

  LookupBox& txtCliente{entidades.pessoa.caixa};
  LookupBox& txtPortador{entidades.portador.caixa};
  LookupBox& txtVendedor{entidades.vendedor->caixa};
  LookupBox& txtCentroCusto{entidades.centroCusto.caixa};

  void vSetCliente(std::int32_t lChave, const std::string& sNome) override;
  void vSetVendedor(std::int32_t lChave, const std::string& sNome) override;
};

}  // namespace fenvale
