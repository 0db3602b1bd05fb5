#pragma once
// The register of customers: fiscal data, parents, three addresses, and the way to the customer's titles.

#include "registers/screens/FormularioCliente.h"
#include "registers/screens/TelaCadastro.h"

namespace fenvale {

class frmCadastroClientes final : public TelaCadastro, public FormularioCliente {
 public:
  explicit frmCadastroClientes(Contexto& contexto);

  Button cmdNovaCategoria{*this, "cmdNovaCategoria", "", "mais"};
  MoneyBox txtLimiteCredito{*this, "txtLimiteCredito"};
  Button cmdNovoVendedor{*this, "cmdNovoVendedor", "", "mais"};
  DatePicker dtNascimento{*this, "dtNascimento"};

 protected:
  bool bVerificarDados() override;

 private:
  void vMontarFormulario();
};

}  // namespace fenvale
