#pragma once
// The titles that customers owe.

#include "titles/screens/TelaTitulosCadastro.h"

namespace fenvale {

class frmCadastroTitulosReceber final : public TelaTitulosCadastro,
                                        public ReceptorTituloReceber,
                                        public ReceptorCliente,
                                        public ReceptorVendedor {
 public:
  explicit frmCadastroTitulosReceber(Contexto& contexto);

  LookupBox& txtCliente{entidades.pessoa.caixa};
  LookupBox& txtPortador{entidades.portador.caixa};
  LookupBox& txtVendedor{entidades.vendedor->caixa};
  LookupBox& txtCentroCusto{entidades.centroCusto.caixa};

  void vSetCliente(std::int32_t lChave, const std::string& sNome) override;
  void vSetVendedor(std::int32_t lChave, const std::string& sNome) override;
  void vSetTituloReceberBaixa(const ListItem& item) override { vSetTituloBaixa(item); }
};

}  // namespace fenvale
