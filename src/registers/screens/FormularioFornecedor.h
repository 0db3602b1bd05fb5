#pragma once
// The boxes of a supplier, as the register fills them and the full search asks for them.

#include "registers/screens/FormularioPessoa.h"
#include "registers/services/CampoBanco.h"

namespace fenvale {

class FormularioFornecedor : public FormularioPessoa {
 public:
  TextBox txtAgencia{tela_, "txtAgencia", 6};
  TextBox txtConta{tela_, "txtConta", 15};

  CampoBanco banco;

 protected:
  FormularioFornecedor(Screen& tela, Contexto& contexto);

  std::vector<LayoutNode> linhas();
};

}  // namespace fenvale
