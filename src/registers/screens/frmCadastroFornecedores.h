#pragma once
// The register of suppliers: fiscal data, one address, the bank account, and the way to the supplier's titles.

#include "registers/screens/FormularioFornecedor.h"
#include "registers/screens/TelaCadastro.h"

namespace fenvale {

class frmCadastroFornecedores final : public TelaCadastro, public FormularioFornecedor {
 public:
  explicit frmCadastroFornecedores(Contexto& contexto);

  Button cmdNovaCategoria{*this, "cmdNovaCategoria", "", "mais"};

 protected:
  bool bVerificarDados() override;
  void vAposNovo() override { banco.vLimpar(); }
  void vAposCarregar(const ListItem& item) override;
};

}  // namespace fenvale
