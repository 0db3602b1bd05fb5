#pragma once
// The full search of the customers: the boxes of their register, each of which narrows the list when something is in
// it.

#include "registers/screens/FormularioCliente.h"
#include "registers/screens/TelaBuscaCompleta.h"

namespace fenvale {

class frmLocalizarClientes final : public TelaBuscaCompleta, public FormularioCliente {
 public:
  explicit frmLocalizarClientes(Contexto& contexto);

  CheckBox chkNascimento{*this, "chkNascimento", "Na&scimento"};
  DatePicker dtNascimentoInicial{*this, "dtNascimentoInicial"};
  DatePicker dtNascimentoFinal{*this, "dtNascimentoFinal"};

 protected:
  void onLoad() override;

 private:
  void vMontarFormulario();
};

}  // namespace fenvale
